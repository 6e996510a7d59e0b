#include "forms/rtf_escape.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace tavrin::forms {

namespace {

constexpr std::string_view Utf8Start = "{\\urtf";
constexpr std::string_view AsciiStart = R"({\rtf1\ansi\ansicpg1252\uc1)";
constexpr char32_t Replacement = 0xFFFD;

struct Decoded {
    char32_t character;
    std::size_t bytes;
};

bool Continues(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80;
}

/// How many bytes a character takes by its first one, 0 where none begins so.
std::size_t LengthBy(unsigned char lead) {
    if (lead >= 0xC2 && lead < 0xE0) return 2;
    if (lead >= 0xE0 && lead < 0xF0) return 3;
    if (lead >= 0xF0 && lead < 0xF5) return 4;
    return 0;
}

/// The character at the start of a text that begins beyond ASCII.
Decoded Decode(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t length = LengthBy(lead);
    if (length == 0 || length > text.size()) return {Replacement, 1};
    char32_t code = lead & (0xFFU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        if (!Continues(text[i])) return {Replacement, i};
        code = code << 6 | (static_cast<unsigned char>(text[i]) & 0x3FU);
    }
    return {code <= 0x10FFFF ? code : Replacement, length};
}

/// RTF counts in signed numbers of 16 bits.
void AppendUnit(std::string& rtf, char32_t unit) {
    rtf += "\\u";
    rtf += std::to_string(static_cast<std::int16_t>(unit));
    rtf += '?';
}

void AppendCharacter(std::string& rtf, char32_t code) {
    if (code < 0x10000) return AppendUnit(rtf, code);
    AppendUnit(rtf, 0xD800 + ((code - 0x10000) >> 10));
    AppendUnit(rtf, 0xDC00 + ((code - 0x10000) & 0x3FF));
}

/// How much of a text's start is ASCII, which most of every document is: looked at eight bytes at a time.
std::size_t AsciiLength(std::string_view text) {
    constexpr std::uint64_t beyondAscii = 0x8080808080808080U;
    std::size_t length = 0;
    for (std::uint64_t eight = 0; length + sizeof eight <= text.size(); length += sizeof eight) {
        std::memcpy(&eight, text.data() + length, sizeof eight);
        if ((eight & beyondAscii) != 0) break;
    }
    while (length < text.size() && static_cast<unsigned char>(text[length]) < 0x80)
        ++length;
    return length;
}

}  // namespace

std::string EscapeRtf(std::string_view utf8Rtf) {
    std::string rtf;
    rtf.reserve(utf8Rtf.size() + utf8Rtf.size() / 4);
    if (utf8Rtf.starts_with(Utf8Start)) {
        rtf = AsciiStart;
        utf8Rtf.remove_prefix(Utf8Start.size());
        // A version that the editor has written stands in the new start already.
        utf8Rtf.remove_prefix(std::min(utf8Rtf.find_first_not_of("0123456789"), utf8Rtf.size()));
    }
    while (!utf8Rtf.empty()) {
        const std::size_t ascii = AsciiLength(utf8Rtf);
        rtf.append(utf8Rtf.substr(0, ascii));
        utf8Rtf.remove_prefix(ascii);
        if (utf8Rtf.empty()) break;
        const Decoded decoded = Decode(utf8Rtf);
        AppendCharacter(rtf, decoded.character);
        utf8Rtf.remove_prefix(decoded.bytes);
    }
    return rtf;
}

}  // namespace tavrin::forms
