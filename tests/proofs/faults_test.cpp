#include <gtest/gtest.h>

#include "forms/controls/text_box.h"
#include "proofs/fault_runner.h"

namespace tavrin::tests {
namespace {

TEST(Faults, LeaveEveryFlowInOrder) {
    FaultRunner runner([](const std::string& what) { ADD_FAILURE() << what; });
    for (std::size_t flow = 0; flow < AllFlows().size(); ++flow)
        runner.RunSomeFaults(flow);
    EXPECT_GE(runner.Figures().flows, 30U);
    EXPECT_GT(runner.Figures().faults, runner.Figures().flows);
}

TEST(Faults, NothingHappensToAWindowThatWasClosedAtItsMessage) {
    FaultRunner runner([](const std::string& what) { ADD_FAILURE() << what; });
    for (std::size_t flow = 0; flow < AllFlows().size(); ++flow)
        runner.RunEveryClosing(flow);
    EXPECT_GT(runner.Figures().interruptions, 30U);
}

TEST(Faults, AWindowThatNobodyEnablesIsAComplaint) {
    UserSession session;
    session.Apel();
    EXPECT_EQ(session.Complaint(), "");
    session.Window("Utilitati")->SetEnabled(false);
    EXPECT_EQ(session.Complaint(), "Utilitati is disabled and nobody will enable it");
}

TEST(Faults, AWindowThatIsEnabledUnderItsHolderIsAComplaint) {
    UserSession session;
    session.Apel();
    session.Click("Utilitati", "cmdAction(3)");
    session.Click("CursValutar", "cmdAction(0)");
    EXPECT_EQ(session.Complaint(), "");
    session.Window("CursValutar")->SetEnabled(true);
    EXPECT_EQ(session.Complaint(), "CursValutar is enabled under CursValutarDetaliu");
}

TEST(Faults, AControlThatChangesWithoutAWordIsAComplaint) {
    UserSession session;
    session.Apel();
    session.Click("Utilitati", "cmdAction(1)");
    auto* box = session.FindAs<forms::TextBox>("Agenda", "TextBoxes(0)");
    box->SetText("another");
    EXPECT_EQ(session.Complaint(), "");
    box->HandleEdited("typed", 5, 0);
    EXPECT_EQ(session.Complaint(), "Agenda.TextBoxes(0) shows another text than it has");
}

TEST(Faults, AStatementOfAWindowThatIsNotThereIsAComplaint) {
    UserSession session;
    session.Apel();
    session.application.context.connection->Execute("DELETE FROM [Curs Valutar] WHERE [Data] = '01-01-2003'");
    EXPECT_EQ(session.Complaint(),
              "no window was there that sends: DELETE FROM [Curs Valutar] WHERE [Data] = '01-01-2003'");
}

TEST(Faults, WhatIsLeftBehindIsAComplaint) {
    UserSession session;
    session.Apel();
    const auto rows = session.application.context.connection->CreateRecordset();
    EXPECT_EQ(session.Complaint(), "1 recordsets are alive");
    const auto kept = session.application.context.connection;
    EXPECT_EQ(session.ComplaintAfterLeaving(), "1 recordsets are alive");
}

TEST(Faults, AReferenceThatIsKeptIsAComplaint) {
    UserSession session;
    session.Apel();
    const auto kept = session.application.context.connection;
    session.LeaveAll();
    EXPECT_EQ(session.ComplaintAfterLeaving(), "the connection has 3 references");
}

}  // namespace
}  // namespace tavrin::tests
