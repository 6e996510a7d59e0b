#pragma once

#include <windows.h>

#include <oleacc.h>

#include <string>
#include <vector>

#include "e2e/driver/ui_thread.h"
#include "e2e/driver/window.h"
#include "win32/base/com_ptr.h"

namespace tavrin::e2e {

/// What an assistive tool is told of a control or of one of its parts.
struct AccessibleFacts {
    std::string name;
    std::string value;
    std::string description;
    std::string shortcut;
    std::string defaultAction;
    long role = 0;   ///< ROLE_SYSTEM_...
    long state = 0;  ///< STATE_SYSTEM_... flags
    RECT place{};    ///< pixels of the screen
    int childCount = 0;
};

/// The object itself; call on the thread that owns the control, and let go of it there.
win32::ComPtr<IAccessible> OpenAccessible(const Window& control);

/// Asks a control through IAccessible, on the thread that owns it. \throws DriverError when it does not
/// answer.
AccessibleFacts ReadAccessible(UiThread& thread, const Window& control);

/// The texts of a table's cells row by row, the header first.
using TableTexts = std::vector<std::vector<std::string>>;
TableTexts ReadTable(UiThread& thread, const Window& table);

/// All parts, in the order of their numbers.
std::vector<AccessibleFacts> ReadParts(UiThread& thread, const Window& control);

/// What an assistive tool does to press a control. \return the call's result.
HRESULT DoDefaultAction(UiThread& thread, const Window& control);

}  // namespace tavrin::e2e
