#include "win32/program/elevation.h"

#include <windows.h>

#include "win32/base/handles.h"

namespace tavrin::win32 {

bool IsElevated() {
    HANDLE opened = nullptr;
    if (OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &opened) == FALSE) return false;
    const OwnedHandle token(opened);
    TOKEN_ELEVATION elevation{};
    DWORD size = 0;
    GetTokenInformation(token.get(), TokenElevation, &elevation, sizeof elevation, &size);
    return elevation.TokenIsElevated != 0;
}

}  // namespace tavrin::win32
