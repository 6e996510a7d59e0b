#pragma once

#include <windows.h>

#include <string>

#include "com/registry.h"

namespace tavrin::com {

/// Writes the class, its ProgID, the interfaces and the type library of the component in that file into the
/// registry. Where it fails, what it had written is removed again.
/// \return SELFREG_E_CLASS or SELFREG_E_TYPELIB where it fails
HRESULT Register(const std::wstring& file, Scope scope);

/// Removes what Register writes and nothing else; without it there is nothing to do. A registration that
/// names another file is left alone, and what the component of the other bitness shares stays as long as that
/// one is registered.
HRESULT Unregister(const std::wstring& file, Scope scope);

/// The scope that an installer names: "user", or nothing for the machine. \return E_INVALIDARG for others
HRESULT ScopeOf(const wchar_t* name, Scope& scope);

}  // namespace tavrin::com
