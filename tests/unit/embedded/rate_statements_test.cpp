// The statements of the rate windows, blank for blank as they are sent.
#include <gmock/gmock.h>

#include "data/text/date.h"
#include "unit/embedded/embedded_test.h"

namespace tavrin::host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class RateStatements : public EmbeddedTest {
  protected:
    RateStatements() {
        Run("INSERT INTO AdmQuadrel.dbo.Societati (Id, Curs) VALUES (1, '2003-03-31')");
        Run("INSERT INTO AdmQuadrel.dbo.Societati (Id, Curs) VALUES (2, NULL)");
        Run("INSERT INTO AdmQuadrel.dbo.Societati (Id, Curs) VALUES (-7, '1999-01-01')");
    }
};

TEST_F(RateStatements, FrozenDateIsTheCompanysValidationDate) {
    const data::Value frozen = Scalar(
        "SELECT IsNull([Curs], COnvert(smalldatetime,'12:00')) FROM AdmQuadrel.dbo.Societati WHERE Id  =1");
    EXPECT_TRUE(frozen.IsDate());
    EXPECT_EQ(frozen.ToText(), "31/03/2003");
}

TEST_F(RateStatements, FrozenDateOfACompanyWithoutOneIsNoonOfTheFirstDay) {
    const data::Value frozen = Scalar(
        "SELECT IsNull([Curs], COnvert(smalldatetime,'12:00')) FROM AdmQuadrel.dbo.Societati WHERE Id  =2");
    EXPECT_EQ(frozen, data::Value(data::OleDate{2.5}));
    EXPECT_EQ(frozen.ToText(), "01/01/1900 12:00:00");
}

TEST_F(RateStatements, FrozenDateOfANegativeCompanyIsRead) {
    EXPECT_EQ(Scalar("SELECT IsNull([Curs], COnvert(smalldatetime,'12:00')) FROM AdmQuadrel.dbo.Societati "
                     "WHERE Id  =-7")
                  .ToText(),
              "01/01/1999");
}

TEST_F(RateStatements, AnUnknownCompanyGivesNoRow) {
    EXPECT_THAT(Rows("SELECT IsNull([Curs], COnvert(smalldatetime,'12:00')) FROM AdmQuadrel.dbo.Societati "
                     "WHERE Id  =99"),
                IsEmpty());
}

TEST_F(RateStatements, AllColumnsComeInTheOrderOfTheirCreation) {
    EXPECT_THAT(FieldNames("SELECT * FROM [Curs Valutar] "), ElementsAre("Data", "Validat", "EUR", "USD"));
    Run("ALTER TABLE [Curs Valutar] ADD  [abc] float");
    EXPECT_THAT(FieldNames("SELECT * FROM [Curs Valutar]"),
                ElementsAre("Data", "Validat", "EUR", "USD", "abc"));
}

TEST_F(RateStatements, ListGivesTheDaysOfARange) {
    const std::string_view statement =
        "SELECT COnvert(nvarchar,[Data],103) AS [D], [Data] , [EUR] , [USD]  FROM [Curs Valutar] Where Data "
        "between  '2003-05-01' and '2003-06-02'  ORDER BY [Data]";
    EXPECT_THAT(FieldNames(statement), ElementsAre("D", "Data", "EUR", "USD"));
    EXPECT_THAT(Rows(statement),
                ElementsAre("19/05/2003|19/05/2003|37512.5|32100", "20/05/2003|20/05/2003|37480|32044",
                            "02/06/2003|02/06/2003|38000|NULL"));
}

TEST_F(RateStatements, ListWithoutCurrencies) {
    EXPECT_THAT(Rows("SELECT COnvert(nvarchar,[Data],103) AS [D], [Data]  FROM [Curs Valutar] Where Data "
                     "between  '2002-01-01' and '2002-12-31'  ORDER BY [Data]"),
                ElementsAre("31/12/2002|31/12/2002"));
}

TEST_F(RateStatements, ListOfARangeThatEndsBeforeItStartsIsEmpty) {
    EXPECT_THAT(Rows("SELECT COnvert(nvarchar,[Data],103) AS [D], [Data] , [EUR]  FROM [Curs Valutar] Where "
                     "Data between  '2003-12-31' and '2003-01-01'  ORDER BY [Data]"),
                IsEmpty());
}

TEST_F(RateStatements, FieldsHaveTheServersTypes) {
    const auto rows =
        Run("SELECT COnvert(nvarchar,[Data],103) AS [D], [Data] , [EUR] , Validat FROM [Curs Valutar]");
    const std::vector<FieldInfo>& fields = rows->Fields();
    EXPECT_EQ(fields[0].type, FieldType::Text);
    EXPECT_EQ(fields[0].definedSize, 30);
    EXPECT_EQ(fields[1].type, FieldType::DateTime);
    EXPECT_EQ(fields[2].type, FieldType::Double);
    EXPECT_EQ(fields[3].type, FieldType::Integer);
    EXPECT_TRUE(rows->Field(std::size_t{1}).IsDate());
    EXPECT_TRUE(std::holds_alternative<double>(rows->Field(std::size_t{2}).Content()));
}

