#include "notes/code_pages.h"

#include <algorithm>
#include <iterator>

#include "data/text/code_page_tables.h"

namespace tavrin::notes {

namespace {

struct CharacterSet {
    std::uint8_t number;
    CodePage page;
};

constexpr CharacterSet CharacterSets[] = {
    {0, code_page::Western},
    {2, code_page::Symbols},
    {77, 10000},
    {128, 932},
    {129, 949},
    {130, 1361},
    {134, 936},
    {136, 950},
    {161, 1253},
    {162, 1254},
    {163, 1258},
    {177, 1255},
    {178, 1256},
    {186, 1257},
    {204, 1251},
    {222, 874},
    {238, 1250},
    {254, 437},
    {255, 850},
};

bool IsDoubleByte(CodePage page) {
    return page == 932 || page == 936 || page == 949 || page == 950 || page == 1361;
}

/// Whether a byte begins a character of two. The Japanese page has letters of one byte in between.
bool Leads(CodePage page, unsigned char byte) {
    return byte > 0x80 && byte != 0xFF && !(page == 932 && (byte == 0xA0 || (byte >= 0xA1 && byte <= 0xDF)));
}

const data::CodePageTable* TableOf(CodePage page) {
    const auto* const table = std::ranges::find(data::CodePageTables, page, &data::CodePageTable::number);
    return table != std::end(data::CodePageTables) ? table : TableOf(code_page::Western);
}

}  // namespace

std::optional<CodePage> CodePageOfCharacterSet(int characterSet) {
    const auto* const found = std::ranges::find(CharacterSets, characterSet, &CharacterSet::number);
    if (found == std::end(CharacterSets)) return std::nullopt;
    return found->page;
}

std::optional<char32_t> CodePageDecoder::Put(CodePage page, unsigned char byte) {
    if (page != page_ || table_ == nullptr) table_ = TableOf(page);
    page_ = page;
    if (page == code_page::Utf8) return PutUtf8(byte);
    if (IsDoubleByte(page)) return PutDoubleByte(page, byte);
    missing_ = 0;
    if (byte < 0x80) return byte;
    if (page == code_page::Symbols) return 0xF000 + byte;
    return table_->upperHalf[byte - 0x80];
}

std::optional<char32_t> CodePageDecoder::PutUtf8(unsigned char byte) {
    if (missing_ > 0 && (byte & 0xC0U) == 0x80U) {
        character_ = character_ << 6U | (byte & 0x3FU);
        if (--missing_ > 0) return std::nullopt;
        return character_;
    }
    missing_ = 0;
    if (byte < 0x80) return byte;
    if (byte >= 0xC2 && byte < 0xF5) {
        missing_ = byte < 0xE0 ? 1 : byte < 0xF0 ? 2 : 3;
        character_ = byte & (0x3FU >> static_cast<unsigned>(missing_));
        return std::nullopt;
    }
    return ReplacementCharacter;
}

std::optional<char32_t> CodePageDecoder::PutDoubleByte(CodePage page, unsigned char byte) {
    if (missing_ == 0 && byte < 0x80) return byte;
    if (missing_ == 0 && Leads(page, byte)) {
        missing_ = 1;
        return std::nullopt;
    }
    missing_ = 0;
    return ReplacementCharacter;
}

}  // namespace tavrin::notes
