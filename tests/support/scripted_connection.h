#pragma once

#include <map>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "data/connection.h"
#include "data/error.h"
#include "data/memory_table.h"

namespace tavrin::tests {

/// A connection without a database: every statement's answer is written down beforehand, character for
/// character. A statement that nobody scripted is an error that quotes it.
class ScriptedConnection : public data::Connection {
  public:
    ScriptedConnection();
    ~ScriptedConnection() override;

    /// Answers for one statement are given in the order in which they were added; the last one stays.
    void AnswerRows(const std::string& statement, data::TablePtr rows);
    void AnswerRows(const std::string& statement, std::vector<std::string> fieldNames,
                    const std::vector<data::MemoryTable::Row>& rows);
    void AnswerError(const std::string& statement, const data::Error& error);
    /// For writes: no rows.
    void AnswerDone(const std::string& statement);

    std::unique_ptr<data::Recordset> Execute(std::string_view statement) override;
    std::unique_ptr<data::Recordset> CreateRecordset() override;

    using Answer = std::variant<data::TablePtr, data::Error>;
    struct Answers {
        std::vector<Answer> inOrder;
        std::size_t next = 0;
    };
    using Script = std::map<std::string, Answers, std::less<>>;

  private:
    std::shared_ptr<Script> script_;  // recordsets may outlive the connection
};

}  // namespace tavrin::tests
