#pragma once

#include <string>
#include <vector>

namespace tavrin::win32 {

/// What the program was called with, in UTF-8, without its own name.
std::vector<std::string> Arguments();

}  // namespace tavrin::win32
