#pragma once

#include <windows.h>

#include <string>

namespace tavrin::win32 {

/// The file of a module, of any length; null is the program's own.
std::wstring ModulePath(HMODULE module);

/// Whether two paths lead to one file, in short names or long ones.
bool IsSamePath(const std::wstring& one, const std::wstring& other);

}  // namespace tavrin::win32
