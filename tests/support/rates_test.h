#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "data/text/number_text.h"
#include "host/embedded/embedded_connection.h"
#include "host/embedded/embedded_database.h"
#include "rates/curs_valutar.h"
#include "support/recording_connection.h"
#include "support/window_test.h"

namespace tavrin::tests {

/// The rate windows on a small database: company 7 with days frozen up to 10 May 2003, company 8 with none,
/// five days of May 2003 in EUR and USD. Every statement is recorded.
class RatesTest : public WindowTest {
  protected:
    RatesTest() {
        for (const char* statement : {
                 "CREATE TABLE [Curs Valutar] (Data datetime NOT NULL PRIMARY KEY, Validat int, EUR float, "
                 "USD float)",
                 "CREATE TABLE LpVal (Valuta nvarchar(10), Curs float)",
                 "CREATE TABLE An (An int)",
                 "CREATE TABLE AdmQuadrel.dbo.Societati (Id int, Curs datetime)",
                 "INSERT INTO AdmQuadrel.dbo.Societati (Id, Curs) VALUES (7, '05-10-2003')",
                 "INSERT INTO AdmQuadrel.dbo.Societati (Id, Curs) VALUES (8, NULL)",
                 "INSERT INTO An (An) VALUES (2003)",
             }) {
            Run(statement);
        }
        AddDay("05-08-2003", 37100, 32500);
        AddDay("05-09-2003", 37200, 32400);
        AddDay("05-12-2003", 37300.5, 32300);
        AddDay("05-13-2003", 37400, 32200);
        AddDay("05-14-2003", 37500, 32100);
        connection =
            std::make_shared<RecordingConnection>(std::make_shared<host::EmbeddedConnection>(database));
        application.context.connection = connection;
        application.context.workDate = Day(2003, 5, 20);
        application.context.workYear = 2003;
        application.context.companyId = 7;
    }

    static data::OleDate Day(int year, int month, int day) { return data::ToOleDate({year, month, day}); }

    /// Past the recording.
    std::shared_ptr<data::MemoryTable> Run(const std::string& statement) {
        return database->Run(statement).rows;
    }

    void AddDay(const std::string& monthDayYear, double euro, double dollar) {
        Run("INSERT INTO [Curs Valutar]([Data],[EUR],[USD]) VALUES('" + monthDayYear + "'," +
            data::NumberText(euro) + "," + data::NumberText(dollar) + ")");
    }

    std::int64_t CountOf(const std::string& fromAndWhere) {
        return Run("SELECT count(*) FROM " + fromAndWhere)->At(0, 0).ToInteger();
    }

    rates::CursValutar& OpenList() {
        auto& list = application.Default<rates::CursValutar>();
        list.ShowForm();
        return list;
    }

    /// One grid row as text, hidden columns included.
    static std::vector<std::string> RowOf(const forms::Grid& grid, int row) {
        std::vector<std::string> texts;
        for (int column = 0; column < grid.Columns(); ++column)
            texts.push_back(grid.TextMatrix(row, column));
        return texts;
    }

    static std::vector<std::string> ColumnOf(const forms::Grid& grid, int column) {
        std::vector<std::string> texts;
        for (int row = 0; row < grid.Rows(); ++row)
            texts.push_back(grid.TextMatrix(row, column));
        return texts;
    }

    std::shared_ptr<host::EmbeddedDatabase> database = std::make_shared<host::EmbeddedDatabase>(":memory:");
    std::shared_ptr<RecordingConnection> connection;
};

}  // namespace tavrin::tests
