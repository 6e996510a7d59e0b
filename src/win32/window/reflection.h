#pragma once

#include <optional>

#include "win32/window/window.h"

namespace tavrin::win32 {

/// Sends a message that a parent gets about a control on to the control itself, its number raised by
/// Reflected. Nothing for messages that are about no control, and for those the control leaves to the
/// platform.
std::optional<LRESULT> Reflect(const Message& message);

}  // namespace tavrin::win32
