#pragma once

#include <optional>

#include "forms/drawing/contrast.h"

namespace tavrin::win32 {

/// The system's colours where the user has set high contrast; nothing else, as windows have their own then.
std::optional<forms::ContrastColors> HighContrast();

/// One of a window's own colours as it goes to the screen.
forms::Color OnScreen(forms::ColorUse use, forms::Color color);

}  // namespace tavrin::win32
