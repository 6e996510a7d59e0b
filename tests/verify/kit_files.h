#pragma once

#include <string>

namespace tavrin::verify {

/// The kit's folder is that of this program, and the current one from now on: other programs are given no
/// path then, and paths that are none in the system's code page do no harm. \return it, with a backslash at
/// its end
std::wstring EnterKitFolder();

/// The bytes of a file in the current folder. \throws std::runtime_error where it cannot be read
std::string ReadKitFile(const wchar_t* name);

/// \return whether it could be written
bool WriteKitFile(const wchar_t* name, const std::string& content);

/// "1.0.0.451" as a file's version resource has it; "no version" without one.
std::string FileVersion(const wchar_t* name);

}  // namespace tavrin::verify
