// What the server would refuse is refused with its numbers; what the dialect lacks is named.
#include <gmock/gmock.h>

#include "host/embedded/dialect/provider_error.h"
#include "unit/embedded/embedded_test.h"

namespace tavrin::host {
namespace {

namespace provider_error = dialect::provider_error;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

struct Refusal {
    const char* statement;
    std::int32_t number;
    const char* description;
};

void PrintTo(const Refusal& refusal, std::ostream* out) {
    *out << refusal.statement;
}

class RefusedStatement : public EmbeddedTest, public testing::WithParamInterface<Refusal> {};

TEST_P(RefusedStatement, GivesTheServersError) {
    const data::Error error = ErrorOf(GetParam().statement);
    EXPECT_EQ(error.Number(), GetParam().number);
    EXPECT_EQ(error.Description(), GetParam().description);
    EXPECT_EQ(Scalar("SELECT COUNT(*) FROM [Curs Valutar]"), data::Value(std::int64_t{4}));
}

INSTANTIATE_TEST_SUITE_P(
    Malformed, RefusedStatement,
    testing::Values(
        Refusal{"", provider_error::NoCommandText, "Command text was not set for the command object."},
        Refusal{"  ", provider_error::NoCommandText, "Command text was not set for the command object."},
        Refusal{"SELECT", provider_error::ErrorsInCommand, "Incorrect syntax near 'SELECT'."},
        Refusal{"SELECT * FROM", provider_error::ErrorsInCommand, "Incorrect syntax near 'FROM'."},
        Refusal{"SELECT * FROM WHERE", provider_error::ErrorsInCommand,
                "Incorrect syntax near the keyword 'WHERE'."},
        Refusal{"SELECT * FROM [Curs Valutar] WHERE YEAR(Data) =  ORDER BY Data",
                provider_error::ErrorsInCommand, "Incorrect syntax near the keyword 'ORDER'."},
        Refusal{"SELECT * FROM [Curs Valutar] WHERE (EUR = 1", provider_error::ErrorsInCommand,
                "Incorrect syntax near '1'."},
        Refusal{"SELECT [EUR FROM [Curs Valutar]", provider_error::ErrorsInCommand,
                "Invalid column name 'EUR FROM [Curs Valutar'."},
        Refusal{"SELECT EUR FROM [Curs Valutar", provider_error::ErrorsInCommand,
                "Unclosed quotation mark after the character string 'Curs Valutar'."},
        Refusal{"SELECT [] FROM [Curs Valutar]", provider_error::ErrorsInCommand,
                "An object or column name is missing or empty."},
        Refusal{"INSERT INTO [Curs Valutar]([Data],[EUR]) VALUES('05-21-2003',)",
                provider_error::ErrorsInCommand, "Incorrect syntax near ')'."},
        Refusal{"ALTER TABLE [Curs Valutar] ADD  [A]B] float", provider_error::ErrorsInCommand,
                "Incorrect syntax near ']'."}));

INSTANTIATE_TEST_SUITE_P(
    Names, RefusedStatement,
    testing::Values(
        Refusal{"SELECT * FROM Lipsa", provider_error::NoTable, "Invalid object name 'Lipsa'."},
        Refusal{"SELECT * FROM Societati", provider_error::NoTable, "Invalid object name 'Societati'."},
        Refusal{"SELECT * FROM [AdmQuadrel.dbo.Societati]", provider_error::NoTable,
                "Invalid object name 'AdmQuadrel.dbo.Societati'."},
        Refusal{"SELECT * FROM Alta.dbo.Societati", provider_error::NoTable,
                "Invalid object name 'Alta.dbo.Societati'."},
        Refusal{"SELECT * FROM sqlite_master", provider_error::NoTable,
                "Invalid object name 'sqlite_master'."},
        Refusal{"DELETE FROM Lipsa", provider_error::NoTable, "Invalid object name 'Lipsa'."},
        Refusal{"SELECT GBP FROM [Curs Valutar]", provider_error::ErrorsInCommand,
                "Invalid column name 'GBP'."},
        Refusal{"SELECT EUR FROM [Curs Valutar] WHERE GBP = 1", provider_error::ErrorsInCommand,
                "Invalid column name 'GBP'."},
        Refusal{"UPDATE [Curs Valutar] SET [GBP] = 0", provider_error::ErrorsInCommand,
                "Invalid column name 'GBP'."},
        Refusal{"INSERT INTO LpVal (Valuta, Nimic) VALUES ('X', 0)", provider_error::ErrorsInCommand,
                "Invalid column name 'Nimic'."},
        Refusal{"SELECT Agenda.EUR FROM [Curs Valutar]", provider_error::ErrorsInCommand,
                "The multi-part identifier \"Agenda.EUR\" could not be bound."},
        Refusal{"ALTER TABLE [Curs Valutar] ADD  [EUR] float", provider_error::ErrorsInCommand,
                "Column names in each table must be unique. Column name 'EUR' in table 'Curs Valutar' is "
                "specified more than once."},
        Refusal{"ALTER TABLE [Curs Valutar] ADD  [GBP] altceva", provider_error::ErrorsInCommand,
                "Column, parameter, or variable #1: Cannot find data type altceva."},
        Refusal{"CREATE TABLE agenda (x int)", provider_error::ErrorsInCommand,
                "There is already an object named 'agenda' in the database."},
        Refusal{"UPDATE [Curs Valutar] SET EUR = 1, [eur] = 2", provider_error::ErrorsInCommand,
                "The column name 'EUR' is specified more than once in the SET clause or column list of an "
                "INSERT."},
        Refusal{"INSERT INTO LpVal VALUES ('X')", provider_error::ErrorsInCommand,
                "Column name or number of supplied values does not match table definition."}));

INSTANTIATE_TEST_SUITE_P(
    Values, RefusedStatement,
    testing::Values(
        Refusal{"SELECT 'x' FROM [Curs Valutar] WHERE Data = '2003-02-30'", provider_error::CantConvertValue,
                "The conversion of a varchar data type to a datetime data type resulted in an out-of-range "
                "value."},
        Refusal{"SELECT 'x' FROM [Curs Valutar] WHERE Data = '20-05-2003'", provider_error::CantConvertValue,
                "The conversion of a varchar data type to a datetime data type resulted in an out-of-range "
                "value."},
        Refusal{"SELECT 'x' FROM [Curs Valutar] WHERE Data = '1752-12-31'", provider_error::CantConvertValue,
                "The conversion of a varchar data type to a datetime data type resulted in an out-of-range "
                "value."},
        Refusal{"SELECT 'x' FROM [Curs Valutar] WHERE Data = 'azi'", provider_error::CantConvertValue,
                "Conversion failed when converting date and/or time from character string."},
        Refusal{"INSERT INTO [Curs Valutar]([Data]) VALUES('--')", provider_error::CantConvertValue,
                "Conversion failed when converting date and/or time from character string."},
        Refusal{"UPDATE [Curs Valutar] SET EUR = 'mult'", provider_error::CantConvertValue,
                "Conversion failed when converting the varchar value 'mult' to a number."},
        Refusal{"UPDATE [Curs Valutar] SET EUR = 1e999", provider_error::DataOverflow,
                "Arithmetic overflow error converting expression to data type float."},
        Refusal{"UPDATE [Curs Valutar] SET Validat = 3000000000", provider_error::DataOverflow,
                "Arithmetic overflow error converting expression to data type int."},
        Refusal{"INSERT INTO LpVal VALUES ('prea lung nume', 0)", provider_error::DataOverflow,
                "String or binary data would be truncated."},
        Refusal{
            "UPDATE [Curs Valutar] SET Data = NULL", provider_error::IntegrityViolation,
            "Cannot insert the value NULL into column 'Data', table 'Curs Valutar'; column does not allow "
            "nulls."},
        Refusal{"UPDATE [Curs Valutar] SET Data = '2003-05-19' WHERE Data = '2003-05-20'",
                provider_error::IntegrityViolation,
                "Violation of PRIMARY KEY or UNIQUE constraint. Cannot insert duplicate key in object 'Curs "
                "Valutar'."}));

INSTANTIATE_TEST_SUITE_P(
    Queries, RefusedStatement,
    testing::Values(
        Refusal{
            "SELECT EUR FROM [Curs Valutar] GROUP BY YEAR(Data)", provider_error::ErrorsInCommand,
            "Column 'Curs Valutar.EUR' is invalid in the select list because it is not contained in either "
            "an aggregate function or the GROUP BY clause."},
        Refusal{
            "SELECT Data, MIN(EUR) FROM [Curs Valutar]", provider_error::ErrorsInCommand,
            "Column 'Curs Valutar.Data' is invalid in the select list because it is not contained in either "
            "an aggregate function or the GROUP BY clause."},
        Refusal{"SELECT DISTINCT YEAR(Data) FROM [Curs Valutar] ORDER BY EUR",
                provider_error::ErrorsInCommand,
                "ORDER BY items must appear in the select list if SELECT DISTINCT is specified."},
        Refusal{"SELECT EUR FROM [Curs Valutar] ORDER BY 2", provider_error::ErrorsInCommand,
                "The ORDER BY position number 2 is out of range of the number of items in the select list."},
        Refusal{"SELECT EUR FROM [Curs Valutar] WHERE MIN(EUR) = 1", provider_error::ErrorsInCommand,
                "An aggregate may not appear here: 'MIN'."}));

INSTANTIATE_TEST_SUITE_P(
    Unlearned, RefusedStatement,
    testing::Values(
        Refusal{"EXEC sp_who", provider_error::NotImplemented,
                "The embedded database does not understand a statement that begins with 'EXEC'."},
        Refusal{"SELECT TOP 1 EUR FROM [Curs Valutar]", provider_error::NotImplemented,
                "The embedded database does not understand 'TOP'."},
        Refusal{"SELECT EUR FROM [Curs Valutar] JOIN An ON An = EUR", provider_error::NotImplemented,
                "The embedded database does not understand 'JOIN'."},
        Refusal{"SELECT EUR + 1 FROM [Curs Valutar]", provider_error::NotImplemented,
                "The embedded database does not understand '+'."},
        Refusal{"SELECT EUR FROM [Curs Valutar], An", provider_error::NotImplemented,
                "The embedded database does not understand more than one table in FROM."},
        Refusal{"SELECT EUR FROM [Curs Valutar] -- tot", provider_error::NotImplemented,
                "The embedded database does not understand a comment."},
        Refusal{"DELETE FROM An; DELETE FROM [Curs Valutar]", provider_error::NotImplemented,
                "The embedded database does not understand more than one statement in one command."},
        Refusal{"ALTER TABLE [Curs Valutar] ADD  [X] float DROP TABLE Agenda", provider_error::NotImplemented,
                "The embedded database does not understand more than one statement in one command."},
        Refusal{"ALTER TABLE [Curs Valutar] DROP COLUMN EUR", provider_error::NotImplemented,
                "The embedded database does not understand ALTER TABLE other than ADD."},
        Refusal{"SELECT UPPER(Nume) FROM Agenda", provider_error::NotImplemented,
                "The embedded database does not understand the function 'UPPER'."},
        Refusal{
            "SELECT CONVERT(nvarchar, Data, 120) FROM [Curs Valutar]", provider_error::NotImplemented,
            "The embedded database does not understand CONVERT of datetime to nvarchar(30) in style 120."},
        Refusal{
            "SELECT CONVERT(nvarchar, EUR) FROM [Curs Valutar]", provider_error::NotImplemented,
            "The embedded database does not understand CONVERT of float to nvarchar(30) without a style."},
        Refusal{"SELECT CONVERT(bit, EUR) FROM [Curs Valutar]", provider_error::NotImplemented,
                "The embedded database does not understand the type bit."},
        Refusal{"SELECT EUR FROM [Curs Valutar] WHERE Data = 5", provider_error::NotImplemented,
                "The embedded database does not understand a comparison of datetime with int."},
        Refusal{"SELECT EUR FROM [Curs Valutar] WHERE EUR LIKE '3%'", provider_error::NotImplemented,
                "The embedded database does not understand LIKE on float."},
        Refusal{"SELECT EUR FROM [Curs Valutar] WHERE EUR IN (SELECT 1)", provider_error::NotImplemented,
                "The embedded database does not understand a query inside a query."}));

using DialectLimits = EmbeddedTest;

TEST_F(DialectLimits, DeepNestingIsRefusedAndNotFatal) {
    const std::string many(20000, '(');
    const std::string statement = "SELECT EUR FROM [Curs Valutar] WHERE " + many + "EUR";
    EXPECT_THAT(ErrorOf(statement).Description(), HasSubstr("nested too deeply"));
    std::string negations = "SELECT EUR FROM [Curs Valutar] WHERE ";
    for (int count = 0; count < 20000; ++count)
        negations += "NOT ";
    EXPECT_THAT(ErrorOf(negations + "EUR = 1").Description(), HasSubstr("nested too deeply"));
}

TEST_F(DialectLimits, ALongNameIsRefused) {
    EXPECT_EQ(ErrorOf("ALTER TABLE [Curs Valutar] ADD  [" + std::string(129, 'x') + "] float").Number(),
              provider_error::ErrorsInCommand);
    Run("ALTER TABLE [Curs Valutar] ADD  [" + std::string(128, 'x') + "] float");
}

TEST_F(DialectLimits, TextIsNeverPartOfTheEnginesStatement) {
    Run("INSERT INTO LpVal VALUES ('''; DROP', 0)");
    EXPECT_THAT(Rows("SELECT Valuta FROM LpVal WHERE Valuta = '''; DROP'"), ElementsAre("'; DROP"));
    Run("ALTER TABLE [Curs Valutar] ADD  [a\"; DROP TABLE Agenda; --] float");
    EXPECT_THAT(Rows("SELECT * FROM Agenda"), IsEmpty());
    EXPECT_THAT(FieldNames("SELECT * FROM [Curs Valutar]"), SizeIs(5));
}

TEST_F(DialectLimits, AStatementThatFailsHalfWayChangesNothing) {
    EXPECT_EQ(ErrorOf("UPDATE [Curs Valutar] SET Data = '2004-01-01'").Number(),
              provider_error::IntegrityViolation);
    EXPECT_THAT(Rows("SELECT Data FROM [Curs Valutar] ORDER BY Data"),
                ElementsAre("31/12/2002", "19/05/2003", "20/05/2003", "02/06/2003"));
}

}  // namespace
}  // namespace tavrin::host
