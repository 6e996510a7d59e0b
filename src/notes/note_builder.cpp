#include "notes/note_builder.h"

#include <algorithm>
#include <utility>

namespace tavrin::notes {

namespace {

constexpr std::string_view StandardFont = "Arial";

// In most notes there are more.
constexpr std::size_t BytesOfARun = 64;
constexpr std::size_t BytesOfAParagraph = 100;

bool BeginsCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

/// Whether an editor measures what follows by itself. Of other characters it is not known.
bool EndsStretch(char32_t character) {
    const bool letter = (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
    return character < 0x7F && !letter && character != ' ';
}

std::string_view WithoutBlanksAround(std::string_view text) {
    while (text.starts_with(' '))
        text.remove_prefix(1);
    while (text.ends_with(' '))
        text.remove_suffix(1);
    return text;
}

std::int16_t Clamp(int value, int lowest, int highest) {
    return static_cast<std::int16_t>(std::clamp(value, lowest, highest));
}

/// Every value as an editor takes it: none negative but the first line's indent.
void MakeSound(ParagraphFormat& format) {
    format.leftIndent = Clamp(format.leftIndent, 0, LongestLength);
    format.rightIndent = Clamp(format.rightIndent, 0, LongestLength);
    format.firstLineIndent =
        Clamp(format.firstLineIndent, -format.leftIndent, LongestLength - format.leftIndent);
    format.spaceBefore = Clamp(format.spaceBefore, 0, LongestLength);
    format.spaceAfter = Clamp(format.spaceAfter, 0, LongestLength);
    format.lineHeight = Clamp(format.lineHeight, 0, LongestLength);
    if (format.lineHeight == 0) format.lineSpacing = LineSpacing::Multiple;
}

/// What follows a break within a long paragraph looks as if there were none.
void Continue(ParagraphFormat& format) {
    format.firstLineIndent = 0;
    format.spaceBefore = 0;
    format.bullet = false;
}

}  // namespace

std::string_view SoundFontName(std::string_view name) {
    name = WithoutBlanksAround(name);
    std::size_t units = 0;
    for (std::size_t i = 0; i < name.size(); ++i) {
        if (!BeginsCharacter(name[i])) continue;
        units += static_cast<unsigned char>(name[i]) >= 0xF0U ? 2 : 1;
        if (units > LongestFontName) return WithoutBlanksAround(name.substr(0, i));
    }
    return name;
}

void NoteBuilder::Expect(std::size_t bytes) {
    note_.text.reserve(bytes);
    note_.runs.reserve(bytes / BytesOfARun);
    note_.paragraphs.reserve(bytes / BytesOfAParagraph);
}

std::uint16_t NoteBuilder::Font(std::string_view name, bool symbols) {
    name = SoundFontName(name);
    if (name.empty()) name = StandardFont;
    const auto same = [&](const NoteFont& font) { return font.name == name && font.symbols == symbols; };
    const auto found = std::ranges::find_if(note_.fonts, same);
    if (found != note_.fonts.end()) return static_cast<std::uint16_t>(found - note_.fonts.begin());
    if (note_.fonts.size() == MaximumFonts) return 0;
    note_.fonts.push_back({std::string(name), symbols});
    return static_cast<std::uint16_t>(note_.fonts.size() - 1);
}

bool NoteBuilder::IsText(char32_t character) {
    if (character == character::Tab || character == character::LineBreak) return true;
    if (character < 0x20 || (character >= 0x7F && character < 0xA0)) return false;
    if (character >= 0xD800 && character < 0xE000) return false;
    return character <= 0x10FFFF && (character & 0xFFFEU) != 0xFFFE && character != character::Picture;
}

bool NoteBuilder::TakesMore(std::size_t characters) {
    characters_ += characters;
    tooLarge_ |= characters_ > MaximumCharacters || note_.runs.size() > MaximumRuns ||
                 note_.paragraphs.size() >= MaximumParagraphs;
    return !tooLarge_;
}

/// What has been put behind the text looks like that.
void NoteBuilder::EndText(const RunFormat& format) {
    if (note_.runs.empty() || note_.runs.back().format != format) note_.runs.push_back({0, format});
    note_.runs.back().end = note_.text.size();
}

void NoteBuilder::AddAscii(std::string_view text, const RunFormat& format, const ParagraphFormat& paragraph) {
    const bool mayBeLong = paragraphCharacters_ + text.size() > LongestParagraph ||
                           stretchCharacters_ + text.size() > LongestStretch;
    if (divides_ && mayBeLong) return AddLong(text, format, paragraph);
    if (!TakesMore(text.size())) return;
    note_.text += text;
    EndText(format);
    endsWithBlank_ = text.ends_with(' ');
    stretchCharacters_ += text.size();
    const auto end = std::find_if(text.rbegin(), text.rend(), EndsStretch);
    if (end != text.rend()) stretchCharacters_ = static_cast<std::size_t>(end - text.rbegin());
    paragraphCharacters_ += text.size();
}

void NoteBuilder::AddLong(std::string_view text, const RunFormat& format, const ParagraphFormat& paragraph) {
    for (const char each : text)
        Add(static_cast<unsigned char>(each), format, paragraph);
}

void NoteBuilder::Add(char32_t character, const RunFormat& format, const ParagraphFormat& paragraph) {
    if (!IsText(character)) return;
    // Where a line ends anyway a break is not to be seen.
    const bool endsLine = character == character::LineBreak && paragraphCharacters_ >= LongestParagraph;
    if (divides_ && endsLine) return GoOnInAnother(paragraph);
    if (!TakesMore(1)) return;
    BreakWhereTooLong(paragraph);
    AppendUtf8(note_.text, character);
    EndText(format);
    endsWithBlank_ = character == ' ';
    stretchCharacters_ = EndsStretch(character) ? 0 : stretchCharacters_ + 1;
    ++paragraphCharacters_;
}

void NoteBuilder::BreakWhereTooLong(const ParagraphFormat& paragraph) {
    if (!divides_) return;
    const std::size_t longestWord = endsWithBlank_ ? 0 : LongestWord;
    if (paragraphCharacters_ >= LongestParagraph + LongestWayToLineEnd + longestWord ||
        stretchCharacters_ >= LongestStretch + longestWord)
        GoOnInAnother(paragraph);
}

void NoteBuilder::GoOnInAnother(const ParagraphFormat& paragraph) {
    ParagraphFormat part = paragraph;
    part.spaceAfter = 0;
    EndParagraph(note_.runs.back().format, part);
    goesOn_ = true;
    divided_ = true;
}

void NoteBuilder::AddPicture(NotePicture picture, const RunFormat& format, const ParagraphFormat& paragraph) {
    if (!HasRoomFor(picture) || !TakesMore(1)) return;
    BreakWhereTooLong(paragraph);
    pictureBytes_ += picture.bytes.size();
    AppendUtf8(note_.text, character::Picture);
    EndText(format);
    endsWithBlank_ = false;
    stretchCharacters_ = 0;
    ++paragraphCharacters_;
    note_.pictures.push_back(std::move(picture));
}

void NoteBuilder::EndParagraph(const RunFormat& format, const ParagraphFormat& paragraph) {
    if (!TakesMore(1)) return;
    const RunFormat shown = IsParagraphEmpty() ? format : note_.runs.back().format;
    note_.text += '\n';
    EndText(shown);
    note_.paragraphs.push_back(paragraph);
    MakeSound(note_.paragraphs.back());
    if (goesOn_) Continue(note_.paragraphs.back());
    paragraphStart_ = note_.text.size();
    paragraphCharacters_ = 0;
    stretchCharacters_ = 0;
    endsWithBlank_ = false;
    goesOn_ = false;
}

void AppendUtf8(std::string& text, char32_t character) {
    const auto put = [&](char32_t byte) { text += static_cast<char>(byte); };
    if (character < 0x80) return put(character);
    if (character < 0x800) {
        put(0xC0 | character >> 6U);
    } else if (character < 0x10000) {
        put(0xE0 | character >> 12U);
        put(0x80 | (character >> 6U & 0x3F));
    } else {
        put(0xF0 | character >> 18U);
        put(0x80 | (character >> 12U & 0x3F));
        put(0x80 | (character >> 6U & 0x3F));
    }
    put(0x80 | (character & 0x3F));
}

}  // namespace tavrin::notes
