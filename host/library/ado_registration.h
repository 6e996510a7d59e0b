#pragma once

#include <windows.h>

#include <string>

namespace tavrin::host {

/// Puts the library in the place of the system's ADO, which must be there; it is meant for a Wine prefix that
/// serves a test. \return REGDB_E_CLASSNOTREG where there is none
HRESULT RegisterAdo(const std::wstring& library);

/// Gives the system's ADO its place back.
HRESULT UnregisterAdo();

}  // namespace tavrin::host
