// Relatives of the windows' statements, with which a host and its tests look at the tables.
#include <gmock/gmock.h>
#include <sqlite3.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>

#include "data/text/date.h"
#include "unit/embedded/embedded_test.h"

namespace tavrin::host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using DialectQueries = EmbeddedTest;

TEST_F(DialectQueries, KeywordsAndNamesInAnyCaseAndSpacing) {
    EXPECT_THAT(Rows("select\teur\r\nFrom  [CURS valutar]WHERE data='2003-05-20'"), ElementsAre("37480"));
    EXPECT_THAT(Rows("SELECT dbo.[Curs Valutar].EUR FROM dbo.[Curs Valutar] WHERE [curs valutar].data = "
                     "N'2003-05-20';"),
                ElementsAre("37480"));
    EXPECT_THAT(Rows("SELECT ID FROM ADMQUADREL.DBO.SOCIETATI"), IsEmpty());
}

TEST_F(DialectQueries, FieldsAreNamedAsWritten) {
    EXPECT_THAT(FieldNames("SELECT eur, USD AS [Dolar], Count(*) FROM [Curs Valutar] GROUP BY EUR, USD"),
                ElementsAre("eur", "Dolar", ""));
    EXPECT_THAT(FieldNames("SELECT *, EUR AS 'Inca o data' FROM [Curs Valutar]"),
                ElementsAre("Data", "Validat", "EUR", "USD", "Inca o data"));
}

TEST_F(DialectQueries, Conditions) {
    const std::string select = "SELECT EUR FROM [Curs Valutar] WHERE ";
    const std::string order = " ORDER BY Data";
    EXPECT_THAT(Rows(select + "EUR >= 37512.5 AND NOT EUR > 37512.5" + order), ElementsAre("37512.5"));
    EXPECT_THAT(Rows(select + "USD IS NULL" + order), ElementsAre("38000"));
    EXPECT_THAT(Rows(select + "USD IS NOT NULL AND Validat IN (1, 2)" + order), ElementsAre("37480"));
    EXPECT_THAT(Rows(select + "(EUR = 38000 OR EUR = 34919) AND YEAR(Data) <> 2003" + order),
                ElementsAre("34919"));
    EXPECT_THAT(Rows(select + "EUR = 34919 OR EUR = 38000 AND YEAR(Data) = 1" + order), ElementsAre("34919"));
    EXPECT_THAT(Rows(select + "((EUR)) = '37480'" + order), ElementsAre("37480"));
    EXPECT_THAT(Rows(select + "Data NOT BETWEEN '2003-01-01' AND '2003-12-31'" + order),
                ElementsAre("34919"));
    EXPECT_THAT(Rows(select + "USD = NULL" + order), IsEmpty());
}

TEST_F(DialectQueries, DateFormsMeanTheSameDay) {
    for (const char* const form : {"2003-05-20", "05-20-2003", "5/20/2003", "20030520", " 2003-05-20 ",
                                   "2003-05-20 00:00", "05-20-03", "05.20.2003"}) {
        EXPECT_THAT(Rows(std::string("SELECT EUR FROM [Curs Valutar] WHERE Data = '") + form + "'"),
                    ElementsAre("37480"))
            << form;
    }
    EXPECT_THAT(Rows("SELECT EUR FROM [Curs Valutar] WHERE Data = '2003-05-20 00:01'"), IsEmpty());
}

TEST_F(DialectQueries, DatesCompareExactlyAtTheEdgesOfARange) {
    Run("INSERT INTO [Curs Valutar] (Data, EUR) VALUES ('2003-06-30 23:59:59', 1)");
    EXPECT_THAT(Rows("SELECT EUR FROM [Curs Valutar] WHERE Data BETWEEN '2003-06-02' AND '2003-06-30'"),
                ElementsAre("38000"));
    EXPECT_THAT(Rows("SELECT DAY(Data), MONTH(Data) FROM [Curs Valutar] WHERE EUR = 1"), ElementsAre("30|6"));
    EXPECT_EQ(Scalar("SELECT Data FROM [Curs Valutar] WHERE EUR = 1").ToText(), "30/06/2003 23:59:59");
}

