#include "win32/system/dpi.h"

#include <algorithm>

#include "forms/drawing/text_scale.h"
#include "win32/base/handles.h"
#include "win32/base/library.h"

namespace tavrin::win32 {

int SystemDpi() {
    const int dpi = GetDeviceCaps(WindowDc(nullptr).Get(), LOGPIXELSX);
    return dpi > 0 ? dpi : USER_DEFAULT_SCREEN_DPI;
}

int TextPercent() {
    DWORD wanted = 0;
    DWORD size = sizeof wanted;
    const LSTATUS status = RegGetValueW(HKEY_CURRENT_USER, L"Software\\Microsoft\\Accessibility",
                                        L"TextScaleFactor", RRF_RT_REG_DWORD, nullptr, &wanted, &size);
    RECT area{};
    if (status != ERROR_SUCCESS || SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0) == FALSE) wanted = 0;
    const Scale screen(SystemDpi());
    return forms::UsableTextScale(static_cast<int>(std::min<DWORD>(wanted, 1000)),
                                  {screen.ToTwips(Width(area)), screen.ToTwips(Height(area))});
}

int DpiOf(HWND window) {
    const SystemFunction<UINT WINAPI(HWND)> ask(L"user32.dll", "GetDpiForWindow");
    if (const UINT dpi = ask ? ask(window) : 0; dpi > 0) return static_cast<int>(dpi);
    return SystemDpi();
}

RECT WindowAround(RECT client, DWORD style, DWORD extendedStyle, int dpi) {
    using Adjust = BOOL WINAPI(RECT*, DWORD, BOOL, DWORD, UINT);
    if (const SystemFunction<Adjust> adjust(L"user32.dll", "AdjustWindowRectExForDpi"); adjust) {
        adjust(&client, style, FALSE, extendedStyle, static_cast<UINT>(dpi));
    } else {
        AdjustWindowRectEx(&client, style, FALSE, extendedStyle);
    }
    return client;
}

}  // namespace tavrin::win32
