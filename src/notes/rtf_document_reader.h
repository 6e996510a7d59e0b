#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "notes/note_builder.h"
#include "notes/rtf_field.h"
#include "notes/rtf_fonts.h"
#include "notes/rtf_picture.h"
#include "notes/rtf_reader.h"
#include "notes/rtf_small_tables.h"
#include "notes/rtf_state.h"
#include "notes/rtf_tokens.h"
#include "notes/rtf_words.h"

namespace tavrin::notes {

/// One pass over a document, from its outermost group on: ReadRtf at work.
class RtfDocumentReader {
  public:
    /// `document` begins inside the outermost group.
    RtfDocumentReader(std::string_view document, RtfIndents indents, LongParagraphs longParagraphs,
                      bool rawIsUtf8)
        : tokens_(document), indents_(indents), builder_(longParagraphs), rawIsUtf8_(rawIsUtf8) {
        builder_.Expect(std::min(document.size(), MaximumCharacters));
    }

    RtfReading Run();

  private:
    struct Group {
        RtfState before;
        RtfDestination begun = RtfDestination::Body;  ///< what it is the outermost group of
        bool starred = false;                         ///< its next word is one that not every reader knows
    };

    void Handle(const RtfToken& token);

    // Groups.
    void OpenGroup();
    void CloseGroup();
    void BeginDestination(RtfDestination destination);
    void BeginUpright();
    RtfDestination DestinationOfOldPicture() const;
    bool IsOfField() const {
        return state_.destination == RtfDestination::FieldInstruction ||
               state_.destination == RtfDestination::FormField;
    }
    void BeginIgnored(RtfDestination destination);
    void EndIgnored();
    void BeginFont(int number);
    bool TakesStar(const RtfWord* word);

    // Words.
    void OnWord(const RtfToken& token);
    void OnSymbol(char symbol);
    void ApplyWord(const RtfWord& word, const RtfToken& token);
    void ApplyTextWord(const RtfWord& word, const RtfToken& token);
    void ApplyDocumentWord(const RtfWord& word, int number);
    void ApplyPictureWord(const RtfWord& word, int number);
    void ApplyFieldWord(const RtfWord& word, const RtfToken& token);

    // From the file's bytes to characters.
    void OnText(std::string_view ascii);
    void OnByte(const RtfToken& token);
    void OnLineEnd(unsigned char byte);
    void OnUnicode(int number);
    void OnBinary(std::string_view bytes);
    bool IsSkipped();
    void PutByte(CodePage page, unsigned char byte);
    void PutUnit(char32_t unit);
    void EndBrokenBytes();
    void EndBrokenCharacters();

    // Fonts.
    RtfFont* CurrentFont();
    CodePage PageOfBytes();
    const RunFormat& LookOfText();

    // Fields.
    void EndInstruction();
    void EndField();
    void PutSign(const RtfFieldSign& sign);

    // From characters to the note.
    void Put(char32_t character);
    bool IsSeen() const { return !state_.hidden && !state_.deleted; }
    bool IsBody() const;
    char32_t AsSeen(char32_t character);
    RunFormat LookOfSmallCapitals();
    void Insert(char32_t character);
    void InsertAll(std::string_view ascii);
    void InsertOfFootnote(char32_t character);
    void EndFootnote();
    void EndParagraph();
    void PutParagraphEnd();
    void EndParagraphIfAny();
    void EndCell();
    void EndRow();
    void FlushTabs();
    void EndListText();
    void EndPicture();

    RtfTokens tokens_;
    RtfIndents indents_;
    NoteBuilder builder_;
    RtfState state_;
    std::vector<Group> groups_;
    std::size_t deeper_ = 0;      ///< groups that are open and too deep to remember
    std::size_t silentFrom_ = 0;  ///< the first of these that is passed over, 0 for none
    RtfDestination destinationBefore_ = RtfDestination::Body;

    RtfFonts fonts_;
    std::size_t depthOfFont_ = 0;  ///< the groups that are open where the last entry began
    int defaultFont_ = -1;
    RtfColors colors_;
    RtfPicture picture_;
    std::size_t pictureEnd_ = 0;  ///< of the text, with the last picture; 0 for none
    RtfField field_;
    std::optional<RtfFieldSign> sign_;  ///< what the field shows if its result shows nothing
    std::size_t depthOfSign_ = 0;       ///< the groups that are open in the field
    std::size_t textBeforeSign_ = 0;
    RtfListText listText_;
    CodePage documentPage_ = code_page::Western;
    bool rawIsUtf8_;  ///< bytes that stand for themselves are UTF-8, whatever page there is

    CodePageDecoder decoder_;
    char32_t highSurrogate_ = 0;
    int toSkip_ = 0;                ///< characters that follow one in Unicode and say the same
    unsigned char byteBefore_ = 0;  ///< the end of a line that was given by its number just before
    std::size_t pendingTabs_ = 0;
    int defaultTab_ = StandardTab;
    std::optional<ParagraphFormat> row_;  ///< how the row stands whose cells are being read
    bool bullet_ = false;                 ///< before this paragraph
    bool inFootnote_ = false;
    bool footnoteBlank_ = false;
    bool picturesLeftOut_ = false;
    bool hasContent_ = false;
    bool ended_ = false;
};

}  // namespace tavrin::notes
