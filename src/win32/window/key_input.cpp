#include "win32/window/key_input.h"

namespace tavrin::win32 {

namespace {

bool IsHeld(int key) {
    return GetKeyState(key) < 0;
}

/// A held Escape is one Escape: what it closes must not take the next window along.
bool IsRepeatedEscape(const Message& message) {
    constexpr LPARAM WasDownBefore = LPARAM{1} << 30;
    return message.wParam == VK_ESCAPE && (message.lParam & WasDownBefore) != 0;
}

/// These keys alone would open a menu bar, which no form has.
bool OpensMenu(WPARAM key) {
    return key == VK_MENU || key == VK_F10;
}

char32_t Combine(wchar_t high, wchar_t low) {
    return 0x10000 + ((static_cast<char32_t>(high) & 0x3FF) << 10) + (static_cast<char32_t>(low) & 0x3FF);
}

}  // namespace

forms::Modifiers KeyInput::HeldModifiers() {
    return {IsHeld(VK_SHIFT), IsHeld(VK_CONTROL), IsHeld(VK_MENU)};
}

KeyRoute KeyInput::Handle(forms::Form& form, const Message& message) {
    switch (message.id) {
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
            return OnKeyDown(form, message);
        case WM_KEYUP:
        case WM_SYSKEYUP:
            return OnKeyUp(form, message);
        case WM_CHAR:
            return OnCharacter(form, message);
        case WM_SYSCHAR:
            return OnSystemCharacter(form, message);
        default:
            return KeyRoute::Native;
    }
}

KeyRoute KeyInput::OnKeyDown(forms::Form& form, const Message& message) {
    const unsigned thisKey = ++keysDown_;
    dropCharacter_ = false;
    if (message.wParam == VK_PROCESSKEY) return KeyRoute::Native;  // an input method's own
    // A handler may show a message, whose loop would bring the character here before the handler has ended.
    dropCharacter_ = true;
    if (IsRepeatedEscape(message)) return KeyRoute::Dealt;
    const auto outcome = form.HandleKeyDown(static_cast<int>(message.wParam), HeldModifiers());
    const bool isDone = outcome == forms::KeyOutcome::Done;
    // Where that loop has brought other keys too, the character that comes next is the last one's.
    if (keysDown_ == thisKey) dropCharacter_ = isDone;
    return isDone || OpensMenu(message.wParam) ? KeyRoute::Dealt : KeyRoute::Native;
}

KeyRoute KeyInput::OnKeyUp(forms::Form& form, const Message& message) {
    dropCharacter_ = false;
    form.HandleKeyUp();
    return OpensMenu(message.wParam) ? KeyRoute::Dealt : KeyRoute::Native;
}

KeyRoute KeyInput::OnCharacter(forms::Form& form, const Message& message) {
    if (dropCharacter_) return KeyRoute::Dealt;
    const auto unit = static_cast<wchar_t>(message.wParam);
    if (IS_HIGH_SURROGATE(unit)) {
        highSurrogate_ = unit;
        return KeyRoute::Dealt;
    }
    if (!IS_LOW_SURROGATE(unit)) highSurrogate_ = 0;
    const char32_t character = highSurrogate_ != 0 ? Combine(highSurrogate_, unit) : unit;
    if (form.HandleKeyPress(character) == forms::KeyOutcome::Default) return KeyRoute::Native;
    highSurrogate_ = 0;
    return KeyRoute::Dealt;
}

KeyRoute KeyInput::OnSystemCharacter(forms::Form& form, const Message& message) {
    if (dropCharacter_) return KeyRoute::Dealt;
    form.HandleAccelerator(static_cast<char32_t>(message.wParam));
    // Alt and Space opens the system menu; anything else would only make the system beep.
    return message.wParam == VK_SPACE ? KeyRoute::Native : KeyRoute::Dealt;
}

}  // namespace tavrin::win32
