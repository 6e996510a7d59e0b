#pragma once

#include <windows.h>

#include "forms/drawing/color.h"
#include "win32/system/scale.h"

namespace tavrin::win32 {

// The frame and the margins around the platform's edit field: its non-client area.

/// How the frame looks: as that of the fields that draw themselves.
struct EditFrame {
    forms::Color color;
    int thickness;        ///< pixels
    bool isLine = false;  ///< at the lower edge alone
};

/// The thickest that a frame gets, in pixels.
int FrameThickness(Scale scale);

/// Between the window's edge and the text, in pixels.
int SideMargin(Scale scale);

/// Paints everything around the client area.
void PaintEditFrame(HWND edit, forms::Color background, EditFrame frame);

/// Has the frame painted anew.
void RedrawFrame(HWND edit);

}  // namespace tavrin::win32
