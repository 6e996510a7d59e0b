#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace tavrin::win32 {

/// Text is UTF-8 inside and UTF-16 at the edge. What is not valid in the one becomes the replacement
/// character in the other; nothing throws but std::bad_alloc.
std::wstring ToWide(std::string_view text);
std::string ToUtf8(std::wstring_view text);

/// A result or error code the way the platform writes it: eight hexadecimal digits, capital letters.
std::string HexText(std::uint32_t number);

/// The system's own description of an error, without its line break; "Eroarea 0x..." where it has none.
std::string SystemMessage(HRESULT result);

}  // namespace tavrin::win32
