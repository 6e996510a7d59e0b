#include "win32/peers/inner_edit.h"

#include "win32/peers/combo_peer.h"
#include "win32/window/key_input.h"

namespace tavrin::win32 {

void InnerEdit::Adopt(HWND edit) {
    if (edit != nullptr) Attach(edit, {});
}

void InnerEdit::Release() noexcept {
    if (Handle() != nullptr) Detach();
}

LRESULT InnerEdit::HandleMessage(const Message& message) {
    if (KeyInput::IsKeyMessage(message.id)) return combo_.HandleInnerKey(message);
    if (message.id == WM_GETDLGCODE)
        return DLGC_WANTALLKEYS | DLGC_WANTARROWS | DLGC_WANTTAB | DLGC_WANTCHARS;
    const LRESULT answer = CallDefault(message);
    if (message.id == WM_SETFOCUS) combo_.HandleInnerFocus();
    return answer;
}

}  // namespace tavrin::win32
