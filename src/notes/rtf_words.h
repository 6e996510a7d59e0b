#pragma once

#include <cstdint>
#include <string_view>

namespace tavrin::notes {

/// What the text of a group is for.
enum class RtfDestination : std::uint8_t {
    Body,
    Ignored,     ///< dropped with everything in it
    Container,   ///< its text is not, but there may be a group in it that is
    Upright,     ///< a text twice, of which the second one is in Unicode
    UprightOld,  ///< the first one of these
    Fonts,
    Colors,
    Picture,
    ListText,  ///< what stands before a paragraph of a list
    Numbering,
    Footnote,
    TextBox,
    FieldInstruction,
    FormField,   ///< what a field of a form is set to
    OldPicture,  ///< a picture for readers who do not know the one before it
};

/// What a word does. Its value, or its number in the file, says to what.
enum class RtfAction : std::uint8_t {
    Destination,
    // Text.
    Character,
    ParagraphEnd,
    Break,
    Cell,
    Row,
    Unicode,
    UnicodeSkip,
    // Characters' looks.
    Plain,
    Font,
    FontSize,
    Color,
    Background,
    Bold,
    Italic,
    Underline,
    NoUnderline,
    StrikeThru,
    Capitals,
    SmallCapitals,
    Script,
    Raised,
    Hidden,
    Deleted,
    // Paragraphs' looks.
    ParagraphPlain,
    Alignment,
    LeftIndent,
    RightIndent,
    FirstLineIndent,
    SpaceBefore,
    SpaceAfter,
    LineHeight,
    LineMultiple,
    Tab,
    TabAlignment,
    Bullet,
    // The document.
    RawUtf8,
    DocumentPage,
    AnsiPage,
    DefaultFont,
    DefaultTab,
    FontCharacterSet,
    FontPage,
    ColorPart,
    // Pictures.
    PictureKind,
    PictureWidth,
    PictureHeight,
    PictureScaleX,
    PictureScaleY,
    // Forms.
    FormResult,
    FormDefault,
};

struct RtfWord {
    std::string_view name;
    RtfAction action;
    std::int16_t value = 0;
};

/// Null for a word that says nothing for a note.
const RtfWord* FindRtfWord(std::string_view name);

}  // namespace tavrin::notes
