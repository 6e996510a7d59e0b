// The address book on the demo data: opened from the palette, walked, searched and changed by real input.
// What it did is read back from the database.

#include <windows.h>

#include "e2e/driver/accessible_reader.h"
#include "e2e/driver/clipboard.h"
#include "e2e/driver/screen.h"
#include "e2e/driver/shown_message.h"
#include "e2e/host_test.h"
#include "host/embedded/demo_data.h"

namespace tavrin::e2e {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Rows = std::vector<std::vector<std::string>>;

enum Action { Accept, Cancel, Add, Modify, Delete };

class AgendaTest : public HostTest {
  protected:
    explicit AgendaTest(LoopKind loop = LoopKind::Plain) : HostTest(loop) {}

    void Open() {
        Click(OpenPalette().Control("cmdAction(1)"));
        window = AwaitForm("Agenda");
        Require("the address book's focus", [&] { return window.HasFocus(); });
        host->Ui().Settle();
    }

    /// Leaves only these persons in the book.
    void KeepOnly(const Rows& names) {
        host->Run("DELETE FROM Agenda");
        for (const auto& name : names) {
            host->Run("INSERT INTO Agenda VALUES ('" + name[0] + "', '" + name[1] +
                      "', 'Str. Lunga 1', '', '', '', '', '', '', '', '', '', '', '', '', '')");
        }
    }

    Window Button(int action) const { return window.Control("cmdAction(" + std::to_string(action) + ")"); }
    Window Box(int box) const { return window.Control("TextBoxes(" + std::to_string(box) + ")"); }
    std::string Text(int box) { return ReadAccessible(host->Ui(), Box(box)).value; }
    std::string ShownName() { return Text(2) + " " + Text(3); }
    Window Grid() const { return window.Control("Grid"); }
    TableTexts Shown() { return ReadTable(host->Ui(), Grid()); }

    /// What the list is to show for a condition on the names.
    TableTexts Stored(const std::string& condition) {
        TableTexts table = {{"Nume", "Prenume"}};
        std::ranges::copy(
            host->Rows("SELECT Nume, Prenume FROM Agenda WHERE " + condition + " ORDER BY Nume, Prenume"),
            std::back_inserter(table));
        return table;
    }

    void ClickRow(int row) {
        const auto parts = ReadParts(host->Ui(), Grid());
        const RECT& cell = parts[static_cast<std::size_t>(row) * 2].place;
        ClickAt({(cell.left + cell.right) / 2, (cell.top + cell.bottom) / 2});
        ASSERT_TRUE(AwaitFocus("Grid"));
        host->Ui().Settle();
    }

    /// Each time a little further to the right: two quick clicks at one place would be a double click.
    void ClickBox(int box) {
        constexpr int Apart = 9;
        const RECT place = Box(box).ScreenBounds();
        ClickAt({place.left + Apart * (1 + clicks_++ % Apart), (place.top + place.bottom) / 2});
        ASSERT_TRUE(AwaitFocus("TextBoxes(" + std::to_string(box) + ")"));
    }

    void TypeInto(int box, const std::string& text) {
        ClickBox(box);
        TypeText(text);
        host->Ui().Settle();
    }

    void PasteInto(int box, const std::string& text) {
        ClickBox(box);
        host->Call([&] { PutOnClipboard(text); });
        PressKey('V', {VK_CONTROL});
        host->Ui().Settle();
    }

    void Search(const std::string& nume) {
        ClickBox(0);
        PressKey('A', {VK_CONTROL});
        PressKey(VK_DELETE);
        TypeText(nume);
        PressKey(VK_RETURN);
        host->Ui().Settle();
    }

    std::vector<std::string> ButtonsInSight() {
        std::vector<std::string> captions;
        for (const int action : {Add, Modify, Delete, Accept, Cancel}) {
            if (Button(action).IsVisible())
                captions.push_back(ReadAccessible(host->Ui(), Button(action)).name);
        }
        return captions;
    }

    Window window;

