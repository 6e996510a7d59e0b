#pragma once

#include <memory>

#include "data/connection.h"
#include "win32/ado/dispatch_object.h"

namespace tavrin::win32 {

/// The host's ADO Connection, or whatever object it passed in its place, reached by late binding. Holds a
/// reference to it; never opens or closes it. An object without ADO's members fails with error 438 when it is
/// first used.
class AdoConnection : public data::Connection {
  public:
    /// \pre connection is not null
    explicit AdoConnection(ComPtr<IDispatch> connection) : connection_(std::move(connection)) {}

    std::unique_ptr<data::Recordset> Execute(std::string_view statement) override;
    std::unique_ptr<data::Recordset> CreateRecordset() override;
    std::unique_ptr<data::Recordset> Adopt(std::unique_ptr<data::Recordset> recordset) override;

    /// Whether that is the object behind it, through whichever of its interfaces.
    bool IsOf(const ComPtr<IDispatch>& connection) const;

  private:
    DispatchObject connection_;
};

}  // namespace tavrin::win32
