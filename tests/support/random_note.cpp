#include "support/random_note.h"

#include <array>

#include "notes/note_builder.h"

namespace tavrin::tests {

namespace {

using namespace notes;
using namespace std::string_view_literals;

constexpr std::string_view FontNames[] = {"Arial", "Times New Roman", "Symbol", "M\u0103r\u021B", "a{b}\\c"};

constexpr std::array<char32_t, 18> Characters = {'a',    ' ',     '{',   '}',    '\\',     '-',
                                                 '0',    '\'',    0x103, 0x21B,  0x20AC,   0xF0B7,
                                                 0xFFFD, 0x1F600, 0xA0,  0x2011, 0x10FFFD, '*'};

constexpr std::string_view Jpeg = "\xFF\xD8\xFF\xC0\0\x0B\x08\0\x01\0\x01\x01\x01\x11\0\xFF\xD9"sv;

class NoteMaker {
  public:
    explicit NoteMaker(std::string_view bytes) : bytes_(bytes) {}

    Note Run() {
        while (!bytes_.empty())
            Step();
        if (builder_.LacksEnd()) EndParagraph();
        return builder_.Finish();
    }

  private:
    /// A number below the bound, of the next byte; 0 when there are no more.
    unsigned Draw(unsigned bound) {
        if (bytes_.empty()) return 0;
        const auto byte = static_cast<unsigned char>(bytes_.front());
        bytes_.remove_prefix(1);
        return byte % bound;
    }

    int DrawLength() { return static_cast<int>(Draw(256) * 137) - 1000; }

    /// Fonts are asked for when they are used, as a note has them in that order.
    RunFormat Look() {
        RunFormat look = look_;
        look.font = builder_.Font(FontNames[font_], font_ == 2);
        return look;
    }

    void Step() {
        switch (Draw(12)) {
            case 0:
                return EndParagraph();
            case 1:
                return ChangeLook();
            case 2:
                return ChangeParagraph();
            case 3:
                return AddTab();
            case 4:
                builder_.AddPicture(
                    {PictureKind::Jpeg, std::string(Jpeg), 1 + static_cast<int>(Draw(200)), 15}, Look(),
                    paragraph_);
                return;
            case 5:
                return builder_.Add(Draw(2) == 0 ? character::Tab : character::LineBreak, Look(), paragraph_);
            case 6:
                return builder_.AddAscii("Nota de proba, destul de lunga. ", Look(), paragraph_);
            default:
                return builder_.Add(Characters[Draw(Characters.size())], Look(), paragraph_);
        }
    }

    void EndParagraph() {
        builder_.EndParagraph(builder_.IsParagraphEmpty() ? Look() : RunFormat(), paragraph_);
    }

    void ChangeLook() {
        font_ = Draw(5);
        look_.halfPoints = static_cast<std::uint16_t>(2 + Draw(256) * 12);
        look_.bold = Draw(2) == 0;
        look_.italic = Draw(2) == 0;
        look_.underline = Draw(2) == 0;
        look_.strikeThru = Draw(3) == 0;
        look_.script = static_cast<Script>(Draw(3));
        look_.color = Draw(2) == 0 ? AutomaticColor : Draw(256) << 8U;
        look_.background = Draw(3) != 0 ? AutomaticColor : Draw(256) << 16U;
    }

    void ChangeParagraph() {
        paragraph_ = {};
        paragraph_.alignment = static_cast<Alignment>(Draw(4));
        paragraph_.bullet = Draw(3) == 0;
        paragraph_.leftIndent = static_cast<std::int16_t>(DrawLength());
        paragraph_.firstLineIndent = static_cast<std::int16_t>(DrawLength());
        paragraph_.rightIndent = static_cast<std::int16_t>(DrawLength());
        paragraph_.spaceBefore = static_cast<std::int16_t>(DrawLength());
        paragraph_.spaceAfter = static_cast<std::int16_t>(DrawLength());
        paragraph_.lineSpacing = static_cast<LineSpacing>(Draw(3));
        paragraph_.lineHeight = static_cast<std::int16_t>(Draw(2) == 0 ? 0 : 241 + Draw(256));
    }

    void AddTab() {
        TabStops& tabs = paragraph_.tabs;
        if (tabs.count == tabs.stops.size()) return;
        const int last = tabs.count == 0 ? 0 : tabs.stops[tabs.count - 1U].position;
        tabs.stops[tabs.count++] = {static_cast<std::int16_t>(last + 1 + static_cast<int>(Draw(256))),
                                    static_cast<TabAlignment>(Draw(4))};
    }

    std::string_view bytes_;
    NoteBuilder builder_;
    RunFormat look_;
    unsigned font_ = 0;
    ParagraphFormat paragraph_;
};

}  // namespace

Note MakeNote(std::string_view bytes) {
    return NoteMaker(bytes).Run();
}

}  // namespace tavrin::tests
