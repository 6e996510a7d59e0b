#pragma once

#include <memory>
#include <string>

#include "doctor/core/examined_database.h"
#include "win32/ado/ado_connection.h"

namespace tavrin::doctor {

/// A database behind the machine's ADO, on a connection of its own.
class AdoExamination : public ExaminedDatabase {
  public:
    /// \throws data::Error where there is no ADO, or the connection does not open
    explicit AdoExamination(const std::string& connectionString);
    ~AdoExamination() override;
    AdoExamination(const AdoExamination&) = delete;
    AdoExamination& operator=(const AdoExamination&) = delete;

    data::Connection& Statements() override { return *statements_; }
    void Begin() override { connection_.Call(L"BeginTrans"); }
    void RollBack() override { connection_.Call(L"RollbackTrans"); }

    /// What the connection says of itself: version of ADO, provider, server.
    std::string Description() const;

  private:
    win32::DispatchObject connection_;
    std::unique_ptr<win32::AdoConnection> statements_;
};

}  // namespace tavrin::doctor
