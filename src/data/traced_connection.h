#pragma once

#include <memory>

#include "data/connection.h"
#include "data/diagnosis.h"

namespace tavrin::data {

/// Forwards everything to another connection and logs each statement with its duration and the number of rows
/// it returned or changed. It keeps neither that connection nor its answers alive.
class TracedConnection : public Connection {
  public:
    explicit TracedConnection(std::shared_ptr<Diagnosis> listener) : listener_(std::move(listener)) {}

    /// The connection that runs the statements from now on.
    void SetTarget(const std::shared_ptr<Connection>& connection) { connection_ = connection; }

    std::unique_ptr<Recordset> Execute(std::string_view statement) override;
    std::unique_ptr<Recordset> CreateRecordset() override;
    std::unique_ptr<Recordset> Adopt(std::unique_ptr<Recordset> recordset) override;

  private:
    std::shared_ptr<Connection> Target() const;

    std::shared_ptr<Diagnosis> listener_;
    std::weak_ptr<Connection> connection_;
};

}  // namespace tavrin::data
