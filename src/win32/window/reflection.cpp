#include "win32/window/reflection.h"

namespace tavrin::win32 {

namespace {

/// The control that a message is about, null where it is about none.
HWND Subject(const Message& message) {
    switch (message.id) {
        case WM_COMMAND:
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORSTATIC:
            return reinterpret_cast<HWND>(message.lParam);
        case WM_DRAWITEM:
            return reinterpret_cast<const DRAWITEMSTRUCT*>(message.lParam)->hwndItem;
        default:
            return nullptr;
    }
}

}  // namespace

std::optional<LRESULT> Reflect(const Message& message) {
    const HWND subject = Subject(message);
    if (subject == nullptr) return std::nullopt;
    const LRESULT answer = SendMessageW(subject, message.id + Reflected, message.wParam, message.lParam);
    if (answer == 0 && message.id != WM_COMMAND) return std::nullopt;
    return answer;
}

}  // namespace tavrin::win32
