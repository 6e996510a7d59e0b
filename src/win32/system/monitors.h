#pragma once

#include <windows.h>

namespace tavrin::win32 {

/// Where a window belongs, in pixels of the screen: where it stands while the middle of its upper edge, by
/// which the user takes hold of it, is on a monitor; else moved onto the nearest one as little as need be.
POINT ReachablePlace(const RECT& window);

/// What the system leaves to windows on the monitor that most of that one is on, in pixels of the screen.
RECT WorkAreaOf(const RECT& window);

/// The user drags an edge or a corner of a window (WMSZ_...): it stops at the edge of an area.
void StopAtEdge(RECT& window, WPARAM dragged, const RECT& area);

}  // namespace tavrin::win32
