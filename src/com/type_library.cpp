#include "com/type_library.h"

#include <oleauto.h>

#include "win32/base/module_path.h"

namespace tavrin::com {

HRESULT TypeLibrary::Find(REFGUID id, ITypeInfo** info) {
    const win32::ComPtr<ITypeLib> library = Library();
    return library ? library->GetTypeInfoOfGuid(id, info) : TYPE_E_CANTLOADLIBRARY;
}

win32::ComPtr<ITypeLib> TypeLibrary::Library() {
    if (!library_) LoadTypeLibEx(win32::ModulePath(module_).c_str(), REGKIND_NONE, library_.Receive());
    return library_;
}

}  // namespace tavrin::com
