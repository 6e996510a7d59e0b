#include "rates/alege_moneda.h"

#include <gmock/gmock.h>

#include "calculator_fixture.h"
#include "data/error.h"

namespace tavrin::tests {
namespace {

namespace key = forms::key;
using rates::AlegeMoneda;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr const char* DollarQuery =
    "SELECT COnvert(nvarchar,[Data],103) AS [D], [$] FROM [Curs Valutar]  ORDER BY [Data] DESC";
constexpr const char* EuroQuery =
    "SELECT COnvert(nvarchar,[Data],103) AS [D], [EUR] FROM [Curs Valutar]  ORDER BY [Data] DESC";
constexpr const char* ColumnsQuery = "SELECT * FROM [Curs Valutar]";

class AlegeMonedaTest : public CalculatorTest {
  protected:
    AlegeMoneda& OpenFromCalculator() {
        Open();
        connection->ClearRecord();
        return OpenChooser();
    }

    static std::vector<std::string> Currencies(const AlegeMoneda& chooser) {
        std::vector<std::string> names;
        for (int i = 0; i < chooser.cmbMoneda.ListCount(); ++i)
            names.push_back(chooser.cmbMoneda.Item(i));
        return names;
    }

    std::vector<std::int32_t> ReportedErrors() const {
        std::vector<std::int32_t> numbers;
        for (const HeadlessDesktop::Report& report : desktop.reports)
            numbers.push_back(report.number);
        return numbers;
    }
};

// Opening.

TEST_F(AlegeMonedaTest, OpensInFrontOfItsDisabledCaller) {
    Open();
    messages.created = 0;
    AlegeMoneda& chooser = OpenChooser();
    EXPECT_EQ(chooser.Name(), "AlegeMoneda");
    EXPECT_EQ(chooser.Caption(), "Alege Moneda");
    EXPECT_EQ(ActiveWindow(), "AlegeMoneda");
    EXPECT_FALSE(Calculator()->Enabled());
    EXPECT_EQ(chooser.cmbMoneda.Text(), "$");
    EXPECT_EQ(FocusedControl(), "Grid");
    EXPECT_EQ(messages.created, 1);
    EXPECT_EQ(chooser.Label2.Caption(), "Moneda");
    EXPECT_EQ(chooser.cmdAction[0].Caption(), "Accepta");
    EXPECT_EQ(chooser.cmdAction[1].Caption(), "Renunta");
    EXPECT_EQ(chooser.cmdAction[0].Picture(), forms::Icon::Accept);
    EXPECT_EQ(chooser.cmdAction[1].Picture(), forms::Icon::Cancel);
    EXPECT_THAT(desktop.reports, IsEmpty());
}

TEST_F(AlegeMonedaTest, AsksForTheRatesOfItsCodeFirstAndAgainWithTheCurrenciesOnceItIsActive) {
    OpenFromCalculator();
    const std::string dollars = DollarQuery;
    const std::string columns = ColumnsQuery;
    EXPECT_THAT(connection->Log(), ElementsAre("Open: " + dollars, "ReadAll: " + dollars, "Close: " + dollars,
                                               "Open: " + columns, "Close: " + columns, "Open: " + dollars,
                                               "ReadAll: " + dollars, "Close: " + dollars));
}

TEST_F(AlegeMonedaTest, WhereItsWindowCannotBeMadeItsCallerIsEnabledAgain) {
    Open();
    desktop.whenCreating = [](const forms::Form&) { throw data::Error(8, "Not enough storage"); };
    Calculator()->cmdVal.Click();
    EXPECT_THAT(ReportedErrors(), ElementsAre(8));
    EXPECT_EQ(Chooser(), nullptr);
    EXPECT_TRUE(Calculator()->Enabled());
}

TEST_F(AlegeMonedaTest, ListsTheColumnsFromTheThirdOn) {
    EXPECT_THAT(Currencies(OpenFromCalculator()), ElementsAre("EUR", "USD", "$"));
}

TEST_F(AlegeMonedaTest, ShowsTheRatesNewestFirst) {
    const AlegeMoneda& chooser = OpenFromCalculator();
    EXPECT_THAT(ColumnOf(chooser.Grid, 0),
                ElementsAre("Data", "14/05/2003", "13/05/2003", "12/05/2003", "09/05/2003", "08/05/2003"));
    EXPECT_THAT(ColumnOf(chooser.Grid, 1), ElementsAre("$", "4.5", "4", "3.5", "3.5", "3.5"));
    EXPECT_EQ(chooser.Grid.ColumnWidth(0), 1100);
    EXPECT_EQ(chooser.Grid.ColumnWidth(1), 1800);
    EXPECT_EQ(chooser.Grid.ColumnAlignment(0), forms::Align::Center);
    EXPECT_EQ(chooser.Grid.ColumnAlignment(1), forms::Align::Right);
    EXPECT_EQ(chooser.Grid.Row(), 1);
    EXPECT_EQ(chooser.Grid.Col(), 0);
    EXPECT_EQ(chooser.Grid.ColSel(), 1);
}

TEST_F(AlegeMonedaTest, StaysOnTop) {
    AlegeMoneda& chooser = OpenFromCalculator();
    EXPECT_EQ(desktop.CallsOf(chooser).keptOnTop, 1);
    desktop.ActivateByUser(nullptr);
    EXPECT_EQ(desktop.CallsOf(chooser).keptOnTop, 2);
}

TEST_F(AlegeMonedaTest, ItsListGrowsWheneverItIsActivated) {
    AlegeMoneda& chooser = OpenFromCalculator();
    desktop.ActivateByUser(nullptr);
    desktop.ActivateByUser(&chooser);
    EXPECT_THAT(Currencies(chooser), ElementsAre("EUR", "USD", "$", "EUR", "USD", "$"));
    desktop.ActivateByUser(nullptr);
    desktop.ActivateByUser(&chooser);
    EXPECT_THAT(Currencies(chooser), SizeIs(9));
}

TEST_F(AlegeMonedaTest, ActivationGoesBackToTheNewestRate) {
    AlegeMoneda& chooser = OpenFromCalculator();
    keyboard.Press(key::Down);
    chooser.cmdAction[1].SetFocus();
    desktop.ActivateByUser(nullptr);
    desktop.ActivateByUser(&chooser);
    EXPECT_EQ(chooser.Grid.Row(), 1);
    EXPECT_EQ(FocusedControl(), "Grid");
}

// Another currency.

TEST_F(AlegeMonedaTest, TheGridFollowsTheCurrencyThatIsChosen) {
    AlegeMoneda& chooser = OpenFromCalculator();
    keyboard.Press(key::Down);
    chooser.cmbMoneda.SetFocus();
    connection->ClearRecord();
    chooser.cmbMoneda.HandleChosen(0);
    EXPECT_THAT(connection->Statements(), ElementsAre(EuroQuery));
    EXPECT_THAT(ColumnOf(chooser.Grid, 1), ElementsAre("EUR", "37500", "37400", "37300.5", "37200", "37100"));
    EXPECT_EQ(chooser.Grid.Row(), 1);
    EXPECT_EQ(FocusedControl(), "Grid");
}

TEST_F(AlegeMonedaTest, TheGridFollowsTheCurrencyThatIsTyped) {
    AlegeMoneda& chooser = OpenFromCalculator();
    connection->ClearRecord();
    chooser.cmbMoneda.SetText("EUR");
    EXPECT_THAT(connection->Statements(), ElementsAre(EuroQuery));
    EXPECT_EQ(chooser.Grid.TextMatrix(0, 1), "EUR");
}

TEST_F(AlegeMonedaTest, ACurrencyThatTheTableLacksIsReportedAndLeavesTheGrid) {
    AlegeMoneda& chooser = OpenFromCalculator();
    chooser.cmbMoneda.SetText("EURO");
    EXPECT_THAT(ReportedErrors(), ElementsAre(data::error_number::ErrorsInCommand));
    EXPECT_EQ(chooser.Grid.TextMatrix(0, 1), "$");
    EXPECT_TRUE(chooser.Grid.Visible());
    EXPECT_TRUE(chooser.cmdAction[0].Enabled());
}

TEST_F(AlegeMonedaTest, ATableWithoutTheFirstCodeIsReportedAndAnotherCurrencyCanBeChosen) {
    connection->FailStatement(
        "[$]", data::Error(data::error_number::ErrorsInCommand, "Invalid column name '$'."), Repeat::Always);
    AlegeMoneda& chooser = OpenFromCalculator();
    EXPECT_THAT(connection->Statements(), ElementsAre(DollarQuery, ColumnsQuery, DollarQuery));
    EXPECT_THAT(ReportedErrors(), ElementsAre(data::error_number::ErrorsInCommand)) << "told once";
    EXPECT_EQ(ActiveWindow(), "AlegeMoneda");
    EXPECT_THAT(Currencies(chooser), SizeIs(3));
    chooser.cmbMoneda.HandleChosen(0);
    EXPECT_EQ(chooser.Grid.TextMatrix(1, 1), "37500");
    keyboard.Press(key::Enter);
    EXPECT_EQ(Calculator()->CursCurent(), 37500);
}

TEST_F(AlegeMonedaTest, WhatIsRefusedTheSecondTimeAloneIsReported) {
    connection->FailOperation(6, data::Error(data::error_number::ErrorsInCommand, "The table is locked."));
    OpenFromCalculator();
    EXPECT_THAT(ReportedErrors(), ElementsAre(data::error_number::ErrorsInCommand));
}

TEST_F(AlegeMonedaTest, AnotherRefusalTheSecondTimeIsReportedToo) {
    connection->FailOperation(1, data::Error(data::error_number::ErrorsInCommand, "Invalid column name."));
    connection->FailOperation(2, data::Error(-2147467259, "Connection lost"));
    OpenFromCalculator();
    EXPECT_THAT(ReportedErrors(), ElementsAre(data::error_number::ErrorsInCommand, -2147467259));
}

TEST_F(AlegeMonedaTest, ComingBackToACodeThatIsRefusedIsReportedAgain) {
    AlegeMoneda& chooser = OpenFromCalculator();
    chooser.cmbMoneda.SetText("EURO");
    desktop.ActivateByUser(nullptr);
    desktop.ActivateByUser(&chooser);
    EXPECT_THAT(ReportedErrors(), SizeIs(2));
}

// Another connection.

TEST_F(AlegeMonedaTest, RatesComeFromTheConnectionOfTheMoment) {
    AlegeMoneda& chooser = OpenFromCalculator();
    const auto second = std::make_shared<RecordingConnection>();
    second->Script().AnswerRows(ColumnsQuery, {"Data", "Validat", "$"}, {});
    second->Script().AnswerRows(DollarQuery, {"D", "$"}, {{std::string("02/01/2004"), 3.25}});
    application.context.connection = second;
    desktop.ActivateByUser(nullptr);
    desktop.ActivateByUser(&chooser);
    EXPECT_EQ(chooser.Grid.TextMatrix(1, 1), "3.25");
    EXPECT_THAT(desktop.reports, IsEmpty());
}

TEST_F(AlegeMonedaTest, OpenedWithoutAConnectionItIsWholeAfterAGoodOne) {
    application.context.connection = nullptr;
    Open();
    AlegeMoneda& chooser = OpenChooser();
    EXPECT_EQ(chooser.cmdAction[0].Picture(), forms::Icon::Accept);
    application.context.connection = connection;
    desktop.ActivateByUser(nullptr);
    desktop.ActivateByUser(&chooser);
    EXPECT_THAT(Currencies(chooser), SizeIs(3));
    keyboard.Press(key::Enter);
    EXPECT_EQ(Calculator()->CursCurent(), 4.5);
}

// Without rates.

TEST_F(AlegeMonedaTest, WithoutRatesOnlyCancelingIsLeft) {
    Run("DELETE FROM [Curs Valutar]");
    AlegeMoneda& chooser = OpenFromCalculator();
    EXPECT_FALSE(chooser.Grid.Visible());
    EXPECT_FALSE(chooser.cmdAction[0].Enabled());
    keyboard.Press(key::Escape);
    EXPECT_EQ(Chooser(), nullptr);
    EXPECT_TRUE(Calculator()->Enabled());
    EXPECT_EQ(ActiveWindow(), "frmCalculator");
}

TEST_F(AlegeMonedaTest, RatesThatComeLaterBringNeitherGridNorButtonBack) {
    Run("DELETE FROM [Curs Valutar]");
    AlegeMoneda& chooser = OpenFromCalculator();
    AddDay("05-14-2003", 37500, 32100);
    chooser.cmbMoneda.HandleChosen(0);
    desktop.ActivateByUser(nullptr);
    desktop.ActivateByUser(&chooser);
    EXPECT_EQ(chooser.Grid.TextMatrix(1, 1), "37500");
    EXPECT_FALSE(chooser.Grid.Visible());
    EXPECT_FALSE(chooser.cmdAction[0].Enabled());
    ClickWithMouse(chooser.cmdAction[0]);
    EXPECT_NE(Chooser(), nullptr);
    EXPECT_THAT(desktop.reports, IsEmpty());
}

// Accepting.

TEST_F(AlegeMonedaTest, EnterInTheGridTakesTheSelectedRate) {
    Open();
    keyboard.Type("100");
    OpenChooser();
    keyboard.Press(key::Down);
    keyboard.Press(key::Enter);
    EXPECT_EQ(Chooser(), nullptr);
    EXPECT_EQ(Calculator()->CursCurent(), 4);
    EXPECT_EQ(Shown(), "100,00 Lei | 25,00 $");
    EXPECT_EQ(Calculator()->lblCurs.Caption(), "Cursul este de  4,00 Lei pentru 1 $");
    EXPECT_TRUE(Calculator()->Enabled());
    EXPECT_EQ(ActiveWindow(), "frmCalculator");
}

TEST_F(AlegeMonedaTest, ADoubleClickTakesTheSelectedRate) {
    Open();
    AlegeMoneda& chooser = OpenChooser();
    const forms::Rect third = chooser.Grid.CellBounds(3, 0);
    const forms::Point at{third.left + 30, third.top + 30};
    ClickWithMouse(chooser.Grid, at);
    chooser.Grid.HandleDblClick({forms::MouseButton::Left, at, {}});
    EXPECT_EQ(Chooser(), nullptr);
    EXPECT_EQ(Calculator()->CursCurent(), 3.5);
}

TEST_F(AlegeMonedaTest, ADoubleClickBesideTheCellsTakesTheSelectedRateToo) {
    for (const char* place : {"header", "empty space"}) {
        Open();
        AlegeMoneda& chooser = OpenChooser();
        keyboard.Press(key::Down);
        const int top = place == std::string("header") ? 60 : chooser.Grid.Bounds().height - 300;
        chooser.Grid.HandleDblClick({forms::MouseButton::Left, {1500, top}, {}});
        EXPECT_EQ(Chooser(), nullptr) << place;
        EXPECT_EQ(Calculator()->CursCurent(), 4) << place;
    }
}

TEST_F(AlegeMonedaTest, TheButtonTakesTheSelectedRate) {
    Open();
    ClickWithMouse(OpenChooser().cmdAction[0]);
    EXPECT_EQ(Chooser(), nullptr);
    EXPECT_EQ(Calculator()->CursCurent(), 4.5);
}

TEST_F(AlegeMonedaTest, AcceptingKeepsTheAmountInLei) {
    Open();
    Calculator()->SetCursCurent(3.5);
    keyboard.Type("36");
    Calculator()->cmbUM.SetListIndex(1);
    Calculator()->Number[0].SetFocus();
    keyboard.Type("C36");
    EXPECT_EQ(Shown(), "126,00 Lei | 36,00 Valuta");
    OpenChooser();
    keyboard.Press(key::Enter);
    EXPECT_EQ(Shown(), "126,00 Lei | 28,00 $");
}

TEST_F(AlegeMonedaTest, TheRateIsReadAndWrittenInTheUsersLocale) {
    SpeakEnglish();
    Run("UPDATE [Curs Valutar] SET [EUR] = 37300.125");
    Open();
    OpenChooser().cmbMoneda.HandleChosen(0);
    keyboard.Press(key::Enter);
    EXPECT_EQ(Calculator()->CursCurent(), 37300.125);
    EXPECT_EQ(Calculator()->lblCurs.Caption(), "Cursul este de  37,300.13 Lei pentru 1 EUR");
    EXPECT_EQ(Calculator()->ValValuta.UnitText(), "EUR");
}

TEST_F(AlegeMonedaTest, AGroupedRomanianCaption) {
    Open();
    OpenChooser().cmbMoneda.HandleChosen(0);
    keyboard.Press(key::Down);
    keyboard.Press(key::Down);
    keyboard.Press(key::Enter);
    EXPECT_EQ(Calculator()->CursCurent(), 37300.5);
    EXPECT_EQ(Calculator()->lblCurs.Caption(), "Cursul este de  37.300,50 Lei pentru 1 EUR");
}

// Canceling.

TEST_F(AlegeMonedaTest, CancelingWritesNothingBack) {
    Open();
    keyboard.Type("100");
    ClickWithMouse(OpenChooser().cmdAction[1]);
    EXPECT_EQ(Chooser(), nullptr);
    EXPECT_EQ(Calculator()->CursCurent(), 1);
    EXPECT_EQ(Shown(), "100,00 Lei | 100,00 Valuta");
    EXPECT_EQ(Calculator()->lblCurs.Caption(), "Nu este setat nici un curs valutar!!");
    EXPECT_TRUE(Calculator()->Enabled());
    EXPECT_EQ(ActiveWindow(), "frmCalculator");
}

TEST_F(AlegeMonedaTest, EscapeCancelsFromEveryControl) {
    Open();
    for (const char* name : {"cmbMoneda", "Grid", "cmdAction(0)", "cmdAction(1)"}) {
        OpenChooser().FindControl(name)->SetFocus();
        keyboard.Press(key::Escape);
        EXPECT_EQ(Chooser(), nullptr) << name;
        EXPECT_EQ(Calculator()->CursCurent(), 1);
        EXPECT_TRUE(Calculator()->Enabled());
    }
}

TEST_F(AlegeMonedaTest, OtherKeysInTheGridAcceptNothing) {
    OpenFromCalculator();
    for (const int keyCode : {key::Space, key::Down, key::Up, static_cast<int>('A')})
        keyboard.Press(keyCode);
    EXPECT_NE(Chooser(), nullptr);
    EXPECT_EQ(Calculator()->CursCurent(), 1);
}

// The list's looks.

TEST_F(AlegeMonedaTest, TheListIsGreyWhileItHasTheFocus) {
    AlegeMoneda& chooser = OpenFromCalculator();
    EXPECT_EQ(chooser.cmbMoneda.BackColor(), 0U);
    chooser.cmbMoneda.SetFocus();
    EXPECT_EQ(chooser.cmbMoneda.BackColor(), 0x404040U);
    EXPECT_EQ(chooser.cmbMoneda.SelLength(), 1) << "the whole text";
    chooser.Grid.SetFocus();
    EXPECT_EQ(chooser.cmbMoneda.BackColor(), 0U);
}

TEST_F(AlegeMonedaTest, ADisabledListKeepsItsColor) {
    AlegeMoneda& chooser = OpenFromCalculator();
    chooser.cmbMoneda.SetFocus();
    chooser.cmbMoneda.SetEnabled(false);
    EXPECT_NE(FocusedControl(), "cmbMoneda");
    EXPECT_EQ(chooser.cmbMoneda.BackColor(), 0x404040U);
}

// Rates that cannot be used.

TEST_F(AlegeMonedaTest, ARateOfNullIsATypeMismatch) {
    Run("UPDATE [Curs Valutar] SET [$] = NULL");
    Open();
    keyboard.Type("100");
    OpenChooser();
    keyboard.Press(key::Enter);
    EXPECT_THAT(ReportedErrors(), ElementsAre(data::error_number::TypeMismatch));
    EXPECT_NE(Chooser(), nullptr);
    EXPECT_EQ(Calculator()->CursCurent(), 1);
    EXPECT_EQ(Shown(), "100,00 Lei | 100,00 Valuta");
}

TEST_F(AlegeMonedaTest, ARateThatIsNoNumberIsATypeMismatch) {
    Run("ALTER TABLE [Curs Valutar] ADD  [Observatii] nvarchar(20)");
    Run("UPDATE [Curs Valutar] SET [Observatii] = 'fixat'");
    AlegeMoneda& chooser = OpenFromCalculator();
    chooser.cmbMoneda.HandleChosen(3);
    ClickWithMouse(chooser.cmdAction[0]);
    EXPECT_THAT(ReportedErrors(), ElementsAre(data::error_number::TypeMismatch));
    EXPECT_EQ(Calculator()->CursCurent(), 1);
    EXPECT_NE(Chooser(), nullptr);
}

TEST_F(AlegeMonedaTest, ARateOfZeroFailsInTheLastStep) {
    Run("UPDATE [Curs Valutar] SET [$] = 0");
    Open();
    keyboard.Type("100");
    OpenChooser();
    keyboard.Press(key::Enter);
    EXPECT_THAT(ReportedErrors(), ElementsAre(data::error_number::DivisionByZero));
    EXPECT_NE(Chooser(), nullptr);
    EXPECT_EQ(Calculator()->CursCurent(), 0);
    EXPECT_EQ(Calculator()->lblCurs.Caption(), "Cursul este de  0,00 Lei pentru 1 $");
    EXPECT_EQ(Shown(), "100,00 Lei | 100,00 $");
    keyboard.Press(key::Escape);
    EXPECT_TRUE(Calculator()->Enabled());
}

TEST_F(AlegeMonedaTest, ZeroByARateOfZeroOverflows) {
    Run("UPDATE [Curs Valutar] SET [$] = 0");
    OpenFromCalculator();
    keyboard.Press(key::Enter);
    EXPECT_THAT(ReportedErrors(), ElementsAre(data::error_number::Overflow));
}

TEST_F(AlegeMonedaTest, AnAmountTooLargeInLeiOverflowsBeforeAnythingChanges) {
    Run("UPDATE [Curs Valutar] SET [$] = NULL");
    Open();
    Calculator()->TakeChoice({.currency = "$", .rate = 1, .rateCaption = {}, .amountInLei = 1e300});
    Calculator()->SetCursCurent(1e300);
    OpenChooser();
    keyboard.Press(key::Enter);
    EXPECT_THAT(ReportedErrors(), ElementsAre(data::error_number::Overflow));
    EXPECT_EQ(Calculator()->CursCurent(), 1e300);
}

TEST_F(AlegeMonedaTest, AFailureOfTheCurrenciesEndsTheActivation) {
    Open();
    connection->FailStatement(ColumnsQuery, data::Error(-2147467259, "Connection lost"));
    connection->ClearRecord();
    OpenChooser();
    EXPECT_THAT(connection->Statements(), ElementsAre(DollarQuery, ColumnsQuery));
    EXPECT_THAT(ReportedErrors(), ElementsAre(-2147467259));
}

TEST_F(AlegeMonedaTest, WithoutAConnectionItReportsAndCloses) {
    application.context.connection = nullptr;
    Open();
    OpenChooser();
    EXPECT_THAT(ReportedErrors(), ElementsAre(data::error_number::ObjectNotSet));
    keyboard.Press(key::Escape);
    EXPECT_EQ(Chooser(), nullptr);
    EXPECT_TRUE(Calculator()->Enabled());
}

// The caller's life.

TEST_F(AlegeMonedaTest, OutlivesACalculatorThatIsUnloadedMeanwhile) {
    OpenFromCalculator();
    Calculator()->Unload();
    EXPECT_EQ(ActiveWindow(), "AlegeMoneda");
    keyboard.Press(key::Enter);
    EXPECT_EQ(Chooser(), nullptr);
    EXPECT_THAT(desktop.reports, IsEmpty());
    EXPECT_EQ(Open().CursCurent(), 1) << "a new calculator begins without a rate";
}

TEST_F(AlegeMonedaTest, WhatIsChosenGoesToTheCalculatorOfTheMoment) {
    OpenFromCalculator();
    const auto first = std::static_pointer_cast<calculator::FrmCalculator>(Calculator()->shared_from_this());
    first->Unload();
    Open();
    keyboard.Type("9");
    EXPECT_TRUE(Calculator()->Enabled());
    desktop.ActivateByUser(Chooser());
    keyboard.Press(key::Enter);
    EXPECT_EQ(Calculator()->CursCurent(), 4.5);
    EXPECT_EQ(Shown(), "9,00 Lei | 2,00 $");
    EXPECT_EQ(first->CursCurent(), 1) << "the calculator that called is gone";
}

TEST_F(AlegeMonedaTest, ACalculatorThatOpensLaterKnowsNothingOfTheChoice) {
    OpenFromCalculator();
    Calculator()->Unload();
    keyboard.Press(key::Enter);
    EXPECT_EQ(Calculator(), nullptr) << "choosing opens none";
    Open();
    EXPECT_EQ(Shown(), "0,00 Lei | 0,00 Valuta");
    EXPECT_EQ(Calculator()->lblCurs.Caption(), "Nu este setat nici un curs valutar!!");
}

TEST_F(AlegeMonedaTest, AcceptingWithoutACallerIsAnError) {
    auto& chooser = application.Default<AlegeMoneda>();
    chooser.cmbMoneda.SetText("EUR");
    chooser.Show();
    keyboard.Press(key::Enter);
    EXPECT_THAT(ReportedErrors(), ElementsAre(data::error_number::ObjectNotSet));
}

}  // namespace
}  // namespace tavrin::tests
