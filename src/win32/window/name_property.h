#pragma once

#include <windows.h>

#include <string_view>

namespace tavrin::win32 {

/// The name of a form or a control as the window property `Tavrin.Name`, for test programs and tools of other
/// processes. The value is a global atom, which the system keeps in the letter case in which it was first
/// used. It is taken off again before the window goes.
class NameProperty {
  public:
    NameProperty(HWND window, std::string_view name);
    ~NameProperty();
    NameProperty(const NameProperty&) = delete;
    NameProperty& operator=(const NameProperty&) = delete;

  private:
    HWND window_;
    ATOM atom_;
};

}  // namespace tavrin::win32
