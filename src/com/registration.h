#pragma once

#include <windows.h>

#include "com/server.h"

namespace tavrin::com {

/// Writes the class, its ProgID and the type library into the registry. Where it fails, what it had written
/// is removed again. \return SELFREG_E_CLASS or SELFREG_E_TYPELIB where it fails
HRESULT Register(Server& server);

/// Removes what Register writes and nothing else; without it there is nothing to do.
HRESULT Unregister(Server& server);

}  // namespace tavrin::com
