#include "win32/window/mouse_message.h"

#include <windowsx.h>

#include "win32/window/key_input.h"

namespace tavrin::win32 {

namespace {

constexpr WPARAM ButtonKeys = MK_LBUTTON | MK_RBUTTON | MK_MBUTTON;

forms::MouseButton HeldButton(WPARAM keys) {
    if (keys & MK_LBUTTON) return forms::MouseButton::Left;
    if (keys & MK_RBUTTON) return forms::MouseButton::Right;
    if (keys & MK_MBUTTON) return forms::MouseButton::Middle;
    return forms::MouseButton::None;
}

forms::MouseButton ButtonOf(const Message& message) {
    switch (message.id) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONUP:
        case WM_LBUTTONDBLCLK:
            return forms::MouseButton::Left;
        case WM_RBUTTONDOWN:
        case WM_RBUTTONUP:
        case WM_RBUTTONDBLCLK:
            return forms::MouseButton::Right;
        case WM_MBUTTONDOWN:
        case WM_MBUTTONUP:
        case WM_MBUTTONDBLCLK:
            return forms::MouseButton::Middle;
        default:
            return HeldButton(message.wParam);
    }
}

}  // namespace

forms::MouseInput ToMouseInput(const Message& message, Scale scale) {
    return {ButtonOf(message),
            {scale.ToTwips(GET_X_LPARAM(message.lParam)), scale.ToTwips(GET_Y_LPARAM(message.lParam))},
            KeyInput::HeldModifiers()};
}

bool IsButtonDown(UINT id) {
    return id == WM_LBUTTONDOWN || id == WM_RBUTTONDOWN || id == WM_MBUTTONDOWN;
}

bool IsButtonUp(UINT id) {
    return id == WM_LBUTTONUP || id == WM_RBUTTONUP || id == WM_MBUTTONUP;
}

bool IsDoubleClick(UINT id) {
    return id == WM_LBUTTONDBLCLK || id == WM_RBUTTONDBLCLK || id == WM_MBUTTONDBLCLK;
}

bool IsAnyButtonHeld(const Message& message) {
    return (message.wParam & ButtonKeys) != 0;
}

}  // namespace tavrin::win32
