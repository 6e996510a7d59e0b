#pragma once

#include "shell/application.h"

namespace tavrin::com {

/// Fills the catalogue through which the palette opens the windows.
void AddWindows(shell::Application& application);

/// Shows the palette, its calculator button focused.
void OpenPalette(shell::Application& application);

}  // namespace tavrin::com
