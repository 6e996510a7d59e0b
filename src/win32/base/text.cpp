#include "win32/base/text.h"

#include <array>

#include "data/error.h"

namespace tavrin::win32 {

std::wstring ToWide(std::string_view text) {
    if (text.empty()) return {};
    const int size = static_cast<int>(text.size());
    std::wstring wide(
        static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0)), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), static_cast<int>(wide.size()));
    return wide;
}

std::string ToUtf8(std::wstring_view text) {
    if (text.empty()) return {};
    const int size = static_cast<int>(text.size());
    std::string narrow(static_cast<std::size_t>(
                           WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr)),
                       '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), size, narrow.data(), static_cast<int>(narrow.size()),
                        nullptr, nullptr);
    return narrow;
}

std::string HexText(std::uint32_t number) {
    std::string text;
    for (int shift = 28; shift >= 0; shift -= 4)
        text += "0123456789ABCDEF"[number >> shift & 0xFU];
    return text;
}

std::string SystemMessage(HRESULT result) {
    std::array<wchar_t, 512> buffer{};
    const DWORD flags = FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS;
    DWORD length = FormatMessageW(flags, nullptr, static_cast<DWORD>(result), 0, buffer.data(),
                                  static_cast<DWORD>(buffer.size()), nullptr);
    while (length > 0 && buffer[length - 1] <= L' ')
        --length;
    if (length > 0) return ToUtf8({buffer.data(), length});
    return std::string(data::NamelessResult) + HexText(static_cast<std::uint32_t>(result));
}

}  // namespace tavrin::win32
