#include "com/type_library.h"

#include <oleauto.h>

#include "win32/module_path.h"
#include "win32/system_error.h"

namespace tavrin::com {

HRESULT TypeLibrary::Find(REFGUID id, ITypeInfo** info) {
    const win32::ComPtr<ITypeLib> library = Library();
    return library ? library->GetTypeInfoOfGuid(id, info) : TYPE_E_CANTLOADLIBRARY;
}

win32::ComPtr<ITypeLib> TypeLibrary::Library() {
    if (!library_) LoadTypeLibEx(win32::ModulePath(module_).c_str(), REGKIND_NONE, library_.Receive());
    return library_;
}

TLIBATTR TypeLibrary::Attributes() {
    const win32::ComPtr<ITypeLib> library = Library();
    TLIBATTR* attributes = nullptr;
    if (!library || FAILED(library->GetLibAttr(&attributes))) win32::ThrowSystemError(TYPE_E_CANTLOADLIBRARY);
    const TLIBATTR copy = *attributes;
    library->ReleaseTLibAttr(attributes);
    return copy;
}

}  // namespace tavrin::com
