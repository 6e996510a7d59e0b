#pragma once

#include <windows.h>

#include <string>

#include "win32/base/handles.h"
#include "win32/window/window_resources.h"

namespace tavrin::win32 {

/// The tool tips of one form's controls, shown by one window of the platform, which is made with the first of
/// them.
class ToolTips {
  public:
    ToolTips(const WindowResources& resources, HWND form) : resources_(resources), form_(form) {}

    /// Sets the text that a control shows, none when it is empty.
    void Set(HWND control, const std::string& text);
    void Remove(HWND control);
    /// The system's colours may have changed.
    void ShowColors();

  private:
    void MakeWindow();

    const WindowResources& resources_;
    OwnedWindow window_;
    HWND form_;
};

}  // namespace tavrin::win32
