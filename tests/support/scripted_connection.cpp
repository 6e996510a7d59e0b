#include "support/scripted_connection.h"

#include "data/snapshot_recordset.h"

namespace tavrin::tests {
namespace {

data::TablePtr NextAnswer(ScriptedConnection::Script& script, const std::string& statement) {
    const auto found = script.find(statement);
    if (found == script.end()) {
        throw data::Error(data::error_number::ErrorsInCommand, "No answer is scripted for: " + statement);
    }
    ScriptedConnection::Answers& answers = found->second;
    const ScriptedConnection::Answer& answer = answers.inOrder[answers.next];
    if (answers.next + 1 < answers.inOrder.size()) ++answers.next;
    if (const auto* error = std::get_if<data::Error>(&answer)) throw *error;
    return std::get<data::TablePtr>(answer);
}

class ScriptedRecordset : public data::SnapshotRecordset {
  public:
    explicit ScriptedRecordset(std::shared_ptr<ScriptedConnection::Script> script)
        : script_(std::move(script)) {}

  protected:
    data::TablePtr Fetch(const std::string& source) override { return NextAnswer(*script_, source); }

  private:
    std::shared_ptr<ScriptedConnection::Script> script_;
};

}  // namespace

ScriptedConnection::ScriptedConnection() : script_(std::make_shared<Script>()) {}

ScriptedConnection::~ScriptedConnection() = default;

void ScriptedConnection::AnswerRows(const std::string& statement, data::TablePtr rows) {
    (*script_)[statement].inOrder.emplace_back(std::move(rows));
}

void ScriptedConnection::AnswerRows(const std::string& statement, std::vector<std::string> fieldNames,
                                    const std::vector<data::MemoryTable::Row>& rows) {
    AnswerRows(statement, std::make_shared<data::MemoryTable>(std::move(fieldNames), rows));
}

void ScriptedConnection::AnswerError(const std::string& statement, const data::Error& error) {
    (*script_)[statement].inOrder.emplace_back(error);
}

void ScriptedConnection::AnswerDone(const std::string& statement) {
    AnswerRows(statement, nullptr);
}

std::unique_ptr<data::Recordset> ScriptedConnection::Execute(std::string_view statement) {
    std::unique_ptr<data::Recordset> rows = CreateRecordset();
    rows->Open(statement);
    return rows;
}

std::unique_ptr<data::Recordset> ScriptedConnection::CreateRecordset() {
    return std::make_unique<ScriptedRecordset>(script_);
}

}  // namespace tavrin::tests
