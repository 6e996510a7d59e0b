#pragma once

#include <windows.h>

#include "e2e/driver/window.h"

namespace tavrin::bench {

/// Runs a host's bare loop until the thread has nothing left to do, and so has painted everything.
void RunUntilPainted();

/// Lets what other processes still have to say of earlier windows arrive first.
void Settle();

/// Posts what the system would, to that window alone: no other program's input gets in between.
void PressKey(const e2e::Window& window, WPARAM key);
void TypeCharacter(const e2e::Window& window, wchar_t character);
void Click(const e2e::Window& control);

/// What a key costs until its effect is on the screen, in milliseconds.
double TimeOfKey(const e2e::Window& window, WPARAM key);

/// What painting all of a window anew costs, in milliseconds.
double TimeOfRepainting(HWND window);

}  // namespace tavrin::bench
