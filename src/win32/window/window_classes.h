#pragma once

#include <windows.h>

namespace tavrin::win32 {

/// Registers the component's window classes and unregisters them again: a class that outlived the module
/// would make the registration fail when the module is loaded anew. \throws data::Error when the system
/// refuses.
class WindowClasses {
  public:
    static constexpr const wchar_t* Form = L"Tavrin.Form";
    static constexpr const wchar_t* Control = L"Tavrin.Control";

    explicit WindowClasses(HINSTANCE module);
    ~WindowClasses();
    WindowClasses(const WindowClasses&) = delete;
    WindowClasses& operator=(const WindowClasses&) = delete;

  private:
    HINSTANCE module_;
};

}  // namespace tavrin::win32
