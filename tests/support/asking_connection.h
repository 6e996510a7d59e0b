#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "data/connection.h"

namespace tavrin::tests {

/// What windows ask of their recordsets besides running statements.
struct Asked {
    int bulkReads = 0;
    std::vector<std::string> twice;  ///< though nothing had changed since, or once more for the same rows
};

/// Passes everything on to the connection underneath and notes what is asked of its recordsets: rows, names
/// and values. Where they stand and how many they are, the client of ADO remembers by itself.
class AskingConnection : public data::Connection {
  public:
    AskingConnection(std::shared_ptr<data::Connection> underlying, std::shared_ptr<Asked> asked)
        : underlying_(std::move(underlying)), asked_(std::move(asked)) {}

    std::unique_ptr<data::Recordset> Execute(std::string_view statement) override;
    std::unique_ptr<data::Recordset> CreateRecordset() override;

  private:
    std::shared_ptr<data::Connection> underlying_;
    std::shared_ptr<Asked> asked_;
};

}  // namespace tavrin::tests
