#pragma once

#include <string>

namespace tavrin::doctor {

bool FileExists(const std::wstring& path);

/// 32 or 64 for a program or DLL, 0 for anything else.
int FileBits(const std::wstring& path);

/// "1.0.0.0"; empty where the file does not tell.
std::string FileVersion(const std::wstring& path);

}  // namespace tavrin::doctor
