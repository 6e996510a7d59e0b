#pragma once

namespace tavrin::shell::layout {

// The measures that all windows share, in twips, so that they look like one family.
inline constexpr int Unit = 60;           ///< every distance is a multiple of it
inline constexpr int Margin = 2 * Unit;   ///< between a window's edge and its controls
inline constexpr int Gap = 2 * Unit;      ///< between neighbours
inline constexpr int FieldHeight = 330;   ///< text boxes, combo boxes, date pickers
inline constexpr int ButtonHeight = 420;  ///< buttons with a caption
inline constexpr int LabelHeight = 240;   ///< one line of text

/// To whole pixels at 96 DPI.
inline constexpr int Pixel = 15;
constexpr int RoundedUp(int length) {
    return (length + Pixel - 1) / Pixel * Pixel;
}
constexpr int RoundedDown(int length) {
    return length / Pixel * Pixel;
}

}  // namespace tavrin::shell::layout
