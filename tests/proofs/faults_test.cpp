#include <gtest/gtest.h>

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

TEST(Faults, AWindowThatNobodyEnablesIsAComplaint) {
    UserSession session;
    session.Apel();
    EXPECT_EQ(session.Complaint(), "");
    session.Window("Utilitati")->SetEnabled(false);
    EXPECT_EQ(session.Complaint(), "Utilitati is disabled and nobody will enable it");
}

TEST(Faults, WhatIsLeftBehindIsAComplaint) {
    UserSession session;
    session.Apel();
    const auto rows = session.module.context.connection->CreateRecordset();
    EXPECT_EQ(session.Complaint(), "1 recordsets are alive");
    const auto kept = session.module.context.connection;
    EXPECT_EQ(session.ComplaintAfterLeaving(), "1 recordsets are alive");
}

TEST(Faults, AReferenceThatIsKeptIsAComplaint) {
    UserSession session;
    session.Apel();
    const auto kept = session.module.context.connection;
    session.LeaveAll();
    EXPECT_EQ(session.ComplaintAfterLeaving(), "the connection has 3 references");
}

}  // namespace
}  // namespace tavrin::tests
