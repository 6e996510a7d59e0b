#pragma once

#include <windows.h>

#include <string>

namespace tavrin::e2e {

/// Puts a UTF-8 text where Ctrl+V takes it from. To be called on a thread that has a message loop.
/// \throws DriverError when the clipboard cannot be had
void PutOnClipboard(const std::string& text);

/// What another program would paste, as UTF-8; "no text" without one. \throws DriverError as above
std::string TextOnClipboard();
/// The picture's size in pixels, 0 by 0 without one. \throws DriverError as above
SIZE PictureOnClipboard();

}  // namespace tavrin::e2e
