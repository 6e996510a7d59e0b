#pragma once

#include <windows.h>

#include "win32/handles.h"

namespace tavrin::win32 {

/// A library of the platform that is loaded when it is needed, and let go with this object.
class Library {
  public:
    /// \throws data::Error where the system has none of that name
    explicit Library(const wchar_t* name);

    /// The exported function of that name. \throws data::Error where there is none
    template <class Function>
    Function* Find(const char* name) const {
        return reinterpret_cast<Function*>(reinterpret_cast<void (*)()>(FindAddress(name)));
    }

  private:
    FARPROC FindAddress(const char* name) const;

    OwnedModule module_;
};

}  // namespace tavrin::win32
