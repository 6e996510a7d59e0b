#pragma once

#include <windows.h>

#include <initializer_list>
#include <string_view>

#include "e2e/driver/ui_thread.h"
#include "e2e/driver/window.h"

namespace tavrin::e2e {

// What a user does with keyboard and mouse, put into the system's input queue. Unless said otherwise they
// return at once; the effect is to be waited for. What moves the pointer first waits until it has arrived.
// Places are pixels of the screen.

/// Presses and releases a key by its virtual-key code, the given ones held.
void PressKey(WORD key, std::initializer_list<WORD> held = {});

/// Characters of Latin-1: by their keys, or as TypeUnicode where the layout has no key for one without AltGr.
void TypeText(std::string_view text);

/// Characters that no key of the layout gives, as an input method sends them.
void TypeUnicode(std::wstring_view text);

enum class Button { Left, Right };

void MovePointer(POINT place);
POINT PointerPlace();
/// Waits until nothing covers the place: else the click would not arrive. \throws DriverError when something
/// stays
void Click(const Window& target, Button button = Button::Left);
void ClickAt(POINT place, Button button = Button::Left);
/// Presses the left button, moves in a few steps and lets go. Waits after each step until the thread has
/// dealt with it: the system makes one message of moves that nobody has fetched.
void Drag(UiThread& thread, POINT from, POINT to);

}  // namespace tavrin::e2e
