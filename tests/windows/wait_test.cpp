// What may take its time is announced: the desktop can tell the user to wait before the thread is gone into a
// statement or a file.

#include <gmock/gmock.h>

#include "notes_fixture.h"
#include "shell/message_service.h"
#include "support/rates_test.h"

namespace tavrin::tests {
namespace {

/// Asks of each statement whether the wait for it had begun.
class WatchedConnection : public data::Connection {
  public:
    WatchedConnection(std::shared_ptr<data::Connection> underlying, const HeadlessDesktop& desktop)
        : underlying_(std::move(underlying)), desktop_(desktop) {}

    std::unique_ptr<data::Recordset> Execute(std::string_view statement) override {
        Look();
        return underlying_->Execute(statement);
    }
    std::unique_ptr<data::Recordset> CreateRecordset() override {
        Look();
        return underlying_->CreateRecordset();
    }

    int statements = 0;
    int unannounced = 0;

  private:
    void Look() {
        ++statements;
        if (!desktop_.isWaiting) ++unannounced;
    }

    std::shared_ptr<data::Connection> underlying_;
    const HeadlessDesktop& desktop_;
};

class WaitTest : public RatesTest {
  protected:
    WaitTest() { application.context.connection = watched; }
    ~WaitTest() override { desktop.UnloadAll(); }

    std::shared_ptr<WatchedConnection> watched = std::make_shared<WatchedConnection>(connection, desktop);
};

TEST_F(WaitTest, EveryStatementOfAHandlerIsInsideOneWait) {
    rates::CursValutar& list = OpenList();
    EXPECT_FALSE(desktop.isWaiting);
    for (forms::Control* button :
         {static_cast<forms::Control*>(&list.cmdRefresh),
          static_cast<forms::Control*>(&list.cmdAction[rates::CursValutar::ShowEvolution])}) {
        desktop.waits = 0;
        watched->statements = 0;
        button->Click();
        EXPECT_GT(watched->statements, 1);
        EXPECT_EQ(watched->unannounced, 0);
        EXPECT_EQ(desktop.waits, 1) << "the pointer does not flicker from statement to statement";
        EXPECT_FALSE(desktop.isWaiting) << "the handler has ended";
    }
}

TEST_F(WaitTest, WhatNeedsNoStatementWaitsForNothing) {
    OpenList();
    desktop.waits = 0;
    keyboard.Press(forms::key::Down);
    keyboard.Press(forms::key::Tab);
    EXPECT_EQ(desktop.waits, 0);
}

TEST_F(WaitTest, AFailedStatementEndsTheWaitBeforeItsReport) {
    rates::CursValutar& list = OpenList();
    connection->FailStatement("between", data::Error(-2147467259, "Timeout expired"));
    bool waitedWhileReporting = true;
    desktop.whileReporting = [&] { waitedWhileReporting = desktop.isWaiting; };
    list.cmdRefresh.Click();
    EXPECT_EQ(desktop.reports.size(), 1U);
    EXPECT_FALSE(waitedWhileReporting);
    EXPECT_FALSE(desktop.isWaiting);
}

TEST_F(WaitTest, AQuestionIsNotWaitedForAndWhatFollowsItIs) {
    rates::CursValutar& list = OpenList();
    list.Grid.SetRow(5);
    bool waitedWhileAsking = true;
    messages.whileShowing = [&] { waitedWhileAsking = desktop.isWaiting; };
    messages.answers.push_back(shell::message::AnswerYes);
    desktop.waits = 0;
    list.cmdAction[rates::CursValutar::DeleteDay].Click();
    EXPECT_EQ(CountOf("[Curs Valutar]"), 4) << "the day is deleted";
    EXPECT_FALSE(waitedWhileAsking);
    EXPECT_EQ(watched->unannounced, 0);
    EXPECT_EQ(desktop.waits, 2) << "before the question and after it";
    EXPECT_FALSE(desktop.isWaiting);
}

class NoteWaitTest : public NotesTest {};

TEST_F(NoteWaitTest, SavingAndLoadingAreWaitedForOnceTheFileIsChosen) {
    Notes& window = Open();
    desktop.dialogs.chosenFile = "C:\\note.rtf";
    window.ImgBouton[Notes::Save].Click();
    EXPECT_EQ(desktop.waits, 1);
    OpenNote(window);
    EXPECT_EQ(desktop.waits, 2);
    desktop.dialogs.chosenFile.reset();
    window.ImgBouton[Notes::Save].Click();
    EXPECT_EQ(desktop.waits, 2) << "cancelled";
    EXPECT_FALSE(desktop.isWaiting);
}

}  // namespace
}  // namespace tavrin::tests
