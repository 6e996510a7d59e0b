#pragma once

#include <windows.h>

#include "forms/color.h"
#include "win32/scale.h"

namespace tavrin::win32 {

// The frame and the margins around the platform's edit field: its non-client area.

inline constexpr int FrameThickness = 1;  ///< pixels

/// Between the window's edge and the text, in pixels.
int SideMargin(Scale scale);

/// Paints everything around the client area.
void PaintEditFrame(HWND edit, forms::Color background, forms::Color frame);

/// Has the frame painted anew.
void RedrawFrame(HWND edit);

}  // namespace tavrin::win32
