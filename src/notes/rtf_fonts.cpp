#include "notes/rtf_fonts.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "notes/note.h"
#include "notes/note_builder.h"

namespace tavrin::notes {

namespace {

/// Old systems had a font once for each part of the world; the name told which.
struct Suffix {
    std::string_view text;
    CodePage page;
};

constexpr Suffix Suffixes[] = {
    {" CE", 1250},  {" CYR", 1251}, {" Cyr", 1251},    {" Greek", 1253},
    {" TUR", 1254}, {" Tur", 1254}, {" Baltic", 1257},
};

constexpr std::string_view SymbolFonts[] = {"Symbol", "Wingdings", "Wingdings 2", "Wingdings 3", "Webdings"};

constexpr std::size_t LongestName = 256;  // in bytes; much more than is kept

/// False where there is none.
bool TakeSuffixOff(RtfFont& font) {
    for (const Suffix& suffix : Suffixes) {
        if (!font.name.ends_with(suffix.text)) continue;
        font.name.resize(font.name.size() - suffix.text.size());
        if (!font.page) font.page = suffix.page;
        return true;
    }
    return false;
}

/// A name is one line of text.
bool IsOfName(char32_t character) {
    return character >= 0x20 && character != character::LineSeparator &&
           character != character::ParagraphSeparator && NoteBuilder::IsText(character);
}

bool IsSymbolFont(std::string_view name) {
    return std::ranges::find(SymbolFonts, name) != std::end(SymbolFonts);
}

/// What a font is follows from its name where nothing else says so.
void Complete(RtfFont& font) {
    // Cutting may bring a suffix to the end, and a name that has been read once must stay the same.
    do {
        font.name = std::string(SoundFontName(font.name));
    } while (TakeSuffixOff(font));
    if (!font.page && IsSymbolFont(font.name)) font.page = code_page::Symbols;
    font.symbols = font.page == code_page::Symbols;
}

}  // namespace

void RtfFonts::Begin(int number) {
    End();
    font_ = {};
    font_.number = number;
    begun_ = true;
}

void RtfFonts::SetCharacterSet(int characterSet) {
    if (!font_.page) font_.page = CodePageOfCharacterSet(characterSet);
}

void RtfFonts::SetPage(int page) {
    if (page > 0 && page <= code_page::Utf8) font_.page = static_cast<CodePage>(page);
}

void RtfFonts::Add(char32_t character) {
    if (character == ';') return End();
    if (!begun_ || !IsOfName(character) || font_.name.size() >= LongestName) return;
    if (character == ' ' && font_.name.empty()) return;
    AppendUtf8(font_.name, character);
}

void RtfFonts::End() {
    if (!std::exchange(begun_, false)) return;
    Complete(font_);
    Keep();
}

RtfFont RtfFonts::Named(std::string_view name) {
    RtfFont font;
    font.name = name;
    Complete(font);
    return font;
}

void RtfFonts::Keep() {
    if (RtfFont* const same = Find(font_.number)) {
        *same = std::move(font_);
        return;
    }
    if (fonts_.size() == MaximumFonts) return;
    const auto place = std::ranges::lower_bound(fonts_, font_.number, {}, &RtfFont::number);
    const auto index = static_cast<std::size_t>(place - fonts_.begin());
    if (!fonts_.empty() && index <= first_) ++first_;
    fonts_.insert(place, std::move(font_));
}

RtfFont* RtfFonts::Find(int number) {
    const auto found = std::ranges::lower_bound(fonts_, number, {}, &RtfFont::number);
    return found != fonts_.end() && found->number == number ? &*found : nullptr;
}

}  // namespace tavrin::notes
