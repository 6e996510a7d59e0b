#pragma once

#include <windows.h>

#include <objbase.h>

#include <string>

#include "win32/base/handles.h"

namespace tavrin::e2e {

// The identity that the component has to the outside, as a host of old may have it compiled in.
inline constexpr wchar_t ProgramId[] = L"Tavrin.Utile";

/// The built DLL by its four exports, loaded for as long as this object lives. The file must exist.
class Component {
  public:
    Component();

    static const std::wstring& Path();
    static void SetPath(std::wstring path);

    /// Whether it is mapped into this process, by whoever.
    static bool IsLoaded();

    HRESULT Register() const { return Call("DllRegisterServer"); }
    HRESULT Unregister() const { return Call("DllUnregisterServer"); }
    /// What an installer calls: "user" registers for the user alone.
    HRESULT Install(BOOL install, const wchar_t* forWhom) const;
    /// For the machine where this process may, else for the user: so that the tests find the class.
    HRESULT RegisterAsAllowed() const;
    HRESULT UnregisterAsAllowed() const;
    HRESULT CanUnloadNow() const { return Call("DllCanUnloadNow"); }
    HRESULT GetClassObject(REFCLSID classId, REFIID interfaceId, void** object) const;

  private:
    HRESULT Call(const char* name) const;
    FARPROC Export(const char* name) const;

    win32::OwnedModule module_;
};

}  // namespace tavrin::e2e
