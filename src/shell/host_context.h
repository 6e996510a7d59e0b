#pragma once

#include <cstdint>
#include <memory>

#include "data/connection.h"
#include "data/value.h"

namespace tavrin::shell {

/// The object on which the host called `Apel`, as far as windows need it.
class CallingObject {
  public:
    virtual ~CallingObject() = default;

    /// Tells every listener of the host that the user has left. Never throws.
    virtual void RaiseIesire() noexcept = 0;
};

/// What the host handed over with its last `Apel`. Written by Apel alone, read by every window; it stays as
/// it is when the palette closes.
struct HostContext {
    std::shared_ptr<data::Connection> connection;
    data::OleDate workDate;
    std::int16_t workYear = 0;  ///< a year number, although the host calls the argument bExercitiuInCurs
    std::int32_t companyId = 0;
    std::shared_ptr<CallingObject> caller;

    /// The connection that every query runs on. \throws Error 91 when the host passed none.
    data::Connection& Database() const;

    void RaiseIesire() const noexcept;
};

}  // namespace tavrin::shell
