#pragma once

#include <memory>

#include "data/connection.h"
#include "data/diagnosis.h"

namespace tavrin::data {

/// Passes everything on to another connection and tells each statement, what it took and how many rows it
/// gave or changed. It keeps neither that connection alive nor anything of its answers.
class TracedConnection : public Connection {
  public:
    explicit TracedConnection(std::shared_ptr<Diagnosis> listener) : listener_(std::move(listener)) {}

    /// The connection that runs the statements from now on.
    void Follow(const std::shared_ptr<Connection>& connection) { connection_ = connection; }

    std::unique_ptr<Recordset> Execute(std::string_view statement) override;
    std::unique_ptr<Recordset> CreateRecordset() override;
    std::unique_ptr<Recordset> Adopt(std::unique_ptr<Recordset> recordset) override;

  private:
    std::shared_ptr<Connection> Followed() const;

    std::shared_ptr<Diagnosis> listener_;
    std::weak_ptr<Connection> connection_;
};

}  // namespace tavrin::data
