#pragma once

#include <windows.h>

namespace tavrin::win32 {

/// Throws a failure of the platform's, in the platform's words. \throws data::Error always
[[noreturn]] void ThrowSystemError(HRESULT result);

/// Throws what GetLastError says. \throws data::Error always
[[noreturn]] void ThrowLastError();

}  // namespace tavrin::win32
