#include "win32/system/monitors.h"

#include <algorithm>

#include "win32/system/scale.h"

namespace tavrin::win32 {

POINT ReachablePlace(const RECT& window) {
    const POINT hold{(window.left + window.right) / 2, window.top};
    if (MonitorFromPoint(hold, MONITOR_DEFAULTTONULL) != nullptr) return {window.left, window.top};
    const RECT area = WorkAreaOf(window);
    return {std::clamp(window.left, area.left, std::max(area.left, area.right - Width(window))),
            std::clamp(window.top, area.top, std::max(area.top, area.bottom - Height(window)))};
}

RECT WorkAreaOf(const RECT& window) {
    MONITORINFO nearest{};
    nearest.cbSize = sizeof nearest;
    if (GetMonitorInfoW(MonitorFromRect(&window, MONITOR_DEFAULTTONEAREST), &nearest) == FALSE) return window;
    return nearest.rcWork;
}

void StopAtEdge(RECT& window, WPARAM dragged, const RECT& area) {
    const auto isOne = [dragged](WPARAM edge, WPARAM corner, WPARAM otherCorner) {
        return dragged == edge || dragged == corner || dragged == otherCorner;
    };
    if (isOne(WMSZ_LEFT, WMSZ_TOPLEFT, WMSZ_BOTTOMLEFT)) window.left = std::max(window.left, area.left);
    if (isOne(WMSZ_TOP, WMSZ_TOPLEFT, WMSZ_TOPRIGHT)) window.top = std::max(window.top, area.top);
    if (isOne(WMSZ_RIGHT, WMSZ_TOPRIGHT, WMSZ_BOTTOMRIGHT)) window.right = std::min(window.right, area.right);
    if (isOne(WMSZ_BOTTOM, WMSZ_BOTTOMLEFT, WMSZ_BOTTOMRIGHT))
        window.bottom = std::min(window.bottom, area.bottom);
}

}  // namespace tavrin::win32
