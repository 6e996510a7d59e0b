#pragma once

#include <string>

namespace tavrin::e2e {

/// A path without steps upwards, from the current folder where it is relative.
std::wstring FullPath(const std::wstring& path);

/// A path relative to the folder of the running program, backslashes between its parts.
std::wstring BesideThisProgram(const wchar_t* relative);

}  // namespace tavrin::e2e
