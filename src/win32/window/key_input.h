#pragma once

#include <utility>

#include "forms/model/form.h"
#include "win32/window/window.h"

namespace tavrin::win32 {

/// Who acts on a keyboard message.
enum class KeyRoute {
    Dealt,   ///< the model has; the platform must not see it
    Native,  ///< the platform's own control may
};

/// Hands keyboard messages of any host's message loop to a form. A loop translates a key before it dispatches
/// it, so the character of a key that the form has dealt with is already under way: it is dropped when it
/// comes.
class KeyInput {
  public:
    static bool IsKeyMessage(UINT id) { return id >= WM_KEYFIRST && id <= WM_KEYLAST; }

    KeyRoute Handle(forms::Form& form, const Message& message);

    /// The character of the key that is being handled is not to arrive anywhere.
    void DropCharacter() { dropCharacter_ = true; }

    /// Gives a field of the platform a key that was routed natively. A character of two units comes in two
    /// messages: the first was held back until the model had seen the whole character, and goes in before the
    /// second.
    template <class Platform>
    LRESULT PassOn(const Message& message, Platform&& callDefault) {
        if (message.id == WM_CHAR && highSurrogate_ != 0) {
            isInsideCharacter_ = true;
            callDefault({WM_CHAR, static_cast<WPARAM>(std::exchange(highSurrogate_, L'\0')), message.lParam});
            isInsideCharacter_ = false;
        }
        return callDefault(message);
    }

    /// While a field has the first unit of a character and not yet the second: its text is no news then.
    bool IsInsideCharacter() const { return isInsideCharacter_; }

    static forms::Modifiers HeldModifiers();

  private:
    KeyRoute OnKeyDown(forms::Form& form, const Message& message);
    KeyRoute OnKeyUp(forms::Form& form, const Message& message);
    KeyRoute OnCharacter(forms::Form& form, const Message& message);
    KeyRoute OnSystemCharacter(forms::Form& form, const Message& message);

    bool dropCharacter_ = false;
    unsigned keysDown_ = 0;      ///< so far
    wchar_t highSurrogate_ = 0;  ///< held back, until its other half has come
    bool isInsideCharacter_ = false;
};

}  // namespace tavrin::win32
