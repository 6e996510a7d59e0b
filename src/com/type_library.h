#pragma once

#include <windows.h>

#include <oaidl.h>

#include "win32/base/com_ptr.h"

namespace tavrin::com {

/// The type library inside the component's own file. It is read when it is first needed, registered or not.
class TypeLibrary {
  public:
    explicit TypeLibrary(HINSTANCE module) : module_(module) {}

    /// The description of an interface or class of the library.
    HRESULT Find(REFGUID id, ITypeInfo** info);

    /// The whole library. \return null where it cannot be read
    win32::ComPtr<ITypeLib> Library();

    /// Lets go of what was read.
    void Release() { library_.Reset(); }

  private:
    HINSTANCE module_;
    win32::ComPtr<ITypeLib> library_;
};

}  // namespace tavrin::com
