#pragma once

#include <windows.h>

namespace tavrin::win32 {

/// Where a window belongs, in pixels of the screen: where it stands while the middle of its upper edge, by
/// which the user takes hold of it, is on a monitor; else moved onto the nearest one as little as need be.
POINT ReachablePlace(const RECT& window);

}  // namespace tavrin::win32