TEST_F(RateStatements, WritesTakeTheMonthFirst) {
    EXPECT_EQ(Run("DELETE FROM [Curs Valutar] WHERE [Data] = '05-20-2003'")->AffectedRows(), 1);
    EXPECT_EQ(Scalar("Select count(*) from [Curs Valutar] where data ='2003-05-20'"),
              data::Value(std::int64_t{0}));
    EXPECT_EQ(Scalar("Select count(*) from [Curs Valutar] where data ='2003-05-19'"),
              data::Value(std::int64_t{1}));
}

TEST_F(RateStatements, DeletingAnAbsentDayIsSilent) {
    EXPECT_EQ(Run("DELETE FROM [Curs Valutar] WHERE [Data] = '01-02-1999'")->AffectedRows(), 0);
}

TEST_F(RateStatements, ProbeAnswersWhetherTheDayIsThere) {
    EXPECT_THAT(Rows("SELECT 'x' FROM [Curs Valutar] Where [Data] = '2003-05-20'"), ElementsAre("x"));
    EXPECT_THAT(Rows("SELECT 'x' FROM [Curs Valutar] Where [Data] = '2003-05-21'"), IsEmpty());
}

TEST_F(RateStatements, InsertADay) {
    const auto written = Run("INSERT INTO [Curs Valutar]([Data],[EUR],[USD]) VALUES('05-21-2003',37500,0)");
    EXPECT_FALSE(written->IsOpen());
    EXPECT_EQ(written->AffectedRows(), 1);
    EXPECT_THAT(Rows("SELECT * FROM [Curs Valutar] WHERE [Data] = '2003-05-21'"),
                ElementsAre("21/05/2003|NULL|37500|0"));
}

TEST_F(RateStatements, InsertADayTwice) {
    const data::Error error = ErrorOf("INSERT INTO [Curs Valutar]([Data],[EUR]) VALUES('05-20-2003',1)");
    EXPECT_EQ(error.Number(), data::error_number::IntegrityViolation);
    EXPECT_THAT(Rows("SELECT [EUR] FROM [Curs Valutar] WHERE [Data] = '05-20-2003'"), ElementsAre("37480"));
}

TEST_F(RateStatements, UpdateADay) {
    Run("UPDATE [Curs Valutar] SET [EUR] = 37501, [USD] = 32001  WHERE [Data] = '05-20-2003'");
    EXPECT_THAT(Rows("SELECT EUR, USD FROM [Curs Valutar] ORDER BY Data"),
                ElementsAre("34919|33500", "37512.5|32100", "37501|32001", "38000|NULL"));
}

TEST_F(RateStatements, AddACurrency) {
    Run("ALTER TABLE [Curs Valutar] ADD  [CHF] float");
    EXPECT_THAT(Rows("SELECT CHF FROM [Curs Valutar] WHERE [Data] = '05-20-2003'"), ElementsAre("NULL"));
    Run("UPDATE [Curs Valutar] SET [CHF] = 0");
    Run("INSERT INTO LpVal (Valuta, Curs) VALUES ('CHF', 0)");
    EXPECT_THAT(Rows("SELECT CHF FROM [Curs Valutar]"), ElementsAre("0", "0", "0", "0"));
    EXPECT_THAT(Rows("SELECT * FROM LpVal"), ElementsAre("CHF|0"));
}

TEST_F(RateStatements, AddACurrencyTwice) {
    for (const char* const name : {"EUR", "eur", "Data", "EUR "}) {
        const data::Error error =
            ErrorOf(std::string("ALTER TABLE [Curs Valutar] ADD  [") + name + "] float");
        EXPECT_EQ(error.Number(), data::error_number::ErrorsInCommand) << name;
        EXPECT_EQ(error.Description(), "Column names in each table must be unique. Column name '" +
                                           std::string(name) +
                                           "' in table 'Curs Valutar' is specified more than once.");
    }
    EXPECT_EQ(FieldNames("SELECT * FROM [Curs Valutar]").size(), 4U);
}

TEST_F(RateStatements, ACurrencyWithABracketOrAnApostropheBreaksItsStatements) {
    EXPECT_EQ(ErrorOf("ALTER TABLE [Curs Valutar] ADD  [A]B] float").Number(),
              data::error_number::ErrorsInCommand);
    EXPECT_EQ(FieldNames("SELECT * FROM [Curs Valutar]").size(), 4U);

    Run("ALTER TABLE [Curs Valutar] ADD  [A'B] float");
    Run("UPDATE [Curs Valutar] SET [A'B] = 0");
    EXPECT_EQ(ErrorOf("INSERT INTO LpVal (Valuta, Curs) VALUES ('A'B', 0)").Number(),
              data::error_number::ErrorsInCommand);
    EXPECT_THAT(Rows("SELECT * FROM LpVal"), IsEmpty());
}

