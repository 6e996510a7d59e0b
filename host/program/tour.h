#pragma once

#include <string>

#include "host/program/window_thread.h"

namespace tavrin::host {

/// Walks through the utilities' windows with real clicks, as a user would, and saves a picture of each; a
/// line for each says how far it has come. To be run beside the windows' thread. The palette must be open; it
/// is closed at the end. \throws data::Error where a window or a control does not appear
void RunTour(const WindowThread& windows, const std::wstring& folder);

}  // namespace tavrin::host
