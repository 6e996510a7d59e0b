#include "notes/rtf_words.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <iterator>

#include "notes/note.h"

namespace tavrin::notes {

namespace {

using Action = RtfAction;
using Destination = RtfDestination;

template <class Enumeration>
constexpr std::int16_t Of(Enumeration value) {
    return static_cast<std::int16_t>(value);
}

// In the order of their names, so that none stands there twice.
constexpr RtfWord Words[] = {
    {"aftncn", Action::Destination, Of(Destination::Ignored)},
    {"aftnsep", Action::Destination, Of(Destination::Ignored)},
    {"aftnsepc", Action::Destination, Of(Destination::Ignored)},
    {"annotation", Action::Destination, Of(Destination::Ignored)},
    {"ansicpg", Action::AnsiPage},
    {"atnauthor", Action::Destination, Of(Destination::Ignored)},
    {"author", Action::Destination, Of(Destination::Ignored)},
    {"b", Action::Bold},
    {"bkmkend", Action::Destination, Of(Destination::Ignored)},
    {"bkmkstart", Action::Destination, Of(Destination::Ignored)},
    {"blue", Action::ColorPart, 16},
    {"bullet", Action::Character, 0x2022},
    {"caps", Action::Capitals},
    {"category", Action::Destination, Of(Destination::Ignored)},
    {"cb", Action::Background},
    {"cell", Action::Cell},
    {"cf", Action::Color},
    {"chcbpat", Action::Background},
    {"colorschememapping", Action::Destination, Of(Destination::Ignored)},
    {"colortbl", Action::Destination, Of(Destination::Colors)},
    {"column", Action::Break},
    {"comment", Action::Destination, Of(Destination::Ignored)},
    {"company", Action::Destination, Of(Destination::Ignored)},
    {"cpg", Action::FontPage},
    {"creatim", Action::Destination, Of(Destination::Ignored)},
    {"datafield", Action::Destination, Of(Destination::Ignored)},
    {"datastore", Action::Destination, Of(Destination::Ignored)},
    {"deff", Action::DefaultFont},
    {"deftab", Action::DefaultTab},
    {"deleted", Action::Deleted},
    {"dn", Action::Raised, -1},
    {"do", Action::Destination, Of(Destination::Container)},
    {"doccomm", Action::Destination, Of(Destination::Ignored)},
    {"docvar", Action::Destination, Of(Destination::Ignored)},
    {"dptxbxtext", Action::Destination, Of(Destination::TextBox)},
    {"emdash", Action::Character, 0x2014},
    {"emspace", Action::Character, 0x2003},
    {"endash", Action::Character, 0x2013},
    {"enspace", Action::Character, 0x2002},
    {"f", Action::Font},
    {"falt", Action::Destination, Of(Destination::Ignored)},
    {"fcharset", Action::FontCharacterSet},
    {"ffdefres", Action::FormDefault},
    {"ffname", Action::Destination, Of(Destination::Ignored)},
    {"ffres", Action::FormResult},
    {"fi", Action::FirstLineIndent},
    {"filetbl", Action::Destination, Of(Destination::Ignored)},
    {"fldinst", Action::Destination, Of(Destination::FieldInstruction)},
    {"fldrslt", Action::Destination, Of(Destination::Body)},
    {"fonttbl", Action::Destination, Of(Destination::Fonts)},
    {"footer", Action::Destination, Of(Destination::Ignored)},
    {"footerf", Action::Destination, Of(Destination::Ignored)},
    {"footerl", Action::Destination, Of(Destination::Ignored)},
    {"footerr", Action::Destination, Of(Destination::Ignored)},
    {"footnote", Action::Destination, Of(Destination::Footnote)},
    {"formfield", Action::Destination, Of(Destination::FormField)},
    {"fs", Action::FontSize},
    {"ftncn", Action::Destination, Of(Destination::Ignored)},
    {"ftnsep", Action::Destination, Of(Destination::Ignored)},
    {"ftnsepc", Action::Destination, Of(Destination::Ignored)},
    {"green", Action::ColorPart, 8},
    {"header", Action::Destination, Of(Destination::Ignored)},
    {"headerf", Action::Destination, Of(Destination::Ignored)},
    {"headerl", Action::Destination, Of(Destination::Ignored)},
    {"headerr", Action::Destination, Of(Destination::Ignored)},
    {"highlight", Action::Background},
    {"hlinkbase", Action::Destination, Of(Destination::Ignored)},
    {"i", Action::Italic},
    {"info", Action::Destination, Of(Destination::Ignored)},
    {"jpegblip", Action::PictureKind, Of(PictureKind::Jpeg)},
    {"keywords", Action::Destination, Of(Destination::Ignored)},
    {"latentstyles", Action::Destination, Of(Destination::Ignored)},
    {"ldblquote", Action::Character, 0x201C},
    {"li", Action::LeftIndent},
    {"line", Action::Character, 0xB},
    {"listname", Action::Destination, Of(Destination::Ignored)},
    {"listoverridetable", Action::Destination, Of(Destination::Ignored)},
    {"listtable", Action::Destination, Of(Destination::Ignored)},
    {"listtext", Action::Destination, Of(Destination::ListText)},
    {"lquote", Action::Character, 0x2018},
    {"ltrmark", Action::Character, 0x200E},
    {"mac", Action::DocumentPage, 10000},
    {"manager", Action::Destination, Of(Destination::Ignored)},
    {"mmathPr", Action::Destination, Of(Destination::Ignored)},
    {"mvf", Action::Deleted},
    {"nestcell", Action::Cell},
    {"nestrow", Action::Row},
    {"nesttableprops", Action::Destination, Of(Destination::Body)},
    {"nonesttables", Action::Destination, Of(Destination::Ignored)},
    {"nonshppict", Action::Destination, Of(Destination::OldPicture)},
    {"nosupersub", Action::Script, Of(Script::Normal)},
    {"objalias", Action::Destination, Of(Destination::Ignored)},
    {"objclass", Action::Destination, Of(Destination::Ignored)},
    {"objdata", Action::Destination, Of(Destination::Ignored)},
    {"object", Action::Destination, Of(Destination::Container)},
    {"objname", Action::Destination, Of(Destination::Ignored)},
    {"objsect", Action::Destination, Of(Destination::Ignored)},
    {"operator", Action::Destination, Of(Destination::Ignored)},
    {"page", Action::Break},
    {"panose", Action::Destination, Of(Destination::Ignored)},
    {"par", Action::ParagraphEnd},
    {"pard", Action::ParagraphPlain},
    {"pc", Action::DocumentPage, 437},
    {"pca", Action::DocumentPage, 850},
    {"pgdsctbl", Action::Destination, Of(Destination::Ignored)},
    {"pichgoal", Action::PictureHeight},
    {"picscalex", Action::PictureScaleX},
    {"picscaley", Action::PictureScaleY},
    {"pict", Action::Destination, Of(Destination::Picture)},
    {"picwgoal", Action::PictureWidth},
    {"plain", Action::Plain},
    {"pn", Action::Destination, Of(Destination::Numbering)},
    {"pngblip", Action::PictureKind, Of(PictureKind::Png)},
    {"pnlvlblt", Action::Bullet},
    {"pnseclvl", Action::Destination, Of(Destination::Ignored)},
    {"pntext", Action::Destination, Of(Destination::ListText)},
    {"pntxta", Action::Destination, Of(Destination::Ignored)},
    {"pntxtb", Action::Destination, Of(Destination::Ignored)},
    {"printim", Action::Destination, Of(Destination::Ignored)},
    {"private", Action::Destination, Of(Destination::Ignored)},
    {"qc", Action::Alignment, Of(Alignment::Center)},
    {"qd", Action::Alignment, Of(Alignment::Justified)},
    {"qj", Action::Alignment, Of(Alignment::Justified)},
    {"ql", Action::Alignment, Of(Alignment::Left)},
    {"qmspace", Action::Character, 0x2005},
    {"qr", Action::Alignment, Of(Alignment::Right)},
    {"rdblquote", Action::Character, 0x201D},
    {"red", Action::ColorPart},
    {"result", Action::Destination, Of(Destination::Body)},
    {"revtbl", Action::Destination, Of(Destination::Ignored)},
    {"revtim", Action::Destination, Of(Destination::Ignored)},
    {"ri", Action::RightIndent},
    {"row", Action::Row},
    {"rquote", Action::Character, 0x2019},
    {"rsidtbl", Action::Destination, Of(Destination::Ignored)},
    {"rtlmark", Action::Character, 0x200F},
    {"rxe", Action::Destination, Of(Destination::Ignored)},
    {"sa", Action::SpaceAfter},
    {"sb", Action::SpaceBefore},
    {"scaps", Action::SmallCapitals},
    {"sect", Action::Break},
    {"shp", Action::Destination, Of(Destination::Container)},
    {"shpgrp", Action::Destination, Of(Destination::Container)},
    {"shpinst", Action::Destination, Of(Destination::Container)},
    {"shppict", Action::Destination, Of(Destination::Container)},
    {"shprslt", Action::Destination, Of(Destination::Ignored)},
    {"shptxt", Action::Destination, Of(Destination::TextBox)},
    {"sl", Action::LineHeight},
    {"slmult", Action::LineMultiple},
    {"sn", Action::Destination, Of(Destination::Ignored)},
    {"sp", Action::Destination, Of(Destination::Container)},
    {"strike", Action::StrikeThru},
    {"striked", Action::StrikeThru},
    {"stylesheet", Action::Destination, Of(Destination::Ignored)},
    {"sub", Action::Script, Of(Script::Sub)},
    {"subject", Action::Destination, Of(Destination::Ignored)},
    {"super", Action::Script, Of(Script::Super)},
    {"sv", Action::Destination, Of(Destination::Container)},
    {"tab", Action::Character, 0x9},
    {"tc", Action::Destination, Of(Destination::Ignored)},
    {"tcn", Action::Destination, Of(Destination::Ignored)},
    {"template", Action::Destination, Of(Destination::Ignored)},
    {"themedata", Action::Destination, Of(Destination::Ignored)},
    {"title", Action::Destination, Of(Destination::Ignored)},
    {"tqc", Action::TabAlignment, Of(TabAlignment::Center)},
    {"tqdec", Action::TabAlignment, Of(TabAlignment::Decimal)},
    {"tqr", Action::TabAlignment, Of(TabAlignment::Right)},
    {"tx", Action::Tab},
    {"txe", Action::Destination, Of(Destination::Ignored)},
    {"u", Action::Unicode},
    {"uc", Action::UnicodeSkip},
    {"ud", Action::Destination, Of(Destination::Body)},
    {"ul", Action::Underline},
    {"uld", Action::Underline},
    {"uldash", Action::Underline},
    {"uldashd", Action::Underline},
    {"uldashdd", Action::Underline},
    {"uldb", Action::Underline},
    {"ulhwave", Action::Underline},
    {"ulldash", Action::Underline},
    {"ulnone", Action::NoUnderline},
    {"ulth", Action::Underline},
    {"ulthd", Action::Underline},
    {"ulthdash", Action::Underline},
    {"ulthdashd", Action::Underline},
    {"ulthdashdd", Action::Underline},
    {"ulthldash", Action::Underline},
    {"ululdbwave", Action::Underline},
    {"ulw", Action::Underline},
    {"ulwave", Action::Underline},
    {"up", Action::Raised, 1},
    {"upr", Action::Destination, Of(Destination::Upright)},
    {"urtf", Action::RawUtf8},
    {"userprops", Action::Destination, Of(Destination::Ignored)},
    {"v", Action::Hidden},
    {"xe", Action::Destination, Of(Destination::Ignored)},
    {"xmlnstbl", Action::Destination, Of(Destination::Ignored)},
    {"zwbo", Action::Character, 0x200B},
    {"zwj", Action::Character, 0x200D},
    {"zwnj", Action::Character, 0x200C},
};

static_assert(std::ranges::adjacent_find(Words, std::ranges::greater_equal(), &RtfWord::name) ==
              std::end(Words));

constexpr std::size_t LongestControlWord = 18;
static_assert(std::ranges::max(Words, {}, [](const RtfWord& word) { return word.name.size(); }).name.size() ==
              LongestControlWord);

/// A power of two, and more than twice as many as there are words.
constexpr std::size_t Places = 512;
constexpr std::uint8_t NoWord = 0xFF;
static_assert(std::size(Words) < NoWord);

constexpr std::size_t PlaceOf(std::string_view name) {
    std::uint32_t sum = 0;
    for (const char each : name)
        sum = sum * 33 + static_cast<unsigned char>(each);
    return (sum ^ sum >> 9U) % Places;
}

/// Each word's number at the place of its name, or at the next one that was free.
constexpr std::array<std::uint8_t, Places> MakeIndex() {
    std::array<std::uint8_t, Places> index{};
    index.fill(NoWord);
    for (std::size_t i = 0; i < std::size(Words); ++i) {
        std::size_t place = PlaceOf(Words[i].name);
        while (index[place] != NoWord)
            place = (place + 1) % Places;
        index[place] = static_cast<std::uint8_t>(i);
    }
    return index;
}

constexpr std::array<std::uint8_t, Places> Index = MakeIndex();

}  // namespace

const RtfWord* FindRtfWord(std::string_view name) {
    if (name.size() > LongestControlWord) return nullptr;
    for (std::size_t place = PlaceOf(name); Index[place] != NoWord; place = (place + 1) % Places) {
        const RtfWord& word = Words[Index[place]];
        if (std::ranges::equal(word.name, name)) return &word;
    }
    return nullptr;
}

}  // namespace tavrin::notes
