#pragma once

#include "forms/form.h"
#include "win32/window.h"

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

    /// The first half of the surrogate pair whose second half was routed natively last, else 0.
    wchar_t HighSurrogate() const { return highSurrogate_; }

    static forms::Modifiers HeldModifiers();

  private:
    KeyRoute OnKeyDown(forms::Form& form, const Message& message);
    KeyRoute OnKeyUp(const Message& message);
    KeyRoute OnCharacter(forms::Form& form, const Message& message);
    KeyRoute OnSystemCharacter(forms::Form& form, const Message& message);

    bool dropCharacter_ = false;
    wchar_t highSurrogate_ = 0;
};

}  // namespace tavrin::win32
