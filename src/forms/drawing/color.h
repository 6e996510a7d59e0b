#pragma once

#include <cstdint>

namespace tavrin::forms {

/// A Win32 colour: 0x00BBGGRR.
using Color = std::uint32_t;

inline constexpr Color Black = 0x000000;
inline constexpr Color FocusGrey = 0x404040;  ///< the background of the field that has the focus
inline constexpr Color Green = 0x00FF00;
inline constexpr Color Red = 0x0000FF;

/// The one dark scheme of all windows.
namespace scheme {
inline constexpr Color Window = 0x101010;
inline constexpr Color Field = Black;
inline constexpr Color Face = 0x262626;         ///< buttons, grid headers
inline constexpr Color FaceHot = 0x383838;      ///< under the mouse
inline constexpr Color FacePressed = 0x181818;  ///< held down
inline constexpr Color Border = 0x707070;  ///< of fields and buttons, three to one against what it divides
inline constexpr Color GridLine = 0x303030;
inline constexpr Color Text = 0x9CE69C;          ///< labels, captions
inline constexpr Color LabelText = 0x74AA74;     ///< of a label beside a value, which it leaves in front
inline constexpr Color Value = Green;            ///< what the user may change or read off
inline constexpr Color TextDisabled = 0x9A9A9A;  ///< legible on a button and on a selected row
inline constexpr Color Focus = Green;            ///< the frame around the focused control
inline constexpr Color FocusOnPage = 0x008000;   ///< the same around a white page, which it does not outshine
inline constexpr Color CurrentRow = 0x006C00;    ///< of a grid or a list, three to one against the others
inline constexpr Color CurrentRowDisabled = 0x5A5A5A;
inline constexpr Color TextOfCurrentRowDisabled = 0xE0E0E0;
inline constexpr Color Dimmed = 0x00A800;   ///< of a value that steps back, a calendar's title
inline constexpr Color Zero = Dimmed;       ///< a number that says that there is none
inline constexpr Color Checked = 0x003800;  ///< behind a tool button that is on
}  // namespace scheme

}  // namespace tavrin::forms
