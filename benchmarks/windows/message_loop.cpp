#include "windows/message_loop.h"

#include "windows/by_turns.h"

namespace tavrin::bench {

void RunUntilPainted() {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    GdiFlush();
}

void Settle() {
    constexpr DWORD LongEnough = 20;
    Sleep(LongEnough);
    RunUntilPainted();
}

void PressKey(const e2e::Window& window, WPARAM key) {
    PostMessageW(window.Handle(), WM_KEYDOWN, key, 1);
    PostMessageW(window.Handle(), WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
}

void TypeCharacter(const e2e::Window& window, wchar_t character) {
    PostMessageW(window.Handle(), WM_CHAR, character, 1);
}

void Click(const e2e::Window& control) {
    const LPARAM middle = MAKELPARAM(control.Width() / 2, control.Height() / 2);
    PostMessageW(control.Handle(), WM_LBUTTONDOWN, MK_LBUTTON, middle);
    PostMessageW(control.Handle(), WM_LBUTTONUP, 0, middle);
}

double TimeOfKey(const e2e::Window& window, WPARAM key) {
    return MillisecondsOf([&] {
        PressKey(window, key);
        RunUntilPainted();
    });
}

double TimeOfRepainting(HWND window) {
    return MillisecondsOf([&] {
        RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        GdiFlush();
    });
}

}  // namespace tavrin::bench
