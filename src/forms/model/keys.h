#pragma once

#include "forms/drawing/geometry.h"

namespace tavrin::forms {

/// Virtual-key codes as the platform numbers them.
namespace key {
inline constexpr int Swallowed = 0;
inline constexpr int Backspace = 8;
inline constexpr int Tab = 9;
inline constexpr int Enter = 13;
inline constexpr int Escape = 27;
inline constexpr int Space = 32;
inline constexpr int PageUp = 33;
inline constexpr int PageDown = 34;
inline constexpr int End = 35;
inline constexpr int Home = 36;
inline constexpr int Left = 37;
inline constexpr int Up = 38;
inline constexpr int Right = 39;
inline constexpr int Down = 40;
inline constexpr int Insert = 45;
inline constexpr int Delete = 46;
inline constexpr int C = 67;
inline constexpr int F4 = 115;
inline constexpr int F6 = 117;
}  // namespace key

/// The modifier keys that were held when an input arrived.
struct Modifiers {
    bool shift = false;
    bool control = false;
    bool alt = false;
    bool operator==(const Modifiers&) const = default;
};

enum class MouseButton { None = 0, Left = 1, Right = 2, Middle = 4 };

/// Where the mouse is, in twips from the control's own top left corner, and which button it is about.
struct MouseInput {
    MouseButton button = MouseButton::None;
    Point at;
    Modifiers modifiers;
};

}  // namespace tavrin::forms
