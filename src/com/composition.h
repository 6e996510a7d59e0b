#pragma once

#include "shell/module.h"

namespace tavrin::com {

/// Fills the catalogue through which the palette opens the windows.
void AddWindows(shell::Module& module);

/// Shows the palette, its calculator button focused.
void OpenPalette(shell::Module& module);

}  // namespace tavrin::com
