#include "rates/curs_valutar.h"

#include <gmock/gmock.h>

#include "rates/cere_moneda.h"
#include "rates/curs_valutar_detaliu.h"
#include "rates/evolutie_curs.h"
#include "support/rates_test.h"

namespace tavrin::tests {
namespace {

namespace key = forms::key;
using rates::CursValutar;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* Discover = "SELECT * FROM [Curs Valutar] ";
constexpr const char* MayList =
    "SELECT COnvert(nvarchar,[Data],103) AS [D], [Data] , [EUR] , [USD]  FROM [Curs Valutar] "
    "Where Data between  '2003-05-01' and '2003-05-20'  ORDER BY [Data]";
constexpr const char* FrozenDate =
    "SELECT IsNull([Curs], COnvert(smalldatetime,'12:00')) FROM AdmQuadrel.dbo.Societati WHERE Id  =7";

const ShownMessage FrozenMessage{"Acest curs a fost validat !\r\nNu puteti modifica un curs deja validat !",
                                 16, 0, "Curs Valutar"};

class CursValutarTest : public RatesTest {};

// Opening.

TEST_F(CursValutarTest, OpensOnTheMonthOfTheWorkingDate) {
    const CursValutar& list = OpenList();
    EXPECT_EQ(list.Caption(), "Curs Valutar");
    EXPECT_EQ(list.dpDataIn.Date(), Day(2003, 5, 1));
    EXPECT_EQ(list.dpDataFin.Date(), Day(2003, 5, 20));
    EXPECT_EQ(list.dpDataIn.MinDate(), Day(2003, 1, 1));
    EXPECT_EQ(list.dpDataIn.MaxDate(), Day(2004, 1, 31));
    EXPECT_EQ(list.dpDataFin.MinDate(), Day(2003, 1, 1));
    EXPECT_EQ(list.dpDataFin.MaxDate(), Day(2004, 1, 31));
    EXPECT_THAT(connection->Statements(), ElementsAre(Discover, MayList));
    EXPECT_THAT(connection->Log(),
                ElementsAre("Open: " + std::string(Discover), "Close: " + std::string(Discover),
                            "Open: " + std::string(MayList), "ReadAll: " + std::string(MayList),
                            "Close: " + std::string(MayList)));
    EXPECT_EQ(messages.created, 1);
    EXPECT_THAT(desktop.reports, IsEmpty());
}

// The window's size.

TEST_F(CursValutarTest, TheWindowIsAsWideAsItsCurrencies) {
    CursValutar& list = OpenList();
    const auto expectAllInSight = [&] {
        EXPECT_EQ(list.Grid.CellBounds(0, list.Grid.Columns() - 1).width, 1400);
        EXPECT_EQ(list.Grid.Bounds().height, 21 * 300 + 60);
        EXPECT_LE(list.Bounds().Right(), desktop.ScreenSize().width);
    };
    expectAllInSight();
    int width = list.Bounds().width;
    for (int added = 0; added < 6; ++added) {
        Run("ALTER TABLE [Curs Valutar] ADD [C" + std::to_string(added) + "] float");
        list.MoveTo(desktop.ScreenSize().width - list.Bounds().width - 100, 1000);
        list.ApplyDateFilter();
        expectAllInSight();
        EXPECT_NEAR(list.Bounds().width, width + 1400, 60);
        width = list.Bounds().width;
    }
}

TEST_F(CursValutarTest, TheSizeThatTheUserHasGivenStays) {
    CursValutar& list = OpenList();
    const forms::Size before = list.ClientSize();
    const forms::Size larger{before.width + 600, before.height + 900};
    const forms::Size narrower{before.width - 1400, before.height + 900};
    for (const forms::Size size : {larger, narrower}) {
        list.HandleSized(size);
        list.ApplyDateFilter();
        EXPECT_EQ(list.ClientSize(), size);
    }
    EXPECT_NEAR(list.SmallestClientSize().width, before.width - 1400, 15) << "that of one currency";
    EXPECT_EQ(list.SmallestClientSize().height, before.height);
    Run("ALTER TABLE [Curs Valutar] ADD [CHF] float");
    list.ApplyDateFilter();
    EXPECT_NEAR(list.ClientSize().width, before.width + 1400, 60) << "a new column is shown";
    EXPECT_EQ(list.ClientSize().height, before.height + 900);
}

TEST_F(CursValutarTest, AWindowOfManyCurrenciesEndsAtTheScreen) {
    for (int added = 0; added < 20; ++added)
        Run("ALTER TABLE [Curs Valutar] ADD [C" + std::to_string(added) + "] float");
    const CursValutar& list = OpenList();
    EXPECT_GE(list.Bounds().left, 0);
    EXPECT_LE(list.Bounds().Right(), desktop.ScreenSize().width);
    EXPECT_GT(list.Bounds().width, desktop.ScreenSize().width - 120);
    EXPECT_TRUE(list.Grid.CellBounds(0, list.Grid.Columns() - 1).IsEmpty());
    EXPECT_EQ(list.Grid.Bounds().height, 21 * 300 + 60 + 180) << "whole rows above the scroll bar";
    EXPECT_LT(list.cmdAction[CursValutar::Close].Bounds().Right(), list.ClientSize().width);
}

TEST_F(CursValutarTest, ARangeWithoutDaysKeepsTheWindowsSize) {
    CursValutar& list = OpenList();
    const forms::Rect bounds = list.Bounds();
    list.dpDataIn.SetDate(Day(2003, 12, 1));
    list.dpDataFin.SetDate(Day(2003, 12, 2));
    EXPECT_FALSE(list.ApplyDateFilter());
    EXPECT_EQ(list.Bounds(), bounds);
}

TEST_F(CursValutarTest, AYearBeyondEveryCalendarGivesPickersThatACalendarTakes) {
    for (const std::int16_t year : {std::int16_t{0}, std::int16_t{1752}, std::int16_t{32767}}) {
        application.context.workYear = year;
        CursValutar& list = OpenList();
        for (const forms::DatePicker* picker : {&list.dpDataIn, &list.dpDataFin}) {
            EXPECT_GE(picker->MinDate().days, Day(1753, 1, 1).days) << year;
            EXPECT_LE(picker->MaxDate().days, Day(9999, 12, 31).days) << year;
            EXPECT_GE(picker->Date().days, picker->MinDate().days) << year;
            EXPECT_LE(picker->Date().days, picker->MaxDate().days) << year;
        }
        list.Unload();
    }
}

TEST_F(CursValutarTest, AWorkingDateOutsideThePickersRangeIsMovedIntoIt) {
    application.context.workDate = Day(2010, 7, 15);
    const CursValutar& list = OpenList();
    EXPECT_EQ(list.dpDataIn.Date(), Day(2004, 1, 31));
    EXPECT_EQ(list.dpDataFin.Date(), Day(2004, 1, 31));
}

TEST_F(CursValutarTest, CaptionsAndIndicesOfTheActions) {
    CursValutar& list = OpenList();
    EXPECT_EQ(list.cmdAction[0].Caption(), "Adauga Curs");
    EXPECT_EQ(list.cmdAction[1].Caption(), "Modifica Curs");
    EXPECT_EQ(list.cmdAction[2].Caption(), "Sterge Curs");
    EXPECT_EQ(list.cmdAction[3].Caption(), "  Adauga Moneda");
    EXPECT_EQ(list.cmdAction[5].Caption(), "  Evolutie Curs");
    EXPECT_EQ(list.cmdAction[6].Caption(), "Iesire");
    EXPECT_EQ(list.FindControl("cmdAction(4)"), nullptr);
    EXPECT_EQ(list.cmdRefresh.Caption(), "Filtreaza");
    EXPECT_EQ(list.lblLabels[0].Caption(), "De La Data");
    EXPECT_EQ(list.lblLabels[1].Caption(), "La Data");
}

TEST_F(CursValutarTest, PickersShowDayMonthNameAndShortYear) {
    const CursValutar& list = OpenList();
    EXPECT_EQ(list.dpDataIn.Text(), "01/mai/03");
    EXPECT_EQ(list.dpDataFin.Text(), "20/mai/03");
}

// The grid.

TEST_F(CursValutarTest, GridShowsADayARowAndACurrencyAColumn) {
    const CursValutar& list = OpenList();
    ASSERT_EQ(list.Grid.Rows(), 6);
    ASSERT_EQ(list.Grid.Columns(), 4);
    EXPECT_THAT(RowOf(list.Grid, 0), ElementsAre("Data", "D", "EUR", "USD"));
    EXPECT_THAT(RowOf(list.Grid, 3), ElementsAre("12/05/2003", "12/05/2003", "37300.5", "32300"));
    EXPECT_EQ(list.Grid.ColumnWidth(0), 1100);
    EXPECT_EQ(list.Grid.ColumnWidth(1), 0);
    EXPECT_EQ(list.Grid.ColumnWidth(2), 1400);
    EXPECT_EQ(list.Grid.ColumnWidth(3), 1400);
    EXPECT_EQ(list.Grid.ColumnAlignment(0), forms::Align::Center);
    EXPECT_EQ(list.Grid.ColumnAlignment(1), forms::Align::Left);
    EXPECT_EQ(list.Grid.ColumnAlignment(2), forms::Align::Right);
    EXPECT_TRUE(list.fraGrid.Visible());
}

TEST_F(CursValutarTest, ATableWithoutCurrenciesListsDaysAlone) {
    database = std::make_shared<host::EmbeddedDatabase>(":memory:");
    Run("CREATE TABLE [Curs Valutar] (Data datetime NOT NULL PRIMARY KEY, Validat int)");
    Run("INSERT INTO [Curs Valutar]([Data]) VALUES('05-08-2003')");
    auto recording =
        std::make_shared<RecordingConnection>(std::make_shared<host::EmbeddedConnection>(database));
    application.context.connection = recording;
    const CursValutar& list = OpenList();
    EXPECT_EQ(recording->Statements().back(),
              "SELECT COnvert(nvarchar,[Data],103) AS [D], [Data]  FROM [Curs Valutar] "
              "Where Data between  '2003-05-01' and '2003-05-20'  ORDER BY [Data]");
    EXPECT_EQ(list.Currencies().UpperBound(), 1);
    EXPECT_EQ(list.Grid.Rows(), 2);
    EXPECT_THAT(desktop.reports, IsEmpty());
}

TEST_F(CursValutarTest, ADayIsFoundInEveryRowAndMarkedAsAWhole) {
    CursValutar& list = OpenList();
    for (int row = 5; row >= 1; --row) {
        list.SelectDay(list.Grid.TextMatrix(row, 0));
        EXPECT_EQ(list.Grid.Row(), row);
        EXPECT_EQ(list.Grid.Col(), 0);
        EXPECT_EQ(list.Grid.ColSel(), 3);
    }
    list.Grid.SetRow(4);
    list.SelectDay("01/01/2003");
    EXPECT_EQ(list.Grid.Row(), 4) << "a day that is not in the list";
}

TEST_F(CursValutarTest, NullRatesAreBlankCells) {
    Run("INSERT INTO [Curs Valutar]([Data],[EUR]) VALUES('05-15-2003',37600)");
    const CursValutar& list = OpenList();
    EXPECT_EQ(list.Grid.TextMatrix(6, 2), "37600");
    EXPECT_EQ(list.Grid.TextMatrix(6, 3), "");
}

TEST_F(CursValutarTest, AnEmptyRangeHidesTheGridAndDisarmsModifyAndDelete) {
    application.context.workDate = Day(2003, 2, 20);
    CursValutar& list = OpenList();
    EXPECT_FALSE(list.fraGrid.Visible());
    EXPECT_EQ(list.Grid.DataSource(), nullptr);
    EXPECT_TRUE(list.cmdAction[1].Enabled());
    connection->ClearRecord();
    list.cmdAction[1].Click();
    list.cmdAction[2].Click();
    EXPECT_THAT(connection->Statements(), IsEmpty());
    EXPECT_THAT(messages.shown, IsEmpty());
    EXPECT_EQ(application.Loaded<rates::CursValutarDetaliu>(), nullptr);
}

// Filtering.

TEST_F(CursValutarTest, FilteringTakesBothDatesInTheOrderOfThePickers) {
    CursValutar& list = OpenList();
    list.dpDataIn.SetDate(Day(2003, 5, 20));
    list.dpDataFin.SetDate(Day(2003, 5, 1));
    connection->ClearRecord();
    list.cmdRefresh.Click();
    EXPECT_THAT(
        connection->Statements(),
        ElementsAre(Discover,
                    "SELECT COnvert(nvarchar,[Data],103) AS [D], [Data] , [EUR] , [USD]  FROM [Curs Valutar] "
                    "Where Data between  '2003-05-20' and '2003-05-01'  ORDER BY [Data]"));
    EXPECT_FALSE(list.fraGrid.Visible());
    EXPECT_EQ(list.Grid.TextMatrix(0, 0), "") << "nothing is left of the list before";
    EXPECT_EQ(FocusedControl(), "dpDataFin");
}

TEST_F(CursValutarTest, FilteringThatFindsDaysFocusesTheGrid) {
    CursValutar& list = OpenList();
    list.cmdRefresh.SetFocus();
    keyboard.Press(key::Enter);
    EXPECT_EQ(FocusedControl(), "Grid");
    EXPECT_EQ(list.Grid.Row(), 1);
}

TEST_F(CursValutarTest, TheCurrentDayStaysTheCurrentOneWhileItIsListed) {
    CursValutar& list = OpenList();
    list.Grid.SetRow(4);
    list.dpDataIn.SetDate(Day(2003, 5, 9));
    list.cmdRefresh.Click();
    EXPECT_EQ(list.SelectedDayText(), "13/05/2003");
    EXPECT_EQ(list.Grid.Row(), 3);
    list.dpDataFin.SetDate(Day(2003, 5, 12));
    list.cmdRefresh.Click();
    EXPECT_EQ(list.Grid.Row(), 1) << "the first one where it is not";
}

TEST_F(CursValutarTest, TheGridComesBackWhenTheRangeHasDaysAgain) {
    application.context.workDate = Day(2003, 2, 20);
    CursValutar& list = OpenList();
    list.dpDataFin.SetDate(Day(2003, 5, 20));
    list.cmdRefresh.Click();
    EXPECT_TRUE(list.fraGrid.Visible());
    EXPECT_EQ(list.Grid.Rows(), 6);
}

TEST_F(CursValutarTest, FilteringEnablesWhatWasDisabled) {
    CursValutar& list = OpenList();
    const std::vector<forms::Control*> controls = {&list.cmdAction[1], &list.cmdAction[2], &list.cmdAction[5],
                                                   &list.dpDataIn,     &list.dpDataFin,    &list.fraGrid};
    for (forms::Control* control : controls)
        control->SetEnabled(false);
    list.ApplyDateFilter();
    for (const forms::Control* control : controls)
        EXPECT_TRUE(control->Enabled()) << control->QualifiedName();
}

TEST_F(CursValutarTest, SixCurrenciesFillTheList) {
    for (const char* currency : {"CHF", "GBP", "HUF", "PLN"})
        Run("ALTER TABLE [Curs Valutar] ADD  [" + std::string(currency) + "] float");
    const CursValutar& list = OpenList();
    const forms::Rect last = list.Grid.CellBounds(1, 7);
    EXPECT_EQ(last.width, 1400) << "all of the last currency is in sight";
    const int beside = list.Grid.Bounds().width - last.Right();
    EXPECT_GT(beside, 0) << "there is room for the scroll bar of a long list";
    EXPECT_LT(beside, 1400) << "and for no more";
}

TEST_F(CursValutarTest, AFailedRefreshLeavesTheOldListInSight) {
    CursValutar& list = OpenList();
    connection->FailStatement("between", data::Error(-2147467259, "Timeout expired"));
    list.cmdRefresh.Click();
    EXPECT_THAT(desktop.reports, ElementsAre(HeadlessDesktop::Report{-2147467259, "Timeout expired"}));
    EXPECT_TRUE(list.fraGrid.Visible());
    EXPECT_EQ(list.Grid.Rows(), 6);
    list.cmdRefresh.Click();
    EXPECT_EQ(desktop.reports.size(), 1U);
}

// The frozen days.

TEST_F(CursValutarTest, AFrozenDayIsNotModified) {
    CursValutar& list = OpenList();
    list.Grid.SetRow(2);
    list.cmdAction[1].SetFocus();
    connection->ClearRecord();
    keyboard.Press(key::Enter);
    EXPECT_THAT(connection->Statements(), ElementsAre(FrozenDate));
    EXPECT_THAT(messages.shown, ElementsAre(FrozenMessage));
    EXPECT_EQ(FocusedControl(), "Grid");
    EXPECT_EQ(list.Grid.Row(), 2);
    EXPECT_EQ(list.Grid.ColSel(), 3);
    EXPECT_EQ(application.Loaded<rates::CursValutarDetaliu>(), nullptr);
    EXPECT_TRUE(list.Enabled());
}

TEST_F(CursValutarTest, TheRefusalOfAFrozenDayExtendsTheSelectionFromTheCurrentColumn) {
    CursValutar& list = OpenList();
    for (const int button : {1, 2}) {
        for (const int column : {0, 2, 3}) {
            list.Grid.SetRow(2);
            list.Grid.SetCol(column);
            list.cmdAction[button].Click();
            EXPECT_EQ(list.Grid.Row(), 2);
            EXPECT_EQ(list.Grid.Col(), column);
            EXPECT_EQ(list.Grid.ColSel(), 3);
        }
    }
}

TEST_F(CursValutarTest, AFrozenDayIsNotDeletedAndTheTextSpeaksOfModifying) {
    CursValutar& list = OpenList();
    list.cmdAction[2].Click();
    EXPECT_THAT(messages.shown, ElementsAre(FrozenMessage));
    EXPECT_EQ(CountOf("[Curs Valutar]"), 5);
}

TEST_F(CursValutarTest, TheFrozenDayItselfIsFrozen) {
    Run("UPDATE AdmQuadrel.dbo.Societati SET Curs = '05-12-2003' WHERE Id = 7");
    CursValutar& list = OpenList();
    list.Grid.SetRow(3);
    list.cmdAction[2].Click();
    EXPECT_THAT(messages.shown, ElementsAre(FrozenMessage));
    messages.shown.clear();
    list.Grid.SetRow(4);
    list.cmdAction[2].Click();
    ASSERT_EQ(messages.shown.size(), 1U);
    EXPECT_EQ(messages.shown[0].buttons, 4);
}

TEST_F(CursValutarTest, NothingIsFrozenForACompanyWithoutAValidationDate) {
    application.context.companyId = 8;
    CursValutar& list = OpenList();
    list.cmdAction[2].Click();
    ASSERT_EQ(messages.shown.size(), 1U);
    EXPECT_EQ(messages.shown[0].icon, 32);
}

TEST_F(CursValutarTest, AFrozenDateWithATimeOfDayRoundsToTheNearestDay) {
    // 11 May 2003 at 18:00 is nearer to 12 May.
    Run("UPDATE AdmQuadrel.dbo.Societati SET Curs = '2003-05-11 18:00:00' WHERE Id = 7");
    CursValutar& list = OpenList();
    list.Grid.SetRow(3);
    list.cmdAction[2].Click();
    EXPECT_THAT(messages.shown, ElementsAre(FrozenMessage));
}

// Deleting.

TEST_F(CursValutarTest, DeletingAsksNamesTheDayAndSendsItMonthFirst) {
    CursValutar& list = OpenList();
    list.Grid.SetRow(4);
    list.Grid.SetCol(2);
    messages.answers = {6};
    connection->ClearRecord();
    list.cmdAction[2].Click();
    const std::string question =
        "Sunteti sigur ca doriti sa stergeti cursul valutar pentru data de 13/05/2003";
    EXPECT_THAT(messages.shown, ElementsAre(ShownMessage{question, 32, 4, "Curs Valutar"}));
    EXPECT_EQ(application.lastQuestion, question);
    EXPECT_THAT(
        connection->Statements(),
        ElementsAre(FrozenDate, "DELETE FROM [Curs Valutar] WHERE [Data] = '05-13-2003'", Discover, MayList));
    EXPECT_THAT(ColumnOf(list.Grid, 0),
                ElementsAre("Data", "08/05/2003", "09/05/2003", "12/05/2003", "14/05/2003"));
}

TEST_F(CursValutarTest, AnsweringNoDeletesNothingAndFocusesTheGrid) {
    CursValutar& list = OpenList();
    list.Grid.SetRow(4);
    list.Grid.SetCol(2);
    list.cmdAction[2].SetFocus();
    keyboard.Press(key::Enter);
    EXPECT_EQ(CountOf("[Curs Valutar]"), 5);
    EXPECT_EQ(FocusedControl(), "Grid");
    EXPECT_EQ(list.Grid.Row(), 4);
    EXPECT_EQ(list.Grid.Col(), 0);
}

TEST_F(CursValutarTest, AFailedDeleteIsReportedAndLosesNothing) {
    CursValutar& list = OpenList();
    list.Grid.SetRow(4);
    messages.answers = {6};
    connection->FailStatement("DELETE", data::Error(-2147217900, "DELETE permission denied"));
    list.cmdAction[2].Click();
    EXPECT_THAT(desktop.reports,
                ElementsAre(HeadlessDesktop::Report{-2147217900, "DELETE permission denied"}));
    EXPECT_EQ(list.Grid.Rows(), 6);
    EXPECT_EQ(CountOf("[Curs Valutar]"), 5);
}

TEST_F(CursValutarTest, DeletingTheLastDayOfTheRangeHidesTheGrid) {
    CursValutar& list = OpenList();
    list.dpDataIn.SetDate(Day(2003, 5, 14));
    list.cmdRefresh.Click();
    messages.answers = {6};
    list.cmdAction[2].Click();
    EXPECT_FALSE(list.fraGrid.Visible());
}

// The windows it opens.

TEST_F(CursValutarTest, AddingOpensTheEntryWindowAndDisablesTheList) {
    CursValutar& list = OpenList();
    list.cmdAction[0].Click();
    ASSERT_NE(application.Loaded<rates::CursValutarDetaliu>(), nullptr);
    EXPECT_EQ(application.Loaded<rates::CursValutarDetaliu>()->Caption(), "Curs Valutar - Adaugare");
    EXPECT_FALSE(list.Enabled());
}

TEST_F(CursValutarTest, ModifyingOpensTheEntryWindowForADayThatIsNotFrozen) {
    CursValutar& list = OpenList();
    list.Grid.SetRow(3);
    list.cmdAction[1].Click();
    ASSERT_NE(application.Loaded<rates::CursValutarDetaliu>(), nullptr);
    EXPECT_EQ(application.Loaded<rates::CursValutarDetaliu>()->Caption(), "Curs Valutar - Modificare");
}

TEST_F(CursValutarTest, AddingACurrencyOpensItsWindowAndDisablesTheList) {
    CursValutar& list = OpenList();
    list.cmdAction[3].Click();
    ASSERT_NE(application.Loaded<rates::CereMoneda>(), nullptr);
    EXPECT_EQ(application.Loaded<rates::CereMoneda>()->Mode, rates::CurrencyMode::Add);
    EXPECT_FALSE(list.Enabled());
}

TEST_F(CursValutarTest, RemovingACurrencyIsReachedByCodeAlone) {
    CursValutar& list = OpenList();
    list.cmdAction_Click(4);
    ASSERT_NE(application.Loaded<rates::CereMoneda>(), nullptr);
    EXPECT_EQ(application.Loaded<rates::CereMoneda>()->Mode, rates::CurrencyMode::Remove);
    EXPECT_FALSE(list.Enabled());
}

TEST_F(CursValutarTest, TheLastCurrencyIsNotRemoved) {
    database = std::make_shared<host::EmbeddedDatabase>(":memory:");
    Run("CREATE TABLE [Curs Valutar] (Data datetime NOT NULL PRIMARY KEY, Validat int, EUR float)");
    Run("INSERT INTO [Curs Valutar]([Data],[EUR]) VALUES('05-08-2003',1)");
    application.context.connection = std::make_shared<host::EmbeddedConnection>(database);
    CursValutar& list = OpenList();
    list.dpDataIn.SetFocus();
    list.cmdAction_Click(4);
    EXPECT_THAT(messages.shown,
                ElementsAre(ShownMessage{"Nu puteti sterge toate monedele !", 16, 0, "Curs Valutar"}));
    EXPECT_EQ(FocusedControl(), "Grid");
    EXPECT_TRUE(list.Enabled());
}

TEST_F(CursValutarTest, TheEvolutionWindowTakesTheListsPlace) {
    CursValutar& list = OpenList();
    list.cmdAction[5].Click();
    EXPECT_NE(application.Loaded<rates::EvolutieCurs>(), nullptr);
    EXPECT_EQ(application.Loaded<CursValutar>(), nullptr);
    EXPECT_EQ(caller->raised, 1);
}

// Closing.

TEST_F(CursValutarTest, IsEnabledAgainWhereTheOtherWindowCannotBeMade) {
    CursValutar& list = OpenList();
    desktop.whenCreating = [](const forms::Form&) { throw data::Error(8, "Not enough storage"); };
    for (const auto action : {CursValutar::AddDay, CursValutar::AddCurrency, CursValutar::ShowEvolution}) {
        desktop.reports.clear();
        list.cmdAction[action].Click();
        EXPECT_EQ(desktop.reports.size(), 1U) << action;
        EXPECT_TRUE(list.Enabled()) << action;
        EXPECT_EQ(desktop.Forms().size(), 1U) << action;
    }
}

TEST_F(CursValutarTest, ClosingRaisesTheExitEventOnce) {
    OpenList().cmdAction[6].Click();
    EXPECT_EQ(application.Loaded<CursValutar>(), nullptr);
    EXPECT_EQ(caller->raised, 1);
}

TEST_F(CursValutarTest, EscapeClosesFromEveryControl) {
    for (const char* control : {"Grid", "dpDataIn", "dpDataFin", "cmdRefresh", "cmdAction(0)", "cmdAction(1)",
                                "cmdAction(2)", "cmdAction(3)", "cmdAction(5)", "cmdAction(6)"}) {
        OpenList().FindControl(control)->SetFocus();
        ASSERT_EQ(FocusedControl(), control);
        keyboard.Press(key::Escape);
        EXPECT_EQ(application.Loaded<CursValutar>(), nullptr) << control;
    }
}

// Keys.

TEST_F(CursValutarTest, TheGridHasTheFocusAtFirst) {
    OpenList();
    EXPECT_EQ(FocusedControl(), "Grid");
}

TEST_F(CursValutarTest, EnterAndTabInTheGridGoToModify) {
    CursValutar& list = OpenList();
    for (const int keyCode : {key::Enter, key::Tab}) {
        list.Grid.SetFocus();
        keyboard.Press(keyCode);
        EXPECT_EQ(FocusedControl(), "cmdAction(1)");
    }
    EXPECT_EQ(application.Loaded<rates::CursValutarDetaliu>(), nullptr) << "Enter only moves the focus";
}

TEST_F(CursValutarTest, TabAndRightFromTheFirstTwoButtonsGoToTheFirstDate) {
    CursValutar& list = OpenList();
    for (const int button : {0, 1}) {
        for (const int keyCode : {key::Tab, key::Right}) {
            list.cmdAction[button].SetFocus();
            keyboard.Press(keyCode);
            EXPECT_EQ(FocusedControl(), "dpDataIn");
        }
    }
}

TEST_F(CursValutarTest, TabAndRightFromDeleteAndAddCurrencyGoToTheGrid) {
    CursValutar& list = OpenList();
    for (const int button : {2, 3}) {
        for (const int keyCode : {key::Tab, key::Right}) {
            list.cmdAction[button].SetFocus();
            keyboard.Press(keyCode);
            EXPECT_EQ(FocusedControl(), "Grid");
        }
    }
}

TEST_F(CursValutarTest, TabFromDeleteWalksOnWhileThereIsNoGrid) {
    application.context.workDate = Day(2003, 2, 20);
    CursValutar& list = OpenList();
    list.cmdAction[2].SetFocus();
    keyboard.Press(key::Tab);
    EXPECT_EQ(FocusedControl(), "cmdAction(3)");
}

TEST_F(CursValutarTest, TabAndRightFromTheLastButtonsWalkOn) {
    CursValutar& list = OpenList();
    for (const int keyCode : {key::Tab, key::Right}) {
        list.cmdAction[5].SetFocus();
        keyboard.Press(keyCode);
        EXPECT_EQ(FocusedControl(), "cmdAction(6)") << keyCode;
    }
}

TEST_F(CursValutarTest, ShiftTabFromTheButtonsWalksBack) {
    CursValutar& list = OpenList();
    for (const int button : {1, 2, 3}) {
        list.cmdAction[button].SetFocus();
        keyboard.Press(key::Tab, {.shift = true});
        EXPECT_EQ(FocusedControl(), "cmdAction(" + std::to_string(button - 1) + ")");
    }
}

TEST_F(CursValutarTest, ShiftTabFromTheGridWalksBackAsWell) {
    CursValutar& list = OpenList();
    keyboard.Press(key::Tab, {.shift = true});
    EXPECT_EQ(FocusedControl(), "cmdAction(6)") << "the grid is the first";
    keyboard.Press(key::Tab);
    EXPECT_EQ(FocusedControl(), "Grid");
    list.cmdAction[0].SetFocus();
    for (const char* before : {"cmdRefresh", "dpDataFin", "dpDataIn", "Grid", "cmdAction(6)"}) {
        keyboard.Press(key::Tab, {.shift = true});
        EXPECT_EQ(FocusedControl(), before);
    }
}

TEST_F(CursValutarTest, TheOtherKeysStayInTheGrid) {
    const CursValutar& list = OpenList();
    for (const int keyCode : {key::Down, key::Up, key::End, key::Home, static_cast<int>('A')}) {
        keyboard.Press(keyCode);
        EXPECT_EQ(FocusedControl(), "Grid") << keyCode;
    }
    EXPECT_TRUE(list.IsLoaded());
}

TEST_F(CursValutarTest, ARowWithoutADayIsATypeMismatch) {
    CursValutar& list = OpenList();
    list.Grid.SetDataSource(nullptr);
    list.Grid.SetSize(2, 4);
    for (const int index : {1, 2}) {
        desktop.reports.clear();
        connection->ClearRecord();
        list.cmdAction[index].Click();
        ASSERT_EQ(desktop.reports.size(), 1U) << index;
        EXPECT_EQ(desktop.reports[0].number, data::error_number::TypeMismatch);
        EXPECT_THAT(connection->Statements(), IsEmpty());
    }
}

TEST_F(CursValutarTest, EnterWalksThroughTheRangeToTheFilterButton) {
    CursValutar& list = OpenList();
    list.dpDataIn.SetFocus();
    keyboard.Press(key::Enter);
    EXPECT_EQ(FocusedControl(), "dpDataFin");
    keyboard.Press(key::Enter);
    EXPECT_EQ(FocusedControl(), "cmdRefresh");
    keyboard.Press(key::Enter);
    EXPECT_EQ(FocusedControl(), "Grid");
}

TEST_F(CursValutarTest, LeftInTheSecondDateGoesToTheFirst) {
    CursValutar& list = OpenList();
    list.dpDataFin.SetFocus();
    keyboard.Press(key::Left);
    EXPECT_EQ(FocusedControl(), "dpDataIn");
}

TEST_F(CursValutarTest, ADateTypedDigitByDigitFilters) {
    CursValutar& list = OpenList();
    list.dpDataIn.SetFocus();
    keyboard.Type("12\r\r\r");
    EXPECT_EQ(list.dpDataIn.Date(), Day(2003, 5, 12));
    EXPECT_EQ(list.Grid.Rows(), 4);
}

TEST_F(CursValutarTest, EveryButtonIsReachedByKeyboard) {
    CursValutar& list = OpenList();
    list.cmdAction[1].SetFocus();
    for (const char* expected : {"cmdAction(2)", "cmdAction(3)", "cmdAction(5)", "cmdAction(6)"}) {
        keyboard.Press(key::Down);
        EXPECT_EQ(FocusedControl(), expected);
    }
    list.cmdAction[1].SetFocus();
    keyboard.Press(key::Up);
    EXPECT_EQ(FocusedControl(), "cmdAction(0)");
}

TEST_F(CursValutarTest, StaysOnTopWhenEnteredAndWhenLeft) {
    CursValutar& list = OpenList();
    EXPECT_EQ(desktop.CallsOf(list).keptOnTop, 1);
    desktop.ActivateByUser(nullptr);
    EXPECT_EQ(desktop.CallsOf(list).keptOnTop, 2);
}

// Bad surroundings.

TEST_F(CursValutarTest, WithoutAConnectionTheWindowOpensAndSaysSo) {
    application.context.connection = nullptr;
    const CursValutar& list = OpenList();
    ASSERT_EQ(desktop.reports.size(), 1U);
    EXPECT_EQ(desktop.reports[0].number, 91);
    EXPECT_EQ(desktop.reports[0].description, "Lipseste conexiunea la baza de date sau obiectul necesar");
    EXPECT_TRUE(list.Visible());
    EXPECT_FALSE(list.fraGrid.Visible());
}

TEST_F(CursValutarTest, WithoutAConnectionTheEntryOpensAllTheSame) {
    application.context.connection = nullptr;
    CursValutar& list = OpenList();
    desktop.reports.clear();
    list.cmdAction[CursValutar::AddDay].Click();
    EXPECT_NE(application.Loaded<rates::CursValutarDetaliu>(), nullptr);
    EXPECT_THAT(desktop.reports, IsEmpty());
}

TEST_F(CursValutarTest, AMissingTableIsReported) {
    database = std::make_shared<host::EmbeddedDatabase>(":memory:");
    application.context.connection = std::make_shared<host::EmbeddedConnection>(database);
    const CursValutar& list = OpenList();
    EXPECT_EQ(desktop.reports.size(), 1U);
    EXPECT_TRUE(list.Visible());
}

TEST_F(CursValutarTest, ABracketInACurrencysNameBreaksTheStatementAndNothingElse) {
    const auto scripted = std::make_shared<RecordingConnection>();
    scripted->Script().AnswerRows(Discover, {"Data", "Validat", "E]R"}, {});
    application.context.connection = scripted;
    const CursValutar& list = OpenList();
    EXPECT_EQ(scripted->Statements().back(),
              "SELECT COnvert(nvarchar,[Data],103) AS [D], [Data] , [E]R]  FROM [Curs Valutar] "
              "Where Data between  '2003-05-01' and '2003-05-20'  ORDER BY [Data]");
    EXPECT_EQ(desktop.reports.size(), 1U);
    EXPECT_TRUE(list.Visible());
}

TEST_F(CursValutarTest, ALowerCaseValidatColumnIsACurrency) {
    const auto scripted = std::make_shared<RecordingConnection>();
    scripted->Script().AnswerRows(Discover, {"Data", "Validat", "validat", "data", "EUR"}, {});
    application.context.connection = scripted;
    OpenList();
    EXPECT_EQ(scripted->Statements().back(),
              "SELECT COnvert(nvarchar,[Data],103) AS [D], [Data] , [validat] , [data] , [EUR]  FROM [Curs "
              "Valutar] "
              "Where Data between  '2003-05-01' and '2003-05-20'  ORDER BY [Data]");
}

TEST_F(CursValutarTest, TheColumnsOfTheDayMayStandAnywhere) {
    const auto scripted = std::make_shared<RecordingConnection>();
    scripted->Script().AnswerRows(Discover, {"EUR", "Validat", "USD", "Data"}, {});
    application.context.connection = scripted;
    OpenList();
    EXPECT_EQ(scripted->Statements().back(),
              "SELECT COnvert(nvarchar,[Data],103) AS [D], [Data] , [EUR] , [USD]  FROM [Curs Valutar] "
              "Where Data between  '2003-05-01' and '2003-05-20'  ORDER BY [Data]");
}

TEST_F(CursValutarTest, AbsurdHostValuesDoNoHarm) {
    for (const double days : {-657434.0, 0.0, 2958465.0, 1e300, -1e300}) {
        for (const std::int16_t year : {std::int16_t{-32768}, std::int16_t{0}, std::int16_t{32767}}) {
            application.context.workDate = {days};
            application.context.workYear = year;
            OpenList().Unload();
        }
    }
    SUCCEED();
}

}  // namespace
}  // namespace tavrin::tests
