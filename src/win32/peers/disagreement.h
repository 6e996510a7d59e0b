#pragma once

#include <windows.h>

namespace tavrin::win32 {

/// A question to the window of a form or a control: what does it show otherwise than the model says? The
/// answer is a sum of the values below. Tests ask it between events, since only the window knows both sides.
inline constexpr UINT DisagreementQuestion = WM_APP + 0x2000;

namespace disagreement {
inline constexpr LRESULT None = 0;
inline constexpr LRESULT Enabled = 1;
inline constexpr LRESULT Visible = 2;
inline constexpr LRESULT Focus = 4;
inline constexpr LRESULT Pressed = 8;  ///< without the mouse that would tell of the release
inline constexpr LRESULT Text = 16;
inline constexpr LRESULT Selection = 32;
}  // namespace disagreement

}  // namespace tavrin::win32
