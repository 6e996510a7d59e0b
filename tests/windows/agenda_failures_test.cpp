// What the database refuses, what others do to it meanwhile, and values that nobody expects.

#include "data/error.h"
#include "windows/agenda_fixture.h"

namespace tavrin::tests {
namespace {

namespace key = forms::key;
namespace number = data::error_number;
using addressbook::Agenda;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;

const data::Error ConnectionLost(-2147467259, "Connection failure");

class AgendaFailuresTest : public AgendaTest {
  protected:
    static auto ReportOf(std::int32_t errorNumber) {
        return ElementsAre(Field(&HeadlessDesktop::Report::number, errorNumber));
    }

    Agenda& OpenAdding(const std::string& nume, const std::string& prenume) {
        Agenda& window = OpenOnThree();
        window.cmdAction[Agenda::Add].Click();
        TypeNames(window, nume, prenume);
        return window;
    }
};

// Statements that are refused.

TEST_F(AgendaFailuresTest, APastedApostropheIsReportedAndTheAddGoesOn) {
    Agenda& window = OpenAdding("Marin", "Eva");
    PasteInto(window, 4, "Str. 'Lunga'");
    window.cmdAction[Agenda::Accept].Click();
    EXPECT_THAT(desktop.reports, ReportOf(number::ErrorsInCommand));
    EXPECT_THAT(messages.shown, IsEmpty());
    ExpectAdding(window);
    EXPECT_FALSE(window.fraGrid.Enabled());
    EXPECT_EQ(window.TextBoxes[4].Text(), "Str. 'Lunga'");
    EXPECT_EQ(Names().size(), 3U);

    window.TextBoxes[4].SetText("Str. Lunga");
    window.cmdAction[Agenda::Accept].Click();
    EXPECT_EQ(Names().size(), 4U);
    ExpectBrowsing(window);
}

TEST_F(AgendaFailuresTest, APastedApostropheInTheSearchIsReportedAndTheNextSearchWorks) {
    Agenda& window = OpenOnThree();
    PasteInto(window, 0, "D'A");
    keyboard.Press(key::Enter);
    EXPECT_THAT(desktop.reports, ReportOf(number::ErrorsInCommand));
    EXPECT_EQ(window.Mode, addressbook::EditMode::Browse);
    EXPECT_EQ(window.Grid.DataSource(), nullptr);
    EXPECT_EQ(FocusedControl(), "TextBoxes(0)");
    Search(window, "Popa");
    EXPECT_EQ(ShownName(window), "Popa Ion");
    EXPECT_EQ(desktop.reports.size(), 1U);
}

TEST_F(AgendaFailuresTest, WithoutAListAnEditCanStillBeLeft) {
    Agenda& window = OpenOnThree();
    PasteInto(window, 0, "D'A");
    keyboard.Press(key::Enter);
    window.cmdAction[Agenda::Add].Click();
    window.cmdAction[Agenda::Cancel].Click();
    EXPECT_EQ(application.Loaded<Agenda>(), nullptr);
    EXPECT_EQ(desktop.reports.size(), 1U);
}

TEST_F(AgendaFailuresTest, ADuplicatePairIsReportedAndTheAddGoesOn) {
    Agenda& window = OpenAdding("Popa", "Ion");
    window.cmdAction[Agenda::Accept].Click();
    EXPECT_THAT(desktop.reports, ReportOf(number::IntegrityViolation));
    ExpectAdding(window);
    EXPECT_EQ(ShownName(window), "Popa Ion");
    EXPECT_EQ(Names().size(), 3U);
    window.cmdAction[Agenda::Cancel].Click();
    ExpectBrowsing(window);
}

TEST_F(AgendaFailuresTest, AColumnTooShortIsReportedAndTheModifyGoesOn) {
    Agenda& window = OpenOnThree();
    window.cmdAction[Agenda::Modify].Click();
    TypeInto(window, 4, std::string(51, 'x'));
    window.cmdAction[Agenda::Accept].Click();
    ASSERT_EQ(desktop.reports.size(), 1U);
    EXPECT_NE(desktop.reports[0].number, 0);
    EXPECT_EQ(window.Mode, addressbook::EditMode::Modify);
    EXPECT_EQ(LockedBoxes(window), Boxes(2, 3));
    EXPECT_EQ(Stored("AdresaHome", "Albu"), data::Value(std::string("Albu 4")));
    window.cmdAction[Agenda::Cancel].Click();
    EXPECT_EQ(window.TextBoxes[4].Text(), "Albu 4");
}

TEST_F(AgendaFailuresTest, ARefusedDeleteIsReportedAndThePersonStays) {
    Agenda& window = OpenOnThree();
    connection->FailStatement("DELETE", {number::IntegrityViolation, "related rows"});
    messages.answers = {6};
    window.cmdAction[Agenda::Delete].Click();
    EXPECT_THAT(desktop.reports,
                ElementsAre(HeadlessDesktop::Report{number::IntegrityViolation, "related rows"}));
    EXPECT_EQ(messages.shown.size(), 1U) << "only the question";
    EXPECT_EQ(ShownName(window), "Albu Dan");
    EXPECT_EQ(window.Mode, addressbook::EditMode::Browse);
    EXPECT_EQ(window.Grid.Rows(), 4);
}

// A connection that fails in the middle.

TEST_F(AgendaFailuresTest, ALostInsertLeavesTheAddAsItWas) {
    Agenda& window = OpenAdding("Marin", "Eva");
    connection->FailStatement("INSERT", ConnectionLost);
    window.cmdAction[Agenda::Accept].Click();
    EXPECT_THAT(desktop.reports, ReportOf(ConnectionLost.Number()));
    ExpectAdding(window);
    EXPECT_FALSE(window.fraGrid.Enabled());
    EXPECT_EQ(ShownName(window), "Marin Eva");
    connection->StopFailing();
    window.cmdAction[Agenda::Accept].Click();
    EXPECT_EQ(ShownName(window), "Marin Eva");
    ExpectBrowsing(window);
}

TEST_F(AgendaFailuresTest, ALostRequeryLeavesThePersonSavedAndTheModeAsItWas) {
    Agenda& window = OpenAdding("Marin", "Eva");
    connection->FailOperation(2, ConnectionLost);
    window.cmdAction[Agenda::Accept].Click();
    EXPECT_THAT(desktop.reports, ReportOf(ConnectionLost.Number()));
    EXPECT_EQ(Names().size(), 4U);
    EXPECT_EQ(window.Mode, addressbook::EditMode::Add);
    EXPECT_EQ(LockedBoxes(window), Boxes(0, 1));
    EXPECT_TRUE(window.fraGrid.Enabled());
    EXPECT_EQ(ShownName(window), "Marin Eva");
    window.cmdAction[Agenda::Cancel].Click();
    EXPECT_EQ(desktop.reports.size(), 1U) << "the edit can be left";
}

TEST_F(AgendaFailuresTest, AnyOperationMayFailAndTheWindowCanBeLeft) {
    for (std::size_t operation = 1; operation <= 3; ++operation) {
        others.Execute("DELETE FROM Agenda");
        Agenda& window = OpenAdding("Marin", "Eva");
        desktop.reports.clear();
        connection->FailOperation(operation, ConnectionLost, Repeat::Always);
        window.cmdAction[Agenda::Accept].Click();
        EXPECT_THAT(desktop.reports, ReportOf(ConnectionLost.Number())) << operation;
        ASSERT_TRUE(window.IsLoaded());
        window.cmdAction[Agenda::Cancel].Click();
        messages.answers = {6};
        if (auto* open = application.Loaded<Agenda>()) open->cmdAction[Agenda::Cancel].Click();
        EXPECT_EQ(application.Loaded<Agenda>(), nullptr) << operation;
        connection->StopFailing();
        messages.answers.clear();
    }
}

TEST_F(AgendaFailuresTest, AnOpeningThatFailsIsReportedAndTheWindowLives) {
    KeepThree();
    connection->FailOperation(1, ConnectionLost);
    Agenda& window = Open();
    EXPECT_THAT(desktop.reports, ReportOf(ConnectionLost.Number()));
    EXPECT_TRUE(window.Visible());
    Search(window, "");
    EXPECT_EQ(ShownName(window), "Albu Dan");
}

TEST_F(AgendaFailuresTest, AMissingTableIsReported) {
    others.Execute("DROP TABLE Agenda");
    Agenda& window = Open();
    EXPECT_EQ(desktop.reports.size(), 1U);
    messages.answers = {6};
    window.cmdAction[Agenda::Cancel].Click();
    EXPECT_EQ(application.Loaded<Agenda>(), nullptr);
}

TEST_F(AgendaFailuresTest, WithoutAConnectionEveryUseIsReportedAndTheWindowCanBeLeft) {
    application.context.connection = nullptr;
    auto& window = application.Default<Agenda>();
    window.ShowForm();
    EXPECT_THAT(desktop.reports, ReportOf(number::ObjectNotSet));
    Search(window, "Popa");
    window.cmdAction[Agenda::Add].Click();
    TypeNames(window, "Marin", "Eva");
    window.cmdAction[Agenda::Accept].Click();
    EXPECT_EQ(desktop.reports.size(), 3U);
    window.cmdAction[Agenda::Cancel].Click();
    EXPECT_EQ(application.Loaded<Agenda>(), nullptr);
}

// What others do meanwhile.

TEST_F(AgendaFailuresTest, DeletingSomebodyWhomAnotherUserDeletedIsSilent) {
    Agenda& window = OpenOnThree();
    others.Execute("DELETE FROM Agenda WHERE Nume = 'Albu'");
    messages.answers = {6};
    window.cmdAction[Agenda::Delete].Click();
    EXPECT_THAT(desktop.reports, IsEmpty());
    EXPECT_EQ(ShownName(window), "Enescu Ana");
    EXPECT_EQ(window.Grid.Rows(), 3);
}

TEST_F(AgendaFailuresTest, ModifyingTheLastRowAfterAnotherUserDeletedItShowsTheNewLastRow) {
    Agenda& window = OpenOnThree();
    window.Grid.SetRow(3);
    keyboard.Press(key::Enter);
    window.cmdAction[Agenda::Modify].Click();
    others.Execute("DELETE FROM Agenda WHERE Nume = 'Popa'");
    window.cmdAction[Agenda::Accept].Click();
    EXPECT_THAT(desktop.reports, IsEmpty());
    EXPECT_EQ(ShownName(window), "Enescu Ana");
    ExpectWholeRowSelected(window, 2);
    ExpectBrowsing(window);
}

TEST_F(AgendaFailuresTest, ModifyingTheOnlyPersonAfterAnotherUserDeletedItLeadsToAnEmptyBook) {
    Keep("Popa", "Ion");
    Agenda& window = Open();
    window.cmdAction[Agenda::Modify].Click();
    others.Execute("DELETE FROM Agenda");
    window.cmdAction[Agenda::Accept].Click();
    EXPECT_THAT(desktop.reports, IsEmpty());
    ExpectAdding(window);
    EXPECT_EQ(window.fraPersoana.Bounds().left, 0);
}

TEST_F(AgendaFailuresTest, APersonWhomAnotherUserDeletedIsStillShownFromTheList) {
    Agenda& window = OpenOnThree();
    others.Execute("DELETE FROM Agenda WHERE Nume = 'Enescu'");
    window.Grid.SetRow(2);
    keyboard.Press(key::Enter);
    EXPECT_EQ(ShownName(window), "Enescu Ana");
}

// NULL.

TEST_F(AgendaFailuresTest, APersonWithoutANameIsNotListed) {
    KeepThree();
    others.Execute("UPDATE Agenda SET Nume = NULL WHERE Nume = 'Albu'");
    others.Execute("UPDATE Agenda SET Prenume = NULL WHERE Nume = 'Enescu'");
    const Agenda& window = Open();
    EXPECT_EQ(window.Grid.Rows(), 2);
    EXPECT_EQ(ShownName(window), "Popa Ion");
    EXPECT_THAT(desktop.reports, IsEmpty());
}

TEST_F(AgendaFailuresTest, ANullInTheFirstRowDoesNotHoldTheUserInAnEdit) {
    KeepThree();
    others.Execute("UPDATE Agenda SET Fax = NULL WHERE Nume = 'Albu'");
    Agenda& window = Open();
    EXPECT_THAT(desktop.reports, ReportOf(number::InvalidUseOfNull));
    window.cmdAction[Agenda::Add].Click();
    window.cmdAction[Agenda::Cancel].Click();
    ExpectBrowsing(window);
}

}  // namespace
}  // namespace tavrin::tests
