// What lies at the edges of the dialect: statements that are malformed late, values out of range, and what
// the embedded database has not learned.
#include <gmock/gmock.h>

#include "host/embedded/dialect/provider_error.h"
#include "unit/embedded/embedded_test.h"

namespace tavrin::host {
namespace {

namespace provider_error = dialect::provider_error;
using testing::ElementsAre;

struct Edge {
    std::int32_t number;
    const char* statement;
};

void PrintTo(const Edge& edge, std::ostream* out) {
    *out << edge.statement;
}

class DialectEdge : public EmbeddedTest, public testing::WithParamInterface<Edge> {};

TEST_P(DialectEdge, IsRefusedAndChangesNothing) {
    const std::vector<std::string> before = Rows("SELECT * FROM [Curs Valutar] ORDER BY Data");
    EXPECT_EQ(ErrorOf(GetParam().statement).Number(), GetParam().number);
    EXPECT_EQ(Rows("SELECT * FROM [Curs Valutar] ORDER BY Data"), before);
}

INSTANTIATE_TEST_SUITE_P(
    NotLearned, DialectEdge,
    testing::Values(
        Edge{provider_error::NotImplemented, "SELECT EUR FROM [Curs Valutar] WHERE EUR = (SELECT 1)"},
        Edge{provider_error::NotImplemented, "SELECT COUNT(DISTINCT EUR) FROM [Curs Valutar]"},
        Edge{provider_error::NotImplemented, "SELECT CONVERT(nvarchar(MAX), EUR) FROM [Curs Valutar]"},
        Edge{provider_error::NotImplemented, "SELECT EUR FROM [Curs Valutar] AS c"},
        Edge{provider_error::NotImplemented, "INSERT INTO An (An) SELECT 2003"},
        Edge{provider_error::NotImplemented, "INSERT INTO An (An) VALUES (2003), (2004)"},
        Edge{provider_error::NotImplemented, "UPDATE An SET An = 1 FROM An"},
        Edge{provider_error::NotImplemented, "ALTER TABLE An ADD x int NOT NULL"},
        Edge{provider_error::NotImplemented, "ALTER TABLE An ADD x int, y int"},
        Edge{provider_error::NotImplemented, "SELECT EUR FROM [Curs Valutar] ORDER BY 'x'"},
        Edge{provider_error::NotImplemented, "CREATE TABLE T (x nvarchar(0))"},
        Edge{provider_error::NotImplemented, "CREATE TABLE T (x int(4))"},
        Edge{provider_error::NotImplemented, "CREATE TABLE T (x int PRIMARY KEY, y int PRIMARY KEY)"},
        Edge{provider_error::NotImplemented, "SELECT EUR FROM [Curs Valutar] WHERE EUR + 1"},
        Edge{provider_error::NotImplemented, "CREATE VIEW V"}));

INSTANTIATE_TEST_SUITE_P(
    Malformed, DialectEdge,
    testing::Values(Edge{provider_error::ErrorsInCommand, "SELECT EUR FROM [Curs Valutar] WHERE EUR NOT = 1"},
                    Edge{provider_error::ErrorsInCommand, "SELECT EUR FROM [Curs Valutar] WHERE EUR"},
                    Edge{provider_error::ErrorsInCommand, "SELECT YEAR(Data, EUR) FROM [Curs Valutar]"},
                    Edge{provider_error::ErrorsInCommand, "SELECT AVG(Nume) FROM Agenda"},
                    Edge{provider_error::ErrorsInCommand, "SELECT EUR"},
                    Edge{provider_error::ErrorsInCommand, "SELECT * FROM [Curs Valutar] GROUP BY EUR"},
                    Edge{provider_error::ErrorsInCommand, "SELECT EUR FROM [Curs Valutar] ORDER BY 2"},
                    Edge{provider_error::ErrorsInCommand, "SELECT EUR FROM [Curs Valutar] ORDER BY 0"},
                    Edge{provider_error::ErrorsInCommand, "INSERT INTO An (An) VALUES (1, 2)"},
                    Edge{provider_error::ErrorsInCommand, "UPDATE [Curs Valutar] SET EUR = 1, EUR = 2"},
                    Edge{provider_error::ErrorsInCommand, "CREATE TABLE T (x int, y float, X float)"},
                    Edge{provider_error::ErrorsInCommand, "CREATE TABLE T (x int, PRIMARY KEY (z))"}));

INSTANTIATE_TEST_SUITE_P(
    OutOfRange, DialectEdge,
    testing::Values(
        Edge{provider_error::CantConvertValue, "DELETE FROM [Curs Valutar] WHERE Data = '2003-05-20 25:00'"},
        Edge{provider_error::CantConvertValue, "DELETE FROM [Curs Valutar] WHERE Data = '2003-05-20 10:60'"},
        Edge{provider_error::CantConvertValue, "DELETE FROM [Curs Valutar] WHERE Data = '2003-05/20'"},
        Edge{provider_error::CantConvertValue, "DELETE FROM [Curs Valutar] WHERE Data = '123-05-2003'"},
        Edge{provider_error::CantConvertValue, "DELETE FROM [Curs Valutar] WHERE Data = '05-20-203'"},
        Edge{provider_error::CantConvertValue, "DELETE FROM [Curs Valutar] WHERE Data = '2003-05-20 10'"},
        Edge{provider_error::CantConvertValue,
             "DELETE FROM [Curs Valutar] WHERE Data = '2003-05-20 10:00 x'"},
        Edge{provider_error::CantConvertValue,
             "INSERT INTO AdmQuadrel.dbo.Societati VALUES (9, '1899-12-31')"},
        Edge{provider_error::CantConvertValue,
             "INSERT INTO AdmQuadrel.dbo.Societati VALUES (9, '2079-06-08')"},
        Edge{provider_error::CantConvertValue, "INSERT INTO An VALUES ('2003.5')"}));

class DialectRange : public EmbeddedTest {};

TEST_F(DialectRange, DatesMayCarryFractionsOfASecond) {
    Run("INSERT INTO [Curs Valutar](Data, EUR) VALUES ('2004-01-02 10:20:30.500', 1)");
    EXPECT_NEAR(Scalar("SELECT Data FROM [Curs Valutar] WHERE EUR = 1").ToDouble() - 37988,
                (10 * 3600 + 20 * 60 + 30.5) / 86400, 1e-9);
}

TEST_F(DialectRange, YearsOfTwoDigitsTurnAtFifty) {
    Run("INSERT INTO [Curs Valutar](Data, EUR) VALUES ('01-02-49', 49)");
    Run("INSERT INTO [Curs Valutar](Data, EUR) VALUES ('01-02-50', 50)");
    EXPECT_THAT(Rows("SELECT YEAR(Data) FROM [Curs Valutar] WHERE EUR < 100 ORDER BY EUR"),
                ElementsAre("2049", "1950"));
}

TEST_F(DialectRange, AnAliasMayStandWithoutItsWord) {
    EXPECT_THAT(FieldNames("SELECT EUR Euro FROM [Curs Valutar]"), ElementsAre("Euro"));
}

TEST_F(DialectRange, SumsAreKnown) {
    EXPECT_EQ(Scalar("SELECT SUM(EUR) FROM [Curs Valutar]").ToDouble(), 37512.5 + 37480 + 38000 + 34919);
}

TEST_F(DialectRange, ComparisonsWithNullFindNothing) {
    EXPECT_THAT(Rows("SELECT EUR FROM [Curs Valutar] WHERE USD = NULL"), testing::IsEmpty());
}

}  // namespace
}  // namespace tavrin::host
