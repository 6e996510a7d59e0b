#include "addressbook/addressbook_statements.h"

#include "data/text/trim.h"

namespace tavrin::addressbook {

std::string ListStatement(std::string_view numePattern, std::string_view prenumePattern) {
    std::string statement = "SELECT ";
    std::string_view separator;
    for (const std::string_view column : Columns) {
        statement.append(separator).append("AGENDA.").append(column);
        separator = ", ";
    }
    statement.append(" FROM AGENDA ");
    statement.append(" WHERE NUME LIKE '").append(numePattern).append("' AND ");
    statement.append("       PRENUME LIKE '").append(prenumePattern).append("'");
    return statement.append(" ORDER BY AGENDA.Nume, AGENDA.Prenume");
}

std::string InsertStatement(const Person& person) {
    std::string statement =
        "INSERT INTO [Agenda](Nume , Prenume, AdresaHome, OrasHome, JudetHome, TelefonAcasa, TelefonMobil, "
        "Email, DescriereFirma, AdresaFirma, OrasFirma, JudetFirma, Telefon, Fax, Departament, Functie) "
        "VALUES ( '";
    std::string_view separator;
    for (const std::string& value : person) {
        statement.append(separator).append(data::Trimmed(value));
        separator = "','";
    }
    return statement.append("')");
}

std::string UpdateStatement(const Person& person) {
    std::string statement = "UPDATE [AGENDA] ";
    std::string_view lead = "   SET ";
    for (std::size_t column = FirstDetailColumn; column < Columns.size(); ++column) {
        statement.append(lead).append(Columns[column]).append(" ='").append(data::Trimmed(person[column]));
        statement.append(column + 1 < Columns.size() ? "'," : "'");
        lead = "       ";
    }
    statement.append(" WHERE Nume ='").append(data::Trimmed(person[NumeColumn]));
    return statement.append("' AND Prenume ='").append(data::Trimmed(person[PrenumeColumn])).append("'");
}

std::string DeleteStatement(std::string_view nume, std::string_view prenume) {
    std::string statement = "DELETE FROM [AGENDA] WHERE Nume = '";
    statement.append(data::Trimmed(nume))
        .append("' AND Prenume = '")
        .append(data::Trimmed(prenume))
        .append("'");
    return statement;
}

}  // namespace tavrin::addressbook
