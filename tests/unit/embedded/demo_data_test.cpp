#include "host/embedded/demo_data.h"

#include <gmock/gmock.h>

#include <unistd.h>

#include <cstdio>
#include <filesystem>

#include "data/connection.h"
#include "data/text/date.h"
#include "host/embedded/demo_people.h"
#include "host/embedded/demo_rates.h"
#include "host/embedded/embedded_connection.h"

namespace tavrin::host {
namespace {

using testing::ElementsAre;

/// Reads the demo data, which is made once for all of these tests.
class DemoData : public testing::Test {
  protected:
    static void SetUpTestSuite() { database_ = OpenDemoDatabase(":memory:"); }
    static void TearDownTestSuite() { database_.reset(); }

    data::Value Scalar(std::string_view statement) { return data::ExecuteScalar(connection_, statement); }
    std::int64_t Count(std::string_view statement) { return Scalar(statement).ToInteger(); }

    static inline std::shared_ptr<EmbeddedDatabase> database_;
    EmbeddedConnection connection_{database_};
};

TEST_F(DemoData, RatesBeginWithDayAndFlagThenCurrencies) {
    const auto rows = connection_.Execute("SELECT * FROM [Curs Valutar]");
    std::vector<std::string> names;
    for (std::size_t field = 0; field < rows->FieldCount(); ++field)
        names.push_back(rows->FieldName(field));
    EXPECT_THAT(names, ElementsAre("Data", "Validat", "EUR", "USD", "GBP", "CHF", "JPY", "$"));
}

TEST_F(DemoData, EveryYearHasItsWorkingDays) {
    for (const char* const year : {"2001", "2002", "2003"}) {
        const std::int64_t days =
            Count(std::string("SELECT Count(*) FROM [Curs Valutar] WHERE YEAR(Data) = ") + year);
        EXPECT_GT(days, 230) << year;
        EXPECT_LT(days, 262) << year;
    }
    EXPECT_EQ(Count("SELECT Count(*) FROM [Curs Valutar] WHERE Data = '2003-05-17'"), 0) << "a Saturday";
    EXPECT_EQ(Count("SELECT Count(*) FROM [Curs Valutar] WHERE Data = '2003-05-19'"), 1) << "a Monday";
}

TEST_F(DemoData, RatesAreWholeLeiOfTheTime) {
    const data::TablePtr rates = connection_.Execute("SELECT EUR, USD FROM [Curs Valutar]")->ReadAll();
    for (std::size_t row = 0; row < rates->RowCount(); ++row) {
        const double euro = rates->At(row, 0).ToDouble();
        const double dollar = rates->At(row, 1).ToDouble();
        ASSERT_EQ(euro, static_cast<double>(rates->At(row, 0).ToInteger()));
        ASSERT_TRUE(euro > 23500 && euro < 42500) << euro;
        ASSERT_TRUE(dollar > 24500 && dollar < 35000) << dollar;
    }
}

TEST_F(DemoData, TheCalculatorsCurrencyIsTheDollar) {
    EXPECT_GT(Count("SELECT Count(*) FROM [Curs Valutar] WHERE [$] = [USD]"), 700);
    EXPECT_EQ(Count("SELECT Count(*) FROM [Curs Valutar] WHERE [$] <> [USD]"), 0);
}

TEST_F(DemoData, RatesOfTheDayAreStillToBeEntered) {
    const std::string today = data::FormatYearMonthDay(data::ToOleDate(DemoDay));
    EXPECT_EQ(Count("SELECT Count(*) FROM [Curs Valutar] WHERE [Data] >= '" + today + "'"), 0);
    EXPECT_EQ(Count("SELECT Count(*) FROM [Curs Valutar] WHERE [Data] = '2003-11-27'"), 1);
}

TEST_F(DemoData, CompaniesAreFrozenNeverAndLongAgo) {
    EXPECT_EQ(Scalar("SELECT Curs FROM AdmQuadrel.dbo.Societati WHERE Id = 1").ToText(), "31/03/2003");
    EXPECT_TRUE(Scalar("SELECT Curs FROM AdmQuadrel.dbo.Societati WHERE Id = 2").IsNull());
    EXPECT_EQ(Scalar("SELECT Curs FROM AdmQuadrel.dbo.Societati WHERE Id = 3").ToText(), "31/12/1999");
}

TEST_F(DemoData, YearsAndCurrenciesAreListed) {
    EXPECT_EQ(Count("SELECT Count(*) FROM An"), 3);
    EXPECT_EQ(Count("SELECT Count(*) FROM LpVal"), 6);
}

TEST_F(DemoData, AddressBookIsFullOfInventedPeople) {
    EXPECT_EQ(Count("SELECT Count(*) FROM Agenda"), DemoPeople);
    EXPECT_EQ(Count("SELECT Count(*) FROM Agenda WHERE Email LIKE '%@example.ro'"), DemoPeople);
    EXPECT_EQ(Count("SELECT Count(*) FROM Agenda WHERE Email LIKE '%[^a-z.@]%'"), 0);
    EXPECT_GT(Count("SELECT Count(*) FROM Agenda WHERE Nume = 'şerban'"), 0);
    EXPECT_EQ(Count("SELECT Count(*) FROM Agenda WHERE Nume LIKE '%?%' OR OrasHome LIKE '%?%'"), 0);
}

TEST(DemoDataFileThorough, IsMadeOnceAndKept) {
    const std::filesystem::path folder = std::filesystem::temp_directory_path();
    const std::string path = (folder / ("tavrin-demo-" + std::to_string(::getpid()) + ".db")).string();
    std::remove(path.c_str());
    {
        EmbeddedConnection first(OpenDemoDatabase(path));
        first.Execute("DELETE FROM [Curs Valutar]");
        first.Execute("INSERT INTO [Curs Valutar]([Data],[EUR]) VALUES('12-31-2003',40555)");
    }
    EmbeddedConnection second(OpenDemoDatabase(path));
    EXPECT_EQ(data::ExecuteScalar(second, "SELECT EUR FROM [Curs Valutar]"), data::Value(40555.0));
    std::remove(path.c_str());
}

}  // namespace
}  // namespace tavrin::host
