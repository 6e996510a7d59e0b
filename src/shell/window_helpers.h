#pragma once

#include <cstdint>

#include "forms/model/form.h"

namespace tavrin::shell {

/// Lets the platform move a borderless window with the mouse, as if its title bar had been pressed.
void MoveByCaption(forms::Form& form);

/// With mode 1: black window; text boxes bordered, black, with green text. Labels, buttons and grids keep
/// their looks. Any other mode changes nothing.
void ApplyDarkScheme(forms::Form& form, std::uint8_t mode);

/// The two buttons that end a small window, side by side over the whole width below everything else.
void PlaceAnswers(forms::Control& accept, forms::Control& cancel, forms::Point topLeft, int width);

}  // namespace tavrin::shell
