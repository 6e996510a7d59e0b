#pragma once

#include <windows.h>

#include <oaidl.h>

#include <memory>
#include <vector>

#include "shell/host_context.h"
#include "win32/base/com_ptr.h"

namespace tavrin::com {

/// The listeners of one `Utile` object. It outlives the object where the windows still have to tell them
/// something.
class EventSource : public shell::CallingObject, public std::enable_shared_from_this<EventSource> {
  public:
    struct Connection {
        DWORD cookie;
        win32::ComPtr<IDispatch> sink;
    };

    /// \return what Unadvise takes, never 0
    DWORD Advise(win32::ComPtr<IDispatch> sink);
    /// \return false where no listener goes by that cookie
    bool Unadvise(DWORD cookie);
    const std::vector<Connection>& Connections() const { return connections_; }

    /// Listeners may come, go and release everything meanwhile; one that fails does not stop the others.
    void RaiseIesire() noexcept override;

  private:
    bool IsConnected(DWORD cookie) const;

    std::vector<Connection> connections_;
    DWORD lastCookie_ = 0;
};

}  // namespace tavrin::com
