#pragma once

#include <memory>
#include <string>
#include <vector>

#include "data/connection.h"
#include "data/error.h"
#include "support/scripted_connection.h"

namespace tavrin::tests {

/// The ways in which a window touches its database, as far as they are recorded.
enum class Operation { Execute, Open, Requery, ReadAll, Close };

struct RecordedOperation {
    Operation operation;
    std::string statement;  ///< of a recordset: the statement that it was opened with
    bool failed = false;    ///< by an injected fault, or by the connection underneath
};

/// "Execute: SELECT ..."; a failed one begins with "failed ".
std::string Describe(const RecordedOperation& operation);

enum class Repeat { Once, Always };

/// Records, in order, every statement that passes through it with its way of execution, and fails where a
/// test says so. An operation that fails by an injected fault does not reach the connection underneath. Works
/// on any connection, or alone on a script of answers.
class RecordingConnection : public data::Connection {
  public:
    RecordingConnection();  ///< alone; answers come from Script()
    explicit RecordingConnection(std::shared_ptr<data::Connection> underlying);
    ~RecordingConnection() override;

    /// \pre made without a connection underneath
    ScriptedConnection& Script() { return *script_; }

    std::unique_ptr<data::Recordset> Execute(std::string_view statement) override;
    std::unique_ptr<data::Recordset> CreateRecordset() override;

    const std::vector<RecordedOperation>& Recorded() const;
    /// The recorded operations in words, for comparing a whole run at once.
    std::vector<std::string> Log() const;
    /// The statements alone that were executed, opened or requeried.
    std::vector<std::string> Statements() const;
    void ClearRecord();

    /// Fails the n-th operation from now on (1 is the next one), or it and all that follow.
    void FailOperation(std::size_t number, const data::Error& error, Repeat repeat = Repeat::Once);
    /// Fails the next operation, or all, whose statement contains the text.
    void FailStatement(const std::string& containing, const data::Error& error, Repeat repeat = Repeat::Once);
    void StopFailing();

    struct State;

  private:
    std::shared_ptr<ScriptedConnection> script_;
    std::shared_ptr<data::Connection> underlying_;
    std::shared_ptr<State> state_;  // shared with the recordsets, which may outlive the connection
};

}  // namespace tavrin::tests
