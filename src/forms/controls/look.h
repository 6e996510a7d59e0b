#pragma once

#include "forms/drawing/surface.h"
#include "forms/model/control.h"

namespace tavrin::forms::look {

// What the drawn controls have in common, so that they look like one family.

inline constexpr int Padding = 60;      ///< twips between a frame and what it surrounds
inline constexpr int TextInset = 45;    ///< twips between a field's upper or lower edge and its text
inline constexpr int FocusWidth = 30;   ///< twips; as wide as the frame of the focused control
inline constexpr int ArrowWidth = 255;  ///< twips; the part of a field that opens something

/// A control's own area: its top left corner is (0, 0).
Rect AreaOf(const Control& control);

/// Device pixels for a line of that width, at least one.
int PixelsOf(const Surface& surface, int twips);

/// Colour, font and state of a control's text.
TextStyle TextStyleOf(const Control& control);

/// The edge of a field or a button: plain, dimmed while the control is disabled, broad and bright while it
/// has the focus. A text that is locked has a line beneath it and no frame: it is not there to be written in.
struct Edge {
    Color color = scheme::Border;
    int width = FocusWidth / 2;  ///< twips
    bool isLine = false;
    bool operator==(const Edge&) const = default;
};
Edge EdgeOf(const Control& control, bool hasFocus);

/// Draws the edge of a control that draws itself.
void DrawBorder(Surface& surface, const Control& control);

/// A background with the frame around it.
void DrawField(Surface& surface, const Control& control);

/// The arrow at the right of fields that open something.
void DrawDropArrow(Surface& surface, const Control& control);

/// Hairlines of one device pixel along the inner right or lower edge of an area.
void DrawRightEdge(Surface& surface, const Rect& area, Color color);
void DrawBottomEdge(Surface& surface, const Rect& area, Color color);

}  // namespace tavrin::forms::look