TEST_F(RateStatements, ACurrencyNameKeepsItsBlanksAndItsScript) {
    Run("ALTER TABLE [Curs Valutar] ADD  [ lei noi] float");
    Run("ALTER TABLE [Curs Valutar] ADD  [円\"x] float");
    Run("UPDATE [Curs Valutar] SET [円\"x] = 0.5");
    EXPECT_THAT(FieldNames("SELECT * FROM [Curs Valutar]"),
                ElementsAre("Data", "Validat", "EUR", "USD", " lei noi", "円\"x"));
    EXPECT_THAT(Rows("SELECT [円\"x] FROM [Curs Valutar] WHERE [Data] = '05-20-2003'"), ElementsAre("0.5"));
}

TEST_F(RateStatements, ChooserListsTheNewestFirst) {
    EXPECT_THAT(
        Rows("SELECT COnvert(nvarchar,[Data],103) AS [D], [EUR] FROM [Curs Valutar]  ORDER BY [Data] DESC"),
        ElementsAre("02/06/2003|38000", "20/05/2003|37480", "19/05/2003|37512.5", "31/12/2002|34919"));
}

TEST_F(RateStatements, YearsThatHaveRates) {
    const std::string_view statement =
        "SELECT DISTINCT YEAR(Data) AS AN FROM [Curs Valutar] ORDER BY YEAR(Data)";
    EXPECT_THAT(Rows(statement), ElementsAre("2002", "2003"));
    EXPECT_EQ(Run(statement)->Fields()[0].type, FieldType::Integer);
    Run("DELETE FROM [Curs Valutar]");
    EXPECT_THAT(Rows(statement), IsEmpty());
    Run("INSERT INTO An VALUES (2001)");
    EXPECT_THAT(Rows("SELECT An FROM An"), ElementsAre("2001"));
}

TEST_F(RateStatements, LimitsOfAYearAndOfAMonth) {
    EXPECT_THAT(
        Rows("SELECT MIN([EUR]) AS Minim, MAX([EUR]) AS Maxim FROM [Curs Valutar]  Where Year(Data) = 2003"),
        ElementsAre("37480|38000"));
    EXPECT_THAT(
        Rows("SELECT MIN([EUR]) AS Minim, MAX([EUR]) AS Maxim FROM [Curs Valutar]  Where Year(Data) = "
             "2003  And Month(Data) = 5"),
        ElementsAre("37480|37512.5"));
    EXPECT_THAT(
        Rows("SELECT MIN([EUR]) AS Minim, MAX([EUR]) AS Maxim FROM [Curs Valutar]  Where Year(Data) = 1990"),
        ElementsAre("NULL|NULL"));
}

TEST_F(RateStatements, MonthlyAveragesAreMoneyText) {
    const std::string_view statement =
        "SELECT Month(Data)  as Data ,  CONVERT(NVARCHAR,CONVERT(money,AVG([EUR])), 1)  As [Curs valutar] "
        "FROM "
        "[Curs Valutar] WHERE YEAR(Data) = 2003 GROUP BY Month(Data)  ORDER BY Data ";
    EXPECT_THAT(FieldNames(statement), ElementsAre("Data", "Curs valutar"));
    EXPECT_THAT(Rows(statement), ElementsAre("5|37,496.25", "6|38,000.00"));
    EXPECT_EQ(Run(statement)->Fields()[1].type, FieldType::Text);
}

TEST_F(RateStatements, MonthlyAveragesComeInTheOrderOfTheMonthsAsNumbers) {
    for (const char* const month : {"10", "2", "1"}) {
        Run(std::string("INSERT INTO [Curs Valutar]([Data],[EUR]) VALUES('") + month + "-01-2003',1)");
    }
    EXPECT_THAT(
        Rows("SELECT Month(Data)  as Data ,  CONVERT(NVARCHAR,CONVERT(money,AVG([EUR])), 1)  As [Curs "
             "valutar] FROM [Curs Valutar] WHERE YEAR(Data) = 2003 GROUP BY Month(Data)  ORDER BY Data "),
        ElementsAre("1|1.00", "2|1.00", "5|37,496.25", "6|38,000.00", "10|1.00"));
}

TEST_F(RateStatements, AverageOfNothingButNullIsNull) {
    EXPECT_THAT(
        Rows("SELECT Month(Data)  as Data ,  CONVERT(NVARCHAR,CONVERT(money,AVG([USD])), 1)  As [Curs "
             "valutar] FROM [Curs Valutar] WHERE YEAR(Data) = 2003 GROUP BY Month(Data)  ORDER BY Data "),
        ElementsAre("5|32,072.00", "6|NULL"));
}

TEST_F(RateStatements, DailyValuesOfAMonth) {
    EXPECT_THAT(
        Rows("SELECT DAY(Data)  as Data , [EUR]  As [Curs valutar] FROM [Curs Valutar] WHERE YEAR(Data) "
             "= 2003  And Month(Data) = 5 ORDER BY Data "),
        ElementsAre("19|37512.5", "20|37480"));
    EXPECT_EQ(Scalar("SELECT Count(*)  FROM [Curs Valutar] WHERE YEAR(Data) = 2003  And Month(Data) = 5"),
              data::Value(std::int64_t{2}));
}

}  // namespace
}  // namespace tavrin::host
