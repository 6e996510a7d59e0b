#pragma once

#include <memory>

#include "data/connection.h"
#include "proofs/fault_plan.h"

namespace tavrin::tests {

/// Passes everything on to the connection underneath, and lets its plan strike. Its tables end the program
/// when they are asked for a cell that they do not have.
class FaultyConnection : public data::Connection {
  public:
    FaultyConnection(std::shared_ptr<data::Connection> underlying, std::shared_ptr<FaultPlan> plan);

    std::unique_ptr<data::Recordset> Execute(std::string_view statement) override;
    std::unique_ptr<data::Recordset> CreateRecordset() override;

  private:
    std::shared_ptr<data::Connection> underlying_;
    std::shared_ptr<FaultPlan> plan_;
};

}  // namespace tavrin::tests
