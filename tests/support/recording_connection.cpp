#include "support/recording_connection.h"

#include <algorithm>

#include "data/pass_through_recordset.h"

namespace tavrin::tests {
namespace {

const char* Name(Operation operation) {
    switch (operation) {
        case Operation::Execute:
            return "Execute";
        case Operation::Open:
            return "Open";
        case Operation::Requery:
            return "Requery";
        case Operation::ReadAll:
            return "ReadAll";
        case Operation::Close:
            return "Close";
    }
    return "?";
}

bool CarriesStatement(Operation operation) {
    return operation == Operation::Execute || operation == Operation::Open || operation == Operation::Requery;
}

}  // namespace

struct RecordingConnection::State {
    struct Fault {
        std::string containing;      // empty: any statement
        std::size_t operationsToGo;  // 1: the next matching operation fails
        data::Error error;
        Repeat repeat;
        bool done = false;
    };

    std::vector<RecordedOperation> recorded;
    std::vector<Fault> faults;

    /// Records the operation, fails it where a fault is due, and else runs it.
    template <class Run>
    auto Perform(Operation operation, const std::string& statement, Run run) {
        const std::size_t index = recorded.size();
        recorded.push_back({operation, statement, true});
        ThrowDueFault(statement);
        if constexpr (std::is_void_v<decltype(run())>) {
            run();
            recorded[index].failed = false;
        } else {
            auto result = run();
            recorded[index].failed = false;
            return result;
        }
    }

  private:
    void ThrowDueFault(const std::string& statement) {
        const Fault* due = nullptr;
        for (Fault& fault : faults) {
            if (!IsDue(fault, statement)) continue;
            fault.done = fault.repeat == Repeat::Once;
            if (due == nullptr) due = &fault;
        }
        if (due != nullptr) throw due->error;
    }

    static bool IsDue(Fault& fault, const std::string& statement) {
        if (fault.done || statement.find(fault.containing) == std::string::npos) return false;
        if (fault.operationsToGo > 1) {
            --fault.operationsToGo;
            return false;
        }
        return true;
    }
};

namespace {

using State = RecordingConnection::State;

/// Records what a window does with one recordset; moves and field reads pass through unrecorded.
class RecordingRecordset : public data::PassThroughRecordset {
  public:
    RecordingRecordset(std::shared_ptr<State> state, std::unique_ptr<data::Recordset> rows,
                       std::string source)
        : PassThroughRecordset(std::move(rows)), state_(std::move(state)), source_(std::move(source)) {}

    void Open(std::string_view source) override {
        source_ = source;
        state_->Perform(Operation::Open, source_, [&] { Rows().Open(source); });
    }
    void Close() override {
        state_->Perform(Operation::Close, source_, [&] { Rows().Close(); });
    }
    void Requery() override {
        state_->Perform(Operation::Requery, source_, [&] { Rows().Requery(); });
    }
    data::TablePtr ReadAll() override {
        return state_->Perform(Operation::ReadAll, source_, [&] { return Rows().ReadAll(); });
    }

  private:
    std::shared_ptr<State> state_;
    std::string source_;
};

}  // namespace

std::string Describe(const RecordedOperation& operation) {
    return std::string(operation.failed ? "failed " : "") + Name(operation.operation) + ": " +
           operation.statement;
}

RecordingConnection::RecordingConnection()
    : script_(std::make_shared<ScriptedConnection>()),
      underlying_(script_),
      state_(std::make_shared<State>()) {}

RecordingConnection::RecordingConnection(std::shared_ptr<data::Connection> underlying)
    : underlying_(std::move(underlying)), state_(std::make_shared<State>()) {}

RecordingConnection::~RecordingConnection() = default;

std::unique_ptr<data::Recordset> RecordingConnection::Execute(std::string_view statement) {
    const std::string source(statement);
    auto rows = state_->Perform(Operation::Execute, source, [&] { return underlying_->Execute(statement); });
    if (rows == nullptr) return nullptr;
    return std::make_unique<RecordingRecordset>(state_, std::move(rows), source);
}

std::unique_ptr<data::Recordset> RecordingConnection::CreateRecordset() {
    return std::make_unique<RecordingRecordset>(state_, underlying_->CreateRecordset(), std::string());
}

const std::vector<RecordedOperation>& RecordingConnection::Recorded() const {
    return state_->recorded;
}

std::vector<std::string> RecordingConnection::Log() const {
    std::vector<std::string> log;
    std::transform(state_->recorded.begin(), state_->recorded.end(), std::back_inserter(log), Describe);
    return log;
}

std::vector<std::string> RecordingConnection::Statements() const {
    std::vector<std::string> statements;
    for (const RecordedOperation& recorded : state_->recorded) {
        if (CarriesStatement(recorded.operation)) statements.push_back(recorded.statement);
    }
    return statements;
}

void RecordingConnection::ClearRecord() {
    state_->recorded.clear();
}

void RecordingConnection::FailOperation(std::size_t number, const data::Error& error, Repeat repeat) {
    state_->faults.push_back({"", number, error, repeat});
}

void RecordingConnection::FailStatement(const std::string& containing, const data::Error& error,
                                        Repeat repeat) {
    state_->faults.push_back({containing, 1, error, repeat});
}

void RecordingConnection::StopFailing() {
    state_->faults.clear();
}

}  // namespace tavrin::tests
