#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace tavrin::win32 {

/// Text is UTF-8 inside and UTF-16 at the edge. What is not valid in the one becomes the replacement
/// character in the other; nothing throws but std::bad_alloc.
std::wstring ToWide(std::string_view text);
std::string ToUtf8(std::wstring_view text);

/// The system's own description of an error, without its line break; "Error 0x..." where it has none.
std::string SystemMessage(HRESULT result);

}  // namespace tavrin::win32
