#pragma once

#include <windows.h>

#include <ocidl.h>

#include <tavrin_interfaces.h>

#include <cstdint>
#include <functional>
#include <string>

#include "data/value.h"
#include "win32/base/com_ptr.h"
#include "win32/base/handles.h"

namespace tavrin::host {

/// The component as a host uses it: one `Tavrin.Utile` object, connected to its event. Failures are
/// data::Error.
class Utilities {
  public:
    /// Registers the DLL and creates the object by its program id.
    static Utilities FromRegistration(const std::wstring& dll, std::function<void()> whenLeft);
    /// Loads the DLL and asks it for the object; the registry is not touched.
    static Utilities FromFile(const std::wstring& dll, std::function<void()> whenLeft);

    ~Utilities();
    Utilities(Utilities&&) = default;
    Utilities(const Utilities&) = delete;
    Utilities& operator=(const Utilities&) = delete;

    void Apel(const win32::ComPtr<IDispatch>& connection, data::OleDate date, std::int16_t year,
              std::int32_t company);

  private:
    Utilities(win32::OwnedModule module, win32::ComPtr<_Utile> utile, std::function<void()> whenLeft);

    win32::OwnedModule module_;  // stays loaded as long as the object lives
    win32::ComPtr<_Utile> utile_;
    win32::ComPtr<IConnectionPoint> events_;
    DWORD cookie_ = 0;
};

}  // namespace tavrin::host
