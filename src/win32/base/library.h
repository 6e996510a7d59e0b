#pragma once

#include <windows.h>

#include "win32/base/handles.h"

namespace tavrin::win32 {

/// A library of the platform that is loaded when it is needed, and let go with this object. It comes from the
/// system's folder alone: a file of that name beside the host or in the current folder is not looked at.
class Library {
  public:
    /// Where the system has none of that name there are no functions in it.
    explicit Library(const wchar_t* name);

    /// The exported function of that name. \throws data::Error where there is none
    template <class Function>
    Function* Find(const char* name) const {
        return As<Function>(FindAddress(name));
    }

    /// The same for what some systems lack: null there.
    template <class Function>
    Function* FindOptional(const char* name) const {
        return As<Function>(FindOptionalAddress(name));
    }

    /// Has the library stay as long as the process. \throws data::Error where there is none
    void Keep() const;

  private:
    template <class Function>
    static Function* As(FARPROC address) {
        return reinterpret_cast<Function*>(reinterpret_cast<void (*)()>(address));
    }
    FARPROC FindAddress(const char* name) const;
    FARPROC FindOptionalAddress(const char* name) const;

    OwnedModule module_;
};

/// A function of the platform that a system may lack: null then, and not to be called. Its library stays
/// loaded as long as this object is there.
template <class Function>
class SystemFunction {
  public:
    SystemFunction(const wchar_t* library, const char* name)
        : library_(library), function_(library_.FindOptional<Function>(name)) {}

    operator Function*() const { return function_; }

  private:
    Library library_;
    Function* function_;
};

}  // namespace tavrin::win32
