#include "com/type_library.h"

#include <oleauto.h>

#include "data/error.h"
#include "win32/text.h"

namespace tavrin::com {

std::wstring ModulePath(HINSTANCE module) {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size()) {
            path.resize(length);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

HRESULT TypeLibrary::Find(REFGUID id, ITypeInfo** info) {
    const win32::ComPtr<ITypeLib> library = Library();
    return library ? library->GetTypeInfoOfGuid(id, info) : TYPE_E_CANTLOADLIBRARY;
}

win32::ComPtr<ITypeLib> TypeLibrary::Library() {
    if (!library_) LoadTypeLibEx(ModulePath(module_).c_str(), REGKIND_NONE, library_.Receive());
    return library_;
}

TLIBATTR TypeLibrary::Attributes() {
    const win32::ComPtr<ITypeLib> library = Library();
    TLIBATTR* attributes = nullptr;
    if (!library || FAILED(library->GetLibAttr(&attributes)))
        throw data::Error(TYPE_E_CANTLOADLIBRARY, win32::SystemMessage(TYPE_E_CANTLOADLIBRARY));
    const TLIBATTR copy = *attributes;
    library->ReleaseTLibAttr(attributes);
    return copy;
}

}  // namespace tavrin::com
