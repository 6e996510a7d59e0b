#include "win32/elevation.h"

#include <windows.h>

namespace tavrin::win32 {

bool IsElevated() {
    HANDLE token = nullptr;
    TOKEN_ELEVATION elevation{};
    DWORD size = 0;
    if (OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token) != FALSE) {
        GetTokenInformation(token, TokenElevation, &elevation, sizeof elevation, &size);
        CloseHandle(token);
    }
    return elevation.TokenIsElevated != 0;
}

}  // namespace tavrin::win32
