// The host changes its connection while the address book is open, or has none at first.

#include "data/error.h"
#include "windows/agenda_fixture.h"

namespace tavrin::tests {
namespace {

namespace key = forms::key;
namespace number = data::error_number;
using addressbook::Agenda;
using addressbook::ListStatement;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;

/// The host's second database has an Albu Dan as well, and others.
class AgendaConnectionTest : public AgendaTest {
  protected:
    AgendaConnectionTest() {
        std::string columns;
        for (const std::string_view column : addressbook::Columns)
            columns += (columns.empty() ? "" : ", ") + std::string(column) + " nvarchar(50)";
        second.Execute("CREATE TABLE Agenda (" + columns + ")");
        for (const char* nume : {"Albu", "Vlad"}) {
            addressbook::Person person = MakePerson(nume, "Dan");
            person[2] = "in the second";
            second.Execute(addressbook::InsertStatement(person));
        }
    }

    void HostTurnsToTheSecond() {
        connection->ClearRecord();
        application.context.connection = secondConnection;
    }

    std::int64_t CountOfSecond() {
        return data::ExecuteScalar(second, "SELECT count(*) FROM Agenda").ToInteger();
    }

    void ExpectOnlyTheSecondsListRead() const {
        EXPECT_THAT(secondConnection->Log(),
                    ElementsAre("Open: " + ListStatement("%", "%"), "ReadAll: " + ListStatement("%", "%")));
        for (const std::string& entry : connection->Log())
            EXPECT_TRUE(entry.starts_with("Close: ")) << entry;
    }

    static void ExpectSecondInSight(const Agenda& window) {
        EXPECT_EQ(window.Grid.Rows(), 3);
        EXPECT_EQ(ShownName(window), "Albu Dan");
        EXPECT_EQ(window.TextBoxes[Agenda::FirstDetailBox].Text(), "in the second");
        ExpectWholeRowSelected(window, 1);
        EXPECT_EQ(window.Mode, addressbook::EditMode::Browse);
    }

