#include "win32/system/monitors.h"

#include <algorithm>

#include "win32/system/scale.h"

namespace tavrin::win32 {

POINT ReachablePlace(const RECT& window) {
    const POINT hold{(window.left + window.right) / 2, window.top};
    if (MonitorFromPoint(hold, MONITOR_DEFAULTTONULL) != nullptr) return {window.left, window.top};
    MONITORINFO nearest{};
    nearest.cbSize = sizeof nearest;
    if (GetMonitorInfoW(MonitorFromRect(&window, MONITOR_DEFAULTTONEAREST), &nearest) == FALSE)
        return {window.left, window.top};
    const RECT& area = nearest.rcWork;
    return {std::clamp(window.left, area.left, std::max(area.left, area.right - Width(window))),
            std::clamp(window.top, area.top, std::max(area.top, area.bottom - Height(window)))};
}

}  // namespace tavrin::win32