  private:
    int clicks_ = 0;
};

// The list.

TEST_F(AgendaTest, OpensOnTheFirstOfThreeHundredPersons) {
    Open();
    EXPECT_EQ(window.Text(), "Agenda");
    EXPECT_TRUE(window.IsTopmost());
    EXPECT_TRUE(AwaitFocus("Grid"));
    const TableTexts shown = Shown();
    EXPECT_EQ(shown.size(), 301U);
    EXPECT_EQ(shown, Stored("1 = 1"));
    EXPECT_EQ(ShownName(), shown[1][0] + " " + shown[1][1]);
    EXPECT_THAT(ButtonsInSight(), ElementsAre("Adauga", "Modifica", "Sterge", "Renunta"));
}

TEST_F(AgendaTest, OpensByKeyboardFromThePalette) {
    OpenPalette();
    PressKey(VK_UP);
    ASSERT_TRUE(AwaitFocus("cmdAction(1)"));
    PressKey(VK_RETURN);
    AwaitForm("Agenda");
    EXPECT_TRUE(AwaitFocus("Grid"));
}

TEST_F(AgendaTest, IsBrowsedByMouseAndKeys) {
    Open();
    const TableTexts shown = Shown();
    ClickRow(3);
    EXPECT_EQ(ShownName(), shown[3][0] + " " + shown[3][1]);
    EXPECT_THAT(ButtonsInSight(), ElementsAre("Adauga", "Modifica", "Sterge", "Iesire"));
    // The details follow one key behind the cursor; Enter brings them up to it.
    PressKey(VK_DOWN);
    host->Ui().Settle();
    EXPECT_EQ(ShownName(), shown[3][0] + " " + shown[3][1]);
    PressKey(VK_RETURN);
    host->Ui().Settle();
    EXPECT_EQ(ShownName(), shown[4][0] + " " + shown[4][1]);
    PressKey(VK_PRIOR);
    host->Ui().Settle();
    PressKey(VK_UP);
    EXPECT_TRUE(AwaitFocus("TextBoxes(1)"));
    EXPECT_EQ(ShownName(), shown[1][0] + " " + shown[1][1]);
}

TEST_F(AgendaTest, SlashesSearch) {
    Open();
    Search("Pop/");
    ASSERT_TRUE(AwaitFocus("Grid"));
    TableTexts expected = Stored("Nume LIKE 'Pop%'");
    ASSERT_GT(expected.size(), 1U);
    EXPECT_EQ(Shown(), expected);
    EXPECT_EQ(ShownName(), expected[1][0] + " " + expected[1][1]);
    Search("/escu");
    expected = Stored("Nume LIKE '%escu'");
    EXPECT_EQ(Shown(), expected);
    Search(" ");
    EXPECT_EQ(Shown().size(), 301U);
}

TEST_F(AgendaTest, ASearchForNobodyLeavesTheDetailsAloneReadyForSomebody) {
    Open();
    const int width = window.Width();
    Search("Zz/");
    ASSERT_TRUE(AwaitFocus("TextBoxes(2)"));
    EXPECT_LT(window.Width(), width);
    EXPECT_THAT(ButtonsInSight(), ElementsAre("Accepta", "Renunta"));
    TypeText("Zzaharia");
    PressKey(VK_RETURN);
    ASSERT_TRUE(AwaitFocus("TextBoxes(3)"));
    TypeText("Ion");
    PressKey('C', {VK_MENU});
    ASSERT_TRUE(AwaitFocus("Grid"));
    host->Ui().Settle();
    EXPECT_EQ(Shown(), (TableTexts{{"Nume", "Prenume"}, {"Zzaharia", "Ion"}}));
    EXPECT_GT(window.Width(), width * 9 / 10);
}

// Editing.

TEST_F(AgendaTest, APersonIsAddedByKeyboardAlone) {
    Open();
    PressKey('A', {VK_MENU});
    ASSERT_TRUE(AwaitFocus("TextBoxes(2)"));
    TypeText("Marinica");
    PressKey(VK_RETURN);
    TypeText("Eva");
    PressKey(VK_RETURN);
    ASSERT_TRUE(AwaitFocus("TextBoxes(4)"));
    TypeText("Bd Unirii 5/7");
    for (int box = 4; box <= 17; ++box)
        PressKey(VK_RETURN);
    ASSERT_TRUE(AwaitFocus("cmdAction(0)"));
    PressKey(VK_UP);
    ASSERT_TRUE(AwaitFocus("TextBoxes(17)"));
    PressKey(VK_DOWN);
    ASSERT_TRUE(AwaitFocus("cmdAction(0)"));
    PressKey(VK_RETURN);
    ASSERT_TRUE(AwaitFocus("Grid"));
    EXPECT_EQ(ShownName(), "Marinica Eva");
    EXPECT_EQ(host->Rows("SELECT AdresaHome, Functie FROM Agenda WHERE Nume = 'Marinica'"),
              (Rows{{"Bd Unirii 5/7", ""}}));
    EXPECT_EQ(Shown().size(), 302U);
    EXPECT_EQ(ReadAccessible(host->Ui(), Grid()).value, "Marinica") << "the new row is the current one";
}

TEST_F(AgendaTest, NamesAreRequired) {
    Open();
    Click(Button(Add));
    ASSERT_TRUE(AwaitFocus("TextBoxes(2)"));
    Click(Button(Accept));
    ExpectMessage("Numele este obligatoriu !", MessageIcon::Error, "Agenda", {IDOK}, IDOK);
    ASSERT_TRUE(AwaitFocus("TextBoxes(2)"));
    TypeText("Marinica");
    PressKey('C', {VK_MENU});
    ExpectMessage("Prenumele este obligatoriu !", MessageIcon::Error, "Agenda", {IDOK}, IDOK);
    EXPECT_TRUE(AwaitFocus("TextBoxes(3)"));
    PressKey(VK_ESCAPE);
    ASSERT_TRUE(AwaitFocus("Grid"));
    EXPECT_EQ(Shown().size(), 301U);
}

TEST_F(AgendaTest, APersonIsModifiedAndAChangeIsGivenUp) {
    Open();
    ClickRow(2);
    const std::vector<std::string> name = {Text(2), Text(3)};
    Click(Button(Modify));
    ASSERT_TRUE(AwaitFocus("TextBoxes(4)"));
    EXPECT_FALSE(Grid().IsEnabled());
    TypeText("Strada Noua 9");
    TypeInto(2, "Altul");
    Click(Button(Accept));
    ASSERT_TRUE(AwaitFocus("Grid"));
    EXPECT_EQ(ShownName(), name[0] + " " + name[1]);
    EXPECT_EQ(Text(4), "Strada Noua 9");
    EXPECT_EQ(host->Rows("SELECT Nume, Prenume FROM Agenda WHERE AdresaHome = 'Strada Noua 9'"),
              (Rows{{name[0], name[1]}}));
    PressKey('M', {VK_MENU});
    ASSERT_TRUE(AwaitFocus("TextBoxes(4)"));
    TypeText("Alta strada");
    PressKey('R', {VK_MENU});
    ASSERT_TRUE(AwaitFocus("Grid"));
    EXPECT_EQ(Text(4), "Strada Noua 9");
    EXPECT_FALSE(ShownMessage::Find());
}

TEST_F(AgendaTest, APersonIsDeletedAfterYes) {
    Open();
    const TableTexts before = Shown();
    ClickRow(2);
    const std::string question = "Doriti sa stergeti din agenda persoana " + ShownName() + " ?";
    Click(Button(Delete));
    ExpectMessage(question, MessageIcon::Question, "Agenda", {IDYES, IDNO}, IDNO);
    ASSERT_TRUE(AwaitFocus("Grid"));
    EXPECT_EQ(Shown(), before);
    PressKey('S', {VK_MENU});
    ExpectMessage(question, MessageIcon::Question, "Agenda", {IDYES, IDNO}, IDYES);
    host->Ui().Settle();
    TableTexts expected = before;
    expected.erase(expected.begin() + 2);
    EXPECT_EQ(Shown(), expected);
    EXPECT_EQ(Stored("1 = 1"), expected);
    EXPECT_EQ(ShownName(), before[1][0] + " " + before[1][1]);
}

TEST_F(AgendaTest, DeletingTheLastPersonLeavesAnEmptyBookThatClosesWithoutAQuestion) {
    KeepOnly({{"Popa", "Ion"}});
    Open();
    const int width = window.Width();
    Click(Button(Delete));
    ExpectMessage("Doriti sa stergeti din agenda persoana Popa Ion ?", MessageIcon::Question, "Agenda",
                  {IDYES, IDNO}, IDYES);
    ASSERT_TRUE(AwaitFocus("TextBoxes(2)"));
    EXPECT_LT(window.Width(), width);
    EXPECT_EQ(Text(2), "");
    TypeText("Nimeni");
    Click(Button(Cancel));
    EXPECT_TRUE(AwaitClosed("Agenda"));
    EXPECT_FALSE(ShownMessage::Find());
    EXPECT_THAT(host->Rows("SELECT Nume FROM Agenda"), IsEmpty());
}

TEST_F(AgendaTest, AnEmptyBookTakesItsFirstPerson) {
    KeepOnly({});
    Open();
    ASSERT_TRUE(AwaitFocus("TextBoxes(2)"));
    EXPECT_FALSE(Button(Add).IsVisible());
    TypeText("Popa");
    TypeInto(3, "Ion");
    Click(Button(Accept));
    ASSERT_TRUE(AwaitFocus("Grid"));
    EXPECT_EQ(ShownName(), "Popa Ion");
    EXPECT_THAT(ButtonsInSight(), ElementsAre("Adauga", "Modifica", "Sterge", "Iesire"));
    ClickRow(1);
}

// Characters.

TEST_F(AgendaTest, TheEightCharactersAreRefusedFromTheKeyboard) {
    Open();
    Click(Button(Add));
    ASSERT_TRUE(AwaitFocus("TextBoxes(2)"));
    TypeText("A';%,\"][`b/");
    host->Ui().Settle();
    EXPECT_EQ(Text(2), "Ab/");
    PressKey(VK_ESCAPE);
    ASSERT_TRUE(AwaitFocus("Grid"));
    TypeInto(0, "A';%,\"][`b/");
    EXPECT_EQ(Text(0), "Ab/");
}

TEST_F(AgendaTest, APastedApostropheIsReportedAndTheEditGoesOn) {
    KeepOnly({{"Popa", "Ion"}});
    Open();
    Click(Button(Add));
    ASSERT_TRUE(AwaitFocus("TextBoxes(2)"));
    TypeText("Marinica");
    PasteInto(3, "D'Arc;%,\"][`");
    EXPECT_EQ(Text(3), "D'Arc;%,\"][`");
    Click(Button(Accept));
    const ShownMessage report = ShownMessage::Await();
    EXPECT_EQ(report.Title(), "Eroare");
    EXPECT_THAT(report.Prompt(), testing::HasSubstr("80040E14"));
    report.Press(IDOK);
    host->Ui().Settle();
    EXPECT_EQ(ShownName(), "Marinica D'Arc;%,\"][`");
    EXPECT_THAT(ButtonsInSight(), ElementsAre("Accepta", "Renunta"));
    EXPECT_EQ(host->Rows("SELECT Nume FROM Agenda"), (Rows{{"Popa"}}));
}

TEST_F(AgendaTest, ADuplicatePairIsReportedAndTheEditGoesOn) {
    KeepOnly({{"Popa", "Ion"}});
    Open();
    Click(Button(Add));
    ASSERT_TRUE(AwaitFocus("TextBoxes(2)"));
    TypeText("Popa");
    TypeInto(3, "Ion");
    Click(Button(Accept));
    const ShownMessage report = ShownMessage::Await();
    EXPECT_EQ(report.Title(), "Eroare");
    report.Press(IDOK);
    host->Ui().Settle();
    EXPECT_THAT(ButtonsInSight(), ElementsAre("Accepta", "Renunta"));
    PressKey(VK_ESCAPE);
    ASSERT_TRUE(AwaitFocus("Grid"));
    EXPECT_EQ(ShownName(), "Popa Ion");
}

TEST_F(AgendaTest, TextOfAnyScriptReachesTheDatabaseAndComesBack) {
    KeepOnly({{"Popa", "Ion"}});
    host->SetCodePage(host::CodePage::Utf8);
    Open();
    // Romanian letters with comma and with cedilla, Greek, an emoji.
    for (const std::string text : {"\u0218tef\u0103ni\u021B\u0103", "\u015Eerban \u0163ara",
                                   "\u0391\u03B8\u03AE\u03BD\u03B1", "\U0001F600 vesel"}) {
        Click(Button(Add));
        ASSERT_TRUE(AwaitFocus("TextBoxes(2)"));
        PasteInto(2, text);
        TypeInto(3, "Ana");
        PasteInto(5, text);
        Click(Button(Accept));
        ASSERT_TRUE(AwaitFocus("Grid"));
        EXPECT_EQ(host->Rows("SELECT Nume, Prenume, OrasHome FROM Agenda WHERE Nume = '" + text + "'"),
                  (Rows{{text, "Ana", text}}));
        EXPECT_EQ(ShownName(), text + " Ana");
        EXPECT_EQ(ReadAccessible(host->Ui(), Grid()).value, text);
    }
}

TEST_F(AgendaTest, RomanianLettersAreTyped) {
    Open();
    Click(Button(Add));
    ASSERT_TRUE(AwaitFocus("TextBoxes(2)"));
    TypeUnicode(L"\u0218tef\u0103ni\u021B\u0103");
    host->Ui().Settle();
    EXPECT_EQ(Text(2), "\u0218tef\u0103ni\u021B\u0103");
}

// Leaving.

TEST_F(AgendaTest, TheLastButtonAsksBeforeItCloses) {
    Open();
    Click(Button(Cancel));
    ExpectMessage("Doriti sa parasiti forma?", MessageIcon::Question, "Iesire", {IDYES, IDNO}, IDNO);
    host->Ui().Settle();
    ASSERT_TRUE(window.Exists());
    ClickRow(1);
    PressKey('I', {VK_MENU});
    ExpectMessage("Doriti sa parasiti forma?", MessageIcon::Question, "Iesire", {IDYES, IDNO}, IDNO);
    host->Ui().Settle();
    PressKey(VK_ESCAPE);
    ExpectMessage("Doriti sa parasiti forma?", MessageIcon::Question, "Iesire", {IDYES, IDNO}, IDYES);
    EXPECT_TRUE(AwaitClosed("Agenda"));
    EXPECT_EQ(host->Iesire(), 0);
}

TEST_F(AgendaTest, ClosingThePaletteClosesItToo) {
    Open();
    Click(AwaitForm("Utilitati").Control("imgClose"));
    EXPECT_TRUE(AwaitClosed("Agenda"));
    EXPECT_TRUE(AwaitClosed("Utilitati"));  // the last to go, once the host has been told
    EXPECT_FALSE(ShownMessage::Find());
    EXPECT_EQ(host->Iesire(), 1);
}

TEST_F(AgendaTest, StaysOnTopWithoutTakingTheFocusBack) {
    Open();
    ActivateHostWindow();
    host->Ui().Settle();
    EXPECT_TRUE(window.IsTopmost());
    EXPECT_FALSE(window.HasFocus());
}

// The same keys in a loop that knows dialogs.

// Looks.

TEST_F(AgendaTest, DetailsAreGreenOnBlackWhetherTheyAreBrowsedOrEdited) {
    constexpr COLORREF Green = RGB(0, 255, 0);
    constexpr COLORREF Grey = RGB(0x9A, 0x9A, 0x9A);
    KeepOnly({{"Albu", "Dan"}});
    Open();
    // Clicks end the edit and begin it: both ways of coming to a state.
    for (const int action : {Modify, Cancel, Modify}) {
        const bool browsed = action == Modify;
        for (const int box : {2, 3, 4}) {
            EXPECT_EQ(Box(box).IsEnabled(), !browsed);
            EXPECT_TRUE(WaitUntil([&] { return ShowsColor(Box(box), Green); })) << box << browsed;
            EXPECT_FALSE(ShowsColor(Box(box), Grey)) << box << browsed;
            EXPECT_FALSE(ShowsColor(Box(box), GetSysColor(COLOR_GRAYTEXT))) << box << browsed;
        }
        Click(Button(action));
        host->Ui().Settle();
    }
}

// The host's connections.

class AgendaConnectionTest : public AgendaTest {
  protected:
    void TearDown() override {
        CloseEverything();
        host->Call([this] { second.Reset(); });
        AgendaTest::TearDown();
    }

