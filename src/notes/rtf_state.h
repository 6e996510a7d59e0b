#pragma once

#include <cstdint>

#include "notes/code_pages.h"
#include "notes/note.h"
#include "notes/rtf_words.h"

namespace tavrin::notes {

/// What a group inherits from the one around it, and loses at its end: looks as they were said last.
struct RtfState {
    static constexpr int DefaultFont = -1;

    RunFormat run;
    int fontNumber = DefaultFont;
    bool fontIsKnown = false;  ///< run.font is that of fontNumber
    CodePage page = 0;         ///< that of fontNumber; 0 where nobody has asked yet
    bool capitals = false;
    bool smallCapitals = false;
    bool hidden = false;
    bool deleted = false;

    ParagraphFormat paragraph;
    int leftIndent = 0;
    int firstLineIndent = 0;
    int lineHeight = 0;
    bool lineMultiple = false;
    TabAlignment nextTab = TabAlignment::Left;

    RtfDestination destination = RtfDestination::Body;
    std::uint8_t unicodeSkip = 1;  ///< how many characters say the same as one in Unicode
};

/// Which of two numbers an editor writes an indent with.
enum class RtfIndents {
    Standard,
    Exchanged,  ///< \fi where the first line begins, \li how much further the others do
};

/// Does what a word says to the looks of characters. False where it says nothing of them that stands by
/// itself.
bool ApplyToCharacters(RtfState& state, const RtfWord& word, int number, bool hasNumber);

/// The same for paragraphs.
bool ApplyToParagraphs(RtfState& state, const RtfWord& word, int number, RtfIndents indents);

}  // namespace tavrin::notes
