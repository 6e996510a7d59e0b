#include "notes/rtf_writer.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

#include "notes/plain_ascii.h"

namespace tavrin::notes {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view Alignments[] = {"\\ql", "\\qc", "\\qr", "\\qj"};
constexpr std::string_view TabAlignments[] = {"", "\\tqc", "\\tqr", "\\tqdec"};
constexpr std::string_view Scripts[] = {"\\nosupersub", "\\super", "\\sub"};
constexpr std::string_view PictureKinds[] = {"\\pngblip", "\\jpegblip"};
constexpr std::string_view HexDigits = "0123456789abcdef";

constexpr std::size_t BytesOfALine = 64;
constexpr int PicturesUnit = 15;  // twips in a pixel

/// Takes the character off the front of a text, which is UTF-8 without a fault.
char32_t TakeCharacter(std::string_view& text) {
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    char32_t character = length == 1 ? lead : lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i)
        character = character << 6U | (static_cast<unsigned char>(text[i]) & 0x3FU);
    text.remove_prefix(length);
    return character;
}

class RtfWriter {
  public:
    explicit RtfWriter(const Note& note) : note_(note) { rtf_.reserve(note.text.size() * 5 / 4 + 1024); }

    std::string Run() {
        CollectColors();
        rtf_ += R"({\rtf1\ansi\ansicpg1252\deff0\uc1)";
        WriteFonts();
        WriteColors();
        WriteText();
        rtf_ += "}\r\n";
        return std::move(rtf_);
    }

  private:
    // Tables.

    void CollectColors() {
        for (const NoteRun& run : note_.runs) {
            for (const NoteColor color : {run.format.color, run.format.background}) {
                if (color != AutomaticColor && (colors_.empty() || colors_.back() != color))
                    colors_.push_back(color);
            }
        }
        std::ranges::sort(colors_);
        colors_.erase(std::unique(colors_.begin(), colors_.end()), colors_.end());
    }

    void WriteFonts() {
        rtf_ += "{\\fonttbl";
        for (std::size_t i = 0; i < note_.fonts.size(); ++i)
            WriteFont(i, note_.fonts[i].name, note_.fonts[i].symbols);
        if (HasBullets()) WriteFont(note_.fonts.size(), "Symbol", true);
        rtf_ += "}\r\n";
    }

    bool HasBullets() const {
        return std::ranges::count(note_.paragraphs, true, &ParagraphFormat::bullet) > 0;
    }

    void WriteFont(std::size_t number, std::string_view name, bool symbols) {
        Word("{\\f", static_cast<int>(number));
        rtf_ += symbols ? "\\fnil\\fcharset2 " : "\\fnil\\fcharset0 ";
        WriteName(name);
        rtf_ += ";}";
    }

    /// In a name no character stands for something else.
    void WriteName(std::string_view name) {
        while (!name.empty()) {
            const char32_t character = TakeCharacter(name);
            if (character < PlainBytes.size() && PlainBytes[character]) {
                rtf_ += static_cast<char>(character);
            } else {
                WriteUnicode(character);
            }
        }
    }

    void WriteColors() {
        rtf_ += "{\\colortbl;";
        for (const NoteColor color : colors_) {
            Word("\\red", static_cast<int>(color & 0xFFU));
            Word("\\green", static_cast<int>(color >> 8U & 0xFFU));
            Word("\\blue", static_cast<int>(color >> 16U & 0xFFU));
            rtf_ += ';';
        }
        rtf_ += "}\r\n";
    }

    int NumberOf(NoteColor color) const {
        if (color == AutomaticColor) return 0;
        return static_cast<int>(std::ranges::lower_bound(colors_, color) - colors_.begin()) + 1;
    }

    // Text.

    void WriteText() {
        std::size_t begin = 0;
        BeginParagraph(0);
        for (const NoteRun& run : note_.runs) {
            ChangeLooks(run.format);
            WriteCharacters(std::string_view(note_.text).substr(begin, run.end - begin));
            begin = run.end;
        }
    }

    void EndParagraph() {
        rtf_ += "\\par\r\n"sv;
        BeginParagraph(++paragraph_);
    }

    void BeginParagraph(std::size_t number) {
        if (number == note_.paragraphs.size()) return;
        const ParagraphFormat& format = note_.paragraphs[number];
        const bool same = number > 0 && format == note_.paragraphs[number - 1];
        if (!same) rtf_ += "\\pard";
        if (format.bullet) WriteBullet(format, !same);
        if (same) return;
        WriteParagraphFormat(format);
        if (number == 0) {
            rtf_ += "\\plain";
        } else if (!rtf_.ends_with('}')) {  // a word goes before
            rtf_ += ' ';
        }
    }

    /// For readers who know bullets, and as text for those who do not.
    void WriteBullet(const ParagraphFormat& format, bool tellsReaders) {
        Word("{\\pntext\\f", static_cast<int>(note_.fonts.size()));
        rtf_ += "\\'b7\\tab}";
        if (!tellsReaders) return;
        Word(R"({\*\pn\pnlvlblt\pnf)", static_cast<int>(note_.fonts.size()));
        Word("\\pnindent", std::max(0, -format.firstLineIndent));
        rtf_ += "{\\pntxtb\\'b7}}";
    }

