#pragma once

#include <gmock/gmock.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "addressbook/addressbook_statements.h"
#include "addressbook/agenda.h"
#include "host/embedded/embedded_connection.h"
#include "support/recording_connection.h"
#include "support/window_test.h"

namespace tavrin::tests {

/// The address book's window on a database of its own, whose operations are recorded. Another connection to
/// the same database plays the other users.
class AgendaTest : public WindowTest {
  protected:
    using Agenda = addressbook::Agenda;

    AgendaTest() {
        application.context.connection = connection;
        std::string columns = "Nume nvarchar(30), Prenume nvarchar(30)";
        for (std::size_t i = addressbook::FirstDetailColumn; i < addressbook::Columns.size(); ++i)
            columns += ", " + std::string(addressbook::Columns[i]) + " nvarchar(50)";
        others.Execute("CREATE TABLE Agenda (" + columns + ", UNIQUE (Nume, Prenume))");
    }
    ~AgendaTest() override { desktop.UnloadAll(); }

    /// A person whose details tell whose they are and which: "Pop 4" is box 4 of Pop.
    static addressbook::Person MakePerson(const std::string& nume, const std::string& prenume) {
        addressbook::Person person = {nume, prenume};
        for (std::size_t i = addressbook::FirstDetailColumn; i < person.size(); ++i)
            person[i] = nume + " " + std::to_string(i + Agenda::FirstColumnBox);
        return person;
    }

    void Keep(const std::string& nume, const std::string& prenume) {
        others.Execute(addressbook::InsertStatement(MakePerson(nume, prenume)));
    }

    void KeepThree() {
        Keep("Albu", "Dan");
        Keep("Enescu", "Ana");
        Keep("Popa", "Ion");
    }

    /// Opens the window and forgets what opening did.
    Agenda& Open() {
        auto& window = application.Default<Agenda>();
        window.ShowForm();
        connection->ClearRecord();
        return window;
    }

    Agenda& OpenOnThree() {
        KeepThree();
        return Open();
    }

    /// The names in the database, "Nume Prenume", in order.
    std::vector<std::string> Names() {
        const auto rows = others.Execute("SELECT Nume, Prenume FROM Agenda ORDER BY Nume, Prenume");
        const data::TablePtr table = rows->ReadAll();
        std::vector<std::string> names;
        for (std::size_t row = 0; row < table->RowCount(); ++row)
            names.push_back(table->At(row, 0).ToText() + " " + table->At(row, 1).ToText());
        return names;
    }

    data::Value Stored(const std::string& column, const std::string& nume) {
        return data::ExecuteScalar(others, "SELECT " + column + " FROM Agenda WHERE Nume = '" + nume + "'");
    }

    static std::string ShownName(const Agenda& window) {
        return window.TextBoxes[Agenda::NumeBox].Text() + " " + window.TextBoxes[Agenda::PrenumeBox].Text();
    }

    static std::vector<std::string> DataBoxTexts(const Agenda& window) {
        std::vector<std::string> texts;
        for (int box = Agenda::FirstColumnBox; box <= Agenda::LastBox; ++box)
            texts.push_back(window.TextBoxes[box].Text());
        return texts;
    }

    /// Which of the boxes from `first` to `last` are locked.
    static std::vector<int> LockedBoxes(const Agenda& window) {
        std::vector<int> locked;
        for (int box = 0; box < Agenda::BoxCount; ++box) {
            if (window.TextBoxes[box].Locked()) locked.push_back(box);
        }
        return locked;
    }

    static std::vector<int> Boxes(int first, int last) {
        std::vector<int> boxes;
        for (int box = first; box <= last; ++box)
            boxes.push_back(box);
        return boxes;
    }

    /// The captions of the buttons in sight, from left to right.
    static std::vector<std::string> ButtonsInSight(const Agenda& window) {
        std::map<int, std::string> byPlace;
        for (const auto& button : window.cmdAction) {
            if (button->Visible()) byPlace[button->Bounds().left] = button->Caption();
        }
        std::vector<std::string> captions;
        for (const auto& [left, caption] : byPlace)
            captions.push_back(caption);
        return captions;
    }

    static void ExpectWholeRowSelected(const Agenda& window, int row) {
        EXPECT_EQ(window.Grid.Row(), row);
        EXPECT_EQ(window.Grid.RowSel(), row);
        EXPECT_EQ(window.Grid.Col(), 0);
        EXPECT_EQ(window.Grid.ColSel(), 15);
    }

    static void ExpectBrowsing(const Agenda& window) {
        EXPECT_EQ(window.Mode, addressbook::EditMode::Browse);
        EXPECT_EQ(LockedBoxes(window), Boxes(2, 17));
        EXPECT_THAT(ButtonsInSight(window), testing::ElementsAre("Adauga", "Modifica", "Sterge", "Iesire"));
        EXPECT_EQ(window.cmdAction[Agenda::Cancel].Accelerator(), U'I');
        EXPECT_FALSE(window.fraPersoana.Enabled());
        EXPECT_TRUE(window.fraGrid.Enabled());
    }

    static void ExpectAdding(const Agenda& window) {
        EXPECT_EQ(window.Mode, addressbook::EditMode::Add);
        EXPECT_EQ(LockedBoxes(window), Boxes(2, 1));
        EXPECT_THAT(ButtonsInSight(window), testing::ElementsAre("Accepta", "Renunta"));
        EXPECT_EQ(window.cmdAction[Agenda::Cancel].Accelerator(), U'R');
        EXPECT_TRUE(window.fraPersoana.Enabled());
    }

    void Search(Agenda& window, const std::string& nume, const std::string& prenume = "") {
        window.TextBoxes[Agenda::SearchNumeBox].SetText(nume);
        window.TextBoxes[Agenda::SearchPrenumeBox].SetText(prenume);
        window.TextBoxes[Agenda::SearchNumeBox].SetFocus();
        keyboard.Press(forms::key::Enter);
    }

    void TypeInto(Agenda& window, int box, const std::string& text) {
        window.TextBoxes[box].SetFocus();
        keyboard.Type(text);
    }

    void PasteInto(Agenda& window, int box, const std::string& text) {
        window.TextBoxes[box].SetFocus();
        keyboard.Paste(text);
    }

    /// Presses "Adauga", types the names and accepts.
    void Add(Agenda& window, const std::string& nume, const std::string& prenume) {
        window.cmdAction[Agenda::Add].Click();
        TypeNames(window, nume, prenume);
        window.cmdAction[Agenda::Accept].Click();
    }

    void TypeNames(Agenda& window, const std::string& nume, const std::string& prenume) {
        TypeInto(window, Agenda::NumeBox, nume);
        TypeInto(window, Agenda::PrenumeBox, prenume);
    }

    std::shared_ptr<host::EmbeddedDatabase> database = std::make_shared<host::EmbeddedDatabase>(":memory:");
    host::EmbeddedConnection others{database};
    std::shared_ptr<RecordingConnection> connection =
        std::make_shared<RecordingConnection>(std::make_shared<host::EmbeddedConnection>(database));
};

}  // namespace tavrin::tests
