#pragma once

#include <windows.h>

namespace tavrin::host {

/// \param pixels at 96 DPI
inline int Scaled(LONG pixels) {
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return MulDiv(static_cast<int>(pixels), dpi, USER_DEFAULT_SCREEN_DPI);
}

}  // namespace tavrin::host
