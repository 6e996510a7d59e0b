#include "e2e/driver/program_path.h"

#include <windows.h>

#include <array>

#include "win32/base/module_path.h"

namespace tavrin::e2e {

std::wstring FullPath(const std::wstring& path) {
    std::array<wchar_t, 1024> full{};
    const DWORD length =
        GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr);
    return {full.data(), length};
}

std::wstring BesideThisProgram(const wchar_t* relative) {
    return FullPath(win32::ModulePath(nullptr) + L"\\..\\" + relative);
}

}  // namespace tavrin::e2e
