#pragma once

#include <windows.h>

#include "forms/model/accessible.h"

namespace tavrin::win32 {

/// The platform's numbers for a node's role and state.
LONG RoleOf(const forms::AccessibleNode& node);
LONG StateOf(const forms::AccessibleNode& node);

}  // namespace tavrin::win32
