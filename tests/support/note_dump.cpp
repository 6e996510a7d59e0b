#include "support/note_dump.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <string_view>
#include <utility>

namespace tavrin::tests {

namespace {

using namespace notes;

constexpr std::string_view PictureCharacter = "\xEF\xBF\xBC";

void Attribute(std::string& list, const std::string& attribute) {
    if (!list.empty()) list += ' ';
    list += attribute;
}

void Number(std::string& list, const char* name, int number) {
    if (number != 0) Attribute(list, name + std::to_string(number));
}

std::string Color(NoteColor color) {
    std::array<char, 8> text{};
    std::snprintf(text.data(), text.size(), "%02X%02X%02X", color & 0xFFU, color >> 8U & 0xFFU,
                  color >> 16U & 0xFFU);
    return text.data();
}

std::string LookOf(const RunFormat& format, const Note& note) {
    std::string look;
    const NoteFont& font = note.fonts.at(format.font);
    if (font.name != "Arial") Attribute(look, font.name);
    if (font.symbols) Attribute(look, "symbols");
    if (format.halfPoints != 24) Number(look, "fs", format.halfPoints);
    if (format.bold) Attribute(look, "b");
    if (format.italic) Attribute(look, "i");
    if (format.underline) Attribute(look, "ul");
    if (format.strikeThru) Attribute(look, "strike");
    if (format.script != Script::Normal) Attribute(look, format.script == Script::Super ? "super" : "sub");
    if (format.color != AutomaticColor) Attribute(look, Color(format.color));
    if (format.background != AutomaticColor) Attribute(look, "on " + Color(format.background));
    return look;
}

std::string FormatOf(const ParagraphFormat& format) {
    static constexpr const char* Alignments[] = {"", "center", "right", "justified"};
    static constexpr const char* Tabs[] = {"tab", "ctab", "rtab", "dtab"};
    static constexpr const char* Lines[] = {"lines", "atleast", "exact"};
    std::string text;
    if (format.bullet) Attribute(text, "bullet");
    if (format.alignment != Alignment::Left)
        Attribute(text, Alignments[static_cast<std::size_t>(format.alignment)]);
    Number(text, "left", format.leftIndent);
    Number(text, "right", format.rightIndent);
    Number(text, "first", format.firstLineIndent);
    Number(text, "before", format.spaceBefore);
    Number(text, "after", format.spaceAfter);
    Number(text, Lines[static_cast<std::size_t>(format.lineSpacing)], format.lineHeight);
    for (std::size_t i = 0; i < format.tabs.count; ++i) {
        const TabStop& stop = format.tabs.stops[i];
        Number(text, Tabs[static_cast<std::size_t>(stop.alignment)], stop.position);
    }
    return text.empty() ? text : "<" + text + ">";
}

void Replace(std::string& text, std::string_view what, std::string_view instead) {
    for (std::size_t i = 0; (i = text.find(what, i)) != std::string::npos; i += instead.size())
        text.replace(i, what.size(), instead);
}

std::string PictureOf(const NotePicture& picture) {
    return std::string(picture.kind == PictureKind::Png ? "(png " : "(jpeg ") +
           std::to_string(picture.width) + "x" + std::to_string(picture.height) + ")";
}

/// A piece of a run that ends no paragraph.
std::string Shown(std::string text, const Note& note, std::size_t& picture) {
    Replace(text, "\t", "\\t");
    Replace(text, "\v", "\\v");
    for (std::size_t i = 0; (i = text.find(PictureCharacter)) != std::string::npos;)
        text.replace(i, PictureCharacter.size(), PictureOf(note.pictures.at(picture++)));
    return text;
}

}  // namespace

std::string Dump(const Note& note) {
    std::string dump;
    std::size_t begin = 0;
    std::size_t paragraph = 0;
    std::size_t picture = 0;
    bool starts = true;
    for (const NoteRun& run : note.runs) {
        std::string text = note.text.substr(begin, run.end - begin);
        begin = run.end;
        while (!text.empty()) {
            if (std::exchange(starts, false)) dump += FormatOf(note.paragraphs.at(paragraph++));
            const std::size_t length = std::min(text.find('\n'), text.size());
            const std::string shown = Shown(text.substr(0, length), note, picture);
            const std::string look = LookOf(run.format, note);
            const bool emptyParagraph =
                length == 0 && (dump.empty() || dump.ends_with('\n') || dump.ends_with('>'));
            if (!look.empty() && (length > 0 || emptyParagraph)) {
                dump += "{" + look + "|" + shown + "}";
            } else {
                dump += shown;
            }
            text.erase(0, length);
            if (text.empty()) break;
            text.erase(0, 1);
            dump += '\n';
            starts = true;
        }
    }
    if (!dump.empty()) dump.pop_back();
    return dump;
}

}  // namespace tavrin::tests
