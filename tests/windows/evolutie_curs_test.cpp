#include "rates/evolutie_curs.h"

#include <gmock/gmock.h>

#include "data/error.h"
#include "rates/evolution_statements.h"
#include "support/counting_peer.h"
#include "support/pass_through_connection.h"
#include "support/rates_test.h"
#include "support/scripted_connection.h"

namespace tavrin::tests {
namespace {

namespace key = forms::key;
using forms::Chart;
using rates::CursValutar;
using rates::EvolutieCurs;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

class EvolutieCursTest : public RatesTest {
  protected:
    EvolutieCurs& Open() {
        auto& window = application.Default<EvolutieCurs>();
        window.Show();
        return window;
    }

    /// Month 1 to 12, 13 for the whole year.
    EvolutieCurs& OpenAndDraw(int month) {
        EvolutieCurs& window = Open();
        window.cmbLuna.SetListIndex(month - 1);
        connection->ClearRecord();
        window.cmdAction[1].Click();
        return window;
    }

    /// From now on May has one rate, whatever number of days is counted and whatever the limits are.
    void AnswerForMay(std::int64_t count,
                      const std::vector<data::MemoryTable::Row>& limits = {{37100.0, 37100.0}}) {
        const rates::EvolutionChoice may{"2003", 5, "EUR"};
        const auto script = std::make_shared<ScriptedConnection>();
        script->AnswerRows("SELECT * FROM [Curs Valutar]", {"Data", "Validat", "EUR"}, {});
        script->AnswerRows(std::string(rates::RateYearsStatement), {"AN"}, {{std::int64_t{2003}}});
        script->AnswerRows(rates::EvolutionStatement(may), {"Data", "Curs valutar"},
                           {{std::int64_t{8}, 37100.0}});
        script->AnswerRows(rates::LimitsStatement(may), {"Minim", "Maxim"}, limits);
        script->AnswerRows(rates::CountDaysStatement(may), {""}, {{count}});
        application.context.connection = script;
    }

    static std::vector<std::string> LabelsOf(const Chart& chart) {
        std::vector<std::string> labels;
        for (int row = 1; row <= chart.RowCount(); ++row)
            labels.push_back(chart.Row(row).label);
        return labels;
    }

