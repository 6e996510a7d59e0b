#include "rates/rate_statements.h"

#include <gtest/gtest.h>

#include "data/text/date.h"
#include "rates/evolution_statements.h"

namespace tavrin::tests {
namespace {

using namespace rates;

TEST(RateStatementsTest, ASingleCurrencyLeavesTwoBlanksBeforeWhere) {
    EXPECT_EQ(UpdateDayStatement("20/05/2003", {{"EUR", "37,500"}}),
              "UPDATE [Curs Valutar] SET [EUR] = 37500  WHERE [Data] = '05-20-2003'");
}

TEST(RateStatementsTest, CurrenciesAreTrimmedInTheUpdateAndKeptInTheInsert) {
    const std::vector<RateEntry> rates = {{" EUR ", " 1,234,567 "}, {"U S D", "0"}};
    EXPECT_EQ(UpdateDayStatement("01/12/1999", rates),
              "UPDATE [Curs Valutar] SET [EUR] = 1234567, [U S D] = 0  WHERE [Data] = '12-01-1999'");
    EXPECT_EQ(InsertDayStatement("01/12/1999", rates),
              "INSERT INTO [Curs Valutar]([Data],[ EUR ],[U S D]) VALUES('12-01-1999',1234567,0)");
}

TEST(RateStatementsTest, WithoutCurrenciesTheDayStandsAlone) {
    EXPECT_EQ(InsertDayStatement("01/12/1999", {}),
              "INSERT INTO [Curs Valutar]([Data]) VALUES('12-01-1999')");
}

TEST(RateStatementsTest, DaysAreCutByPlaceWhateverTheText) {
    EXPECT_EQ(MonthDayYear("20/05/2003"), "05-20-2003");
    EXPECT_EQ(MonthDayYear("20/05/20031"), "05-20-20031");
    EXPECT_EQ(MonthDayYear(""), "--");
    EXPECT_EQ(MonthDayYear("2"), "-2-");
}

TEST(RateStatementsTest, NegativeCompaniesKeepTheirSign) {
    EXPECT_EQ(
        FrozenDateStatement(-5),
        "SELECT IsNull([Curs], COnvert(smalldatetime,'12:00')) FROM AdmQuadrel.dbo.Societati WHERE Id  =-5");
}

TEST(RateStatementsTest, CurrenciesOfTheEvolutionAreTrimmed) {
    EXPECT_EQ(LimitsStatement({"2003", 12, " EUR "}),
              "SELECT MIN([EUR]) AS Minim, MAX([EUR]) AS Maxim FROM [Curs Valutar]  Where Year(Data) = 2003  "
              "And Month(Data) = 12");
    EXPECT_EQ(
        EvolutionStatement({"2003", 1, " EUR"}),
        "SELECT DAY(Data)  as Data , [EUR]  As [Curs valutar] FROM [Curs Valutar] WHERE YEAR(Data) = 2003  "
        "And Month(Data) = 1 ORDER BY Data ");
}

}  // namespace
}  // namespace tavrin::tests
