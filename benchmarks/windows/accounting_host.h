#pragma once

#include <windows.h>

#include <tavrin_interfaces.h>

#include <memory>

#include "e2e/driver/window.h"
#include "host/ado/connection_object.h"
#include "host/ado/recordset_factory.h"
#include "host/embedded/embedded_database.h"
#include "win32/base/com_ptr.h"

namespace tavrin::bench {

/// What an accounting program has open before it calls the component: its database, with demo data, and the
/// connection that it passes on. The component is the built DLL, registered with the system.
class AccountingHost {
  public:
    AccountingHost();
    ~AccountingHost();
    AccountingHost(const AccountingHost&) = delete;
    AccountingHost& operator=(const AccountingHost&) = delete;

    host::EmbeddedDatabase& Data() { return *database_; }

    /// Creates the component's object and opens the palette, which is painted when this returns.
    /// \throws std::runtime_error
    e2e::Window OpenPalette();
    /// Clicks a control and waits for the window that it opens. \throws e2e::DriverError without one
    static e2e::Window Open(const e2e::Window& opener, const char* control, const char* window);
    static void Close(const e2e::Window& window);
    /// Closes the palette, and with it everything, and has the DLL unloaded.
    void Leave();

  private:
    std::shared_ptr<host::EmbeddedDatabase> database_;
    host::RecordsetRegistration recordsetClass_;
    win32::ComPtr<host::ConnectionObject> connection_;
    win32::ComPtr<_Utile> object_;
};

}  // namespace tavrin::bench
