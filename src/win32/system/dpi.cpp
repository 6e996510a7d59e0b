#include "win32/system/dpi.h"

namespace tavrin::win32 {

namespace {

/// A function of user32 that older systems lack, null there.
template <class Function>
Function* UserFunction(const char* name) {
    const HMODULE user = GetModuleHandleW(L"user32.dll");
    return reinterpret_cast<Function*>(reinterpret_cast<void (*)()>(GetProcAddress(user, name)));
}

}  // namespace

int SystemDpi() {
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return dpi > 0 ? dpi : USER_DEFAULT_SCREEN_DPI;
}

int DpiOf(HWND window) {
    if (auto* getDpi = UserFunction<UINT WINAPI(HWND)>("GetDpiForWindow")) {
        if (const UINT dpi = getDpi(window); dpi > 0) return static_cast<int>(dpi);
    }
    return SystemDpi();
}

RECT WindowAround(RECT client, DWORD style, DWORD extendedStyle, int dpi) {
    using Adjust = BOOL WINAPI(RECT*, DWORD, BOOL, DWORD, UINT);
    if (auto* adjust = UserFunction<Adjust>("AdjustWindowRectExForDpi")) {
        adjust(&client, style, FALSE, extendedStyle, static_cast<UINT>(dpi));
    } else {
        AdjustWindowRectEx(&client, style, FALSE, extendedStyle);
    }
    return client;
}

}  // namespace tavrin::win32