    /// A database in which nobody but Vlad Dan is kept.
    void HostTurnsToAnother() {
        host->Call([this] {
            const auto database = host::OpenDemoDatabase(":memory:");
            database->Run("DELETE FROM Agenda");
            database->Run(
                "INSERT INTO Agenda VALUES ('Vlad', 'Dan', 'Str. Noua 2', '', '', '', '', '', '', '', "
                "'', '', '', '', '', '')");
            second = win32::MakeObject<host::ConnectionObject>(database);
        });
        ASSERT_EQ(host->ApelWith(second.Get()), S_OK);
        host->Ui().Settle();
    }

    win32::ComPtr<host::ConnectionObject> second;
};

TEST_F(AgendaConnectionTest, TheListIsOpenedAnewOnTheConnectionOfTheMoment) {
    Open();
    const long alive = host->Call([] { return host::LiveObjects::Get().recordsets.Alive(); });
    HostTurnsToAnother();
    Search("/");
    const TableTexts expected = {{"Nume", "Prenume"}, {"Vlad", "Dan"}};
    EXPECT_EQ(Shown(), expected);
    EXPECT_EQ(ShownName(), "Vlad Dan");
    EXPECT_EQ(host->Call([] { return host::LiveObjects::Get().recordsets.Alive(); }), alive)
        << "one recordset for a window";
    EXPECT_TRUE(WaitUntil([&] { return host->ReferencesToConnection() == 0; })) << "the first is let go";
}

TEST_F(AgendaConnectionTest, NobodyIsDeletedWhoWasShownFromAnotherConnection) {
    Open();
    const std::size_t before = host->Rows("SELECT Nume FROM Agenda").size();
    HostTurnsToAnother();
    Click(Button(Delete));
    host->Ui().Settle();
    EXPECT_FALSE(ShownMessage::Find());
    EXPECT_EQ(ShownName(), "Vlad Dan");
    EXPECT_EQ(host->Rows("SELECT Nume FROM Agenda").size(), before);
}

TEST_F(AgendaConnectionTest, TheSameConnectionAgainIsNoOther) {
    KeepOnly({{"Albu", "Dan"}, {"Popa", "Ion"}});
    Open();
    ASSERT_EQ(host->Apel(), S_OK);
    host->Ui().Settle();
    Click(Button(Delete));
    ExpectMessage("Doriti sa stergeti din agenda persoana Albu Dan ?", MessageIcon::Question, "Agenda",
                  {IDYES, IDNO}, IDYES);
    host->Ui().Settle();
    EXPECT_EQ(ShownName(), "Popa Ion");
}

TEST_F(AgendaConnectionTest, OpenedWithoutAConnectionItIsWholeAfterAGoodCall) {
    ASSERT_EQ(host->ApelWith(nullptr), S_OK);
    Click(AwaitForm("Utilitati").Control("cmdAction(1)"));
    const ShownMessage report = ShownMessage::Await();
    EXPECT_THAT(report.Prompt(), testing::StartsWith("Eroare 91"));
    report.Press(IDOK);
    window = AwaitForm("Agenda");
    HostTurnsToAnother();
    Search("/");
    EXPECT_EQ(ShownName(), "Vlad Dan");
}

class AgendaInDialogLoopTest : public AgendaTest {
  protected:
    AgendaInDialogLoopTest() : AgendaTest(LoopKind::Dialog) {}
};

TEST_F(AgendaInDialogLoopTest, AcceleratorsArrowsEnterAndEscapeWork) {
    Open();
    PressKey('A', {VK_MENU});
    ASSERT_TRUE(AwaitFocus("TextBoxes(2)"));
    TypeText("Marinica");
    PressKey(VK_DOWN);
    ASSERT_TRUE(AwaitFocus("TextBoxes(3)"));
    TypeText("Eva");
    PressKey(VK_RETURN);
    ASSERT_TRUE(AwaitFocus("TextBoxes(4)"));
    PressKey(VK_UP);
    ASSERT_TRUE(AwaitFocus("TextBoxes(3)"));
    PressKey(VK_TAB);
    ASSERT_TRUE(AwaitFocus("TextBoxes(4)"));
    PressKey('C', {VK_MENU});
    ASSERT_TRUE(AwaitFocus("Grid"));
    EXPECT_EQ(ShownName(), "Marinica Eva");
    PressKey(VK_ESCAPE);
    ExpectMessage("Doriti sa parasiti forma?", MessageIcon::Question, "Iesire", {IDYES, IDNO}, IDYES);
    EXPECT_TRUE(AwaitClosed("Agenda"));
}

}  // namespace
}  // namespace tavrin::e2e
