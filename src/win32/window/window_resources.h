#pragma once

#include <windows.h>

#include <memory>
#include <optional>
#include <string_view>

#include "win32/base/library.h"
#include "win32/paint/dib_canvas.h"
#include "win32/paint/font_cache.h"
#include "win32/system/activation_context.h"
#include "win32/window/key_input.h"
#include "win32/window/window_classes.h"

namespace tavrin::win32 {

/// What a window is created with. Places are pixels, of the screen or of the parent's client area.
struct WindowParameters {
    const wchar_t* className = WindowClasses::Control;
    std::string_view text;
    DWORD style = 0;
    DWORD extendedStyle = 0;
    RECT place{};
    HWND parent = nullptr;
};

/// What all windows share: classes, fonts, the canvas, the keyboard's state. Every window holds a reference;
/// the last one frees it.
class WindowResources {
  public:
    /// `inUse` is held as long as this object lives.
    WindowResources(HINSTANCE module, std::shared_ptr<const void> inUse);

    HINSTANCE Instance() const { return module_; }
    FontCache& Fonts() { return fonts_; }
    DibCanvas& Canvas() { return canvas_; }
    KeyInput& Keys() { return keys_; }

    /// Further objects that keep the module in use hold this.
    const std::shared_ptr<const void>& InUse() const { return inUse_; }

    /// Has the system draw a window's title bar, or a list's scroll bar, in dark; one that cannot keeps its
    /// own.
    void DarkenTitleBar(HWND window);
    void DarkenScrollBar(HWND window);

    /// \throws data::Error when the system has no window left to give.
    HWND CreateWindowWith(const WindowParameters& parameters) const;

  private:
    using SetAttribute = HRESULT WINAPI(HWND, DWORD, const void*, DWORD);
    using SetTheme = HRESULT WINAPI(HWND, const wchar_t*, const wchar_t*);

    HINSTANCE module_;
    std::shared_ptr<const void> inUse_;
    ActivationContext context_;
    WindowClasses classes_;
    FontCache fonts_;
    DibCanvas canvas_;
    KeyInput keys_;
    // Loading their libraries costs more than anything else of a window: once for all of them.
    std::optional<SystemFunction<SetAttribute>> setAttribute_;
    std::optional<SystemFunction<SetTheme>> setTheme_;
};

}  // namespace tavrin::win32
