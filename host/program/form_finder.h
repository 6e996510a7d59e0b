#pragma once

#include <windows.h>

#include <string_view>

namespace tavrin::host {

/// The visible window of this process that carries the name of a form (`Tavrin.Name`), else null.
HWND FindForm(std::string_view name);

/// The same for a window that is no form: the uppermost visible one of that class.
HWND FindPlatformWindow(std::string_view className);

/// The control of that name in a form's window, else null.
HWND FindControl(HWND form, std::string_view name);

}  // namespace tavrin::host
