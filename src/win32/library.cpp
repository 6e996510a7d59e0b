#include "win32/library.h"

#include "win32/system_error.h"

namespace tavrin::win32 {

Library::Library(const wchar_t* name) : module_(LoadLibraryW(name)) {
    if (!module_) ThrowLastError();
}

FARPROC Library::FindAddress(const char* name) const {
    const FARPROC address = GetProcAddress(module_.get(), name);
    if (address == nullptr) ThrowLastError();
    return address;
}

}  // namespace tavrin::win32
