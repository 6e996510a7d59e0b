#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "host/embedded/embedded_connection.h"

namespace tavrin::host {

/// A database in memory with the tables of the host, small enough to know every row.
class EmbeddedTest : public testing::Test {
  protected:
    EmbeddedTest() {
        for (const char* const statement :
             {"CREATE TABLE [Curs Valutar] ([Data] datetime PRIMARY KEY, Validat int, EUR float, USD float)",
              "CREATE TABLE LpVal (Valuta nvarchar(10), Curs float)", "CREATE TABLE An (An int)",
              "CREATE TABLE AdmQuadrel.dbo.Societati (Id int PRIMARY KEY, Curs smalldatetime)",
              "CREATE TABLE Agenda (Nume nvarchar(50) NOT NULL, Prenume nvarchar(50) NOT NULL, AdresaHome "
              "nvarchar(100), OrasHome nvarchar(50), JudetHome nvarchar(50), TelefonAcasa nvarchar(20), "
              "TelefonMobil nvarchar(20), Email nvarchar(100), DescriereFirma nvarchar(100), AdresaFirma "
              "nvarchar(100), OrasFirma nvarchar(50), JudetFirma nvarchar(50), Telefon nvarchar(20), Fax "
              "nvarchar(20), Departament nvarchar(50), Functie nvarchar(50), PRIMARY KEY (Nume, Prenume))",
              "INSERT INTO [Curs Valutar] VALUES ('2003-05-19', NULL, 37512.5, 32100)",
              "INSERT INTO [Curs Valutar] VALUES ('2003-05-20', 1, 37480, 32044)",
              "INSERT INTO [Curs Valutar] VALUES ('2003-06-02', 0, 38000, NULL)",
              "INSERT INTO [Curs Valutar] VALUES ('2002-12-31', 0, 34919, 33500)"}) {
            Run(statement);
        }
    }

    std::unique_ptr<EmbeddedRecordset> Run(std::string_view statement) {
        return connection_.ExecuteEmbedded(statement);
    }

    /// Every row as the texts of its fields, joined by bars.
    std::vector<std::string> Rows(std::string_view statement) {
        const data::TablePtr table = Run(statement)->ReadAll();
        std::vector<std::string> rows;
        for (std::size_t row = 0; row < table->RowCount(); ++row)
            rows.push_back(RowText(*table, row));
        return rows;
    }

    std::vector<std::string> FieldNames(std::string_view statement) {
        std::vector<std::string> names;
        const std::unique_ptr<EmbeddedRecordset> rows = Run(statement);
        for (const FieldInfo& field : rows->Fields())
            names.push_back(field.name);
        return names;
    }

    /// The error that the statement gives; the test fails when it gives none.
    data::Error ErrorOf(std::string_view statement) {
        try {
            Run(statement);
        } catch (const data::Error& error) {
            return error;
        }
        ADD_FAILURE() << "no error: " << statement;
        return {0, ""};
    }

    data::Value Scalar(std::string_view statement) { return data::ExecuteScalar(connection_, statement); }

    EmbeddedConnection connection_{std::make_shared<EmbeddedDatabase>(":memory:")};

  private:
    static std::string RowText(const data::Table& table, std::size_t row) {
        std::string text;
        for (std::size_t field = 0; field < table.FieldCount(); ++field) {
            if (field > 0) text += '|';
            const data::Value value = table.At(row, field);
            text += value.IsNull() ? "NULL" : value.ToText();
        }
        return text;
    }
};

}  // namespace tavrin::host
