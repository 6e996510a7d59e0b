// The script that integrators get: its tables carry the statements of every window.

#include <gmock/gmock.h>

#include <fstream>
#include <iterator>
#include <regex>

#include "addressbook/addressbook_statements.h"
#include "doctor/core/window_statements.h"
#include "host/embedded/embedded_connection.h"
#include "rates/rate_statements.h"

namespace tavrin {
namespace {

using host::EmbeddedConnection;
using host::EmbeddedDatabase;
using testing::ElementsAre;

std::string SourceFile(const char* name) {
    return std::string(TAVRIN_SOURCE_FOLDER) + "/" + name;
}

/// A script's statements. A server's tools end a batch at GO; the embedded database has but one file, whose
/// tables it knows by their full names, and neither databases nor users. As that file is new, nothing exists
/// yet and no statement needs its IF.
std::vector<std::string> StatementsForOneDatabase(const char* name) {
    std::ifstream file(SourceFile(name));
    std::string script{std::istreambuf_iterator<char>(file), {}};
    script = std::regex_replace(script, std::regex("--[^\n]*|(^|\n)GO(?=\n)"), "");
    script = std::regex_replace(script, std::regex("IF (DB_ID|OBJECT_ID|COL_LENGTH)\\([^)]*\\) IS NULL"), "");
    const std::regex statement("[^;]*[^;\\s][^;]*;");
    const std::regex otherBusiness(R"(\s*(CREATE DATABASE|USE|GRANT|IF \w*(USER|PRINCIPAL)_ID)\b[^;]*;)");
    std::vector<std::string> statements;
    for (std::sregex_iterator found(script.begin(), script.end(), statement), end; found != end; ++found)
        if (!std::regex_match(found->str(), otherBusiness)) statements.push_back(found->str());
    return statements;
}

class TablesScript : public testing::Test {
  protected:
    TablesScript() {
        for (const char* const script : {"examples/database/tables.sql", "examples/database/rows.sql"}) {
            for (const std::string& statement : StatementsForOneDatabase(script))
                connection_.Execute(statement);
        }
    }

    void Run(std::string_view statement) { connection_.Execute(std::string(statement)); }

    std::vector<std::string> FieldNames(std::string_view statement) {
        const auto rows = connection_.Execute(statement);
        std::vector<std::string> names;
        for (std::size_t field = 0; field < rows->FieldCount(); ++field)
            names.push_back(rows->FieldName(field));
        return names;
    }

    std::int64_t Count(std::string_view table) {
        return data::ExecuteScalar(connection_, "SELECT count(*) FROM " + std::string(table)).ToInteger();
    }

    EmbeddedConnection connection_{std::make_shared<EmbeddedDatabase>(":memory:")};
};

TEST_F(TablesScript, HasEveryTable) {
    EXPECT_EQ(Count("[Curs Valutar]"), 4);
    EXPECT_EQ(Count("LpVal"), 2);
    EXPECT_EQ(Count("An"), 1);
    EXPECT_EQ(Count("AdmQuadrel.dbo.Societati"), 2);
    EXPECT_EQ(Count("Agenda"), 2);
}

TEST_F(TablesScript, CurrenciesFollowDayAndFlag) {
    EXPECT_THAT(FieldNames(rates::ColumnsStatement), ElementsAre("Data", "Validat", "EUR", "$"));
}

TEST_F(TablesScript, RatesAreReadAndWritten) {
    const std::string day = "04/11/2003";
    Run(rates::InsertDayStatement("29/11/2003", {{"EUR", "39,900"}, {"$", "33,400"}}));
    EXPECT_EQ(Count("[Curs Valutar]"), 5);
    Run(rates::UpdateDayStatement(day, {{"EUR", "1"}, {"$", "2"}}));
    Run(rates::DeleteDayStatement(day));
    EXPECT_EQ(Count("[Curs Valutar]"), 4);
}

TEST_F(TablesScript, ACurrencyIsAdded) {
    Run(rates::AddColumnStatement("GBP"));
    Run(rates::ZeroColumnStatement("GBP"));
    Run(rates::RegisterCurrencyStatement("GBP"));
    EXPECT_THAT(FieldNames(rates::ColumnsStatement), ElementsAre("Data", "Validat", "EUR", "$", "GBP"));
    EXPECT_EQ(Count("LpVal"), 3);
}

TEST_F(TablesScript, CarriesEveryStatementOfTheWindows) {
    for (const doctor::StatementGroup& group : doctor::WindowStatements(doctor::UnlikelySample())) {
        for (const std::string& statement : group.statements)
            EXPECT_NO_THROW(Run(statement)) << group.window << ": " << statement;
    }
}

TEST_F(TablesScript, PersonsAreReadAndWritten) {
    Run(addressbook::ListStatement("Pop%", "%"));
    addressbook::Person person;
    person[addressbook::NumeColumn] = "Albu";
    person[addressbook::PrenumeColumn] = "Dan";
    Run(addressbook::InsertStatement(person));
    EXPECT_THROW(Run(addressbook::InsertStatement(person)), data::Error) << "the pair of names is a key";
    Run(addressbook::UpdateStatement(person));
    Run(addressbook::DeleteStatement("Albu", "Dan"));
    EXPECT_EQ(Count("Agenda"), 2);
}

}  // namespace
}  // namespace tavrin
