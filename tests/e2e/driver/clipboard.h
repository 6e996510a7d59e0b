#pragma once

#include <string>

namespace tavrin::e2e {

/// Puts a UTF-8 text where Ctrl+V takes it from. To be called on a thread that has a message loop.
/// \throws DriverError when the clipboard cannot be had
void PutOnClipboard(const std::string& text);

}  // namespace tavrin::e2e
