#pragma once

#include "forms/controls/command_button.h"

namespace tavrin::calculator {

/// What a key is for; keys of one kind look alike.
enum class KeyKind { Digit, Operator, Result, Clear, Memory };

/// A key of the calculator: a button whose colour tells its kind. While it is held down, by mouse or
/// keyboard, background and caption change colour.
class KeyButton : public forms::CommandButton {
  public:
    using CommandButton::CommandButton;

    void SetKind(KeyKind kind);
    /// Whether the keyboard holds the key down.
    void SetStruck(bool struck);
    void Draw(forms::Surface& surface) const override;

  protected:
    forms::KeyOutcome DefaultKeyDown(int keyCode, forms::Modifiers modifiers) override;

  private:
    forms::Color FaceColor() const;
    bool IsHeldDown() const { return isStruck_ || (IsPressed() && IsHot()); }

    bool isStruck_ = false;
    KeyKind kind_ = KeyKind::Digit;
};

}  // namespace tavrin::calculator
