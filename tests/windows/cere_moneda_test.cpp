#include "rates/cere_moneda.h"

#include <gmock/gmock.h>

#include "support/rates_test.h"
#include "support/recording_surface.h"

namespace tavrin::tests {
namespace {

namespace key = forms::key;
using rates::CereMoneda;
using rates::CursValutar;
using testing::ElementsAre;
using testing::IsEmpty;

class CereMonedaTest : public RatesTest {
  protected:
    CereMoneda& OpenToAdd() {
        OpenList().cmdAction[3].Click();
        connection->ClearRecord();
        return *application.Loaded<CereMoneda>();
    }

    CereMoneda& OpenToRemove() {
        OpenList().cmdAction_Click(4);
        return *application.Loaded<CereMoneda>();
    }

    bool IsOpen() { return application.Loaded<CereMoneda>() != nullptr; }
    CursValutar& List() { return *application.Loaded<CursValutar>(); }
};

TEST_F(CereMonedaTest, AddingShowsATextBoxInTheMiddleOfTheScreen) {
    const CereMoneda& window = OpenToAdd();
    EXPECT_TRUE(window.txtMoneda.Visible());
    EXPECT_FALSE(window.cmbMoneda.Visible());
    EXPECT_EQ(window.lblLabels[0].Caption(), "Introduceti numele monedei dorite");
    EXPECT_EQ(window.cmdAction[0].Caption(), "Accepta");
    EXPECT_EQ(window.cmdAction[1].Caption(), "Renunta");
    EXPECT_EQ(window.cmdAction[0].Picture(), forms::Icon::Accept);
    EXPECT_EQ(window.cmdAction[1].Picture(), forms::Icon::Cancel);
    EXPECT_EQ(window.Bounds().left, (desktop.ScreenSize().width - window.Bounds().width) / 2);
    EXPECT_EQ(window.Bounds().top, (desktop.ScreenSize().height - window.Bounds().height) / 2);
    EXPECT_EQ(FocusedControl(), "txtMoneda");
    EXPECT_EQ(messages.created, 2);
}

TEST_F(CereMonedaTest, TheFieldHasOneFrame) {
    const CereMoneda& window = OpenToAdd();
    RecordingSurface around;
    window.Frame1.Draw(around);
    for (const Drawn& frame : around.AllOf(Drawing::Frame))
        EXPECT_EQ(frame.area, window.txtMoneda.Bounds());
    EXPECT_EQ(window.Shape14.Bounds(), window.txtMoneda.Bounds()) << "the shape lies beneath the field";
    EXPECT_EQ(window.Shape14.Bounds(), window.cmbMoneda.Bounds());
}

TEST_F(CereMonedaTest, RemovingListsTheColumnsAfterTheSecondAndRemovesNone) {
    CereMoneda& window = OpenToRemove();
    EXPECT_EQ(connection->Statements().back(), "SELECT * FROM [Curs Valutar]");
    EXPECT_FALSE(window.txtMoneda.Visible());
    ASSERT_EQ(window.cmbMoneda.ListCount(), 2);
    EXPECT_EQ(window.cmbMoneda.Item(0), "EUR");
    EXPECT_EQ(window.cmbMoneda.Item(1), "USD");
    EXPECT_EQ(window.cmbMoneda.ListIndex(), 0);
    connection->ClearRecord();
    window.cmdAction[0].Click();
    EXPECT_THAT(connection->Statements(), IsEmpty());
    EXPECT_FALSE(IsOpen());
    EXPECT_TRUE(List().Enabled());
}

TEST_F(CereMonedaTest, ASingleCurrencyIsChosenAtOnceAndNoneIsNoError) {
    for (const bool any : {true, false}) {
        application.Default<CursValutar>().Unload();
        database = std::make_shared<host::EmbeddedDatabase>(":memory:");
        Run(std::string("CREATE TABLE [Curs Valutar] (Data datetime NOT NULL PRIMARY KEY, Validat int") +
            (any ? ", EUR float)" : ")"));
        application.context.connection = std::make_shared<host::EmbeddedConnection>(database);
        auto& window = application.Default<CereMoneda>();
        window.Mode = rates::CurrencyMode::Remove;
        window.Show();
        EXPECT_EQ(window.cmbMoneda.ListIndex(), any ? 0 : -1);
        EXPECT_EQ(window.cmbMoneda.Text(), any ? "EUR" : "");
        EXPECT_THAT(desktop.reports, IsEmpty());
        window.Unload();
    }
}

TEST_F(CereMonedaTest, AnEmptyNameIsRefused) {
    for (const char* name : {"", "   "}) {
        CereMoneda& window = OpenToAdd();
        window.txtMoneda.SetText(name);
        messages.shown.clear();
        window.cmdAction[0].SetFocus();
        keyboard.Press(key::Enter);
        EXPECT_THAT(messages.shown, ElementsAre(ShownMessage{"Nume Obligatoriu", 64, 0, window.Caption()}));
        EXPECT_EQ(FocusedControl(), "txtMoneda");
        EXPECT_THAT(connection->Statements(), IsEmpty());
        window.Unload();
    }
}

TEST_F(CereMonedaTest, AddingRunsThreeStatementsAndShowsTheColumn) {
    OpenToAdd();
    keyboard.Type("GBP\r\r");
    const auto log = connection->Log();
    ASSERT_GE(log.size(), 3U);
    EXPECT_EQ(log[0], "Execute: ALTER TABLE [Curs Valutar] ADD  [GBP] float");
    EXPECT_EQ(log[1], "Execute: UPDATE [Curs Valutar] SET [GBP] = 0");
    EXPECT_EQ(log[2], "Execute: INSERT INTO LpVal (Valuta, Curs) VALUES ('GBP', 0)");
    EXPECT_FALSE(IsOpen());
    EXPECT_TRUE(List().Enabled());
    EXPECT_THAT(RowOf(List().Grid, 0), ElementsAre("Data", "D", "EUR", "USD", "GBP"));
    EXPECT_EQ(List().Grid.TextMatrix(1, 4), "0");
    EXPECT_EQ(CountOf("LpVal WHERE Valuta = 'GBP' AND Curs = 0"), 1);
}

TEST_F(CereMonedaTest, BlanksAroundANameAreKept) {
    CereMoneda& window = OpenToAdd();
    window.txtMoneda.SetText(" G P ");
    window.cmdAction[0].Click();
    EXPECT_EQ(connection->Statements()[0], "ALTER TABLE [Curs Valutar] ADD  [ G P ] float");
    EXPECT_EQ(connection->Statements()[2], "INSERT INTO LpVal (Valuta, Curs) VALUES (' G P ', 0)");
}

TEST_F(CereMonedaTest, ANameThatExistsIsRefusedAndNothingChanges) {
    CereMoneda& window = OpenToAdd();
    keyboard.Type("EUR\r\r");
    EXPECT_THAT(messages.shown, ElementsAre(ShownMessage{"Moneda deja existenta ! Alegeti alta moneda !", 64,
                                                         0, window.Caption()}));
    EXPECT_EQ(connection->Statements().size(), 1U);
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(FocusedControl(), "txtMoneda");
    EXPECT_FALSE(List().Enabled());
    EXPECT_EQ(CountOf("LpVal"), 0);
    EXPECT_THAT(desktop.reports, IsEmpty());
}

TEST_F(CereMonedaTest, OtherErrorsAreShownByTheirDescription) {
    CereMoneda& window = OpenToAdd();
    window.txtMoneda.SetText("GBP");
    connection->FailStatement("ALTER", data::Error(-2147467259, "Permission denied"));
    window.cmdAction[0].Click();
    EXPECT_THAT(messages.shown, ElementsAre(ShownMessage{"Permission denied", 64, 0, window.Caption()}));
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(FocusedControl(), "txtMoneda");
}

TEST_F(CereMonedaTest, TheColumnStaysWhenALaterStatementFails) {
    for (const char* failing : {"UPDATE", "INSERT INTO LpVal"}) {
        CereMoneda& window = OpenToAdd();
        const std::string name = std::string("X") + failing[0];
        window.txtMoneda.SetText(name);
        connection->FailStatement(failing, data::Error(-2147467259, "Timeout expired"));
        window.cmdAction[0].Click();
        EXPECT_TRUE(IsOpen());
        window.cmdAction[1].Click();
        EXPECT_TRUE(List().Enabled());
        List().ApplyDateFilter();
        EXPECT_EQ(List().Grid.TextMatrix(0, List().Grid.Columns() - 1), name);
    }
}

TEST_F(CereMonedaTest, ANameWithAQuoteOrABracketBreaksTheStatementAlone) {
    CereMoneda& window = OpenToAdd();
    window.txtMoneda.SetText("A]B");
    window.cmdAction[0].Click();
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(messages.shown.size(), 1U);
    window.txtMoneda.SetText("A'B");
    window.cmdAction[0].Click();
    EXPECT_EQ(connection->Statements().back(), "INSERT INTO LpVal (Valuta, Curs) VALUES ('A'B', 0)");
    EXPECT_TRUE(IsOpen());
}

TEST_F(CereMonedaTest, GivingUpEnablesTheListAgain) {
    OpenToAdd().cmdAction[1].Click();
    EXPECT_FALSE(IsOpen());
    EXPECT_TRUE(List().Enabled());
    EXPECT_THAT(connection->Statements(), IsEmpty());
}

TEST_F(CereMonedaTest, EscapeGivesUpFromEveryControl) {
    for (const char* control : {"txtMoneda", "cmdAction(0)", "cmdAction(1)"}) {
        OpenToAdd().FindControl(control)->SetFocus();
        keyboard.Press(key::Escape);
        EXPECT_FALSE(IsOpen()) << control;
    }
    OpenToRemove().cmbMoneda.SetFocus();
    keyboard.Press(key::Escape);
    EXPECT_FALSE(IsOpen());
}

TEST_F(CereMonedaTest, TheFocusedFieldAndItsShapeAreGrey) {
    CereMoneda& window = OpenToAdd();
    EXPECT_EQ(window.txtMoneda.BackColor(), 0x404040U);
    EXPECT_EQ(window.Shape14.BackColor(), 0x404040U);
    window.cmdAction[0].SetFocus();
    EXPECT_EQ(window.txtMoneda.BackColor(), 0U);
    EXPECT_EQ(window.Shape14.BackColor(), 0U);
    window.Unload();
    CereMoneda& removal = OpenToRemove();
    removal.cmbMoneda.SetFocus();
    EXPECT_EQ(removal.cmbMoneda.BackColor(), 0x404040U);
    EXPECT_EQ(removal.Shape14.BackColor(), 0x404040U);
    removal.cmdAction[1].SetFocus();
    EXPECT_EQ(removal.cmbMoneda.BackColor(), 0U);
    EXPECT_EQ(removal.Shape14.BackColor(), 0U);
}

TEST_F(CereMonedaTest, EnterTabAndDownLeaveTheTextForAccept) {
    CereMoneda& window = OpenToAdd();
    window.txtMoneda.SetText("GB");
    for (const int keyCode : {key::Enter, key::Tab, key::Down}) {
        window.txtMoneda.SetFocus();
        keyboard.Press(keyCode);
        EXPECT_EQ(FocusedControl(), "cmdAction(0)") << keyCode;
    }
    EXPECT_TRUE(IsOpen());
}

TEST_F(CereMonedaTest, RightLeavesTheTextOnlyAtItsEnd) {
    CereMoneda& window = OpenToAdd();
    keyboard.Type("GB");
    window.txtMoneda.Select(0, 0);
    keyboard.Press(key::Right);
    EXPECT_EQ(FocusedControl(), "txtMoneda");
    EXPECT_EQ(window.txtMoneda.SelStart(), 1);
    keyboard.Press(key::Right);
    EXPECT_EQ(FocusedControl(), "txtMoneda");
    keyboard.Press(key::Right);
    EXPECT_EQ(FocusedControl(), "cmdAction(0)");
}

TEST_F(CereMonedaTest, DeleteIsTheTextBoxesOwn) {
    CereMoneda& window = OpenToAdd();
    keyboard.Type("GBP");
    window.txtMoneda.Select(0, 0);
    keyboard.Press(key::Delete);
    EXPECT_EQ(window.txtMoneda.Text(), "BP");
}

TEST_F(CereMonedaTest, ArrowsWalkBetweenTheFieldAndTheButtons) {
    CereMoneda& window = OpenToAdd();
    window.cmdAction[0].SetFocus();
    keyboard.Press(key::Right);
    EXPECT_EQ(FocusedControl(), "cmdAction(1)");
    keyboard.Press(key::Left);
    EXPECT_EQ(FocusedControl(), "cmdAction(0)");
    keyboard.Press(key::Up);
    EXPECT_EQ(FocusedControl(), "txtMoneda");
    window.Unload();
    OpenToRemove().cmbMoneda.SetFocus();
    keyboard.Press(key::Enter);
    EXPECT_EQ(FocusedControl(), "cmdAction(0)");
    keyboard.Press(key::Left);
    EXPECT_EQ(FocusedControl(), "cmbMoneda");
}

TEST_F(CereMonedaTest, KeysThatChooseInTheListStayInIt) {
    CereMoneda& window = OpenToRemove();
    for (const int keyCode : {key::Up, key::Down, key::Home, key::End, static_cast<int>('U')}) {
        window.cmbMoneda.SetFocus();
        keyboard.Press(keyCode);
        EXPECT_EQ(FocusedControl(), "cmbMoneda") << keyCode;
    }
    for (const int keyCode : {key::Enter, key::Right}) {
        window.cmbMoneda.SetFocus();
        keyboard.Press(keyCode);
        EXPECT_EQ(FocusedControl(), "cmdAction(0)") << keyCode;
    }
}

TEST_F(CereMonedaTest, StaysOnTopWhenEnteredAndWhenLeft) {
    CereMoneda& window = OpenToAdd();
    EXPECT_EQ(desktop.CallsOf(window).keptOnTop, 1);
    desktop.ActivateByUser(nullptr);
    EXPECT_EQ(desktop.CallsOf(window).keptOnTop, 2);
}

}  // namespace
}  // namespace tavrin::tests
