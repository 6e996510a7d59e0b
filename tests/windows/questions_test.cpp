// What becomes of an answer when the window that asked is no longer what it was.

#include <gmock/gmock.h>

#include "rates/cere_moneda.h"
#include "rates/curs_valutar_detaliu.h"
#include "rates/evolutie_curs.h"
#include "shell/utilitati.h"
#include "support/rates_test.h"
#include "windows/agenda_fixture.h"

namespace tavrin::tests {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;
using testing::StartsWith;

class RateQuestionsTest : public RatesTest {
  protected:
    static constexpr int FreeRow = 4;

    /// Asks about the deletion of a day; the question is answered Yes after `meanwhile`.
    void DeleteWhile(std::function<void()> meanwhile) {
        rates::CursValutar& list = OpenList();
        list.Grid.SetRow(FreeRow);
        messages.whileShowing = std::move(meanwhile);
        messages.answers = {shell::message::AnswerYes};
        connection->ClearRecord();
        list.cmdAction[rates::CursValutar::DeleteDay].Click();
        ASSERT_EQ(messages.shown.size(), 1U);
    }

    void ExpectNothingDeleted() {
        EXPECT_THAT(connection->Statements(), Not(Contains(StartsWith("DELETE"))));
        EXPECT_EQ(CountOf("[Curs Valutar]"), 5);
        EXPECT_TRUE(desktop.reports.empty());
    }
};

TEST_F(RateQuestionsTest, ADayIsNotDeletedForAListThatHasGone) {
    auto& palette = application.Default<shell::Utilitati>();
    palette.Load();
    palette.Show();
    DeleteWhile([&] { palette.HandleClose(); });
    EXPECT_EQ(application.Loaded<rates::CursValutar>(), nullptr);
    ExpectNothingDeleted();
}

TEST_F(RateQuestionsTest, ADayIsNotDeletedForAListThatWasOpenedMeanwhile) {
    DeleteWhile([this] {
        application.Loaded<rates::CursValutar>()->HandleClose();
        OpenList();
    });
    ExpectNothingDeleted();
}

TEST_F(RateQuestionsTest, ADayIsNotDeletedInOtherDataThanTheQuestionWasAbout) {
    DeleteWhile([this] {
        application.context.connection =
            std::make_shared<RecordingConnection>(std::make_shared<host::EmbeddedConnection>(database));
    });
    ExpectNothingDeleted();
}

TEST_F(RateQuestionsTest, ADayIsNotDeletedWhereAnotherOneHasComeIntoItsPlace) {
    DeleteWhile([this] { application.Loaded<rates::CursValutar>()->Grid.SetRow(FreeRow + 1); });
    ExpectNothingDeleted();
}

TEST_F(RateQuestionsTest, ThePaletteWaitsForTheAnswer) {
    auto& palette = application.Default<shell::Utilitati>();
    palette.Load();
    palette.Show();
    for (const bool modal : {true, false}) {
        desktop.messagesAreModal = modal;
        messages.shown.clear();
        DeleteWhile([&] { ClickWithMouse(palette.imgClose); });
        EXPECT_NE(application.Loaded<rates::CursValutar>(), nullptr);
    }
    EXPECT_EQ(CountOf("[Curs Valutar]"), 3) << "both answers were good";
}

// The windows that hold the list.

TEST_F(RateQuestionsTest, AnEvolutionThatClosesLeavesTheListToItsEntry) {
    OpenList().cmdAction[rates::CursValutar::ShowEvolution].Click();
    rates::CursValutar& list = OpenList();
    list.cmdAction[rates::CursValutar::AddDay].Click();
    application.Loaded<rates::EvolutieCurs>()->HandleClose();
    EXPECT_FALSE(list.Enabled());
    application.Loaded<rates::CursValutarDetaliu>()->HandleClose();
    EXPECT_TRUE(list.Enabled());
}

TEST_F(RateQuestionsTest, AnEntryThatIsOpenComesForwardAsItIs) {
    rates::CursValutar& list = OpenList();
    list.Grid.SetRow(FreeRow);
    list.cmdAction[rates::CursValutar::AddDay].Click();
    rates::CursValutarDetaliu& entry = *application.Loaded<rates::CursValutarDetaliu>();
    entry.DataCurs.SetDate(Day(2003, 6, 2));
    for (const auto action : {rates::CursValutar::ModifyDay, rates::CursValutar::AddCurrency}) {
        list.cmdAction_Click(action);
        EXPECT_EQ(ActiveWindow(), "CursValutarDetaliu");
        EXPECT_EQ(entry.Caption(), "Curs Valutar - Adaugare");
        EXPECT_EQ(entry.DataCurs.Date(), Day(2003, 6, 2));
        EXPECT_FALSE(list.Enabled());
        EXPECT_EQ(application.Loaded<rates::CereMoneda>(), nullptr);
    }
    connection->ClearRecord();
    entry.cmdAction[rates::CursValutarDetaliu::Accept].Click();
    EXPECT_THAT(connection->Statements(), Contains(StartsWith("INSERT")));
    EXPECT_THAT(connection->Statements(), Not(Contains(StartsWith("UPDATE"))));
}

TEST_F(RateQuestionsTest, AListOpenedUnderAnEntryThatWasLeftOpenWaitsForIt) {
    OpenList().cmdAction[rates::CursValutar::AddDay].Click();
    application.Loaded<rates::CursValutar>()->HandleClose();
    rates::CursValutar& list = OpenList();
    EXPECT_FALSE(list.Enabled());
    EXPECT_EQ(ActiveWindow(), "CursValutarDetaliu");
    application.Loaded<rates::CursValutarDetaliu>()->HandleClose();
    EXPECT_TRUE(list.Enabled());
    EXPECT_EQ(ActiveWindow(), "CursValutar");
}

// Buttons pressed over an editor that keeps the focus.

class RefusedPressTest : public RatesTest {
  protected:
    rates::CursValutarDetaliu& OpenWithEmptyCell() {
        OpenList().cmdAction[rates::CursValutar::AddDay].Click();
        auto& entry = *application.Loaded<rates::CursValutarDetaliu>();
        keyboard.Press(forms::key::Enter);
        keyboard.Press(forms::key::Delete);
        EXPECT_EQ(FocusedControl(), "txtCursValutar");
        return entry;
    }
};

TEST_F(RefusedPressTest, AcceptSaysOnceWhatIsMissing) {
    rates::CursValutarDetaliu& entry = OpenWithEmptyCell();
    forms::Control& accept = entry.cmdAction[rates::CursValutarDetaliu::Accept];
    ClickWithMouse(accept);
    EXPECT_EQ(messages.shown.size(), 1U);
    EXPECT_FALSE(accept.Accessible().pressed);
    EXPECT_EQ(FocusedControl(), "txtCursValutar");
}

TEST_F(RefusedPressTest, AReleaseWithoutAPressCancelsNothing) {
    rates::CursValutarDetaliu& entry = OpenWithEmptyCell();
    forms::Control& cancel = entry.cmdAction[rates::CursValutarDetaliu::Cancel];
    ClickWithMouse(cancel);
    EXPECT_EQ(messages.shown.size(), 1U);
    EXPECT_NE(application.Loaded<rates::CursValutarDetaliu>(), nullptr);
    keyboard.Type("5");
    cancel.HandleMouseUp({forms::MouseButton::Left, {15, 15}, {}});
    EXPECT_NE(application.Loaded<rates::CursValutarDetaliu>(), nullptr);
    EXPECT_EQ(entry.txtCursValutar.Text(), "5");
}

// The address book.

class PersonQuestionsTest : public AgendaTest {
  protected:
    void DeleteWhile(std::function<void(Agenda&)> meanwhile) {
        Agenda& window = OpenOnThree();
        messages.whileShowing = [&window, meanwhile = std::move(meanwhile)] { meanwhile(window); };
        messages.answers = {shell::message::AnswerYes};
        window.cmdAction[Agenda::Delete].Click();
        EXPECT_EQ(messages.shown.size(), 1U);
        EXPECT_THAT(connection->Statements(), Not(Contains(StartsWith("DELETE"))));
        EXPECT_TRUE(desktop.reports.empty());
        EXPECT_THAT(Names(), ElementsAre("Albu Dan", "Enescu Ana", "Popa Ion"));
    }
};

TEST_F(PersonQuestionsTest, NobodyIsDeletedForABookThatHasGone) {
    DeleteWhile([](Agenda& window) { window.HandleClose(); });
}

TEST_F(PersonQuestionsTest, NobodyIsDeletedInOtherDataThanTheQuestionWasAbout) {
    DeleteWhile([this](Agenda&) {
        application.context.connection =
            std::make_shared<RecordingConnection>(std::make_shared<host::EmbeddedConnection>(database));
    });
}

TEST_F(PersonQuestionsTest, NobodyIsDeletedWhereAnotherPersonHasComeIntoThePlace) {
    DeleteWhile([](Agenda& window) { window.Grid.SetRow(2); });
}

TEST_F(PersonQuestionsTest, LeavingABookThatHasGoneIsHarmless) {
    Agenda& window = OpenOnThree();
    messages.whileShowing = [&] { window.HandleClose(); };
    messages.answers = {shell::message::AnswerYes};
    window.cmdAction[Agenda::Cancel].Click();
    EXPECT_EQ(application.Loaded<Agenda>(), nullptr);
    EXPECT_TRUE(desktop.reports.empty());
}

}  // namespace
}  // namespace tavrin::tests
