#include "win32/window/window_resources.h"

#include <commctrl.h>

#include <utility>

#include "win32/base/system_error.h"
#include "win32/base/text.h"
#include "win32/system/scale.h"

namespace tavrin::win32 {

WindowResources::WindowResources(HINSTANCE module, std::shared_ptr<const void> inUse)
    : module_(module), inUse_(std::move(inUse)), context_(module), classes_(module) {
    const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_DATE_CLASSES | ICC_BAR_CLASSES};
    InitCommonControlsEx(&controls);
}

void WindowResources::DarkenTitleBar(HWND window) {
    constexpr DWORD UseImmersiveDarkMode = 20;
    if (!setAttribute_) setAttribute_.emplace(L"dwmapi.dll", "DwmSetWindowAttribute");
    const BOOL dark = TRUE;
    if (*setAttribute_) (*setAttribute_)(window, UseImmersiveDarkMode, &dark, sizeof dark);
}

void WindowResources::DarkenScrollBar(HWND window) {
    if (!setTheme_) setTheme_.emplace(L"uxtheme.dll", "SetWindowTheme");
    if (*setTheme_ && window != nullptr) (*setTheme_)(window, L"DarkMode_Explorer", nullptr);
}

HWND WindowResources::CreateWindowWith(const WindowParameters& parameters) const {
    const ActivationContext::Scope scope(context_);
    const RECT& place = parameters.place;
    const HWND window = CreateWindowExW(
        parameters.extendedStyle, parameters.className, ToWide(parameters.text).c_str(), parameters.style,
        place.left, place.top, Width(place), Height(place), parameters.parent, nullptr, module_, nullptr);
    if (window == nullptr) ThrowLastError();
    return window;
}

}  // namespace tavrin::win32
