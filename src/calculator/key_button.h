#pragma once

#include "forms/command_button.h"

namespace tavrin::calculator {

/// What a key is for; keys of one kind look alike.
enum class KeyKind { Digit, Operator, Result, Clear, Memory };

/// A key of the calculator: a button whose cap tells its kind by colour and size.
class KeyButton : public forms::CommandButton {
  public:
    using CommandButton::CommandButton;

    void SetKind(KeyKind kind);
    void Draw(forms::Surface& surface) const override;

  private:
    forms::Color FaceColor() const;

    KeyKind kind_ = KeyKind::Digit;
};

}  // namespace tavrin::calculator
