#pragma once

#include "forms/model/keys.h"
#include "win32/system/scale.h"
#include "win32/window/window.h"

namespace tavrin::win32 {

/// A mouse message of a client area as the model's input. A move is about the button that is held, if any.
forms::MouseInput ToMouseInput(const Message& message, Scale scale);

bool IsButtonDown(UINT id);
bool IsButtonUp(UINT id);
bool IsDoubleClick(UINT id);

/// Whether a button is still held, by the state that came with a mouse message.
bool IsAnyButtonHeld(const Message& message);

}  // namespace tavrin::win32
