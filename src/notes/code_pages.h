#pragma once

#include <cstdint>
#include <optional>
#include <utility>

namespace tavrin::data {
struct CodePageTable;
}

namespace tavrin::notes {

/// What stands where a text cannot be read.
inline constexpr char32_t ReplacementCharacter = 0xFFFD;

/// A code page as documents number them.
using CodePage = std::uint16_t;

namespace code_page {
inline constexpr CodePage Symbols = 42;  ///< pictures in place of letters; they stand from U+F000 on
inline constexpr CodePage Western = 1252;
inline constexpr CodePage Utf8 = 65001;
}  // namespace code_page

/// The code page of a font's character set. None where the set leaves it to the document.
std::optional<CodePage> CodePageOfCharacterSet(int characterSet);

/// Makes characters of bytes, as many at a time as one of them takes. Pages with one byte for a letter and
/// UTF-8 are read; of the pages of East Asia it is only known which bytes belong together, and each character
/// becomes the replacement character: programs that write such notes give every character's number as well.
/// A page that nobody knows is read as the Western one.
class CodePageDecoder {
  public:
    /// The next character, if this byte ends one. ASCII is itself unless it belongs to what came before.
    std::optional<char32_t> Put(CodePage page, unsigned char byte);

    bool IsInsideCharacter() const { return missing_ > 0; }
    /// Whether the byte may belong to the character that has begun.
    bool Continues(CodePage page, unsigned char byte) const {
        return missing_ > 0 && page == page_ && (page != code_page::Utf8 || (byte & 0xC0U) == 0x80U);
    }
    /// Forgets an incomplete character. True if there was one.
    bool Break() { return std::exchange(missing_, 0) > 0; }

  private:
    std::optional<char32_t> PutUtf8(unsigned char byte);
    std::optional<char32_t> PutDoubleByte(CodePage page, unsigned char byte);

    CodePage page_ = 0;                           ///< of the last byte
    const data::CodePageTable* table_ = nullptr;  ///< that of page_, where it has one
    char32_t character_ = 0;
    int missing_ = 0;  ///< bytes that the begun character lacks
};

}  // namespace tavrin::notes
