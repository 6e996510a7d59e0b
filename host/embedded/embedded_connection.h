#pragma once

#include <memory>

#include "data/connection.h"
#include "host/embedded/embedded_recordset.h"

namespace tavrin::host {

/// A connection to an embedded database; several may share one. The recordsets that it creates are
/// EmbeddedRecordsets and may outlive it.
class EmbeddedConnection : public data::Connection {
  public:
    explicit EmbeddedConnection(std::shared_ptr<EmbeddedDatabase> database)
        : database_(std::move(database)) {}

    std::unique_ptr<data::Recordset> Execute(std::string_view statement) override;
    std::unique_ptr<data::Recordset> CreateRecordset() override;

    /// As above, for callers who need the fields' types.
    std::unique_ptr<EmbeddedRecordset> ExecuteEmbedded(std::string_view statement);
    std::unique_ptr<EmbeddedRecordset> CreateEmbeddedRecordset();

    EmbeddedDatabase& Database() { return *database_; }

    /// What lies between it and its database from now on; null where nothing does.
    void UseLine(std::shared_ptr<Line> line) { line_ = std::move(line); }
    Line* LineInUse() const { return line_.get(); }

  private:
    std::shared_ptr<EmbeddedDatabase> database_;
    std::shared_ptr<Line> line_;
};

}  // namespace tavrin::host
