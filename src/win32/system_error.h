#pragma once

namespace tavrin::win32 {

/// Throws what GetLastError says. \throws data::Error always
[[noreturn]] void ThrowLastError();

}  // namespace tavrin::win32
