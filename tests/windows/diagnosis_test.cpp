// What a session tells somebody who listens: what was done, and nothing of the persons in the address book.

#include <gmock/gmock.h>

#include "support/recording_listener.h"
#include "windows/agenda_fixture.h"

namespace tavrin::tests {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class DiagnosisTest : public AgendaTest {
  protected:
    DiagnosisTest() {
        application.context.workDate = data::ToOleDate({2003, 5, 20});
        application.context.workYear = 2003;
        application.context.companyId = 7;
        application.SetListener(listener);
    }

    std::shared_ptr<RecordingListener> listener = std::make_shared<RecordingListener>();
};

TEST_F(DiagnosisTest, BeginsWithTheHostsValues) {
    EXPECT_THAT(listener->lines,
                ElementsAre("Apel with date 2003-05-20, year 2003, company 7, a connection"));
}

TEST_F(DiagnosisTest, TellsADeletionFromTheWindowToTheRow) {
    Agenda& window = OpenOnThree();
    listener->lines.clear();
    messages.answers = {shell::message::AnswerYes};
    window.cmdAction[Agenda::Delete].Click();
    const std::vector<std::string> lines = listener->LinesWithoutTimes();
    ASSERT_THAT(lines, testing::SizeIs(testing::Ge(2U)));
    EXPECT_EQ(lines[0], "statement, N ms, 1 rows: DELETE FROM [AGENDA] WHERE Nume = '...'");
    EXPECT_THAT(lines[1], AllOf(HasSubstr("2 rows: SELECT AGENDA.Nume"), HasSubstr("LIKE '...' ORDER BY")));
}

TEST_F(DiagnosisTest, TellsARefusalAsStatementAndAsError) {
    Agenda& window = OpenOnThree();
    listener->lines.clear();
    Add(window, "Popa", "Ion");
    ASSERT_THAT(listener->lines, Not(IsEmpty()));
    EXPECT_THAT(listener->LinesWithoutTimes(),
                Contains(AllOf(HasSubstr("failed with -2147217873: INSERT INTO [Agenda]"))));
    EXPECT_EQ(listener->lines.back(), "error -2147217873 in Agenda.cmdAction(0)_Click");
}

TEST_F(DiagnosisTest, NoTextOfAPersonIsEverTold) {
    // Each of them in every way of the window: listed, searched, added, changed, refused, pasted with
    // apostrophes.
    Agenda& window = OpenOnThree();
    Search(window, "Popa");
    Add(window, "Marinica", "Eva");
    Add(window, "Popa", "Ion");
    window.cmdAction[Agenda::Cancel].Click();
    Search(window, "Marinica");
    window.cmdAction[Agenda::Modify].Click();
    for (int box = 4; box <= Agenda::LastBox; ++box)
        TypeInto(window, box, "Secret" + std::to_string(box));
    window.cmdAction[Agenda::Accept].Click();
    window.cmdAction[Agenda::Modify].Click();
    PasteInto(window, 5, "x' Ghilimea 'y");
    window.cmdAction[Agenda::Accept].Click();
    PasteInto(window, 5, "D'Arc");
    window.cmdAction[Agenda::Accept].Click();
    window.cmdAction[Agenda::Cancel].Click();
    PasteInto(window, 0, "1' Popescu '2");
    keyboard.Press(forms::key::Enter);
    EXPECT_GE(desktop.reports.size(), 4U) << "of the refusals that quote texts";
    EXPECT_GE(connection->Recorded().size(), 8U);
    for (const char* text :
         {"Albu", "Dan", "Enescu", "Popa", "Marinica", "Eva", "Secret", "Ghilimea", "Arc", "Popescu"})
        EXPECT_THAT(listener->lines, Each(Not(HasSubstr(text)))) << text;
}

TEST_F(DiagnosisTest, WithoutAListenerStatementsGoToTheConnectionItself) {
    EXPECT_NE(&application.context.Database(), connection.get());
    application.SetListener(nullptr);
    EXPECT_EQ(&application.context.Database(), connection.get());
    listener->lines.clear();
    OpenOnThree();
    EXPECT_THAT(listener->lines, IsEmpty());
}

TEST_F(DiagnosisTest, AListenerThatComesAndGoesChangesNothingForAnEdit) {
    Agenda& window = OpenOnThree();
    window.cmdAction[Agenda::Modify].Click();
    TypeInto(window, 4, "Str. Lunga");
    application.SetListener(nullptr);
    window.cmdAction[Agenda::Accept].Click();
    EXPECT_THAT(desktop.reports, IsEmpty());
    application.SetListener(listener);
    Search(window, "Popa");
    EXPECT_EQ(ShownName(window), "Popa Ion");
    EXPECT_EQ(Names().size(), 3U);
}

TEST_F(DiagnosisTest, AConnectionThatTheHostTakesBackIsLetGo) {
    OpenOnThree();
    application.context.connection = nullptr;
    desktop.UnloadAll();
    EXPECT_EQ(connection.use_count(), 1);
}

}  // namespace
}  // namespace tavrin::tests
