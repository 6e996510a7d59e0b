#include "win32/base/library.h"

#include <string>

#include "win32/base/system_error.h"

namespace tavrin::win32 {
namespace {

std::wstring SystemFolder() {
    std::wstring folder(GetSystemDirectoryW(nullptr, 0), L'\0');
    folder.resize(GetSystemDirectoryW(folder.data(), static_cast<UINT>(folder.size())));
    return folder;
}

/// By its whole path, which every version of the system understands; what it needs in turn is looked for
/// beside it.
HMODULE LoadFromSystem(const wchar_t* name) {
    return LoadLibraryExW((SystemFolder() + L"\\" + name).c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
}

}  // namespace

Library::Library(const wchar_t* name) : module_(LoadFromSystem(name)) {}

FARPROC Library::FindAddress(const char* name) const {
    const FARPROC address = FindOptionalAddress(name);
    if (address == nullptr) ThrowSystemError(HRESULT_FROM_WIN32(ERROR_PROC_NOT_FOUND));
    return address;
}

FARPROC Library::FindOptionalAddress(const char* name) const {
    return module_ != nullptr ? GetProcAddress(module_.get(), name) : nullptr;
}

void Library::Keep() const {
    if (module_ == nullptr) ThrowSystemError(HRESULT_FROM_WIN32(ERROR_MOD_NOT_FOUND));
    HMODULE kept = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_PIN | GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                       reinterpret_cast<const wchar_t*>(module_.get()), &kept);
}

}  // namespace tavrin::win32
