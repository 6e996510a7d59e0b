#pragma once

#include <string_view>

#include "forms/model/desktop.h"
#include "forms/model/form.h"
#include "forms/model/keys.h"

namespace tavrin::tests {

/// A user's hands on the active window of a desktop. Keys take the way that the platform's messages take: key
/// down, then the character unless somebody dealt with the key, then what the platform's edit field does.
class HeadlessKeyboard {
  public:
    explicit HeadlessKeyboard(forms::Desktop& desktop) : desktop_(desktop) {}

    void Press(int keyCode, forms::Modifiers modifiers = {});
    /// The last key comes up, for whoever minds how long it is down.
    void Release();
    /// Types characters; "\r", "\b" and "\t" are Enter, Backspace and Tab.
    void Type(std::string_view text);
    /// Alt and a letter.
    void Accelerator(char32_t letter);
    /// Puts a text in place of the active field's selection without any key, as the mouse's paste command
    /// does.
    void Paste(std::string_view text);

  private:
    void PressFor(char32_t character);
    void Character(char32_t character);

    forms::Desktop& desktop_;
};

/// A click of a mouse button in the middle of a control, pressed and released.
void ClickWithMouse(forms::Control& control, forms::MouseButton button = forms::MouseButton::Left);
void ClickWithMouse(forms::Control& control, forms::Point at,
                    forms::MouseButton button = forms::MouseButton::Left);

}  // namespace tavrin::tests
