#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "data/connection.h"
#include "data/traced_connection.h"
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
    /// Stands before the connection while somebody is told of statements, else null.
    std::shared_ptr<data::TracedConnection> trace;
    /// Called before each query; empty where nobody wants to know.
    std::function<void()> beforeQuery;

    /// The connection that every query runs on. \throws Error 91 when the host passed none.
    data::Connection& Database() const;

    void RaiseIesire() const noexcept;
};

/// Which connection a window has read its rows from. It is compared with the host's one of a later moment and
/// leads to neither: nothing of the host is kept alive by it, and no statement runs through it.
class ConnectionMark {
  public:
    void Set(const HostContext& context) { connection_ = context.connection; }

    /// Whether a statement would run now where the rows were read. Never before Set, nor without a
    /// connection.
    bool IsCurrent(const HostContext& context) const;

    /// Keeps what was read in one database from being written into another.
    /// \throws Error 91 without a connection, 3709 on another one
    void RequireCurrent(const HostContext& context) const;

  private:
    std::weak_ptr<data::Connection> connection_;
};

}  // namespace tavrin::shell
