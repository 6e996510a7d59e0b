#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tavrin::notes {

// What a note can hold, whatever program wrote it. Lengths are in twips.

/// 0x00BBGGRR, or the one that the reader's own system has for text and paper.
using NoteColor = std::uint32_t;
inline constexpr NoteColor AutomaticColor = 0xFFFFFFFF;

struct NoteFont {
    std::string name;
    bool symbols = false;  ///< has pictures in place of letters
    bool operator==(const NoteFont&) const = default;
};

enum class Script : std::uint8_t { Normal, Super, Sub };

/// How characters look.
struct RunFormat {
    std::uint16_t font = 0;  ///< of the note's list
    std::uint16_t halfPoints = 24;
    NoteColor color = AutomaticColor;
    NoteColor background = AutomaticColor;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikeThru = false;
    Script script = Script::Normal;
    bool operator==(const RunFormat&) const = default;
};

/// A run of characters with the same look; it begins where the run before ends.
struct NoteRun {
    std::size_t end = 0;  ///< in bytes of the note's text
    RunFormat format;
    bool operator==(const NoteRun&) const = default;
};

enum class Alignment : std::uint8_t { Left, Center, Right, Justified };
enum class TabAlignment : std::uint8_t { Left, Center, Right, Decimal };
enum class LineSpacing : std::uint8_t { Multiple, AtLeast, Exact };

struct TabStop {
    std::int16_t position = 0;
    TabAlignment alignment = TabAlignment::Left;
    bool operator==(const TabStop&) const = default;
};

/// As many as editors keep, in ascending order; unused ones are empty.
struct TabStops {
    std::array<TabStop, 32> stops;
    std::uint8_t count = 0;
    bool operator==(const TabStops& other) const {
        return std::equal(stops.begin(), stops.begin() + count, other.stops.begin(),
                          other.stops.begin() + other.count);
    }
};

struct ParagraphFormat {
    std::int16_t leftIndent = 0;
    std::int16_t rightIndent = 0;
    std::int16_t firstLineIndent = 0;  ///< beyond the left one; negative for a line that hangs
    std::int16_t spaceBefore = 0;
    std::int16_t spaceAfter = 0;
    std::int16_t lineHeight = 0;  ///< 0 for a line's own; for Multiple 240 is one line
    LineSpacing lineSpacing = LineSpacing::Multiple;
    Alignment alignment = Alignment::Left;
    bool bullet = false;
    TabStops tabs;
    bool operator==(const ParagraphFormat&) const = default;
};

enum class PictureKind : std::uint8_t { Png, Jpeg };

struct NotePicture {
    PictureKind kind = PictureKind::Png;
    std::string bytes;
    int width = 0;
    int height = 0;
    bool operator==(const NotePicture&) const = default;
};

/// Characters of the text that stand for something else. No other one below U+0020 occurs.
namespace character {
inline constexpr char32_t Tab = '\t';
inline constexpr char32_t ParagraphEnd = '\n';
inline constexpr char32_t LineBreak = '\v';
inline constexpr char32_t Picture = 0xFFFC;  ///< the next one of the note's pictures
// Unicode has two of its own for these, which do not occur either.
inline constexpr char32_t LineSeparator = 0x2028;
inline constexpr char32_t ParagraphSeparator = 0x2029;
}  // namespace character

/// A document. Its text is UTF-8 and ends with a paragraph's end. A paragraph that is not empty ends in the
/// format of what stands in it. Of equal notes everything is equal: runs that follow each other differ, fonts
/// are those that occur, in that order.
struct Note {
    std::string text;
    std::vector<NoteRun> runs;
    std::vector<ParagraphFormat> paragraphs;  ///< one for each paragraph's end
    std::vector<NoteFont> fonts;
    std::vector<NotePicture> pictures;
    bool operator==(const Note&) const = default;
};

// What a note may have at most. Platform editors take some hundred bytes for a character.
inline constexpr std::size_t MaximumCharacters = std::size_t{2} << 20;
inline constexpr std::size_t MaximumParagraphs = 200'000;
inline constexpr std::size_t MaximumRuns = 400'000;
inline constexpr std::size_t MaximumFonts = 1'000;
// At every key an editor takes a time that grows with the paragraph, and with the square of a stretch of
// letters and blanks alone, which it measures as one.
/// A longer paragraph of a file goes on in another one: where a line ends, or behind a blank where none does
/// for a while.
inline constexpr std::size_t LongestParagraph = 10'000;
inline constexpr std::size_t LongestWayToLineEnd = 1'000;
/// So does a paragraph with a longer stretch, behind a blank.
inline constexpr std::size_t LongestStretch = 2'000;
/// Where no blank comes for so long it goes on anywhere.
inline constexpr std::size_t LongestWord = 200;
inline constexpr std::size_t MaximumPictureBytes = std::size_t{32} << 20;  ///< of all pictures
inline constexpr std::size_t MaximumPixels = std::size_t{16} << 20;        ///< of one picture
inline constexpr std::size_t LongestFontName = 31;  ///< in UTF-16, as platforms keep it
inline constexpr int LongestLength = 31'680;        ///< 22 inches, as far as editors count
inline constexpr int StandardTab = 720;             ///< from one stop to the next where a paragraph has none

}  // namespace tavrin::notes
