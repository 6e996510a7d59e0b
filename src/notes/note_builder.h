#pragma once

#include <string_view>
#include <utility>

#include "notes/note.h"

namespace tavrin::notes {

enum class LongParagraphs {
    Divided,  ///< so that an editor stays quick
    Kept,
};

/// Builds a note from front to back, within the limits of note.h; equal documents give equal notes. What
/// exceeds a limit is left out, and IsTooLarge says so.
class NoteBuilder {
  public:
    explicit NoteBuilder(LongParagraphs longParagraphs = LongParagraphs::Divided)
        : divides_(longParagraphs == LongParagraphs::Divided) {}

    /// Reserves room for so many bytes of text and what comes with them, for speed. Reserved memory that is
    /// not used is never touched.
    void Expect(std::size_t bytes);

    /// The number of that font, which is to be used next.
    std::uint16_t Font(std::string_view name, bool symbols);

    /// Printable ASCII.
    void AddAscii(std::string_view text, const RunFormat& format, const ParagraphFormat& paragraph);
    /// Whether a character may stand in a text. A paragraph's end and a picture are added in other ways.
    static bool IsText(char32_t character);
    /// Drops what is not a text character.
    void Add(char32_t character, const RunFormat& format, const ParagraphFormat& paragraph);
    bool HasRoomFor(const NotePicture& picture) const {
        return picture.bytes.size() <= MaximumPictureBytes - pictureBytes_;
    }
    void AddPicture(NotePicture picture, const RunFormat& format, const ParagraphFormat& paragraph);
    void EndParagraph(const RunFormat& format, const ParagraphFormat& paragraph);

    std::size_t BytesOfText() const { return note_.text.size(); }
    bool IsParagraphEmpty() const { return paragraphStart_ == note_.text.size(); }
    bool HasTabInParagraph() const { return note_.text.find('\t', paragraphStart_) != std::string::npos; }
    bool IsTooLarge() const { return tooLarge_; }
    /// Whether a paragraph was too long, and goes on in another.
    bool HasDivided() const { return divided_; }

    /// Whether the text still needs a paragraph's end: the last one is not empty, or there is none.
    bool LacksEnd() const { return !IsParagraphEmpty() || note_.paragraphs.empty(); }
    Note Finish() { return std::move(note_); }

  private:
    void AddLong(std::string_view text, const RunFormat& format, const ParagraphFormat& paragraph);
    void EndText(const RunFormat& format);
    bool TakesMore(std::size_t characters);
    void BreakWhereTooLong(const ParagraphFormat& paragraph);
    void GoOnInAnother(const ParagraphFormat& paragraph);

    Note note_;
    std::size_t characters_ = 0;
    std::size_t paragraphStart_ = 0;
    std::size_t paragraphCharacters_ = 0;
    std::size_t pictureBytes_ = 0;
    std::size_t stretchCharacters_ = 0;  ///< letters and blanks, since anything else
    bool endsWithBlank_ = false;
    bool divides_;
    bool divided_ = false;
    bool goesOn_ = false;  ///< the paragraph is the rest of one that was too long
    bool tooLarge_ = false;
};

/// A font's name as platforms keep it: no longer than they take, and without blanks around it. A character of
/// four bytes takes two of their places.
std::string_view SoundFontName(std::string_view name);

void AppendUtf8(std::string& text, char32_t character);

}  // namespace tavrin::notes