TEST_F(DialectQueries, DatesBeforeTheFirstDayKeepTheirDay) {
    Run("INSERT INTO [Curs Valutar] (Data, EUR) VALUES ('1877-05-09 18:00', 1)");
    EXPECT_EQ(Scalar("SELECT Data FROM [Curs Valutar] WHERE YEAR(Data) = 1877").ToText(),
              "09/05/1877 18:00:00");
    EXPECT_THAT(Rows("SELECT CONVERT(nvarchar, Data, 103) FROM [Curs Valutar] WHERE EUR = 1"),
                ElementsAre("09/05/1877"));
}

TEST_F(DialectQueries, SmallDatesRoundToTheMinute) {
    EXPECT_EQ(Scalar("SELECT CONVERT(smalldatetime, '2003-05-20 12:34:31')").ToText(), "20/05/2003 12:35:00");
    EXPECT_EQ(Scalar("SELECT CONVERT(datetime, '2003-05-20 12:34:31')").ToText(), "20/05/2003 12:34:31");
    EXPECT_EQ(Scalar("SELECT CONVERT(smalldatetime, '')").ToText(), "01/01/1900");
}

TEST_F(DialectQueries, MoneyText) {
    EXPECT_EQ(Scalar("SELECT CONVERT(NVARCHAR, CONVERT(money, 12345.67), 1)").ToText(), "12,345.67");
    EXPECT_EQ(Scalar("SELECT CONVERT(NVARCHAR, CONVERT(money, 1234567.895), 1)").ToText(), "1,234,567.90");
    EXPECT_EQ(Scalar("SELECT CONVERT(NVARCHAR, CONVERT(money, -999.994), 1)").ToText(), "-999.99");
    EXPECT_EQ(Scalar("SELECT CONVERT(NVARCHAR, CONVERT(money, 0.005), 1)").ToText(), "0.01");
    EXPECT_EQ(Scalar("SELECT CONVERT(NVARCHAR, CONVERT(money, 12345.67))").ToText(), "12345.67");
    EXPECT_EQ(ErrorOf("SELECT CONVERT(NVARCHAR, CONVERT(money, 1e300), 1)").Number(), -2147217833);
}

TEST_F(DialectQueries, AggregatesOfNothing) {
    Run("DELETE FROM [Curs Valutar]");
    EXPECT_THAT(Rows("SELECT COUNT(*), COUNT(EUR), MIN(Data), AVG(EUR) FROM [Curs Valutar]"),
                ElementsAre("0|0|NULL|NULL"));
    const auto rows = Run("SELECT * FROM [Curs Valutar]");
    EXPECT_FALSE(rows->HasRows());
    EXPECT_EQ(rows->FieldCount(), 4U);
}

TEST_F(DialectQueries, AggregatesCountWhatIsThere) {
    EXPECT_THAT(Rows("SELECT COUNT(*), COUNT(USD), MIN(Data), MAX(Data), AVG(Validat) FROM [Curs Valutar]"),
                ElementsAre("4|3|31/12/2002|02/06/2003|0"));
    EXPECT_EQ(
        Scalar("SELECT CONVERT(NVARCHAR, CONVERT(money, AVG(Validat)), 1) FROM [Curs Valutar]").ToText(),
        "0.00")
        << "an average of whole numbers is whole";
}

TEST_F(DialectQueries, OrderByAliasPositionAndUnselectedColumn) {
    EXPECT_THAT(Rows("SELECT EUR AS Data FROM [Curs Valutar] ORDER BY Data"),
                ElementsAre("34919", "37480", "37512.5", "38000"));
    EXPECT_THAT(Rows("SELECT EUR FROM [Curs Valutar] ORDER BY 1 DESC"),
                ElementsAre("38000", "37512.5", "37480", "34919"));
    EXPECT_THAT(Rows("SELECT EUR FROM [Curs Valutar] ORDER BY YEAR(Data) DESC, USD"),
                ElementsAre("38000", "37480", "37512.5", "34919"));
}

TEST_F(DialectQueries, TextSortsAndComparesWithoutCase) {
    for (const char* const name : {"b", "A", "a b", "Ă", "C"}) {
        Run(std::string("INSERT INTO LpVal VALUES ('") + name + "', 0)");
    }
    EXPECT_THAT(Rows("SELECT Valuta FROM LpVal ORDER BY Valuta"), ElementsAre("A", "Ă", "a b", "b", "C"));
    EXPECT_THAT(Rows("SELECT Valuta FROM LpVal WHERE Valuta = 'B  '"), ElementsAre("b"));
    EXPECT_THAT(Rows("SELECT Valuta FROM LpVal WHERE 'B  ' = Valuta"), ElementsAre("b"));
    EXPECT_THAT(Rows("SELECT Valuta FROM LpVal WHERE Valuta = 'ă'"), ElementsAre("Ă"));
    EXPECT_THAT(Rows("SELECT DISTINCT Curs FROM LpVal WHERE Valuta NOT LIKE '[b-c]'"), ElementsAre("0"));
}

