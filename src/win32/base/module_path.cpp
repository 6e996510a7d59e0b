#include "win32/base/module_path.h"

namespace tavrin::win32 {
namespace {

/// The path itself where there is no such file.
std::wstring LongNameOf(const std::wstring& path) {
    const DWORD size = GetLongPathNameW(path.c_str(), nullptr, 0);
    if (size == 0) return path;
    std::wstring name(size, L'\0');
    name.resize(GetLongPathNameW(path.c_str(), name.data(), size));
    return name;
}

}  // namespace

std::wstring ModulePath(HMODULE module) {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        // A path that does not fit is cut, and its length is the buffer's.
        const DWORD length = GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size()) {
            path.resize(length);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

bool IsSamePath(const std::wstring& one, const std::wstring& other) {
    return CompareStringOrdinal(LongNameOf(one).c_str(), -1, LongNameOf(other).c_str(), -1, TRUE) ==
           CSTR_EQUAL;
}

}  // namespace tavrin::win32
