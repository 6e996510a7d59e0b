#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "data/pass_through_recordset.h"

namespace tavrin::tests {

using data::PassThroughRecordset;

/// Hands out recordsets of another kind over those of the connection underneath.
class PassThroughConnection : public data::Connection {
  public:
    using Wrap = std::function<std::unique_ptr<data::Recordset>(std::unique_ptr<data::Recordset>)>;

    PassThroughConnection(data::Connection& underlying, Wrap wrap)
        : underlying_(underlying), wrap_(std::move(wrap)) {}

    std::unique_ptr<data::Recordset> Execute(std::string_view statement) override {
        return wrap_(underlying_.Execute(statement));
    }
    std::unique_ptr<data::Recordset> CreateRecordset() override {
        return wrap_(underlying_.CreateRecordset());
    }

  private:
    data::Connection& underlying_;
    Wrap wrap_;
};

}  // namespace tavrin::tests
