#pragma once

#include <windows.h>

#include <optional>

#include "forms/drawing/contrast.h"
#include "win32/paint/dib_surface.h"
#include "win32/window/window.h"
#include "win32/window/window_resources.h"

namespace tavrin::win32 {

/// One WM_PAINT or WM_PRINTCLIENT: what is drawn on the surface appears in the window at once, at the end, so
/// that nothing flickers. While it lasts no other window may be painted.
class WindowPainter {
  public:
    /// `origin` is the window's place in its parent, in twips.
    WindowPainter(HWND window, const Message& message, WindowResources& resources, Scale scale,
                  forms::Point origin);
    ~WindowPainter();
    WindowPainter(const WindowPainter&) = delete;
    WindowPainter& operator=(const WindowPainter&) = delete;

    /// What is drawn in a window's own colours appears in those that the user has set.
    forms::Surface& Surface() { return contrast_ ? static_cast<forms::Surface&>(*contrast_) : surface_; }

  private:
    /// Begins and ends the painting, or takes the device context that came along.
    struct Target {
        Target(HWND target, const Message& message);
        ~Target();
        Target(const Target&) = delete;
        Target& operator=(const Target&) = delete;

        HWND window;
        bool begun;
        PAINTSTRUCT paint{};
    };

    DibCanvas& Reserved(WindowResources& resources) const;

    Target target_;
    DibCanvas& canvas_;
    DibSurface surface_;
    std::optional<forms::ContrastSurface> contrast_;
};

}  // namespace tavrin::win32