    void WriteParagraphFormat(const ParagraphFormat& format) {
        if (format.alignment != Alignment::Left)
            rtf_ += Alignments[static_cast<std::size_t>(format.alignment)];
        WordUnlessZero("\\fi", format.firstLineIndent);
        WordUnlessZero("\\li", format.leftIndent);
        WordUnlessZero("\\ri", format.rightIndent);
        WordUnlessZero("\\sb", format.spaceBefore);
        WordUnlessZero("\\sa", format.spaceAfter);
        WriteLineHeight(format);
        for (std::size_t i = 0; i < format.tabs.count; ++i) {
            const TabStop& stop = format.tabs.stops[i];
            rtf_ += TabAlignments[static_cast<std::size_t>(stop.alignment)];
            Word("\\tx", stop.position);
        }
    }

    /// Some editors take the word for multiples, whatever its number says, for the height itself.
    void WriteLineHeight(const ParagraphFormat& format) {
        if (format.lineHeight == 0) return;
        const bool exact = format.lineSpacing == LineSpacing::Exact;
        Word("\\sl", exact ? -format.lineHeight : format.lineHeight);
        if (format.lineSpacing == LineSpacing::Multiple) rtf_ += "\\slmult1";
    }

    void ChangeLooks(const RunFormat& format) {
        const std::size_t before = rtf_.size();
        const bool first = !looksAreKnown_;
        if (first || format.font != looks_.font) Word(R"(\f)"sv, format.font);
        if (first || format.halfPoints != looks_.halfPoints) Word(R"(\fs)"sv, format.halfPoints);
        Switch(R"(\b)"sv, format.bold, looks_.bold);
        Switch(R"(\i)"sv, format.italic, looks_.italic);
        if (format.underline != looks_.underline) rtf_ += format.underline ? R"(\ul)" : R"(\ulnone)";
        Switch(R"(\strike)"sv, format.strikeThru, looks_.strikeThru);
        if (format.script != looks_.script) rtf_ += Scripts[static_cast<std::size_t>(format.script)];
        if (format.color != looks_.color) Word(R"(\cf)"sv, NumberOf(format.color));
        if (format.background != looks_.background) Word(R"(\highlight)"sv, NumberOf(format.background));
        looks_ = format;
        looksAreKnown_ = true;
        if (rtf_.size() != before) rtf_ += ' ';
    }

    void Switch(std::string_view word, bool on, bool wasOn) {
        if (on == wasOn) return;
        rtf_ += word;
        if (!on) rtf_ += '0';
    }

    void WriteCharacters(std::string_view text) {
        while (!text.empty()) {
            const std::size_t plain = LengthOfPlain(text);
            rtf_ += text.substr(0, plain);
            text.remove_prefix(plain);
            if (!text.empty()) WriteCharacter(TakeCharacter(text));
        }
    }

    void WriteCharacter(char32_t character) {
        switch (character) {
            case '{':
            case '}':
            case '\\':
                rtf_ += '\\';
                rtf_ += static_cast<char>(character);
                return;
            case character::ParagraphEnd:
                return EndParagraph();
            case character::Tab:
                rtf_ += R"(\tab )"sv;
                return;
            case character::LineBreak:
                rtf_ += "\\line ";
                return;
            case character::Picture:
                return WritePicture(note_.pictures[pictures_++]);
            default:
                return WriteUnicode(character);
        }
    }

    void WriteUnicode(char32_t character) {
        if (character < 0x10000) return WriteUnit(character);
        WriteUnit(0xD800 + ((character - 0x10000) >> 10U));
        WriteUnit(0xDC00 + ((character - 0x10000) & 0x3FFU));
    }

    /// A signed number of 16 bits, and what readers show that know none of these. A symbol's is its place in
    /// its font.
    void WriteUnit(char32_t unit) {
        Word(R"(\u)"sv, static_cast<std::int16_t>(unit));
        if (unit >= 0xF020 && unit <= 0xF0FF) {
            rtf_ += "\\'";
            WriteHexByte(static_cast<unsigned char>(unit));
        } else {
            rtf_ += '?';
        }
    }

    void WritePicture(const NotePicture& picture) {
        rtf_ += "{\\pict";
        rtf_ += PictureKinds[static_cast<std::size_t>(picture.kind)];
        Word("\\picw", std::max(1, picture.width / PicturesUnit));
        Word("\\pich", std::max(1, picture.height / PicturesUnit));
        Word("\\picwgoal", picture.width);
        Word("\\pichgoal", picture.height);
        for (std::size_t i = 0; i < picture.bytes.size(); ++i) {
            if (i % BytesOfALine == 0) rtf_ += "\r\n";
            WriteHexByte(static_cast<unsigned char>(picture.bytes[i]));
        }
        rtf_ += '}';
    }

    void WriteHexByte(unsigned char byte) {
        rtf_ += HexDigits[byte >> 4U];
        rtf_ += HexDigits[byte & 0xFU];
    }

    void Word(std::string_view word, int number) {
        std::array<char, 12> digits{};
        char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
        rtf_ += word;
        rtf_.append(digits.data(), end);
    }

    void WordUnlessZero(std::string_view word, int number) {
        if (number != 0) Word(word, number);
    }

    const Note& note_;
    std::string rtf_;
    std::vector<NoteColor> colors_;
    RunFormat looks_;
    bool looksAreKnown_ = false;
    std::size_t paragraph_ = 0;
    std::size_t pictures_ = 0;
};

}  // namespace

std::string WriteRtf(const Note& note) {
    return RtfWriter(note).Run();
}

}  // namespace tavrin::notes
