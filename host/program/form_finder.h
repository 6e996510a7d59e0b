#pragma once

#include <windows.h>

#include <string_view>

namespace tavrin::host {

/// The visible window of this thread that carries the name of a form (`Tavrin.Name`), else null.
HWND FindForm(std::string_view name);

/// The control of that name in a form's window, else null.
HWND FindControl(HWND form, std::string_view name);

}  // namespace tavrin::host
