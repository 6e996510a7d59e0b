#pragma once

#include <windows.h>

#include "win32/system/scale.h"

namespace tavrin::win32 {

// Resolutions as the host lets us see them: the component never changes the process's awareness of them.

inline constexpr int PointsPerInch = 72;

/// Dots per inch of the screen.
int SystemDpi();
/// How much larger the user wants texts, as far as the windows then still fit the screen.
int TextPercent();
inline Scale SystemScale() {
    return Scale(SystemDpi(), TextPercent());
}

/// Dots per inch of a window, the screen's where the system knows only one.
int DpiOf(HWND window);
inline Scale ScaleOf(HWND window) {
    return Scale(DpiOf(window), TextPercent());
}

/// The rectangle of a window around a client area, at a resolution.
RECT WindowAround(RECT client, DWORD style, DWORD extendedStyle, int dpi);

}  // namespace tavrin::win32
