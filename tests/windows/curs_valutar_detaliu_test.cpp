#include "rates/curs_valutar_detaliu.h"

#include <gmock/gmock.h>

#include "support/rates_test.h"

namespace tavrin::tests {
namespace {

namespace key = forms::key;
using rates::CursValutar;
using rates::CursValutarDetaliu;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class CursValutarDetaliuTest : public RatesTest {
  protected:
    CursValutarDetaliu& Entry() { return *application.Loaded<CursValutarDetaliu>(); }
    bool EntryIsOpen() { return application.Loaded<CursValutarDetaliu>() != nullptr; }

    CursValutarDetaliu& OpenToAdd() {
        OpenList().cmdAction[0].Click();
        connection->ClearRecord();
        return Entry();
    }

    CursValutarDetaliu& OpenToModify(int row) {
        CursValutar& list = OpenList();
        list.Grid.SetRow(row);
        list.cmdAction[1].Click();
        connection->ClearRecord();
        return Entry();
    }

    std::string EditorText() { return Entry().txtCursValutar.Text(); }
};

const ShownMessage Mandatory{"Valoare obligatorie !", 64, 0, "Curs Valutar - Adaugare"};
const ShownMessage NotNegative{"Valoarea cursului trebuie sa fie >= 0  !", 64, 0, "Curs Valutar - Adaugare"};
const ShownMessage TooLong{"Valoarea poate avea cel mult 15 cifre !", 64, 0, "Curs Valutar - Adaugare"};

// Opening.

TEST_F(CursValutarDetaliuTest, TheColumnsFillTheGridWithAndWithoutAScrollBar) {
    for (const int added : {0, 12}) {
        for (int i = 0; i < added; ++i)
            Run("ALTER TABLE [Curs Valutar] ADD [C" + std::to_string(i) + "] float");
        CursValutarDetaliu& entry = OpenToAdd();
        const forms::Rect last = entry.Grid.CellBounds(1, 1);
        const int bar = added > 0 ? forms::ScrollBar::Thickness : 0;
        EXPECT_EQ(last.width, 1500);
        EXPECT_NEAR(last.Right(), entry.Grid.Bounds().width - forms::GridViewport::Frame - bar, 15);
        EXPECT_EQ(entry.Grid.CellBounds(11, 0).IsEmpty(), added == 0);
        EXPECT_TRUE(entry.Grid.CellBounds(12, 0).IsEmpty());
        EXPECT_EQ(entry.DataCurs.Bounds().Right(), entry.Grid.Bounds().Right());
        desktop.UnloadAll();
    }
}

TEST_F(CursValutarDetaliuTest, AddingStartsOnTheWorkingDateWithZeros) {
    CursValutarDetaliu& entry = OpenToAdd();
    EXPECT_EQ(entry.Caption(), "Curs Valutar - Adaugare");
    EXPECT_EQ(entry.DataCurs.Date(), Day(2003, 5, 20));
    EXPECT_EQ(entry.DataCurs.Text(), "20/05/2003");
    EXPECT_TRUE(entry.DataCurs.Enabled());
    EXPECT_EQ(FocusedControl(), "DataCurs");
    EXPECT_THAT(ColumnOf(entry.Grid, 0), ElementsAre("Moneda", "EUR", "USD"));
    EXPECT_THAT(ColumnOf(entry.Grid, 1), ElementsAre("Valoare Curs", "0", "0"));
    EXPECT_EQ(entry.Grid.Columns(), 2);
    EXPECT_EQ(entry.Grid.ColumnWidth(0), 2000);
    EXPECT_EQ(entry.Grid.ColumnWidth(1), 1500);
    EXPECT_FALSE(entry.txtCursValutar.Visible());
    EXPECT_EQ(entry.txtCursValutar.TextFont(), entry.Grid.TextFont());
    EXPECT_EQ(entry.lblDescriere.Caption(), "Data Curs Valutar");
    EXPECT_EQ(entry.cmdAction[0].Caption(), "Accepta");
    EXPECT_EQ(entry.cmdAction[1].Caption(), "Renunta");
    EXPECT_EQ(messages.created, 2);
}

TEST_F(CursValutarDetaliuTest, ModifyingStartsWithTheSelectedDaysRates) {
    CursValutarDetaliu& entry = OpenToModify(3);
    EXPECT_EQ(entry.Caption(), "Curs Valutar - Modificare");
    EXPECT_EQ(entry.DataCurs.Date(), Day(2003, 5, 12));
    EXPECT_FALSE(entry.DataCurs.Enabled());
    EXPECT_EQ(FocusedControl(), "Grid");
    EXPECT_THAT(ColumnOf(entry.Grid, 1), ElementsAre("Valoare Curs", "37300.5", "32300"));
    EXPECT_THAT(connection->Statements(), IsEmpty());
}

TEST_F(CursValutarDetaliuTest, TheOpenerIsDisabledAndEnabledAgain) {
    CursValutarDetaliu& entry = OpenToAdd();
    CursValutar& list = *application.Loaded<CursValutar>();
    EXPECT_FALSE(list.Enabled());
    entry.cmdAction[1].Click();
    EXPECT_TRUE(list.Enabled());
    EXPECT_EQ(ActiveWindow(), "CursValutar");
}

TEST_F(CursValutarDetaliuTest, ClosingReturnsToTheListsRowMarkedAsAWhole) {
    CursValutar& list = OpenList();
    list.Grid.SetRow(4);
    ClickWithMouse(list.cmdAction[1]);
    ASSERT_EQ(list.ActiveControl(), &list.cmdAction[1]);
    ClickWithMouse(Entry().cmdAction[1]);
    EXPECT_EQ(ActiveWindow(), "CursValutar");
    EXPECT_EQ(FocusedControl(), "Grid");
    EXPECT_EQ(list.Grid.Row(), 4);
    EXPECT_EQ(list.Grid.Col(), 0);
    EXPECT_EQ(list.Grid.ColSel(), 3);
}

// The date.

TEST_F(CursValutarDetaliuTest, EnterOnANewDayProbesItAndStartsAtTheFirstCurrency) {
    CursValutarDetaliu& entry = OpenToAdd();
    keyboard.Press(key::Enter);
    EXPECT_THAT(connection->Statements(),
                ElementsAre("SELECT 'x' FROM [Curs Valutar] Where [Data] = '2003-05-20'"));
    EXPECT_EQ(FocusedControl(), "txtCursValutar");
    EXPECT_EQ(entry.Grid.Row(), 1);
    EXPECT_EQ(entry.Grid.Col(), 1);
    EXPECT_EQ(EditorText(), "0");
    EXPECT_EQ(entry.txtCursValutar.SelLength(), 1);
}

TEST_F(CursValutarDetaliuTest, EnterOnADayThatExistsOnlyMovesOn) {
    CursValutarDetaliu& entry = OpenToAdd();
    entry.DataCurs.SetDate(Day(2003, 5, 14));
    keyboard.Press(key::Enter);
    EXPECT_FALSE(entry.txtCursValutar.Visible());
    EXPECT_EQ(FocusedControl(), "Grid");
}

TEST_F(CursValutarDetaliuTest, ADateTypedIsTheDateProbed) {
    OpenToAdd();
    keyboard.Type("2\r");
    EXPECT_THAT(connection->Statements(),
                ElementsAre("SELECT 'x' FROM [Curs Valutar] Where [Data] = '2003-05-02'"));
}

TEST_F(CursValutarDetaliuTest, TheEditorLiesOverItsCell) {
    CursValutarDetaliu& entry = OpenToAdd();
    keyboard.Press(key::Enter);
    const forms::Rect cell = entry.Grid.CellBounds(1, 1);
    const forms::Rect grid = entry.Grid.Bounds();
    EXPECT_EQ(entry.txtCursValutar.Bounds(),
              (forms::Rect{grid.left + cell.left, grid.top + cell.top, cell.width, cell.height}));
    EXPECT_FALSE(cell.IsEmpty());
}

// The editor.

TEST_F(CursValutarDetaliuTest, OnlyDigitsCanBeTyped) {
    OpenToAdd();
    keyboard.Type("\r1a2.3,4-5+6 7e8");
    EXPECT_EQ(EditorText(), "12345678");
    EXPECT_EQ(desktop.beeps, 7);
    keyboard.Type("\b");
    EXPECT_EQ(EditorText(), "1234567");
}

TEST_F(CursValutarDetaliuTest, TheFieldsOwnCommandsReachIt) {
    CursValutarDetaliu& entry = OpenToAdd();
    keyboard.Type("\r");
    for (char32_t command : {U'\x3', U'\x16', U'\x18', U'\x1A'}) {
        const char32_t typed = command;
        entry.txtCursValutar.onKeyPress(command);
        EXPECT_EQ(command, typed) << "Ctrl and a letter";
    }
    EXPECT_EQ(desktop.beeps, 0);
}

TEST_F(CursValutarDetaliuTest, AValueIsShownInThousandsAndStoredPlain) {
    CursValutarDetaliu& entry = OpenToAdd();
    keyboard.Type("\r37500\r");
    EXPECT_EQ(entry.Grid.TextMatrix(1, 1), "37,500");
    keyboard.Type("1234567\r\r");
    EXPECT_FALSE(EntryIsOpen());
    EXPECT_EQ(CountOf("[Curs Valutar] WHERE Data = '2003-05-20' AND EUR = 37500 AND USD = 1234567"), 1);
}

TEST_F(CursValutarDetaliuTest, EnterAndDownWalkToTheNextRowAndThenToAccept) {
    CursValutarDetaliu& entry = OpenToAdd();
    keyboard.Type("\r5\r");
    EXPECT_EQ(entry.Grid.Row(), 2);
    EXPECT_EQ(FocusedControl(), "txtCursValutar");
    keyboard.Press(key::Down);
    EXPECT_EQ(FocusedControl(), "cmdAction(0)");
    EXPECT_FALSE(entry.txtCursValutar.Visible());
    EXPECT_TRUE(EntryIsOpen());
}

TEST_F(CursValutarDetaliuTest, UpWalksBackAndStaysInTheFirstRow) {
    CursValutarDetaliu& entry = OpenToAdd();
    keyboard.Type("\r5\r6");
    keyboard.Press(key::Up);
    EXPECT_EQ(entry.Grid.Row(), 1);
    EXPECT_EQ(entry.Grid.TextMatrix(2, 1), "6");
    EXPECT_EQ(EditorText(), "5");
    keyboard.Press(key::Up);
    EXPECT_EQ(entry.Grid.Row(), 1);
    EXPECT_EQ(FocusedControl(), "txtCursValutar");
    entry.Grid.SetFocus();
    keyboard.Type("8");
    EXPECT_EQ(EditorText(), "8") << "in the first row as well";
}

TEST_F(CursValutarDetaliuTest, LeftAndRightLeaveOnlyAtTheEndsOfTheText) {
    CursValutarDetaliu& entry = OpenToAdd();
    keyboard.Type("\r12\r34");
    keyboard.Press(key::Left);
    EXPECT_EQ(entry.Grid.Row(), 2);
    keyboard.Press(key::Left);
    EXPECT_EQ(entry.txtCursValutar.SelStart(), 0);
    EXPECT_EQ(entry.Grid.Row(), 2);
    keyboard.Press(key::Left);
    EXPECT_EQ(entry.Grid.Row(), 1);
    keyboard.Press(key::End);
    keyboard.Press(key::Right);
    EXPECT_EQ(entry.Grid.Row(), 2);
}

TEST_F(CursValutarDetaliuTest, WithinTheTextAndFromASelectionLeftAndRightStay) {
    CursValutarDetaliu& entry = OpenToAdd();
    keyboard.Type("\r12\r345");
    entry.txtCursValutar.Select(1, 0);
    keyboard.Press(key::Right);
    EXPECT_EQ(FocusedControl(), "txtCursValutar");
    EXPECT_EQ(entry.Grid.Row(), 2);
    EXPECT_EQ(entry.txtCursValutar.SelStart(), 2);
    for (const int keyCode : {key::Left, key::Right}) {
        entry.txtCursValutar.SelectAll();
        keyboard.Press(keyCode);
        EXPECT_EQ(FocusedControl(), "txtCursValutar") << keyCode;
        EXPECT_EQ(entry.Grid.Row(), 2) << keyCode;
    }
}

TEST_F(CursValutarDetaliuTest, UpAndDownGoOneRowAtATime) {
    Run("ALTER TABLE [Curs Valutar] ADD  [GBP] float");
    Run("ALTER TABLE [Curs Valutar] ADD  [HUF] float");
    CursValutarDetaliu& entry = OpenToAdd();
    keyboard.Press(key::Enter);
    for (const int row : {2, 3, 4}) {
        keyboard.Press(key::Down);
        EXPECT_EQ(entry.Grid.Row(), row);
    }
    for (const int row : {3, 2, 1}) {
        keyboard.Press(key::Up);
        EXPECT_EQ(entry.Grid.Row(), row);
    }
}

TEST_F(CursValutarDetaliuTest, AnEmptyCellIsRefusedWhereverTheUserGoes) {
    for (const int keyCode : {key::Up, key::Down, key::Enter, key::Tab}) {
        OpenToAdd();
        keyboard.Type("\r\b");
        messages.shown.clear();
        keyboard.Press(keyCode);
        EXPECT_THAT(messages.shown, ElementsAre(Mandatory)) << keyCode;
        EXPECT_EQ(FocusedControl(), "txtCursValutar");
        Entry().Unload();
    }
}

TEST_F(CursValutarDetaliuTest, BlanksCountAsEmpty) {
    CursValutarDetaliu& entry = OpenToAdd();
    keyboard.Press(key::Enter);
    keyboard.Paste("   ");
    keyboard.Press(key::Enter);
    EXPECT_THAT(messages.shown, ElementsAre(Mandatory));
    EXPECT_EQ(entry.txtCursValutar.SelLength(), 3) << "the text is selected for typing over it";
}

TEST_F(CursValutarDetaliuTest, PastedSignsAndLettersAreRefused) {
    OpenToAdd();
    keyboard.Press(key::Enter);
    for (const char* text : {",", ", ,", "-5", "abc", "12abc", "1e5", "--", "nan", "inf", "0x10"}) {
        Entry().txtCursValutar.SelectAll();
        keyboard.Paste(text);
        messages.shown.clear();
        keyboard.Press(key::Enter);
        EXPECT_THAT(messages.shown, ElementsAre(NotNegative)) << text;
        EXPECT_EQ(Entry().Grid.Row(), 1);
    }
}

TEST_F(CursValutarDetaliuTest, TheEditorSaysItsCurrency) {
    const CursValutarDetaliu& window = OpenToAdd();
    keyboard.Press(key::Enter);
    EXPECT_EQ(window.txtCursValutar.Accessible().name, "Valoare Curs, EUR");
    keyboard.Press(key::Down);
    EXPECT_EQ(window.txtCursValutar.Accessible().name, "Valoare Curs, USD");
    keyboard.Press(key::Up);
    EXPECT_EQ(window.txtCursValutar.Accessible().name, "Valoare Curs, EUR");
}

TEST_F(CursValutarDetaliuTest, AKeyThatTheGridHasNoUseForBeeps) {
    CursValutarDetaliu& window = OpenToAdd();
    window.Grid.SetFocus();
    keyboard.Type("x,");
    EXPECT_EQ(desktop.beeps, 2);
    keyboard.Type("7");
    EXPECT_EQ(desktop.beeps, 2);
    EXPECT_EQ(EditorText(), "7");
}

TEST_F(CursValutarDetaliuTest, TheSixteenthDigitBeepsAndIsNotTaken) {
    CursValutarDetaliu& entry = OpenToAdd();
    keyboard.Type("\r12345678901234567890");
    EXPECT_EQ(EditorText(), "123456789012345");
    EXPECT_EQ(desktop.beeps, 5);
    keyboard.Type("\r1\r\r");
    EXPECT_FALSE(EntryIsOpen());
    EXPECT_THAT(messages.shown, IsEmpty());
    EXPECT_EQ(CountOf("[Curs Valutar] WHERE Data = '2003-05-20' AND EUR = 123456789012345"), 1);
    (void)entry;
}

TEST_F(CursValutarDetaliuTest, TheLargestValueKeepsAllItsDigits) {
    CursValutarDetaliu& entry = OpenToAdd();
    keyboard.Type("\r999999999999999\r");
    EXPECT_EQ(entry.Grid.TextMatrix(1, 1), "999,999,999,999,999");
    keyboard.Press(key::Up);
    EXPECT_EQ(EditorText(), "999,999,999,999,999") << "its commas are no digits";
    keyboard.Type("1");
    EXPECT_EQ(EditorText(), "1") << "a digit takes the place of what is selected";
    EXPECT_EQ(desktop.beeps, 0);
}

TEST_F(CursValutarDetaliuTest, ASelectionMakesRoomForADigit) {
    CursValutarDetaliu& entry = OpenToAdd();
    keyboard.Type("\r123456789012345");
    entry.txtCursValutar.Select(0, 1);
    keyboard.Type("9");
    EXPECT_EQ(EditorText(), "923456789012345");
    entry.txtCursValutar.Select(3, 0);
    keyboard.Type("9");
    EXPECT_EQ(EditorText(), "923456789012345");
    EXPECT_EQ(desktop.beeps, 1);
    keyboard.Type("\b");
    EXPECT_EQ(EditorText(), "92456789012345") << "Backspace is no digit";
}

TEST_F(CursValutarDetaliuTest, ALongerNumberThatIsPastedIsRefusedAndChangesNothing) {
    CursValutarDetaliu& entry = OpenToAdd();
    keyboard.Press(key::Enter);
    for (const char* text : {"1000000000000000", "9,999,999,999,999,999", "0000000000000001",
                             "1.000000000000000", "123456789012345678901234567890"}) {
        entry.txtCursValutar.SelectAll();
        keyboard.Paste(text);
        messages.shown.clear();
        keyboard.Press(key::Enter);
        ASSERT_THAT(messages.shown, ElementsAre(TooLong)) << text;
        EXPECT_EQ(entry.Grid.TextMatrix(1, 1), "0") << text;
        EXPECT_EQ(entry.Grid.Row(), 1);
        EXPECT_EQ(FocusedControl(), "txtCursValutar");
    }
}

TEST_F(CursValutarDetaliuTest, AValueThatNobodyEditsIsSentAsTheListShowsIt) {
    for (const char* shown :
         {"37300.5", "-5", "1e+16", "12345678901234567", "0.1", "100000000000000000000"}) {
        CursValutarDetaliu& entry = OpenToModify(3);
        entry.Grid.SetTextMatrix(1, 1, shown);
        keyboard.Type("\r\r");
        ASSERT_EQ(entry.Grid.Row(), 2) << shown;
        entry.Grid.SetRow(1);
        ClickWithMouse(entry.Grid, {300, entry.Grid.CellBounds(1, 0).top + 10});
        EXPECT_EQ(EditorText(), shown);
        connection->ClearRecord();
        entry.cmdAction[0].Click();
        EXPECT_THAT(messages.shown, IsEmpty());
        ASSERT_THAT(connection->Statements(), Not(IsEmpty())) << shown;
        EXPECT_EQ(connection->Statements()[0], "UPDATE [Curs Valutar] SET [EUR] = " + std::string(shown) +
                                                   ", [USD] = 32300  WHERE [Data] = '05-12-2003'");
        application.Loaded<CursValutar>()->Unload();
    }
}

TEST_F(CursValutarDetaliuTest, ACommittedZeroIsShownAndSentAsZero) {
    CursValutarDetaliu& entry = OpenToAdd();
    keyboard.Type("\r000\r\r");
    EXPECT_EQ(entry.Grid.TextMatrix(1, 1), "0");
    connection->ClearRecord();
    keyboard.Press(key::Enter);
    EXPECT_EQ(connection->Statements()[2],
              "INSERT INTO [Curs Valutar]([Data],[EUR],[USD]) VALUES('05-20-2003',0,0)");
}

TEST_F(CursValutarDetaliuTest, ADecimalValueIsRoundedOnceItsCellWasEdited) {
    CursValutarDetaliu& entry = OpenToModify(3);
    keyboard.Type("\r");
    EXPECT_EQ(EditorText(), "37300.5");
    keyboard.Type("\r");
    EXPECT_EQ(entry.Grid.TextMatrix(1, 1), "37300.5");
    keyboard.Press(key::Up);
    keyboard.Press(key::Home);
    keyboard.Type("1\r");
    EXPECT_EQ(entry.Grid.TextMatrix(1, 1), "137,301");
    EXPECT_EQ(entry.Grid.TextMatrix(2, 1), "32300");
}

TEST_F(CursValutarDetaliuTest, ClickingElsewhereCommitsTheCell) {
    CursValutarDetaliu& entry = OpenToAdd();
    keyboard.Type("\r4321");
    entry.DataCurs.SetFocus();
    EXPECT_EQ(entry.Grid.TextMatrix(1, 1), "4,321");
    EXPECT_FALSE(entry.txtCursValutar.Visible());
    EXPECT_EQ(FocusedControl(), "DataCurs");
}

TEST_F(CursValutarDetaliuTest, ClickingElsewhereWithAnEmptyCellGoesBackToIt) {
    CursValutarDetaliu& entry = OpenToAdd();
    keyboard.Type("\r\b");
    entry.DataCurs.SetFocus();
    EXPECT_THAT(messages.shown, ElementsAre(Mandatory));
    EXPECT_EQ(FocusedControl(), "txtCursValutar");
}

// The editor and its cell.

TEST_F(CursValutarDetaliuTest, AClickOnAnotherRowIsRefusedAsAWholeWhileTheCellIs) {
    CursValutarDetaliu& entry = OpenToAdd();
    keyboard.Type("\r5\r\b");
    const forms::Rect other = entry.Grid.CellBounds(1, 0);
    ClickWithMouse(entry.Grid, {other.left + 100, other.top + 10});
    EXPECT_THAT(messages.shown, ElementsAre(Mandatory));
    EXPECT_EQ(entry.Grid.Row(), 2);
    EXPECT_EQ(entry.Grid.Col(), 1);
    EXPECT_EQ(entry.Grid.ColSel(), 1);
    EXPECT_EQ(FocusedControl(), "txtCursValutar");
    EXPECT_EQ(EditorText(), "");
    keyboard.Type("7\r");
    EXPECT_THAT(ColumnOf(entry.Grid, 1), ElementsAre("Valoare Curs", "5", "7"));
}

TEST_F(CursValutarDetaliuTest, AClickOnAnotherRowCommitsTheCellAndEditsThatRow) {
    CursValutarDetaliu& entry = OpenToAdd();
    keyboard.Type("\r5\r6");
    const forms::Rect other = entry.Grid.CellBounds(1, 0);
    ClickWithMouse(entry.Grid, {other.left + 100, other.top + 10});
    EXPECT_THAT(ColumnOf(entry.Grid, 1), ElementsAre("Valoare Curs", "5", "6"));
    EXPECT_EQ(entry.Grid.Row(), 1);
    EXPECT_EQ(FocusedControl(), "txtCursValutar");
    EXPECT_EQ(EditorText(), "5");
}

class CursValutarDetaliuScrollTest : public CursValutarDetaliuTest {
  protected:
    static constexpr int Currencies = 22;