    std::shared_ptr<host::EmbeddedDatabase> secondDatabase =
        std::make_shared<host::EmbeddedDatabase>(":memory:");
    host::EmbeddedConnection second{secondDatabase};
    std::shared_ptr<RecordingConnection> secondConnection =
        std::make_shared<RecordingConnection>(std::make_shared<host::EmbeddedConnection>(secondDatabase));
};

TEST_F(AgendaConnectionTest, ASearchRunsOnTheConnectionOfTheMoment) {
    Agenda& window = OpenOnThree();
    HostTurnsToTheSecond();
    Search(window, "");
    ExpectOnlyTheSecondsListRead();
    ExpectSecondInSight(window);
}

TEST_F(AgendaConnectionTest, StergeShowsTheNewListInsteadOfDeletingInItWhoWasShownFromTheOld) {
    Agenda& window = OpenOnThree();
    HostTurnsToTheSecond();
    messages.answers = {6};
    window.cmdAction[Agenda::Delete].Click();
    EXPECT_THAT(messages.shown, IsEmpty());
    ExpectOnlyTheSecondsListRead();
    ExpectSecondInSight(window);

    window.cmdAction[Agenda::Delete].Click();
    EXPECT_EQ(messages.shown.size(), 1U);
    EXPECT_EQ(CountOfSecond(), 1);
    EXPECT_EQ(ShownName(window), "Vlad Dan");
    EXPECT_EQ(Names().size(), 3U);
}

TEST_F(AgendaConnectionTest, AnAnswerToAQuestionAboutTheOldListDeletesNobody) {
    Agenda& window = OpenOnThree();
    messages.answers = {6};
    messages.whileShowing = [this] { HostTurnsToTheSecond(); };
    window.cmdAction[Agenda::Delete].Click();
    EXPECT_EQ(Names().size(), 3U);
    EXPECT_EQ(CountOfSecond(), 2);
    ExpectOnlyTheSecondsListRead();
    ExpectSecondInSight(window);
}

TEST_F(AgendaConnectionTest, ModificaShowsTheNewListFirst) {
    Agenda& window = OpenOnThree();
    HostTurnsToTheSecond();
    window.cmdAction[Agenda::Modify].Click();
    ExpectOnlyTheSecondsListRead();
    ExpectSecondInSight(window);
    window.cmdAction[Agenda::Modify].Click();
    EXPECT_EQ(window.Mode, addressbook::EditMode::Modify);
}

TEST_F(AgendaConnectionTest, ChangesBegunOnTheOldConnectionAreNotWrittenOnTheNewOne) {
    Agenda& window = OpenOnThree();
    window.cmdAction[Agenda::Modify].Click();
    TypeInto(window, 4, "Str. Noua 1");
    HostTurnsToTheSecond();
    window.cmdAction[Agenda::Accept].Click();
    EXPECT_THAT(desktop.reports,
                ElementsAre(HeadlessDesktop::Report{
                    number::InvalidConnection,
                    "Intre timp programul a trecut la alta baza de date. Nu s-a salvat nimic !"}));
    EXPECT_THAT(secondConnection->Log(), IsEmpty());
    EXPECT_THAT(connection->Log(), IsEmpty());
    EXPECT_EQ(window.TextBoxes[4].Text(), "Str. Noua 1") << "what was typed can still be copied";
    window.cmdAction[Agenda::Cancel].Click();
    ExpectBrowsing(window);
}

TEST_F(AgendaConnectionTest, ANewPersonGoesIntoTheNewListAndIsShownThere) {
    Agenda& window = OpenOnThree();
    window.cmdAction[Agenda::Add].Click();
    TypeNames(window, "Marin", "Eva");
    HostTurnsToTheSecond();
    window.cmdAction[Agenda::Accept].Click();
    EXPECT_EQ(CountOfSecond(), 3);
    EXPECT_EQ(Names().size(), 3U);
    EXPECT_EQ(ShownName(window), "Marin Eva");
    EXPECT_EQ(window.Grid.Rows(), 4);
    ExpectWholeRowSelected(window, 2);
    ExpectBrowsing(window);
    EXPECT_THAT(desktop.reports, IsEmpty());
}

TEST_F(AgendaConnectionTest, AnEmptyBookGivesWayToTheNewOne) {
    Agenda& window = Open();
    TypeNames(window, "Marin", "Eva");
    HostTurnsToTheSecond();
    window.cmdAction[Agenda::Accept].Click();
    EXPECT_EQ(window.Grid.Rows(), 4);
    EXPECT_THAT(Names(), IsEmpty());
    ExpectBrowsing(window);
}

TEST_F(AgendaConnectionTest, AnotherCallWithTheSameConnectionChangesNothing) {
    Agenda& window = OpenOnThree();
    application.context.companyId = 4711;
    application.context.connection = connection;
    window.cmdAction[Agenda::Delete].Click();
    EXPECT_EQ(messages.shown.size(), 1U);
    EXPECT_THAT(connection->Log(), IsEmpty());
}

TEST_F(AgendaConnectionTest, NothingHoldsTheOldConnection) {
    Agenda& window = OpenOnThree();
    const std::weak_ptr<RecordingConnection> old = connection;
    application.context.connection = secondConnection;
    connection.reset();
    EXPECT_TRUE(old.expired());
    Search(window, "");
    ExpectSecondInSight(window);
}

// Without a connection at first.

class AgendaWithoutConnectionTest : public AgendaConnectionTest {
  protected:
    Agenda& OpenWithoutConnection() {
        application.context.connection = nullptr;
        Agenda& window = Open();
        EXPECT_THAT(desktop.reports,
                    ElementsAre(Field(&HeadlessDesktop::Report::number, number::ObjectNotSet)));
        desktop.reports.clear();
        return window;
    }
};

TEST_F(AgendaWithoutConnectionTest, TheWindowIsMadeWhole) {
    const Agenda& window = OpenWithoutConnection();
    for (const auto& button : window.cmdAction)
        EXPECT_NE(button->Picture(), forms::Icon::None) << button->QualifiedName();
    EXPECT_NE(window.imgAgenda.Picture(), forms::Icon::None);
    EXPECT_EQ(messages.created, 1);
    EXPECT_EQ(window.TextBoxes[Agenda::NumeBox].ForeColor(), forms::Green);
}

TEST_F(AgendaWithoutConnectionTest, ASearchAfterAGoodCallFinds) {
    Agenda& window = OpenWithoutConnection();
    HostTurnsToTheSecond();
    Search(window, "");
    ExpectSecondInSight(window);
    EXPECT_THAT(desktop.reports, IsEmpty());
}

TEST_F(AgendaWithoutConnectionTest, TheFirstButtonAfterAGoodCallShowsTheList) {
    for (const Agenda::Action action : {Agenda::Modify, Agenda::Delete}) {
        Agenda& window = OpenWithoutConnection();
        HostTurnsToTheSecond();
        window.cmdAction[action].Click();
        ExpectSecondInSight(window);
        EXPECT_THAT(messages.shown, IsEmpty());
        window.Unload();
    }
}

TEST_F(AgendaWithoutConnectionTest, ANewPersonAfterAGoodCallIsSavedOnce) {
    Agenda& window = OpenWithoutConnection();
    HostTurnsToTheSecond();
    Add(window, "Marin", "Eva");
    EXPECT_EQ(CountOfSecond(), 3);
    EXPECT_EQ(ShownName(window), "Marin Eva");
    ExpectBrowsing(window);
    EXPECT_THAT(desktop.reports, IsEmpty());
}

TEST_F(AgendaWithoutConnectionTest, AConnectionThatIsTakenAwayLeavesNobodyToActOn) {
    Agenda& window = OpenOnThree();
    application.context.connection = nullptr;
    messages.answers = {6};
    window.cmdAction[Agenda::Delete].Click();
    EXPECT_THAT(messages.shown, IsEmpty());
    EXPECT_THAT(desktop.reports, ElementsAre(Field(&HeadlessDesktop::Report::number, number::ObjectNotSet)));
    EXPECT_THAT(DataBoxTexts(window), testing::Each(""));
}

}  // namespace
}  // namespace tavrin::tests