    /// Days of the first `months` months of 2002, one a month.
    void AddMonthsOf2002(int months) {
        for (int month = 1; month <= months; ++month) {
            const std::string text = (month < 10 ? "0" : "") + std::to_string(month);
            AddDay(text + "-15-2002", 25000.125 + 1000 * month, 30000);
        }
    }
};

// Opening.

TEST_F(EvolutieCursTest, OpensWithItsPromptAndItsLists) {
    AddMonthsOf2002(1);
    const EvolutieCurs& window = Open();
    EXPECT_EQ(window.Caption(), "Evolutie Curs");
    EXPECT_THAT(connection->Statements(),
                ElementsAre("SELECT * FROM [Curs Valutar]",
                            "SELECT DISTINCT YEAR(Data) AS AN FROM [Curs Valutar] ORDER BY YEAR(Data)"));
    const std::vector<std::string> periods = {
        "Ianuarie", "Februarie",  "Martie",    "Aprilie",   "Mai",       "Iunie",           "Iulie",
        "August",   "Septembrie", "Octombrie", "Noiembrie", "Decembrie", "Toate Perioadele"};
    ASSERT_EQ(window.cmbLuna.ListCount(), 13);
    for (int i = 0; i < 13; ++i)
        EXPECT_EQ(window.cmbLuna.Item(i), periods[static_cast<std::size_t>(i)]);
    EXPECT_EQ(window.cmbLuna.Text(), "Ianuarie");
    EXPECT_EQ(window.cmbMoneda.ListCount(), 2);
    EXPECT_EQ(window.cmbMoneda.Text(), "EUR");
    EXPECT_EQ(window.cmbAn.ListCount(), 2);
    EXPECT_EQ(window.cmbAn.Text(), "2002");
    EXPECT_EQ(window.cmdAction[0].Caption(), "Iesire");
    EXPECT_EQ(window.cmdAction[1].Caption(), "  Actualizare Grafic");
    EXPECT_EQ(window.cmdAction[0].Picture(), forms::Icon::Exit);
    EXPECT_EQ(window.cmdAction[1].Picture(), forms::Icon::Chart);
    EXPECT_EQ(window.MSChart1.RowCount(), 31);
    EXPECT_EQ(window.Grid.TextMatrix(0, 0), "Zi");
    EXPECT_EQ(window.Grid.TextMatrix(0, 1), "Curs valutar");
    EXPECT_EQ(window.Grid.ColumnWidth(0), 500);
    EXPECT_EQ(window.Grid.ColumnWidth(1), 1800);
    EXPECT_EQ(window.Grid.ColumnAlignment(0), forms::Align::Right);
    EXPECT_EQ(window.Grid.ColumnAlignment(1), forms::Align::Right);
    EXPECT_EQ(window.Bounds().left, (desktop.ScreenSize().width - window.Bounds().width) / 2);
    EXPECT_EQ(window.Bounds().top, (desktop.ScreenSize().height - window.Bounds().height) / 2);
}

TEST_F(EvolutieCursTest, ThePromptStandsWhereTheChartWillBe) {
    const EvolutieCurs& window = Open();
    EXPECT_TRUE(window.fraMesaj.Visible());
    EXPECT_TRUE(window.lblMesaj1.Visible());
    EXPECT_FALSE(window.lblMesaj2.Visible());
    EXPECT_FALSE(window.MSChart1.Visible());
    EXPECT_FALSE(window.Line2.Visible());
    EXPECT_EQ(window.lblMesaj1.Caption(),
              "ALEGETI ANUL - LUNA - MONEDA PENTRU CARE DORITI SA VIZUALIZATI EVOLUTIA CURSULUI");
    EXPECT_EQ(window.lblMesaj2.Caption(),
              "PENTRU ANUL SI LUNA ALESE NU S-AU GASIT VALORI ALE CURSULUI IN BAZA DE DATE ! ALEGETI ALTE "
              "VALORI !");
}

TEST_F(EvolutieCursTest, WithoutAnyRatesTheYearComesFromTheHost) {
    Run("DELETE FROM [Curs Valutar]");
    const EvolutieCurs& window = Open();
    EXPECT_EQ(connection->Log().back(), "Execute: SELECT An FROM An");
    EXPECT_EQ(window.cmbAn.ListCount(), 1);
    EXPECT_EQ(window.cmbAn.ListIndex(), 0);
    EXPECT_EQ(window.cmbAn.Text(), "2003");
}

TEST_F(EvolutieCursTest, ChoosingDrawsNothing) {
    EvolutieCurs& window = Open();
    connection->ClearRecord();
    window.cmbLuna.SetListIndex(4);
    window.cmbMoneda.SetListIndex(1);
    EXPECT_THAT(connection->Statements(), IsEmpty());
    EXPECT_FALSE(window.MSChart1.Visible());
}

// A month.

TEST_F(EvolutieCursTest, AMonthAsksForItsDaysLimitsAndCount) {
    OpenAndDraw(5);
    EXPECT_THAT(
        connection->Statements(),
        ElementsAre("SELECT DAY(Data)  as Data , [EUR]  As [Curs valutar] FROM [Curs Valutar] "
                    "WHERE YEAR(Data) = 2003  And Month(Data) = 5 ORDER BY Data ",
                    "SELECT MIN([EUR]) AS Minim, MAX([EUR]) AS Maxim FROM [Curs Valutar]  "
                    "Where Year(Data) = 2003  And Month(Data) = 5",
                    "SELECT Count(*)  FROM [Curs Valutar] WHERE YEAR(Data) = 2003  And Month(Data) = 5"));
}

TEST_F(EvolutieCursTest, AMonthIsDrawnDayByDay) {
    const EvolutieCurs& window = OpenAndDraw(5);
    EXPECT_EQ(window.MSChart1.RowCount(), 5);
    EXPECT_THAT(LabelsOf(window.MSChart1), ElementsAre("8", "9", "12", "13", "14"));
    EXPECT_EQ(window.MSChart1.Row(3).value, 37300.5);
    EXPECT_EQ(window.MSChart1.Minimum(), 37100);
    EXPECT_EQ(window.MSChart1.Maximum(), 37500);
    EXPECT_THAT(ColumnOf(window.Grid, 0), ElementsAre("Zi", "8", "9", "12", "13", "14"));
    EXPECT_THAT(ColumnOf(window.Grid, 1),
                ElementsAre("Curs valutar", "37100", "37200", "37300.5", "37400", "37500"));
}

TEST_F(EvolutieCursTest, DrawingShowsTheChartAndFocusesTheGrid) {
    const EvolutieCurs& window = OpenAndDraw(5);
    EXPECT_TRUE(window.MSChart1.Visible());
    EXPECT_TRUE(window.Line2.Visible());
    EXPECT_FALSE(window.MSChart1.Enabled());
    EXPECT_FALSE(window.fraMesaj.Visible());
    EXPECT_FALSE(window.lblMesaj1.Visible());
    EXPECT_FALSE(window.lblMesaj2.Visible());
    EXPECT_EQ(FocusedControl(), "Grid");
}

TEST_F(EvolutieCursTest, TheChartSaysWhatItShowsWhateverTheListsSay) {
    EvolutieCurs& window = OpenAndDraw(5);
    EXPECT_EQ(window.MSChart1.Title(), "EUR, Mai 2003, in lei pentru 1 EUR");
    EXPECT_FALSE(window.MSChart1.IsGrouped()) << "the days' rates have no commas in the table either";
    window.cmbMoneda.SetListIndex(1);
    window.cmbLuna.SetListIndex(12);
    EXPECT_EQ(window.MSChart1.Title(), "EUR, Mai 2003, in lei pentru 1 EUR");
    window.cmdAction[1].Click();
    EXPECT_EQ(window.MSChart1.Title(), "USD, 2003, medii lunare, in lei pentru 1 USD");
    EXPECT_TRUE(window.MSChart1.IsGrouped());
}

TEST_F(EvolutieCursTest, TheCurrentRowOfTheTableIsMarkedInTheChart) {
    const EvolutieCurs& window = OpenAndDraw(5);
    EXPECT_EQ(window.MSChart1.MarkedRow(), 1);
    keyboard.Press(key::Down);
    EXPECT_EQ(window.MSChart1.MarkedRow(), 2);
    EXPECT_EQ(window.MSChart1.Row(2).label, window.Grid.TextMatrix(2, 0));
}

TEST_F(EvolutieCursTest, AllPeriodsAreInSightWhenTheListIsOpen) {
    EXPECT_LE(Open().cmbLuna.ListCount(), forms::ComboBox::EntriesInSight);
}

TEST_F(EvolutieCursTest, NoLineStandsAloneBesideThePrompt) {
    const EvolutieCurs& window = Open();
    EXPECT_EQ(window.Line3.Bounds().left, window.Line1.Bounds().Right());
    EXPECT_EQ(window.Line3.Bounds().top, window.Line1.Bounds().top);
    EXPECT_EQ(window.Line3.Bounds().Right(), window.Grid.Bounds().Right());
}

TEST_F(EvolutieCursTest, AMonthOfOneDayIsDrawn) {
    AddDay("07-01-2003", 38000, 32000);
    const EvolutieCurs& window = OpenAndDraw(7);
    EXPECT_THAT(LabelsOf(window.MSChart1), ElementsAre("1"));
    EXPECT_EQ(window.MSChart1.Minimum(), window.MSChart1.Maximum());
}

TEST_F(EvolutieCursTest, ANullRateLeavesItsRowOpen) {
    Run("INSERT INTO [Curs Valutar]([Data],[USD]) VALUES('05-15-2003',32000)");
    const EvolutieCurs& window = OpenAndDraw(5);
    EXPECT_EQ(window.MSChart1.RowCount(), 6);
    EXPECT_EQ(window.MSChart1.Row(6).label, "15");
    EXPECT_EQ(window.MSChart1.Row(6).value, std::nullopt);
    EXPECT_THAT(desktop.reports, IsEmpty());
}

TEST_F(EvolutieCursTest, NoRowKeepsTheValueOfAnEarlierDrawing) {
    Run("INSERT INTO [Curs Valutar]([Data],[USD]) VALUES('08-15-2003',32000)");
    EvolutieCurs& window = OpenAndDraw(5);
    ASSERT_NE(window.MSChart1.Row(1).value, std::nullopt);
    window.cmbLuna.SetListIndex(7);
    window.cmdAction[1].Click();
    EXPECT_EQ(window.MSChart1.RowCount(), 1);
    EXPECT_EQ(window.MSChart1.Row(1).value, std::nullopt);
}

TEST_F(EvolutieCursTest, AMonthOfNullRatesIsDrawnEmpty) {
    Run("INSERT INTO [Curs Valutar]([Data],[USD]) VALUES('08-15-2003',32000)");
    const EvolutieCurs& window = OpenAndDraw(8);
    EXPECT_EQ(window.MSChart1.Minimum(), 0);
    EXPECT_EQ(window.MSChart1.Maximum(), 0);
    EXPECT_TRUE(window.MSChart1.Visible());
    EXPECT_THAT(desktop.reports, IsEmpty());
}

// A year.

TEST_F(EvolutieCursTest, AYearAsksForMonthlyAveragesAsMoney) {
    OpenAndDraw(13);
    EXPECT_THAT(connection->Statements(),
                ElementsAre("SELECT Month(Data)  as Data ,  CONVERT(NVARCHAR,CONVERT(money,AVG([EUR])), 1)  "
                            "As [Curs valutar] FROM [Curs Valutar] WHERE YEAR(Data) = 2003 "
                            "GROUP BY Month(Data)  ORDER BY Data ",
                            "SELECT MIN([EUR]) AS Minim, MAX([EUR]) AS Maxim FROM [Curs Valutar]  "
                            "Where Year(Data) = 2003"));
}

TEST_F(EvolutieCursTest, AveragesComeWithThousandsCommasThatTheChartDrops) {
    AddMonthsOf2002(3);
    const EvolutieCurs& window = OpenAndDraw(13);
    EXPECT_EQ(window.Grid.TextMatrix(1, 1), "26,000.13");
    EXPECT_EQ(window.MSChart1.Row(1).value, 26000.13);
    EXPECT_EQ(window.MSChart1.Minimum(), 26000.125);
    EXPECT_EQ(window.MSChart1.Maximum(), 28000.125);
}

TEST_F(EvolutieCursTest, MonthsWithoutDataAreNumberedWhenThereAreThreeOrMore) {
    AddMonthsOf2002(9);
    EXPECT_THAT(LabelsOf(OpenAndDraw(13).MSChart1),
                ElementsAre("1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12"));
}

TEST_F(EvolutieCursTest, OneOrTwoMonthsWithoutDataStayUnlabelled) {
    AddMonthsOf2002(10);
    const EvolutieCurs& window = OpenAndDraw(13);
    EXPECT_EQ(window.MSChart1.RowCount(), 12);
    EXPECT_EQ(LabelsOf(window.MSChart1)[9], "10");
    EXPECT_EQ(LabelsOf(window.MSChart1)[10], "");
    EXPECT_EQ(LabelsOf(window.MSChart1)[11], "");
    EXPECT_EQ(window.MSChart1.Row(11).value, std::nullopt);
    AddDay("11-15-2002", 36000, 1);
    EvolutieCurs& again = *application.Loaded<EvolutieCurs>();
    again.cmdAction[1].Click();
    EXPECT_EQ(LabelsOf(again.MSChart1)[11], "");
}

TEST_F(EvolutieCursTest, RowsBeyondTheDataKeepNoValuesOfAnEarlierDrawing) {
    AddMonthsOf2002(12);
    EvolutieCurs& window = OpenAndDraw(13);
    window.cmbAn.SetListIndex(1);
    window.cmdAction[1].Click();
    EXPECT_EQ(window.MSChart1.RowCount(), 12);
    EXPECT_EQ(window.MSChart1.Row(1).label, "5");
    EXPECT_EQ(window.MSChart1.Row(1).value, 37300.1);
    EXPECT_EQ(window.MSChart1.Row(2).label, "2");
    EXPECT_EQ(window.MSChart1.Row(2).value, std::nullopt);
}

// Nothing to show.

TEST_F(EvolutieCursTest, AMonthWithoutRatesSaysSo) {
    EvolutieCurs& window = OpenAndDraw(5);
    window.cmbLuna.SetListIndex(0);
    connection->ClearRecord();
    const CountingPeer* notice = CountingPeer::Give(window.lblMesaj2);
    window.cmdAction[1].Click();
    EXPECT_EQ(notice->announced, 1);
    EXPECT_EQ(connection->Statements().size(), 1U);
    EXPECT_FALSE(window.MSChart1.Visible());
    EXPECT_FALSE(window.Line2.Visible());
    EXPECT_TRUE(window.fraMesaj.Visible());
    EXPECT_FALSE(window.lblMesaj1.Visible());
    EXPECT_TRUE(window.lblMesaj2.Visible());
    EXPECT_EQ(window.MSChart1.RowCount(), 31);
    EXPECT_EQ(window.Grid.Rows(), 1) << "no values of another month stay in the table";
    EXPECT_EQ(window.Grid.TextMatrix(0, 1), "Curs valutar");
    EXPECT_EQ(FocusedControl(), "cmbAn");
    window.cmbLuna.SetListIndex(4);
    window.cmdAction[1].Click();
    EXPECT_TRUE(window.MSChart1.Visible());
    for (const forms::Label* message : {&window.lblMesaj1, &window.lblMesaj2})
        EXPECT_FALSE(message->Visible()) << message->Caption();
}

TEST_F(EvolutieCursTest, AFailingStatementIsReportedAndTheWindowGoesOn) {
    for (std::size_t failing = 1; failing <= 3; ++failing) {
        EvolutieCurs& window = Open();
        window.cmbLuna.SetListIndex(4);
        desktop.reports.clear();
        connection->FailOperation(failing == 1   ? 1
                                  : failing == 2 ? 4
                                                 : 7,
                                  data::Error(-2147467259, "Timeout expired"));
        window.cmdAction[1].Click();
        connection->StopFailing();
        EXPECT_EQ(desktop.reports.size(), 1U) << failing;
        window.cmdAction[1].Click();
        EXPECT_TRUE(window.MSChart1.Visible());
        window.Unload();
    }
}

/// Gives one row of that many fields, or none of no fields, whatever it counts.
class LesserRows : public PassThroughRecordset {
  public:
    LesserRows(std::unique_ptr<data::Recordset> rows, std::size_t fields)
        : PassThroughRecordset(std::move(rows)), fields_(fields) {}
    data::TablePtr ReadAll() override {
        auto lesser = std::make_shared<data::MemoryTable>(std::vector<std::string>(fields_, "F"));
        if (fields_ > 0) lesser->AddRow(data::MemoryTable::Row(fields_, std::string("2003")));
        return lesser;
    }

