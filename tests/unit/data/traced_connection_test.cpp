#include "data/traced_connection.h"

#include <gmock/gmock.h>

#include "support/recording_listener.h"
#include "support/scripted_connection.h"

namespace tavrin::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::MatchesRegex;

class TracedConnectionTest : public testing::Test {
  protected:
    TracedConnectionTest() { trace.SetTarget(connection); }

    static data::TablePtr Rows(const std::vector<data::MemoryTable::Row>& rows) {
        return std::make_shared<data::MemoryTable>(std::vector<std::string>{"An"}, rows);
    }

    std::shared_ptr<ScriptedConnection> connection = std::make_shared<ScriptedConnection>();
    std::shared_ptr<RecordingListener> listener = std::make_shared<RecordingListener>();
    data::TracedConnection trace{listener};
};

TEST_F(TracedConnectionTest, TellsAStatementWithItsTimeAndRows) {
    connection->AnswerRows("SELECT An FROM An", Rows({{std::int64_t{2003}}, {std::int64_t{2004}}}));
    EXPECT_EQ(trace.Execute("SELECT An FROM An")->RecordCount(), 2);
    EXPECT_THAT(listener->lines,
                ElementsAre(MatchesRegex("statement, [0-9]+ ms, 2 rows: SELECT An FROM An")));
}

TEST_F(TracedConnectionTest, SaysNothingOfRowsThatTheProviderDoesNotCount) {
    connection->AnswerDone("DELETE FROM An");
    trace.Execute("DELETE FROM An");
    EXPECT_THAT(listener->LinesWithoutTimes(), ElementsAre("statement, N ms: DELETE FROM An"));
}

TEST_F(TracedConnectionTest, TellsTheNumberOfARefusalAndPassesItOn) {
    connection->AnswerError("DROP 'x'", data::Error(-2147217900, "near 'x'"));
    try {
        trace.Execute("DROP 'x'");
        FAIL() << "the refusal was lost";
    } catch (const data::Error& error) {
        EXPECT_EQ(error.Description(), "near 'x'");
    }
    EXPECT_THAT(listener->LinesWithoutTimes(),
                ElementsAre("statement, N ms, failed with -2147217900: DROP '...'"));
}

TEST_F(TracedConnectionTest, TellsEachOpenAndRequeryOfARecordset) {
    connection->AnswerRows("SELECT An FROM An", Rows({{std::int64_t{2003}}}));
    connection->AnswerRows("SELECT An FROM An", Rows({}));
    const auto rows = trace.CreateRecordset();
    EXPECT_THAT(listener->lines, IsEmpty());
    rows->Open("SELECT An FROM An");
    rows->Requery();
    EXPECT_THAT(listener->LinesWithoutTimes(), ElementsAre("statement, N ms, 1 rows: SELECT An FROM An",
                                                           "statement, N ms, 0 rows: SELECT An FROM An"));
}

/// Counts the recordsets of its own that come back to it.
class AdoptingConnection : public ScriptedConnection {
  public:
    std::unique_ptr<data::Recordset> CreateRecordset() override {
        auto made = ScriptedConnection::CreateRecordset();
        own = made.get();
        return made;
    }
    std::unique_ptr<data::Recordset> Adopt(std::unique_ptr<data::Recordset> recordset) override {
        cameBack += recordset.get() == own ? 1 : 0;
        return recordset;
    }

    const data::Recordset* own = nullptr;
    int cameBack = 0;
};

TEST_F(TracedConnectionTest, ARecordsetGoesOnToTheNextConnectionAsTheProviderMadeIt) {
    const auto adopting = std::make_shared<AdoptingConnection>();
    trace.SetTarget(adopting);
    auto rows = trace.Adopt(trace.CreateRecordset());
    EXPECT_EQ(adopting->cameBack, 1);
    adopting->AnswerDone("x");
    rows->Open("x");
    EXPECT_EQ(listener->lines.size(), 1U) << "and is told of there";
}

TEST_F(TracedConnectionTest, KeepsNoConnectionAlive) {
    connection.reset();
    EXPECT_THROW(trace.Execute("SELECT An FROM An"), data::Error);
    EXPECT_THAT(listener->lines, IsEmpty());
}

/// A host that calls in while it runs a statement.
class ReenteringConnection : public ScriptedConnection {
  public:
    std::unique_ptr<data::Recordset> Execute(std::string_view statement) override {
        whileExecuting();
        return ScriptedConnection::Execute(statement);
    }
    std::function<void()> whileExecuting;
};

TEST_F(TracedConnectionTest, AStatementEndsWellAfterItsTraceAndConnectionHaveGone) {
    auto reentering = std::make_shared<ReenteringConnection>();
    reentering->AnswerDone("x");
    auto doomed = std::make_unique<data::TracedConnection>(listener);
    doomed->SetTarget(reentering);
    reentering->whileExecuting = [&] {
        doomed.reset();
        reentering.reset();
    };
    data::TracedConnection& asked = *doomed;
    EXPECT_NE(asked.Execute("x"), nullptr);
    EXPECT_EQ(listener->lines.size(), 1U);
}

TEST(Telling, ComposesNothingForNobody) {
    bool composed = false;
    data::Tell(nullptr, [&] {
        composed = true;
        return "x";
    });
    EXPECT_FALSE(composed);
}

TEST(Telling, LosesALineThatThereIsNoMemoryFor) {
    RecordingListener listener;
    data::Tell(&listener, []() -> std::string { throw std::bad_alloc(); });
    data::Tell(&listener, [] { return "next"; });
    EXPECT_THAT(listener.lines, ElementsAre("next"));
}

}  // namespace
}  // namespace tavrin::tests
