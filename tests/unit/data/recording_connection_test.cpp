#include "support/recording_connection.h"

#include <gmock/gmock.h>

namespace tavrin::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Recording : public testing::Test {
  protected:
    Recording() {
        connection_.Script().AnswerRows("SELECT 1", {"x"}, {{std::int64_t{1}}});
        connection_.Script().AnswerDone("DELETE FROM t");
    }

    /// The number of the error that the statement gives, 0 for none.
    std::int32_t Execute(std::string_view statement) {
        try {
            connection_.Execute(statement);
        } catch (const data::Error& error) {
            return error.Number();
        }
        return 0;
    }

    RecordingConnection connection_;
};

TEST_F(Recording, KeepsStatementsWithTheirWayOfExecutionInOrder) {
    connection_.Execute("DELETE FROM t");
    const auto rows = connection_.CreateRecordset();
    rows->Open("SELECT 1");
    rows->MoveNext();
    rows->ReadAll();
    rows->Requery();
    rows->Close();
    EXPECT_THAT(connection_.Log(), ElementsAre("Execute: DELETE FROM t", "Open: SELECT 1",
                                               "ReadAll: SELECT 1", "Requery: SELECT 1", "Close: SELECT 1"));
    EXPECT_THAT(connection_.Statements(), ElementsAre("DELETE FROM t", "SELECT 1", "SELECT 1"));
    connection_.ClearRecord();
    EXPECT_THAT(connection_.Log(), IsEmpty());
}

TEST_F(Recording, RecordsWhatAnExecutedStatementsRowsGoThrough) {
    connection_.Execute("SELECT 1")->Close();
    EXPECT_THAT(connection_.Log(), ElementsAre("Execute: SELECT 1", "Close: SELECT 1"));
}

TEST_F(Recording, AStatementWithoutAScriptIsQuotedInItsError) {
    try {
        connection_.Execute("SELECT  2");
        FAIL();
    } catch (const data::Error& error) {
        EXPECT_THAT(error.Description(), HasSubstr("SELECT  2"));
    }
    EXPECT_THAT(connection_.Log(), ElementsAre("failed Execute: SELECT  2"));
}

TEST_F(Recording, AnswersComeInOrderAndTheLastStays) {
    connection_.Script().AnswerRows("SELECT 1", {"x"}, {{std::int64_t{2}}});
    EXPECT_EQ(data::ExecuteScalar(connection_, "SELECT 1"), data::Value(std::int64_t{1}));
    EXPECT_EQ(data::ExecuteScalar(connection_, "SELECT 1"), data::Value(std::int64_t{2}));
    EXPECT_EQ(data::ExecuteScalar(connection_, "SELECT 1"), data::Value(std::int64_t{2}));
}

TEST_F(Recording, FailsTheNthOperationOnce) {
    connection_.FailOperation(2, data::Error(-5, "broken"));
    EXPECT_EQ(Execute("SELECT 1"), 0);
    EXPECT_EQ(Execute("SELECT 1"), -5);
    EXPECT_EQ(Execute("SELECT 1"), 0);
    EXPECT_THAT(connection_.Log(),
                ElementsAre("Execute: SELECT 1", "failed Execute: SELECT 1", "Execute: SELECT 1"));
}

TEST_F(Recording, FailsFromTheNthOperationOn) {
    connection_.FailOperation(2, data::Error(-5, "broken"), Repeat::Always);
    EXPECT_EQ(Execute("SELECT 1"), 0);
    EXPECT_EQ(Execute("SELECT 1"), -5);
    EXPECT_EQ(Execute("DELETE FROM t"), -5);
    connection_.StopFailing();
    EXPECT_EQ(Execute("SELECT 1"), 0);
}

TEST_F(Recording, FailsStatementsThatContainAText) {
    connection_.FailStatement("DELETE", data::Error(-6, "refused"));
    EXPECT_EQ(Execute("SELECT 1"), 0);
    EXPECT_EQ(Execute("DELETE FROM t"), -6);
    EXPECT_EQ(Execute("DELETE FROM t"), 0);
    connection_.FailStatement("DELETE", data::Error(-7, "refused"), Repeat::Always);
    EXPECT_EQ(Execute("DELETE FROM t"), -7);
    EXPECT_EQ(Execute("DELETE FROM t"), -7);
}

TEST_F(Recording, AFaultInTheMiddleReachesOnlyItsOperation) {
    const auto rows = connection_.CreateRecordset();
    rows->Open("SELECT 1");
    connection_.FailOperation(1, data::Error(-8, "lost"));
    EXPECT_THROW(rows->ReadAll(), data::Error);
    EXPECT_EQ(rows->ReadAll()->RowCount(), 1U);
}

/// Answers nothing, but counts.
class CountingConnection : public data::Connection {
  public:
    std::unique_ptr<data::Recordset> Execute(std::string_view) override {
        ++executed;
        return nullptr;
    }
    std::unique_ptr<data::Recordset> CreateRecordset() override { return nullptr; }
    int executed = 0;
};

TEST(RecordingDecorator, PassesOnWhatDoesNotFail) {
    const auto underlying = std::make_shared<CountingConnection>();
    RecordingConnection connection(underlying);
    connection.FailOperation(1, data::Error(-5, "broken"));
    EXPECT_THROW(connection.Execute("one"), data::Error);
    EXPECT_EQ(underlying->executed, 0);
    EXPECT_EQ(connection.Execute("two"), nullptr);
    EXPECT_EQ(underlying->executed, 1);
}

}  // namespace
}  // namespace tavrin::tests
