// Adding, modifying and deleting persons.

#include "forms/controls/look.h"
#include "windows/agenda_fixture.h"

namespace tavrin::tests {
namespace {

namespace key = forms::key;
using addressbook::Agenda;
using addressbook::ListStatement;
using testing::ElementsAre;
using testing::IsEmpty;

class AgendaEditTest : public AgendaTest {};

// Adding.

TEST_F(AgendaEditTest, AdaugaClearsTheDetailsAndGoesToTheFamilyName) {
    Agenda& window = OpenOnThree();
    window.TextBoxes[0].SetText("Pop/");
    window.Grid.SetRow(2);
    window.cmdAction[Agenda::Add].Click();
    ExpectAdding(window);
    EXPECT_EQ(window.SavedRow, 2);
    EXPECT_FALSE(window.fraGrid.Enabled());
    EXPECT_THAT(DataBoxTexts(window), testing::Each(""));
    EXPECT_EQ(window.TextBoxes[0].Text(), "Pop/");
    EXPECT_EQ(FocusedControl(), "TextBoxes(2)");
}

TEST_F(AgendaEditTest, AcceptInsertsRequeriesAndFindsTheNewPersonByName) {
    Agenda& window = OpenOnThree();
    Add(window, "Marin", "Eva");
    EXPECT_THAT(connection->Log(),
                ElementsAre("Execute: INSERT INTO [Agenda](Nume , Prenume, AdresaHome, OrasHome, JudetHome, "
                            "TelefonAcasa, TelefonMobil, Email, DescriereFirma, AdresaFirma, OrasFirma, "
                            "JudetFirma, Telefon, Fax, Departament, Functie) VALUES ( "
                            "'Marin','Eva','','','','','','','','','','','','','','')",
                            "Requery: " + ListStatement("%", "%"), "ReadAll: " + ListStatement("%", "%")));
    EXPECT_THAT(Names(), ElementsAre("Albu Dan", "Enescu Ana", "Marin Eva", "Popa Ion"));
    EXPECT_EQ(ShownName(window), "Marin Eva");
    ExpectBrowsing(window);
    ExpectWholeRowSelected(window, 3);
    EXPECT_EQ(FocusedControl(), "Grid");
    EXPECT_EQ(Stored("Email", "Marin"), data::Value(std::string()));
    EXPECT_THAT(messages.shown, IsEmpty());
    EXPECT_THAT(desktop.reports, IsEmpty());
}

TEST_F(AgendaEditTest, EveryBoxGoesToItsColumnTrimmed) {
    Agenda& window = OpenOnThree();
    window.cmdAction[Agenda::Add].Click();
    for (int box = 2; box <= 17; ++box)
        TypeInto(window, box, "  c" + std::to_string(box) + " ");
    window.cmdAction[Agenda::Accept].Click();
    for (std::size_t column = 0; column < 16; ++column) {
        EXPECT_EQ(Stored(std::string(addressbook::Columns[column]), "c2"),
                  data::Value("c" + std::to_string(column + 2)));
    }
    EXPECT_EQ(ShownName(window), "c2 c3");
}

TEST_F(AgendaEditTest, OfTwoPersonsOfOneFamilyNameTheRightOneIsShown) {
    OpenOnThree();
    Agenda& window = *application.Loaded<Agenda>();
    Add(window, "Enescu", "Zoe");
    EXPECT_EQ(ShownName(window), "Enescu Zoe");
    ExpectWholeRowSelected(window, 3);
}

TEST_F(AgendaEditTest, APersonWhomTheSearchLeavesOutIsSavedAndTheListStartsAtItsTop) {
    Agenda& window = OpenOnThree();
    Search(window, "/a/");
    Add(window, "Ene", "Zoe");
    EXPECT_EQ(Names().size(), 4U);
    EXPECT_EQ(ShownName(window), "Albu Dan");
    ExpectWholeRowSelected(window, 1);
    ExpectBrowsing(window);
    EXPECT_THAT(desktop.reports, IsEmpty());
}

TEST_F(AgendaEditTest, TheNewPersonIsScrolledIntoSight) {
    for (int i = 100; i < 200; ++i)
        Keep("N" + std::to_string(i), "X");
    Agenda& window = Open();
    Add(window, "N150", "Y");
    EXPECT_EQ(window.Grid.Row(), 52);
    EXPECT_FALSE(window.Grid.CellBounds(52, 0).IsEmpty());
}

TEST_F(AgendaEditTest, NumeIsRequiredFirst) {
    Agenda& window = OpenOnThree();
    window.cmdAction[Agenda::Add].Click();
    TypeInto(window, 2, "   ");
    window.cmdAction[Agenda::Accept].Click();
    EXPECT_THAT(messages.shown, ElementsAre(ShownMessage{"Numele este obligatoriu !", 16, 0, "Agenda"}));
    EXPECT_EQ(FocusedControl(), "TextBoxes(2)");
    ExpectAdding(window);
    EXPECT_THAT(connection->Log(), IsEmpty());
}

TEST_F(AgendaEditTest, PrenumeIsRequiredNext) {
    Agenda& window = OpenOnThree();
    window.cmdAction[Agenda::Add].Click();
    TypeNames(window, "Marin", "  ");
    window.cmdAction[Agenda::Accept].Click();
    EXPECT_THAT(messages.shown, ElementsAre(ShownMessage{"Prenumele este obligatoriu !", 16, 0, "Agenda"}));
    EXPECT_EQ(FocusedControl(), "TextBoxes(3)");
    ExpectAdding(window);
    EXPECT_THAT(connection->Log(), IsEmpty());
}

TEST_F(AgendaEditTest, CancellingAnAddComesBackToTheRowBefore) {
    Agenda& window = OpenOnThree();
    window.Grid.SetRow(2);
    keyboard.Press(key::Enter);
    window.cmdAction[Agenda::Add].Click();
    TypeNames(window, "Marin", "Eva");
    window.cmdAction[Agenda::Cancel].Click();
    EXPECT_THAT(DataBoxTexts(window), testing::ElementsAreArray(MakePerson("Enescu", "Ana")));
    ExpectBrowsing(window);
    ExpectWholeRowSelected(window, 2);
    EXPECT_EQ(FocusedControl(), "Grid");
    EXPECT_THAT(messages.shown, IsEmpty());
    EXPECT_EQ(Names().size(), 3U);
    EXPECT_THAT(connection->Log(), IsEmpty());
}

// Modifying.

TEST_F(AgendaEditTest, ModificaLocksTheNamesAndGoesToTheAddress) {
    Agenda& window = OpenOnThree();
    window.cmdAction[Agenda::Modify].Click();
    EXPECT_EQ(window.Mode, addressbook::EditMode::Modify);
    EXPECT_EQ(window.SavedRow, 1);
    EXPECT_EQ(LockedBoxes(window), Boxes(2, 3));
    EXPECT_THAT(ButtonsInSight(window), ElementsAre("Accepta", "Renunta"));
    EXPECT_TRUE(window.fraPersoana.Enabled());
    EXPECT_FALSE(window.fraGrid.Enabled());
    EXPECT_EQ(FocusedControl(), "TextBoxes(4)");
    EXPECT_EQ(ShownName(window), "Albu Dan");
}

TEST_F(AgendaEditTest, LockedNamesLookLocked) {
    Agenda& window = OpenOnThree();
    const auto isLine = [&](int box) { return forms::look::EdgeOf(window.TextBoxes[box], false).isLine; };
    window.cmdAction[Agenda::Modify].Click();
    EXPECT_TRUE(isLine(Agenda::NumeBox));
    EXPECT_TRUE(isLine(Agenda::PrenumeBox));
    EXPECT_FALSE(isLine(Agenda::FirstDetailBox));
    window.cmdAction[Agenda::Cancel].Click();
    window.cmdAction[Agenda::Add].Click();
    EXPECT_FALSE(isLine(Agenda::NumeBox));
}

TEST_F(AgendaEditTest, AcceptUpdatesAndComesBackToTheSameRow) {
    Agenda& window = OpenOnThree();
    window.Grid.SetRow(2);
    keyboard.Press(key::Enter);
    window.cmdAction[Agenda::Modify].Click();
    TypeInto(window, 4, " Str. Lunga 5 ");
    TypeInto(window, 2, "Altul");
    window.cmdAction[Agenda::Accept].Click();
    addressbook::Person expected = MakePerson("Enescu", "Ana");
    expected[2] = "Str. Lunga 5";
    EXPECT_THAT(connection->Log(),
                ElementsAre("Execute: " + addressbook::UpdateStatement(expected),
                            "Requery: " + ListStatement("%", "%"), "ReadAll: " + ListStatement("%", "%")));
    EXPECT_EQ(Stored("AdresaHome", "Enescu"), data::Value(std::string("Str. Lunga 5")));
    EXPECT_EQ(Stored("AdresaHome", "Albu"), data::Value(std::string("Albu 4")));
    EXPECT_THAT(DataBoxTexts(window), testing::ElementsAreArray(expected));
    ExpectBrowsing(window);
    ExpectWholeRowSelected(window, 2);
    EXPECT_EQ(FocusedControl(), "Grid");
}

TEST_F(AgendaEditTest, CancellingAModifyShowsTheOldDetails) {
    Agenda& window = OpenOnThree();
    keyboard.Accelerator(U'M');
    TypeInto(window, 17, "Sef");
    keyboard.Press(key::Escape);
    EXPECT_EQ(window.TextBoxes[17].Text(), "Albu 17");
    ExpectBrowsing(window);
    EXPECT_THAT(connection->Log(), IsEmpty());
    EXPECT_THAT(messages.shown, IsEmpty());
}

TEST_F(AgendaEditTest, TheListCannotBeReachedDuringAnEdit) {
    Agenda& window = OpenOnThree();
    window.cmdAction[Agenda::Modify].Click();
    const forms::Rect cell = window.Grid.CellBounds(3, 0);
    ClickWithMouse(window.Grid, {cell.left + 10, cell.top + 10});
    EXPECT_EQ(ShownName(window), "Albu Dan");
    EXPECT_EQ(window.Grid.Row(), 1);
    EXPECT_FALSE(window.TextBoxes[0].CanTakeFocus());
}

TEST_F(AgendaEditTest, AModifiedPersonOfARowThatIsNotFirstIsScrolledBackIntoSight) {
    for (int i = 100; i < 200; ++i)
        Keep("N" + std::to_string(i), "X");
    Agenda& window = Open();
    window.Grid.SetRow(80);
    keyboard.Press(key::Enter);
    window.cmdAction[Agenda::Modify].Click();
    window.cmdAction[Agenda::Accept].Click();
    ExpectWholeRowSelected(window, 80);
    EXPECT_EQ(ShownName(window), "N179 X");
    EXPECT_FALSE(window.Grid.CellBounds(80, 0).IsEmpty());
}

// Deleting.

TEST_F(AgendaEditTest, StergeAsksWithTheTrimmedNamesAndKeepsTheQuestion) {
    others.Execute(
        "INSERT INTO Agenda (Nume, Prenume, AdresaHome, OrasHome, JudetHome, TelefonAcasa, "
        "TelefonMobil, Email, DescriereFirma, AdresaFirma, OrasFirma, JudetFirma, Telefon, Fax, "
        "Departament, Functie) VALUES (' Aba ', ' Ana ', '','','','','','','','','','','','','','')");
    Agenda& window = OpenOnThree();
    window.cmdAction[Agenda::Delete].Click();
    const std::string question = "Doriti sa stergeti din agenda persoana Aba Ana ?";
    EXPECT_THAT(messages.shown, ElementsAre(ShownMessage{question, 32, 4, "Agenda"}));
    EXPECT_EQ(application.lastQuestion, question);
}

TEST_F(AgendaEditTest, TheQuestionIsKeptBeforeItIsAsked) {
    Agenda& window = OpenOnThree();
    std::string kept;
    messages.whileShowing = [&] { kept = application.lastQuestion; };
    window.cmdAction[Agenda::Delete].Click();
    EXPECT_EQ(kept, "Doriti sa stergeti din agenda persoana Albu Dan ?");
}

TEST_F(AgendaEditTest, NoDeletesNothingAndGoesToTheList) {
    Agenda& window = OpenOnThree();
    window.cmdAction[Agenda::Delete].SetFocus();
    window.cmdAction[Agenda::Delete].Click();
    EXPECT_EQ(Names().size(), 3U);
    EXPECT_THAT(connection->Log(), IsEmpty());
    EXPECT_EQ(FocusedControl(), "Grid");
}

TEST_F(AgendaEditTest, YesDeletesAndShowsTheFirstPersonOfTheList) {
    Agenda& window = OpenOnThree();
    window.Grid.SetRow(3);
    keyboard.Press(key::Enter);
    messages.answers = {6};
    window.cmdAction[Agenda::Delete].Click();
    EXPECT_THAT(connection->Log(),
                ElementsAre("Execute: DELETE FROM [AGENDA] WHERE Nume = 'Popa' AND Prenume = 'Ion'",
                            "Requery: " + ListStatement("%", "%"), "ReadAll: " + ListStatement("%", "%")));
    EXPECT_THAT(Names(), ElementsAre("Albu Dan", "Enescu Ana"));
    EXPECT_EQ(ShownName(window), "Albu Dan");
    EXPECT_EQ(window.Grid.Rows(), 3);
    ExpectWholeRowSelected(window, 1);
    ExpectBrowsing(window);
}

// Keys.

TEST_F(AgendaEditTest, ArrowsMoveTheFocusAsListed) {
    const std::map<int, std::string> down = {{2, "TextBoxes(3)"},
                                             {3, ""},
                                             {4, ""},
                                             {5, "TextBoxes(6)"},
                                             {6, "TextBoxes(7)"},
                                             {7, "TextBoxes(8)"},
                                             {8, ""},
                                             {9, ""},
                                             {10, ""},
                                             {11, ""},
                                             {12, "TextBoxes(13)"},
                                             {13, "TextBoxes(14)"},
                                             {14, "TextBoxes(15)"},
                                             {15, "TextBoxes(16)"},
                                             {16, "cmdAction(0)"},
                                             {17, "cmdAction(0)"}};
    const std::map<int, std::string> up = {{2, "TextBoxes(3)"},
                                           {3, ""},
                                           {4, "TextBoxes(3)"},
                                           {5, ""},
                                           {6, "TextBoxes(5)"},
                                           {7, "TextBoxes(6)"},
                                           {8, "TextBoxes(7)"},
                                           {9, "TextBoxes(8)"},
                                           {10, ""},
                                           {11, ""},
                                           {12, ""},
                                           {13, "TextBoxes(12)"},
                                           {14, "TextBoxes(13)"},
                                           {15, "TextBoxes(14)"},
                                           {16, "TextBoxes(15)"},
                                           {17, "TextBoxes(16)"}};
    Agenda& window = OpenOnThree();
    window.cmdAction[Agenda::Add].Click();
    for (const auto& [keyCode, moves] : {std::pair{key::Down, down}, std::pair{key::Up, up}}) {
        for (const auto& [box, target] : moves) {
            window.TextBoxes[box].SetFocus();
            keyboard.Press(keyCode);
            EXPECT_EQ(FocusedControl(), target.empty() ? window.TextBoxes[box].QualifiedName() : target)
                << "key " << keyCode << " in box " << box;
        }
    }
}

TEST_F(AgendaEditTest, UpOnAButtonGoesToTheLastBox) {
    Agenda& window = OpenOnThree();
    window.cmdAction[Agenda::Add].Click();
    for (const int action : {0, 1}) {
        window.cmdAction[action].SetFocus();
        keyboard.Press(key::Up);
        EXPECT_EQ(FocusedControl(), "TextBoxes(17)");
    }
}

TEST_F(AgendaEditTest, EnterGoesThroughTheBoxesToTheAcceptButton) {
    Agenda& window = OpenOnThree();
    window.cmdAction[Agenda::Add].Click();
    for (int box = 2; box <= 17; ++box) {
        EXPECT_EQ(FocusedControl(), window.TextBoxes[box].QualifiedName());
        keyboard.Type("v");
        keyboard.Press(key::Enter);
    }
    EXPECT_EQ(FocusedControl(), "cmdAction(0)");
    keyboard.Press(key::Enter);
    EXPECT_EQ(ShownName(window), "v v");
    ExpectBrowsing(window);
}

TEST_F(AgendaEditTest, TheEightCharactersReachNoBox) {
    Agenda& window = OpenOnThree();
    window.cmdAction[Agenda::Add].Click();
    for (int box = 2; box <= 17; ++box) {
        TypeInto(window, box, "a';b%,\"c][d`/");
        EXPECT_EQ(window.TextBoxes[box].Text(), "abcd/") << box;
    }
    window.cmdAction[Agenda::Cancel].Click();
    for (const int box : {0, 1}) {
        TypeInto(window, box, "a';b%,\"c][d`/");
        EXPECT_EQ(window.TextBoxes[box].Text(), "abcd/") << box;
    }
}

TEST_F(AgendaEditTest, ASlashInADataBoxIsStored) {
    Agenda& window = OpenOnThree();
    window.cmdAction[Agenda::Add].Click();
    TypeNames(window, "Marin", "Eva");
    TypeInto(window, 4, "Bd. Unirii 5/7");
    window.cmdAction[Agenda::Accept].Click();
    EXPECT_EQ(Stored("AdresaHome", "Marin"), data::Value(std::string("Bd. Unirii 5/7")));
}

TEST_F(AgendaEditTest, TextOfAnyScriptComesBackUnharmed) {
    const std::vector<std::string> texts = {
        "\u0218tef\u0103ni\u021B\u0103", "\u015Eerban \u0163ara", "\u0391\u03B8\u03AE\u03BD\u03B1",
        "\u0418\u0432\u0430\u043D",      "\u4E2D\u6587",          "\U0001F600 vesel"};
    database->SetCodePage(host::CodePage::Utf8);
    Agenda& window = OpenOnThree();
    for (const std::string& text : texts) {
        window.cmdAction[Agenda::Add].Click();
        TypeNames(window, text, "Ana");
        TypeInto(window, 5, text);
        window.cmdAction[Agenda::Accept].Click();
        EXPECT_EQ(ShownName(window), text + " Ana");
        EXPECT_EQ(window.Grid.TextMatrix(window.Grid.Row(), 0), text);
        EXPECT_EQ(Stored("OrasHome", text), data::Value(text));
    }
    EXPECT_THAT(desktop.reports, IsEmpty());
}

TEST_F(AgendaEditTest, ALetterThatTheServerLosesIsShownAsItWasKept) {
    Agenda& window = OpenOnThree();
    window.cmdAction[Agenda::Add].Click();
    TypeNames(window, "\u0218tef\u0103ni\u021B\u0103", "Ana");
    window.cmdAction[Agenda::Accept].Click();
    EXPECT_THAT(desktop.reports, IsEmpty());
    std::vector<std::string> shown;
    for (int row = 1; row < window.Grid.Rows(); ++row)
        shown.push_back(window.Grid.TextMatrix(row, 0));
    EXPECT_THAT(shown, testing::Contains("?tef\u0103ni?\u0103"));
}

}  // namespace
}  // namespace tavrin::tests
