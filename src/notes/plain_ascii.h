#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace tavrin::notes {

/// Whether a byte of a file stands for itself: printable ASCII that is not part of the syntax.
constexpr bool IsPlain(char byte) {
    return byte >= 0x20 && byte < 0x7F && byte != '{' && byte != '}' && byte != '\\';
}

inline constexpr std::array<bool, 256> PlainBytes = [] {
    std::array<bool, 256> plain{};
    for (std::size_t i = 0; i < plain.size(); ++i)
        plain[i] = IsPlain(static_cast<char>(i));
    return plain;
}();

/// Whether all of eight bytes are plain. It may answer false for some with | or ~.
inline bool AreEightPlain(const char* bytes) {
    constexpr std::uint64_t each = 0x0101010101010101;
    constexpr std::uint64_t highs = each * 0x80;
    std::uint64_t word = 0;
    std::memcpy(&word, bytes, sizeof word);
    const std::uint64_t backslashes = word ^ each * '\\';
    // A bit that is set by a borrow from the byte before is set wrongly, but that byte has set its own.
    const std::uint64_t low = word - each * ' ';
    const std::uint64_t high = word + each * (0x80 - '{');
    return ((word | low | high | (backslashes - each)) & highs) == 0;
}

/// How many bytes at the front of the text are plain. Notes consist of little else, so it counts by eights
/// first.
inline std::size_t LengthOfPlain(std::string_view text) {
    std::size_t length = 0;
    while (text.size() - length >= 8 && AreEightPlain(text.data() + length))
        length += 8;
    while (length < text.size() && PlainBytes[static_cast<unsigned char>(text[length])])
        ++length;
    return length;
}

}  // namespace tavrin::notes
