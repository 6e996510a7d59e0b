#include "win32/window/window_classes.h"

#include "win32/base/system_error.h"

namespace tavrin::win32 {

namespace {

void Register(HINSTANCE module, const wchar_t* name, UINT style) {
    WNDCLASSEXW description{};
    description.cbSize = sizeof description;
    description.style = style;
    // Each window is subclassed by its owner, as the platform's own controls are.
    description.lpfnWndProc = DefWindowProcW;
    description.hInstance = module;
    description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    description.lpszClassName = name;
    if (RegisterClassExW(&description) == 0 && GetLastError() != ERROR_CLASS_ALREADY_EXISTS) ThrowLastError();
}

}  // namespace

WindowClasses::WindowClasses(HINSTANCE module) : module_(module) {
    Register(module, Form, CS_DBLCLKS);
    Register(module, Control, CS_DBLCLKS);
}

WindowClasses::~WindowClasses() {
    UnregisterClassW(Control, module_);
    UnregisterClassW(Form, module_);
}

}  // namespace tavrin::win32