    CursValutarDetaliuScrollTest() {
        for (int i = 2; i < Currencies; ++i)
            Run("ALTER TABLE [Curs Valutar] ADD  [C" + std::to_string(i) + "] float");
    }

    void ExpectEditorOverRow(int row) {
        const forms::Rect cell = Entry().Grid.CellBounds(row, 1);
        const forms::Rect& grid = Entry().Grid.Bounds();
        EXPECT_EQ(Entry().txtCursValutar.Bounds(),
                  (forms::Rect{grid.left + cell.left, grid.top + cell.top, cell.width, cell.height}));
    }
};

TEST_F(CursValutarDetaliuScrollTest, TheWheelTakesTheEditorAlongWithItsCell) {
    CursValutarDetaliu& entry = OpenToAdd();
    keyboard.Type("\r\r\r\r\r41");
    entry.Grid.HandleWheel(-1);
    ExpectEditorOverRow(5);
    entry.Grid.HandleWheel(-1);
    EXPECT_TRUE(entry.txtCursValutar.Bounds().IsEmpty()) << "its cell is out of sight";
    EXPECT_EQ(FocusedControl(), "txtCursValutar");
    keyboard.Type("2");
    ExpectEditorOverRow(5);
    EXPECT_FALSE(entry.txtCursValutar.Bounds().IsEmpty()) << "typing brings it back";
    keyboard.Type("\r");
    EXPECT_EQ(entry.Grid.TextMatrix(5, 1), "412");
    EXPECT_EQ(entry.Grid.Row(), 6);
    ExpectEditorOverRow(6);
}

TEST_F(CursValutarDetaliuScrollTest, ARefusedCellComesBackIntoSight) {
    CursValutarDetaliu& entry = OpenToAdd();
    keyboard.Type("\r\b");
    entry.Grid.HandleWheel(-4);
    const forms::Rect other = entry.Grid.CellBounds(15, 0);
    ClickWithMouse(entry.Grid, {other.left + 100, other.top + 10});
    EXPECT_THAT(messages.shown, ElementsAre(Mandatory));
    EXPECT_EQ(entry.Grid.Row(), 1);
    ExpectEditorOverRow(1);
    EXPECT_FALSE(entry.txtCursValutar.Bounds().IsEmpty());
    EXPECT_EQ(FocusedControl(), "txtCursValutar");
}

TEST_F(CursValutarDetaliuScrollTest, EveryValueGoesToTheCurrencyThatItWasTypedFor) {
    CursValutarDetaliu& entry = OpenToAdd();
    keyboard.Press(key::Enter);
    for (int row = 1; row <= Currencies; ++row) {
        keyboard.Type(std::to_string(row));
        entry.Grid.HandleWheel(row % 7 - 3);
        ExpectEditorOverRow(row);
        keyboard.Press(key::Enter);
    }
    for (int row = 1; row <= Currencies; ++row)
        EXPECT_EQ(entry.Grid.TextMatrix(row, 1), std::to_string(row));
}

TEST_F(CursValutarDetaliuTest, EscapeGivesUpFromEveryControl) {
    for (const char* control : {"DataCurs", "Grid", "cmdAction(0)", "cmdAction(1)"}) {
        OpenToAdd().FindControl(control)->SetFocus();
        keyboard.Press(key::Escape);
        EXPECT_FALSE(EntryIsOpen()) << control;
    }
    OpenToAdd();
    keyboard.Type("\r\b");
    keyboard.Press(key::Escape);
    EXPECT_FALSE(EntryIsOpen());
    EXPECT_THAT(messages.shown, IsEmpty());
}

TEST_F(CursValutarDetaliuTest, EnterClickAndADigitInTheGridStartEditing) {
    CursValutarDetaliu& entry = OpenToModify(3);
    keyboard.Press(key::Down);
    keyboard.Press(key::Enter);
    EXPECT_EQ(EditorText(), "32300");
    for (const char* digit : {"0", "7", "9"}) {
        entry.Grid.SetFocus();
        EXPECT_FALSE(entry.txtCursValutar.Visible());
        keyboard.Type(digit);
        EXPECT_EQ(EditorText(), digit) << "in place of the old value";
        EXPECT_EQ(FocusedControl(), "txtCursValutar");
        EXPECT_TRUE(entry.txtCursValutar.Visible());
    }
    entry.Grid.SetFocus();
    ClickWithMouse(entry.Grid, {300, entry.Grid.CellBounds(1, 0).top + 10});
    EXPECT_EQ(entry.Grid.Row(), 1);
    EXPECT_EQ(FocusedControl(), "txtCursValutar");
}

TEST_F(CursValutarDetaliuTest, OtherCharactersInTheGridStartNothing) {
    CursValutarDetaliu& entry = OpenToModify(3);
    entry.Grid.SetFocus();
    keyboard.Type("aZ-+.,/: %");
    EXPECT_FALSE(entry.txtCursValutar.Visible());
    EXPECT_EQ(FocusedControl(), "Grid");
    EXPECT_THAT(ColumnOf(entry.Grid, 1), ElementsAre("Valoare Curs", "37300.5", "32300"));
}

// Saving.

TEST_F(CursValutarDetaliuTest, InsertingChecksTheFrozenDateThenTheDayThenWrites) {
    OpenToAdd();
    keyboard.Type("\r37500\r31900\r");
    connection->ClearRecord();
    keyboard.Press(key::Enter);
    const auto statements = connection->Statements();
    ASSERT_GE(statements.size(), 3U);
    EXPECT_EQ(
        statements[0],
        "SELECT IsNull([Curs], COnvert(smalldatetime,'12:00')) FROM AdmQuadrel.dbo.Societati WHERE Id  =7");
    EXPECT_EQ(statements[1], "Select count(*) from [Curs Valutar] where data ='2003-05-20'");
    EXPECT_EQ(statements[2],
              "INSERT INTO [Curs Valutar]([Data],[EUR],[USD]) VALUES('05-20-2003',37500,31900)");
}

TEST_F(CursValutarDetaliuTest, TheListShowsTheNewDayAndMarksIt) {
    OpenToAdd();
    keyboard.Type("\r37500\r31900\r\r");
    const CursValutar& list = *application.Loaded<CursValutar>();
    EXPECT_EQ(list.Grid.Rows(), 7);
    EXPECT_EQ(list.Grid.TextMatrix(list.Grid.Row(), 0), "20/05/2003");
    EXPECT_EQ(list.Grid.ColSel(), 3);
    EXPECT_TRUE(list.Enabled());
    EXPECT_EQ(FocusedControl(), "Grid");
}

TEST_F(CursValutarDetaliuTest, WhereTheNewDayIsNotListedTheRowBeforeIsCurrentAgain) {
    CursValutar& list = OpenList();
    list.Grid.SetRow(4);
    list.cmdAction[0].Click();
    Entry().DataCurs.SetDate(Day(2003, 8, 1));
    Entry().cmdAction[0].Click();
    ASSERT_FALSE(EntryIsOpen());
    EXPECT_EQ(list.Grid.TextMatrix(list.Grid.Row(), 0), "13/05/2003");
    EXPECT_EQ(list.Grid.Col(), 0);
    EXPECT_EQ(list.Grid.ColSel(), 3);
    EXPECT_EQ(FocusedControl(), "Grid");
}

TEST_F(CursValutarDetaliuTest, TheFirstDayOfAnEmptyRangeComesWithTheListAndTheKeyboard) {
    Run("DELETE FROM [Curs Valutar]");
    CursValutar& list = OpenList();
    ASSERT_FALSE(list.fraGrid.Visible());
    ClickWithMouse(list.cmdAction[0]);
    keyboard.Type("\r5\r6\r\r");
    ASSERT_FALSE(EntryIsOpen());
    EXPECT_TRUE(list.fraGrid.Visible());
    EXPECT_EQ(list.Grid.TextMatrix(list.Grid.Row(), 0), "20/05/2003");
    EXPECT_EQ(list.Grid.ColSel(), 3);
    EXPECT_EQ(FocusedControl(), "Grid");
}

TEST_F(CursValutarDetaliuTest, WhereTheRangeStaysEmptyTheKeyboardStaysOnTheButton) {
    Run("DELETE FROM [Curs Valutar]");
    CursValutar& list = OpenList();
    ClickWithMouse(list.cmdAction[0]);
    Entry().DataCurs.SetDate(Day(2003, 8, 1));
    Entry().cmdAction[0].Click();
    ASSERT_FALSE(EntryIsOpen());
    EXPECT_FALSE(list.fraGrid.Visible());
    EXPECT_EQ(FocusedControl(), "cmdAction(0)");
}

TEST_F(CursValutarDetaliuTest, ADayNotLaterThanTheFrozenOneIsRefused) {
    CursValutarDetaliu& entry = OpenToAdd();
    for (const int day : {10, 9}) {
        entry.DataCurs.SetDate(Day(2003, 5, day));
        messages.shown.clear();
        entry.cmdAction[0].Click();
        EXPECT_THAT(messages.shown,
                    ElementsAre(ShownMessage{
                        "Data documentului introdus nu poate fi mai mica decit data ultimei validari \r\n"
                        "Data ultimei validari : 10/05/2003\r\nData document introdus : " +
                            data::FormatDayMonthYear(Day(2003, 5, day)) + "\r\nAlegeti alta data !",
                        64, 0, "DATA GRESITA"}));
        EXPECT_EQ(FocusedControl(), "DataCurs");
        EXPECT_TRUE(EntryIsOpen());
    }
    EXPECT_EQ(CountOf("[Curs Valutar]"), 5);
}

TEST_F(CursValutarDetaliuTest, ADayThatExistsIsRefused) {
    CursValutarDetaliu& entry = OpenToAdd();
    entry.DataCurs.SetDate(Day(2003, 5, 14));
    entry.cmdAction[0].SetFocus();
    keyboard.Press(key::Enter);
    EXPECT_THAT(messages.shown, ElementsAre(ShownMessage{"Exista curs valutar la aceasta data!", 64, 0,
                                                         "Curs Valutar - Adaugare"}));
    EXPECT_EQ(FocusedControl(), "DataCurs");
    EXPECT_EQ(CountOf("[Curs Valutar]"), 5);
}

TEST_F(CursValutarDetaliuTest, ModifyingWritesWithoutAnyCheck) {
    OpenToModify(3);
    keyboard.Type("\r37600\r\r");
    connection->ClearRecord();
    keyboard.Press(key::Enter);
    EXPECT_EQ(connection->Statements()[0],
              "UPDATE [Curs Valutar] SET [EUR] = 37600, [USD] = 32300  WHERE [Data] = '05-12-2003'");
    EXPECT_EQ(CountOf("[Curs Valutar] WHERE Data = '2003-05-12' AND EUR = 37600"), 1);
    const CursValutar& list = *application.Loaded<CursValutar>();
    EXPECT_EQ(list.Grid.TextMatrix(list.Grid.Row(), 0), "12/05/2003");
    EXPECT_EQ(list.Grid.TextMatrix(list.Grid.Row(), 2), "37600");
}

TEST_F(CursValutarDetaliuTest, AcceptTakesTheCellThatIsStillBeingEdited) {
    CursValutarDetaliu& entry = OpenToModify(3);
    keyboard.Type("\r41000");
    entry.cmdAction[0].Click();
    EXPECT_EQ(CountOf("[Curs Valutar] WHERE Data = '2003-05-12' AND EUR = 41000"), 1);
}

TEST_F(CursValutarDetaliuTest, AcceptWithAnEmptyCellSavesNothing) {
    CursValutarDetaliu& entry = OpenToAdd();
    keyboard.Type("\r\b");
    connection->ClearRecord();
    entry.cmdAction[0].Click();
    EXPECT_THAT(connection->Statements(), IsEmpty());
    EXPECT_TRUE(EntryIsOpen());
}

TEST_F(CursValutarDetaliuTest, EveryFailingStatementLeavesTheWindowOpenAndNothingWritten) {
    for (std::size_t failing = 1; failing <= 3; ++failing) {
        CursValutarDetaliu& entry = OpenToAdd();
        desktop.reports.clear();
        connection->FailOperation(failing, data::Error(-2147467259, "Connection is broken"));
        entry.cmdAction[0].Click();
        connection->StopFailing();
        EXPECT_EQ(desktop.reports.size(), 1U) << failing;
        EXPECT_TRUE(EntryIsOpen());
        EXPECT_FALSE(application.Loaded<CursValutar>()->Enabled());
        EXPECT_EQ(CountOf("[Curs Valutar]"), 5);
        Entry().cmdAction[1].Click();
        EXPECT_TRUE(application.Loaded<CursValutar>()->Enabled());
    }
}

TEST_F(CursValutarDetaliuTest, ARefreshThatFailsAfterSavingLeavesTheListUsable) {
    CursValutarDetaliu& entry = OpenToAdd();
    connection->FailStatement("SELECT * FROM", data::Error(-2147467259, "Connection is broken"));
    entry.cmdAction[0].Click();
    EXPECT_EQ(desktop.reports.size(), 1U);
    EXPECT_FALSE(EntryIsOpen());
    EXPECT_TRUE(application.Loaded<CursValutar>()->Enabled());
    EXPECT_EQ(CountOf("[Curs Valutar]"), 6);
}

TEST_F(CursValutarDetaliuTest, WithoutCurrenciesThereIsNothingToEdit) {
    database = std::make_shared<host::EmbeddedDatabase>(":memory:");
    Run("CREATE TABLE [Curs Valutar] (Data datetime NOT NULL PRIMARY KEY, Validat int)");
    application.context.connection = std::make_shared<host::EmbeddedConnection>(database);
    OpenList().cmdAction[0].Click();
    keyboard.Press(key::Enter);
    EXPECT_FALSE(Entry().txtCursValutar.Visible());
    EXPECT_THAT(desktop.reports, IsEmpty());
}

TEST_F(CursValutarDetaliuTest, StaysOnTopWhenEnteredAndWhenLeft) {
    CursValutarDetaliu& entry = OpenToAdd();
    EXPECT_EQ(desktop.CallsOf(entry).keptOnTop, 1);
    desktop.ActivateByUser(nullptr);
    EXPECT_EQ(desktop.CallsOf(entry).keptOnTop, 2);
}

}  // namespace
}  // namespace tavrin::tests
