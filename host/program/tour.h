#pragma once

#include <string>

namespace tavrin::host {

/// Walks through the utilities' windows with real clicks, as a user would, and saves a picture of each.
/// Prints the pictures' paths. The palette must be open; it is closed at the end. \throws data::Error where a
/// window or a control does not appear
void RunTour(const std::wstring& folder);

}  // namespace tavrin::host