  private:
    std::size_t fields_;
};

std::shared_ptr<data::Connection> WithLesserRows(data::Connection& underlying, std::size_t fields) {
    return std::make_shared<PassThroughConnection>(
        underlying, [fields](auto rows) { return std::make_unique<LesserRows>(std::move(rows), fields); });
}

TEST_F(EvolutieCursTest, RowsThatTheProviderCountsButDoesNotGiveAreNoRows) {
    EvolutieCurs& window = OpenAndDraw(5);
    application.context.connection = WithLesserRows(*connection, 0);
    window.cmdAction[1].Click();
    EXPECT_TRUE(window.lblMesaj2.Visible());
    EXPECT_THAT(desktop.reports, IsEmpty());
}

TEST_F(EvolutieCursTest, AnAnswerThatLacksFieldsIsReported) {
    EvolutieCurs& window = OpenAndDraw(5);
    application.context.connection = WithLesserRows(*connection, 1);
    window.cmdAction[1].Click();
    ASSERT_EQ(desktop.reports.size(), 1U);
    EXPECT_EQ(desktop.reports[0].number, data::error_number::ItemNotFound);
}

TEST_F(EvolutieCursTest, ACountThatNoMonthCanHaveIsAnOverflow) {
    EvolutieCurs& window = OpenAndDraw(5);
    for (const std::int64_t count : {std::int64_t{100'001}, std::int64_t{3'000'000'000}}) {
        desktop.reports.clear();
        AnswerForMay(count);
        window.cmdAction[1].Click();
        ASSERT_EQ(desktop.reports.size(), 1U) << count;
        EXPECT_EQ(desktop.reports[0].number, data::error_number::Overflow);
    }
}

TEST_F(EvolutieCursTest, TheChartHasAsManyRowsAsWereCounted) {
    EvolutieCurs& window = OpenAndDraw(5);
    for (const std::int64_t count : {std::int64_t{-1}, std::int64_t{0}, std::int64_t{100'000}}) {
        AnswerForMay(count);
        window.cmdAction[1].Click();
        EXPECT_EQ(window.MSChart1.RowCount(), std::max<std::int64_t>(0, count));
        EXPECT_TRUE(window.MSChart1.Visible());
    }
    EXPECT_THAT(desktop.reports, IsEmpty());
}

TEST_F(EvolutieCursTest, WithoutLimitsTheScaleIsZero) {
    EvolutieCurs& window = OpenAndDraw(5);
    AnswerForMay(1, {});
    window.cmdAction[1].Click();
    EXPECT_EQ(window.MSChart1.Minimum(), 0);
    EXPECT_EQ(window.MSChart1.Maximum(), 0);
    EXPECT_THAT(desktop.reports, IsEmpty());
}

// Another connection.

TEST_F(EvolutieCursTest, ListsOfAnotherDatabaseAreReadBeforeDrawingAndKeepTheChoice) {
    EvolutieCurs& window = OpenAndDraw(5);
    window.cmbMoneda.SetListIndex(1);
    const auto second = std::make_shared<RecordingConnection>(connection);
    Run("ALTER TABLE [Curs Valutar] ADD  [GBP] float");
    application.context.connection = second;
    window.cmdAction[1].Click();
    EXPECT_THAT(second->Statements(), ElementsAre("SELECT * FROM [Curs Valutar]", rates::RateYearsStatement,
                                                  rates::EvolutionStatement({"2003", 5, "USD"}),
                                                  rates::LimitsStatement({"2003", 5, "USD"}),
                                                  rates::CountDaysStatement({"2003", 5, "USD"})));
    EXPECT_EQ(window.cmbMoneda.ListCount(), 3);
    EXPECT_EQ(window.cmbAn.ListCount(), 1);
    EXPECT_EQ(window.cmbLuna.ListCount(), 13);
    second->ClearRecord();
    window.cmdAction[1].Click();
    EXPECT_EQ(second->Statements().size(), 3U) << "read once";
}

TEST_F(EvolutieCursTest, AChoiceThatTheOtherDatabaseLacksGivesWayToItsFirst) {
    EvolutieCurs& window = OpenAndDraw(5);
    window.cmbMoneda.SetListIndex(1);
    AnswerForMay(1);
    window.cmdAction[1].Click();
    EXPECT_EQ(window.cmbMoneda.Text(), "EUR");
    EXPECT_TRUE(window.MSChart1.Visible());
    EXPECT_THAT(desktop.reports, IsEmpty());
}

TEST_F(EvolutieCursTest, OpenedWithoutAConnectionItIsWholeAfterAGoodOne) {
    application.context.connection = nullptr;
    EvolutieCurs& window = Open();
    EXPECT_EQ(desktop.reports.size(), 1U);
    application.context.connection = connection;
    window.cmbLuna.SetListIndex(4);
    window.cmdAction[1].Click();
    EXPECT_EQ(window.cmbLuna.ListCount(), 13);
    EXPECT_TRUE(window.MSChart1.Visible());
    EXPECT_EQ(desktop.reports.size(), 1U);
    EXPECT_EQ(messages.created, 1);
}

TEST_F(EvolutieCursTest, ATableWithoutCurrenciesOpensAllTheSame) {
    database = std::make_shared<host::EmbeddedDatabase>(":memory:");
    Run("CREATE TABLE [Curs Valutar] (Data datetime NOT NULL PRIMARY KEY, Validat int)");
    Run("INSERT INTO [Curs Valutar]([Data]) VALUES('05-08-2003')");
    application.context.connection = std::make_shared<host::EmbeddedConnection>(database);
    EvolutieCurs& window = Open();
    EXPECT_THAT(desktop.reports, IsEmpty());
    window.cmdAction[1].Click();
    EXPECT_TRUE(window.IsLoaded());
}

TEST_F(EvolutieCursTest, ASingleCurrencyIsChosenAtOnce) {
    database = std::make_shared<host::EmbeddedDatabase>(":memory:");
    Run("CREATE TABLE [Curs Valutar] (Data datetime NOT NULL PRIMARY KEY, Validat int, EUR float)");
    Run("INSERT INTO [Curs Valutar]([Data],[EUR]) VALUES('05-08-2003',37100)");
    application.context.connection = std::make_shared<host::EmbeddedConnection>(database);
    const EvolutieCurs& window = Open();
    EXPECT_EQ(window.cmbMoneda.ListIndex(), 0);
    EXPECT_EQ(window.cmbMoneda.Text(), "EUR");
}

TEST_F(EvolutieCursTest, RatesStandAtTheRightWhetherThereAreAnyOrNot) {
    EvolutieCurs& window = Open();
    for (const int month : {1, 5}) {
        window.Grid.SetColumnAlignment(1, forms::Align::Left);
        window.cmbLuna.SetListIndex(month - 1);
        window.cmdAction[1].Click();
        EXPECT_EQ(window.Grid.ColumnAlignment(1), forms::Align::Right) << month;
        EXPECT_EQ(window.Grid.Columns(), 2);
    }
}

// Keys.

TEST_F(EvolutieCursTest, EnterInAListGoesToTheNextControl) {
    Open();
    EXPECT_EQ(FocusedControl(), "cmbAn");
    for (const char* expected : {"cmbLuna", "cmbMoneda", "cmdAction(1)"}) {
        keyboard.Press(key::Enter);
        EXPECT_EQ(FocusedControl(), expected);
    }
}

TEST_F(EvolutieCursTest, ListsDoNotGoAroundTheirEndsAndIgnoreLeft) {
    EvolutieCurs& window = Open();
    window.cmbLuna.SetFocus();
    keyboard.Press(key::Up);
    EXPECT_EQ(window.cmbLuna.ListIndex(), 0);
    keyboard.Press(key::Down);
    EXPECT_EQ(window.cmbLuna.ListIndex(), 1);
    keyboard.Press(key::Left);
    EXPECT_EQ(window.cmbLuna.ListIndex(), 1);
    window.cmbLuna.SetListIndex(12);
    keyboard.Press(key::Down);
    EXPECT_EQ(window.cmbLuna.ListIndex(), 12);
    EXPECT_EQ(FocusedControl(), "cmbLuna");
}

TEST_F(EvolutieCursTest, AtTheEndsOfAListUpAndDownReachNobody) {
    AddMonthsOf2002(1);
    EvolutieCurs& window = Open();
    for (forms::ComboBox* combo : {&window.cmbAn, &window.cmbLuna, &window.cmbMoneda}) {
        const int last = combo->ListCount() - 1;
        ASSERT_GT(last, 0) << combo->Name();
        const CountingPeer* peer = CountingPeer::Give(*combo);
        combo->SetFocus();
        combo->SetListIndex(last);
        keyboard.Press(key::Down, {.alt = true});
        EXPECT_EQ(peer->dropDowns, 0) << combo->Name() << ": not even to open the list";
        keyboard.Press(key::Up, {.alt = true});
        EXPECT_EQ(peer->dropDowns, 1) << combo->Name();
        combo->SetListIndex(0);
        keyboard.Press(key::Up, {.alt = true});
        EXPECT_EQ(peer->dropDowns, 1) << combo->Name();
        keyboard.Press(key::Down, {.alt = true});
        EXPECT_EQ(peer->dropDowns, 2) << combo->Name();
    }
}

TEST_F(EvolutieCursTest, LeftNeverChangesAList) {
    AddMonthsOf2002(1);
    EvolutieCurs& window = Open();
    for (forms::ComboBox* combo : {&window.cmbAn, &window.cmbLuna, &window.cmbMoneda}) {
        const int last = combo->ListCount() - 1;
        combo->SetFocus();
        combo->SetListIndex(last);
        keyboard.Press(key::Left);
        EXPECT_EQ(combo->ListIndex(), last) << combo->Name();
    }
}

TEST_F(EvolutieCursTest, TheFocusedListIsGrey) {
    EvolutieCurs& window = Open();
    for (forms::ComboBox* combo : {&window.cmbAn, &window.cmbLuna, &window.cmbMoneda}) {
        combo->SetFocus();
        EXPECT_EQ(combo->BackColor(), 0x404040U);
        window.Grid.SetFocus();
        EXPECT_EQ(combo->BackColor(), 0U);
    }
}

TEST_F(EvolutieCursTest, DownFromAButtonGoesToTheGridOnceThereIsAChart) {
    EvolutieCurs& window = Open();
    window.cmdAction[1].SetFocus();
    keyboard.Press(key::Down);
    EXPECT_NE(FocusedControl(), "Grid");
    window.cmbLuna.SetListIndex(4);
    window.cmdAction[1].Click();
    window.cmdAction[1].SetFocus();
    keyboard.Press(key::Down);
    EXPECT_EQ(FocusedControl(), "Grid");
}

TEST_F(EvolutieCursTest, NoOtherKeyOnAButtonGoesToTheGrid) {
    EvolutieCurs& window = OpenAndDraw(5);
    for (const int keyCode : {key::Right, key::Left, key::Up, key::Home}) {
        window.cmdAction[1].SetFocus();
        keyboard.Press(keyCode);
        EXPECT_NE(FocusedControl(), "Grid") << keyCode;
    }
}

TEST_F(EvolutieCursTest, RightOnAButtonIsSwallowed) {
    EvolutieCurs& window = Open();
    window.cmdAction[1].SetFocus();
    keyboard.Press(key::Right);
    EXPECT_EQ(FocusedControl(), "cmdAction(1)");
    EXPECT_EQ(desktop.beeps, 1);
}

TEST_F(EvolutieCursTest, AKeyThatAListIgnoresBeeps) {
    EvolutieCurs& window = Open();
    window.cmbLuna.SetFocus();
    window.cmbLuna.SetListIndex(0);
    for (const int code : {key::Left, key::Up})
        keyboard.Press(code);
    EXPECT_EQ(desktop.beeps, 2);
    keyboard.Press(key::Down);
    EXPECT_EQ(desktop.beeps, 2);
    window.cmbLuna.SetListIndex(window.cmbLuna.ListCount() - 1);
    keyboard.Press(key::Down);
    EXPECT_EQ(desktop.beeps, 3);
    EXPECT_EQ(window.cmbLuna.ListIndex(), window.cmbLuna.ListCount() - 1);
}

TEST_F(EvolutieCursTest, EscapeClosesFromEveryControl) {
    for (const char* control : {"cmbAn", "cmbLuna", "cmbMoneda", "cmdAction(0)", "cmdAction(1)", "Grid"}) {
        Open().FindControl(control)->SetFocus();
        keyboard.Press(key::Escape);
        EXPECT_EQ(application.Loaded<EvolutieCurs>(), nullptr) << control;
    }
}

// Closing.

TEST_F(EvolutieCursTest, ClosingEnablesTheListAndMakesOneWhereThereIsNone) {
    CursValutar& list = OpenList();
    list.SetEnabled(false);
    Open().cmdAction[0].Click();
    EXPECT_TRUE(list.Enabled());
    list.cmdAction[5].Click();
    EXPECT_EQ(application.Loaded<CursValutar>(), nullptr);
    application.Loaded<EvolutieCurs>()->cmdAction[0].Click();
    EXPECT_TRUE(application.Default<CursValutar>().Enabled());
    EXPECT_EQ(OpenList().Grid.Rows(), 6);
}

TEST_F(EvolutieCursTest, StaysOnTopWhenEnteredAndWhenLeft) {
    const EvolutieCurs& window = Open();
    EXPECT_EQ(desktop.CallsOf(window).keptOnTop, 1);
    desktop.ActivateByUser(nullptr);
    EXPECT_EQ(desktop.CallsOf(window).keptOnTop, 2);
}

}  // namespace
}  // namespace tavrin::tests
