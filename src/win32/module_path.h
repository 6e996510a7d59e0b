#pragma once

#include <windows.h>

#include <string>

namespace tavrin::win32 {

/// The file of a module, of any length; null is the program's own.
std::wstring ModulePath(HMODULE module);

}  // namespace tavrin::win32
