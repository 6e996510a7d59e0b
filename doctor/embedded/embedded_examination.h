#pragma once

#include <memory>
#include <optional>

#include "doctor/core/examined_database.h"
#include "host/embedded/embedded_connection.h"

namespace tavrin::doctor {

/// The stand-in host's database under examination.
class EmbeddedExamination : public ExaminedDatabase {
  public:
    explicit EmbeddedExamination(std::shared_ptr<host::EmbeddedDatabase> database)
        : connection_(std::move(database)) {}

    data::Connection& Statements() override { return connection_; }
    void Begin() override { transaction_.emplace(connection_.Database()); }
    void RollBack() override { transaction_.reset(); }

  private:
    host::EmbeddedConnection connection_;
    std::optional<host::EmbeddedDatabase::Transaction> transaction_;
};

}  // namespace tavrin::doctor