TEST_F(DialectQueries, SnapshotsDoNotSeeLaterChanges) {
    const auto rows = Run("SELECT EUR FROM [Curs Valutar] ORDER BY Data");
    Run("DELETE FROM [Curs Valutar] WHERE [Data] = '05-20-2003'");
    EXPECT_EQ(rows->RecordCount(), 4);
    rows->MoveNext();
    rows->Requery();
    EXPECT_EQ(rows->RecordCount(), 3);
    EXPECT_EQ(rows->Field("eur"), data::Value(34919.0));
}

TEST_F(DialectQueries, ARecordsetOutlivesItsConnection) {
    auto connection = std::make_unique<EmbeddedConnection>(std::make_shared<EmbeddedDatabase>(":memory:"));
    connection->Execute("CREATE TABLE T (x int)");
    connection->Execute("INSERT INTO T VALUES (7)");
    const auto rows = connection->Execute("SELECT x FROM T");
    connection.reset();
    rows->Requery();
    EXPECT_EQ(rows->Field("X"), data::Value(std::int64_t{7}));
}

TEST_F(DialectQueries, ATransactionThatIsNotCommittedIsUndone) {
    EmbeddedDatabase& database = connection_.Database();
    {
        const EmbeddedDatabase::Transaction transaction(database);
        Run("ALTER TABLE LpVal ADD  [undone] float");
        Run("DELETE FROM [Curs Valutar]");
    }
    EXPECT_THAT(Rows("SELECT Count(*) FROM [Curs Valutar]"), ElementsAre("4"));
    Run("ALTER TABLE LpVal ADD  [kept] float");
    EXPECT_THAT(FieldNames("SELECT * FROM LpVal"), ElementsAre("Valuta", "Curs", "kept"));
}

/// A file that goes when the test does.
class EmbeddedFile : public testing::Test {
  protected:
    ~EmbeddedFile() override { std::remove(path_.c_str()); }

    const std::string path_ =
        (std::filesystem::temp_directory_path() / ("tavrin-embedded-" + std::to_string(::getpid()) + ".db"))
            .string();
};

using EmbeddedFileThorough = EmbeddedFile;

TEST_F(EmbeddedFileThorough, AHundredThousandRowsAreReadAtOnce) {
    constexpr std::int64_t rowCount = 100000;
    sqlite3* engine = nullptr;
    ASSERT_EQ(sqlite3_open(path_.c_str(), &engine), SQLITE_OK);
    const int filled =
        sqlite3_exec(engine,
                     "CREATE TABLE Multe (Nr int, Valoare float, Nume nvarchar(20));"
                     "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n LIMIT 100000) "
                     "INSERT INTO Multe SELECT i, i + 0.5, 'rând' FROM n",
                     nullptr, nullptr, nullptr);
    sqlite3_close(engine);
    ASSERT_EQ(filled, SQLITE_OK);

    EmbeddedConnection connection(std::make_shared<EmbeddedDatabase>(path_));
    const data::TablePtr rows = connection.Execute("SELECT * FROM Multe ORDER BY Nr")->ReadAll();
    ASSERT_EQ(rows->RowCount(), static_cast<std::size_t>(rowCount));
    EXPECT_EQ(rows->At(rowCount - 1, 0), data::Value(rowCount - 1));
    EXPECT_EQ(rows->At(rowCount - 1, 1), data::Value(99999.5));
    EXPECT_EQ(rows->At(rowCount - 1, 2), data::Value(std::string("rând")));
}

TEST_F(EmbeddedFile, AFileThatIsNoDatabaseIsRefused) {
    std::ofstream(path_) << "no database, but long enough to be looked at: " << std::string(1000, '.');
    EXPECT_THROW(EmbeddedDatabase{path_}, data::Error);
    EXPECT_THROW(EmbeddedDatabase("/dev/null/nowhere"), data::Error);
}

}  // namespace
}  // namespace tavrin::host
