// Walking through the list of persons, searching it, and leaving.

#include "windows/agenda_fixture.h"

namespace tavrin::tests {
namespace {

namespace key = forms::key;
using addressbook::Agenda;
using addressbook::ListStatement;
using testing::ElementsAre;
using testing::IsEmpty;

class AgendaBrowseTest : public AgendaTest {};

// The list.

TEST_F(AgendaBrowseTest, OpeningRunsOneStatementAndReadsItsRowsAtOnce) {
    KeepThree();
    application.Default<Agenda>().ShowForm();
    EXPECT_THAT(
        connection->Log(),
        ElementsAre("Open: SELECT AGENDA.Nume, AGENDA.Prenume, AGENDA.AdresaHome, AGENDA.OrasHome, "
                    "AGENDA.JudetHome, AGENDA.TelefonAcasa, AGENDA.TelefonMobil, AGENDA.Email, "
                    "AGENDA.DescriereFirma, AGENDA.AdresaFirma, AGENDA.OrasFirma, AGENDA.JudetFirma, "
                    "AGENDA.Telefon, AGENDA.Fax, AGENDA.Departament, AGENDA.Functie FROM AGENDA  WHERE NUME "
                    "LIKE '%' AND        PRENUME LIKE '%' ORDER BY AGENDA.Nume, AGENDA.Prenume",
                    "ReadAll: " + ListStatement("%", "%")));
    EXPECT_THAT(desktop.reports, IsEmpty());
}

TEST_F(AgendaBrowseTest, TheListShowsTheTwoNamesAndHidesTheRest) {
    const Agenda& window = OpenOnThree();
    const forms::Grid& grid = window.Grid;
    ASSERT_EQ(grid.Rows(), 4);
    ASSERT_EQ(grid.Columns(), 16);
    EXPECT_EQ(grid.TextMatrix(0, 0), "Nume");
    EXPECT_EQ(grid.TextMatrix(0, 1), "Prenume");
    EXPECT_EQ(grid.TextMatrix(2, 0), "Enescu");
    EXPECT_EQ(grid.TextMatrix(3, 1), "Ion");
    EXPECT_EQ(grid.TextMatrix(3, 15), "Popa 17");
    for (int column = 0; column < 16; ++column) {
        EXPECT_EQ(grid.ColumnWidth(column), column < 2 ? 1500 : 0) << column;
        EXPECT_EQ(grid.ColumnAlignment(column), forms::Align::Left) << column;
    }
}

TEST_F(AgendaBrowseTest, OpensOnTheFirstPersonWithTheWholeRowMarked) {
    const Agenda& window = OpenOnThree();
    const addressbook::Person albu = MakePerson("Albu", "Dan");
    EXPECT_THAT(DataBoxTexts(window), testing::ElementsAreArray(albu));
    ExpectWholeRowSelected(window, 1);
}

TEST_F(AgendaBrowseTest, AClickShowsThePersonAndTurnsTheLastButtonIntoIesire) {
    Agenda& window = OpenOnThree();
    const forms::Rect cell = window.Grid.CellBounds(3, 0);
    ClickWithMouse(window.Grid, {cell.left + 10, cell.top + 10});
    EXPECT_THAT(DataBoxTexts(window), testing::ElementsAreArray(MakePerson("Popa", "Ion")));
    ExpectBrowsing(window);
}

TEST_F(AgendaBrowseTest, EnterShowsTheCurrentRow) {
    Agenda& window = OpenOnThree();
    window.Grid.SetRow(2);
    keyboard.Press(key::Enter);
    EXPECT_EQ(ShownName(window), "Enescu Ana");
    ExpectBrowsing(window);
}

TEST_F(AgendaBrowseTest, TheDetailsShowTheRowThatWasCurrentWhenTheKeyWentDown) {
    Agenda& window = OpenOnThree();
    keyboard.Press(key::Down);
    EXPECT_EQ(window.Grid.Row(), 2);
    EXPECT_EQ(ShownName(window), "Albu Dan");
    keyboard.Press(key::Down);
    EXPECT_EQ(window.Grid.Row(), 3);
    EXPECT_EQ(ShownName(window), "Enescu Ana");
    keyboard.Press(key::Up);
    EXPECT_EQ(window.Grid.Row(), 2);
    EXPECT_EQ(ShownName(window), "Popa Ion");
}

TEST_F(AgendaBrowseTest, PageKeysReadTheRowAndEndTheDesignedState) {
    for (const int keyCode : {key::PageDown, key::PageUp}) {
        Agenda& window = application.Loaded<Agenda>() != nullptr ? Open() : OpenOnThree();
        window.Grid.SetRow(2);
        keyboard.Press(keyCode);
        EXPECT_EQ(ShownName(window), "Enescu Ana") << keyCode;
        ExpectBrowsing(window);
        window.Unload();
        others.Execute("DELETE FROM Agenda");
    }
}

TEST_F(AgendaBrowseTest, OtherKeysOnTheListDoNothing) {
    Agenda& window = OpenOnThree();
    window.Grid.SetRow(2);
    for (const int keyCode :
         {key::Home, key::End, key::Left, key::Right, key::Space, key::Delete, static_cast<int>('P')})
        keyboard.Press(keyCode);
    EXPECT_EQ(ShownName(window), "Albu Dan");
    EXPECT_EQ(window.cmdAction[Agenda::Cancel].Caption(), "Renunta");
}

TEST_F(AgendaBrowseTest, UpOnTheFirstRowGoesToTheSearchByGivenName) {
    Agenda& window = OpenOnThree();
    keyboard.Press(key::Up);
    EXPECT_EQ(FocusedControl(), "TextBoxes(1)");
    EXPECT_EQ(window.Grid.Row(), 1);
    ExpectBrowsing(window);
}

TEST_F(AgendaBrowseTest, UpOnALowerRowStaysInTheList) {
    Agenda& window = OpenOnThree();
    window.Grid.SetRow(2);
    keyboard.Press(key::Up);
    EXPECT_EQ(FocusedControl(), "Grid");
    EXPECT_EQ(window.Grid.Row(), 1);
}

TEST_F(AgendaBrowseTest, ALongListIsReadWhereItLies) {
    KeepThree();
    const auto& window = Open();
    const data::TablePtr table = window.Grid.DataSource();
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->RowCount(), 3U);
    EXPECT_EQ(table->FieldCount(), 16U);
}

// The search.

TEST_F(AgendaBrowseTest, EnterInEitherSearchBoxSearches) {
    for (const int box : {0, 1}) {
        Agenda& window = box == 0 ? OpenOnThree() : Open();
        window.TextBoxes[1 - box].SetText("");
        window.TextBoxes[box].SetText(box == 0 ? "Popa" : "Ana");
        window.TextBoxes[box].SetFocus();
        keyboard.Press(key::Enter);
        const std::string statement = box == 0 ? ListStatement("Popa", "%") : ListStatement("%", "Ana");
        EXPECT_EQ(connection->Log().back(), "ReadAll: " + statement);
        EXPECT_EQ(ShownName(window), box == 0 ? "Popa Ion" : "Enescu Ana");
        EXPECT_EQ(FocusedControl(), "Grid");
        ExpectWholeRowSelected(window, 1);
    }
}

TEST_F(AgendaBrowseTest, SearchingClosesTheListAndOpensIt) {
    Agenda& window = OpenOnThree();
    Search(window, "/e/");
    const std::string everybody = ListStatement("%", "%");
    const std::string found = ListStatement("%e%", "%");
    EXPECT_THAT(connection->Log(), ElementsAre("Close: " + everybody, "Open: " + found, "ReadAll: " + found));
    EXPECT_EQ(window.Grid.Rows(), 2);
    EXPECT_EQ(ShownName(window), "Enescu Ana");
    EXPECT_EQ(window.TextBoxes[0].Text(), "/e/");
}

TEST_F(AgendaBrowseTest, SlashesAreWildcardsAtEitherEnd) {
    KeepThree();
    Keep("Popescu", "Ana");
    Agenda& window = Open();
    Search(window, "Pop/");
    EXPECT_EQ(window.Grid.Rows(), 3);
    Search(window, "/escu");
    EXPECT_EQ(window.Grid.Rows(), 3);
    EXPECT_EQ(ShownName(window), "Enescu Ana");
    Search(window, "/escu", "An/");
    EXPECT_EQ(window.Grid.Rows(), 3);
    Search(window, "/");
    EXPECT_EQ(window.Grid.Rows(), 5);
}

TEST_F(AgendaBrowseTest, ABlankSearchListsEverybodyAndALeadingBlankCounts) {
    Agenda& window = OpenOnThree();
    Search(window, "   ", "  ");
    EXPECT_EQ(connection->Log().back(), "ReadAll: " + ListStatement("%", "%"));
    EXPECT_EQ(window.Grid.Rows(), 4);
    Search(window, " Popa");
    EXPECT_THAT(connection->Statements(), testing::Contains(ListStatement(" Popa", "%")));
}

TEST_F(AgendaBrowseTest, ASearchChangesNeitherModeNorTheDesignedCaption) {
    Agenda& window = OpenOnThree();
    Search(window, "Popa");
    EXPECT_EQ(window.Mode, addressbook::EditMode::Browse);
    EXPECT_EQ(window.cmdAction[Agenda::Cancel].Caption(), "Renunta");
}

TEST_F(AgendaBrowseTest, AnotherUsersPersonAppearsWithTheNextSearch) {
    Agenda& window = OpenOnThree();
    Keep("Aaron", "Ilie");
    keyboard.Press(key::Enter);
    EXPECT_EQ(ShownName(window), "Albu Dan");
    EXPECT_EQ(window.Grid.Rows(), 4);
    Search(window, "");
    EXPECT_EQ(ShownName(window), "Aaron Ilie");
    EXPECT_EQ(window.Grid.Rows(), 5);
}

// Focus.

TEST_F(AgendaBrowseTest, AFocusedBoxIsGreyWithItsTextSelected) {
    Agenda& window = OpenOnThree();
    window.TextBoxes[0].SetText("Popa");
    window.TextBoxes[0].Select(2, 0);
    window.TextBoxes[0].SetFocus();
    EXPECT_EQ(window.TextBoxes[0].BackColor(), 0x404040U);
    EXPECT_EQ(window.TextBoxes[0].SelStart(), 0);
    EXPECT_EQ(window.TextBoxes[0].SelLength(), 4);
    window.TextBoxes[1].SetFocus();
    EXPECT_EQ(window.TextBoxes[0].BackColor(), 0x000000U);
    EXPECT_EQ(window.TextBoxes[1].BackColor(), 0x404040U);
}

TEST_F(AgendaBrowseTest, UpOnAButtonGoesToTheSearchByFamilyName) {
    Agenda& window = OpenOnThree();
    for (const int action : {1, 2, 3, 4}) {
        window.cmdAction[action].SetFocus();
        keyboard.Press(key::Up);
        EXPECT_EQ(FocusedControl(), "TextBoxes(0)") << action;
    }
}

TEST_F(AgendaBrowseTest, ArrowsInTheSearchBoxesStayThere) {
    Agenda& window = OpenOnThree();
    for (const int box : {0, 1}) {
        window.TextBoxes[box].SetFocus();
        keyboard.Press(key::Up);
        keyboard.Press(key::Down);
        EXPECT_EQ(FocusedControl(), window.TextBoxes[box].QualifiedName());
    }
}

// Leaving.

TEST_F(AgendaBrowseTest, RenuntaAsOpenedAsksAndNoStays) {
    Agenda& window = OpenOnThree();
    ClickWithMouse(window.cmdAction[Agenda::Cancel]);
    EXPECT_THAT(messages.shown, ElementsAre(ShownMessage{"Doriti sa parasiti forma?", 32, 4, "Iesire"}));
    EXPECT_TRUE(window.IsLoaded());
    EXPECT_EQ(window.Mode, addressbook::EditMode::Browse);
}

TEST_F(AgendaBrowseTest, IesireAsksAndYesCloses) {
    Agenda& window = OpenOnThree();
    keyboard.Press(key::Enter);
    messages.answers = {6};
    ClickWithMouse(window.cmdAction[Agenda::Cancel]);
    EXPECT_THAT(messages.shown, ElementsAre(ShownMessage{"Doriti sa parasiti forma?", 32, 4, "Iesire"}));
    EXPECT_EQ(application.Loaded<Agenda>(), nullptr);
    EXPECT_EQ(caller->raised, 0);
}

TEST_F(AgendaBrowseTest, EscapeIsTheLastButton) {
    Agenda& window = OpenOnThree();
    for (forms::Control* control :
         std::initializer_list<forms::Control*>{&window.Grid, &window.TextBoxes[0], &window.cmdAction[2]}) {
        control->SetFocus();
        keyboard.Press(key::Escape);
    }
    EXPECT_EQ(messages.shown.size(), 3U);
    messages.answers = {6};
    keyboard.Press(key::Escape);
    EXPECT_EQ(application.Loaded<Agenda>(), nullptr);
}

TEST_F(AgendaBrowseTest, AltAndTheLetterPressTheButtons) {
    Agenda& window = OpenOnThree();
    keyboard.Accelerator(U'i');
    EXPECT_THAT(messages.shown, IsEmpty()) << "the button still reads Renunta";
    keyboard.Accelerator(U'r');
    EXPECT_EQ(messages.shown.size(), 1U);
    window.Grid.SetFocus();
    keyboard.Press(key::Enter);
    keyboard.Accelerator(U'r');
    EXPECT_EQ(messages.shown.size(), 1U) << "the button reads Iesire now";
    keyboard.Accelerator(U'I');
    EXPECT_EQ(messages.shown.size(), 2U);
    keyboard.Accelerator(U's');
    EXPECT_EQ(messages.shown.back().prompt, "Doriti sa stergeti din agenda persoana Albu Dan ?");
    keyboard.Accelerator(U'c');
    EXPECT_EQ(window.Mode, addressbook::EditMode::Browse) << "Accepta is out of sight";
    keyboard.Accelerator(U'm');
    EXPECT_EQ(window.Mode, addressbook::EditMode::Modify);
    keyboard.Accelerator(U'r');
    keyboard.Accelerator(U'a');
    EXPECT_EQ(window.Mode, addressbook::EditMode::Add);
    keyboard.Accelerator(U'm');
    EXPECT_EQ(window.Mode, addressbook::EditMode::Add) << "Modifica is out of sight";
}

TEST_F(AgendaBrowseTest, ClosingLetsGoOfTheList) {
    Agenda& window = OpenOnThree();
    const std::weak_ptr<const data::Table> table = window.Grid.DataSource();
    window.Unload();
    EXPECT_TRUE(table.expired());
}

}  // namespace
}  // namespace tavrin::tests
