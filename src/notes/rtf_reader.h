#pragma once

#include <string_view>

#include "notes/note.h"
#include "notes/note_builder.h"
#include "notes/rtf_state.h"

namespace tavrin::notes {

enum class RtfOutcome {
    Whole,
    Cut,          ///< the file lost its end; the note is what there is
    NoNote,       ///< does not begin as RTF does
    NothingLeft,  ///< lost its end before any text came
    TooLarge,     ///< more than a note may have, see note.h
};

struct RtfReading {
    RtfOutcome outcome = RtfOutcome::NoNote;
    Note note;  ///< an empty one but for Whole and Cut
    bool picturesLeftOut = false;
    bool paragraphsDivided = false;
};

/// Reads any bytes as RTF, in time and memory that grow with their number and with nothing else. What says
/// something for a note goes into it; the rest is passed over by the rules of the format.
///
/// Of what a note has no place for, the text is kept: results of fields and objects, text boxes, numbers of
/// lists; tables as lines with tabs, footnotes in brackets. Left out is what is not to be seen on the page or
/// does not belong to its text: what is hidden or has been deleted, headers and footers, comments.
RtfReading ReadRtf(std::string_view file, RtfIndents indents = RtfIndents::Standard,
                   LongParagraphs longParagraphs = LongParagraphs::Divided);

}  // namespace tavrin::notes
