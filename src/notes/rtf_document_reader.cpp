#include "notes/rtf_document_reader.h"

#include <algorithm>
#include <utility>

// Groups and words; text is in rtf_document_text.cpp.

namespace tavrin::notes {

namespace {

using Action = RtfAction;
using Destination = RtfDestination;
using Kind = RtfToken::Kind;

/// Groups that are deeper share the looks of the one at that depth. Nobody nests so deep, and what is
/// remembered of each takes memory.
constexpr std::size_t DeepestGroup = 4'000;

constexpr char32_t NoBreakSpace = 0xA0;
constexpr char32_t OptionalHyphen = 0xAD;
constexpr char32_t NoBreakHyphen = 0x2011;

RtfReading Failed(RtfOutcome outcome) {
    RtfReading reading;
    reading.outcome = outcome;
    return reading;
}

}  // namespace

RtfReading RtfDocumentReader::Run() {
    RtfReading reading;
    reading.outcome = RtfOutcome::Whole;
    OpenGroup();
    while (!ended_ && !builder_.IsTooLarge()) {
        const RtfToken token = tokens_.Next();
        if (token.kind == Kind::End) {
            reading.outcome = RtfOutcome::Cut;
            break;
        }
        Handle(token);
    }
    EndBrokenCharacters();
    if (reading.outcome == RtfOutcome::Cut && !hasContent_) return Failed(RtfOutcome::NothingLeft);
    if (builder_.LacksEnd()) PutParagraphEnd();
    reading.note = builder_.Finish();
    if (builder_.IsTooLarge()) return Failed(RtfOutcome::TooLarge);
    reading.picturesLeftOut = picturesLeftOut_;
    reading.paragraphsDivided = builder_.HasDivided();
    return reading;
}

void RtfDocumentReader::Handle(const RtfToken& token) {
    if (token.kind != Kind::Byte) byteBefore_ = 0;
    switch (token.kind) {
        case Kind::GroupStart:
            return OpenGroup();
        case Kind::GroupEnd:
            return CloseGroup();
        case Kind::Word:
            return OnWord(token);
        case Kind::Symbol:
            return OnSymbol(token.text.front());
        case Kind::Text:
            return OnText(token.text);
        case Kind::Byte:
            return OnByte(token);
        case Kind::Binary:
            return OnBinary(token.text);
        case Kind::End:
            break;
    }
}

// Groups.

void RtfDocumentReader::OpenGroup() {
    toSkip_ = 0;
    EndBrokenCharacters();
    if (groups_.size() == DeepestGroup) {
        ++deeper_;
        return;
    }
    groups_.push_back({.before = state_});
    if (state_.destination == Destination::Upright) state_.destination = Destination::UprightOld;
}

void RtfDocumentReader::CloseGroup() {
    toSkip_ = 0;
    if (deeper_ > 0) {
        if (deeper_ == silentFrom_) EndIgnored();
        --deeper_;
        return;
    }
    if (groups_.empty()) return;
    EndBrokenCharacters();
    if (groups_.size() <= depthOfFont_) fonts_.End();
    if (groups_.size() <= depthOfSign_) EndField();
    const Destination begun = groups_.back().begun;
    if (begun == Destination::TextBox) EndParagraphIfAny();
    if (begun == Destination::Footnote) EndFootnote();
    if (groups_.size() == 1) {  // the note's own looks are still needed to finish it
        ended_ = true;
        return;
    }
    state_ = groups_.back().before;
    groups_.pop_back();
    if (begun == Destination::ListText) EndListText();
    if (begun == Destination::Picture) EndPicture();
    if (begun == Destination::FieldInstruction) EndInstruction();
}

/// What a word makes of its group. The outermost one is the note, whatever it says.
void RtfDocumentReader::BeginDestination(Destination destination) {
    if (deeper_ > 0) return BeginIgnored(destination);
    if (groups_.size() < 2) return;
    if (destination == Destination::TextBox) EndParagraphIfAny();
    if (destination == Destination::ListText) listText_.Begin();
    if (destination == Destination::Picture) picture_ = {};
    if (destination == Destination::FieldInstruction) field_.Begin();
    if (destination == Destination::OldPicture) destination = DestinationOfOldPicture();
    state_.destination = destination;
    groups_.back().begun = destination;
}

/// Writers who know both give the picture a second time; it is passed over right behind the first.
RtfDestination RtfDocumentReader::DestinationOfOldPicture() const {
    const bool second = pictureEnd_ > 0 && pictureEnd_ == builder_.BytesOfText();
    return second ? Destination::Ignored : Destination::Container;
}

/// Of groups that are too deep to be remembered only one thing is: that what they hold is not to be seen.
void RtfDocumentReader::BeginIgnored(Destination destination) {
    const bool isText = destination == Destination::Body || destination == Destination::Container ||
                        destination == Destination::TextBox;
    if (isText || silentFrom_ > 0) return;
    silentFrom_ = deeper_;
    destinationBefore_ = std::exchange(state_.destination, Destination::Ignored);
}

void RtfDocumentReader::EndIgnored() {
    silentFrom_ = 0;
    state_.destination = destinationBefore_;
}

/// A group that begins with a star is passed over where its word is not known as one that begins a group.
bool RtfDocumentReader::TakesStar(const RtfWord* word) {
    if (groups_.empty() || !std::exchange(groups_.back().starred, false)) return false;
    if (word != nullptr && word->action == Action::Destination) return false;
    BeginDestination(Destination::Ignored);
    return true;
}

// Words.

void RtfDocumentReader::OnWord(const RtfToken& token) {
    if (state_.destination == Destination::Ignored) return;
    const RtfWord* const word = FindRtfWord(token.text);
    if (TakesStar(word)) return;
    if (toSkip_ > 0 && word != nullptr && word->action == Action::Character) {
        --toSkip_;
        return;
    }
    // Other words do not stand for a character that was there before, whatever the format says of them.
    toSkip_ = 0;
    EndBrokenBytes();
    if (word != nullptr) ApplyWord(*word, token);
}

void RtfDocumentReader::OnSymbol(char symbol) {
    if (symbol == '*' && !groups_.empty()) {
        groups_.back().starred = true;
        return;
    }
    if (IsSkipped()) return;
    switch (symbol) {
        case '\\':
        case '{':
        case '}':
            return PutUnit(static_cast<unsigned char>(symbol));
        case '~':
            return PutUnit(NoBreakSpace);
        case '-':
            return PutUnit(OptionalHyphen);
        case '_':
            return PutUnit(NoBreakHyphen);
        case '\t':
            return PutUnit(character::Tab);
        case '\r':
        case '\n':
            return EndParagraph();
        default:
            break;
    }
}

void RtfDocumentReader::ApplyWord(const RtfWord& word, const RtfToken& token) {
    if (word.action == Action::Destination) {
        const auto destination = static_cast<Destination>(word.value);
        if (IsOfField() && destination != Destination::FormField)
            return BeginDestination(Destination::Ignored);
        if (state_.destination == Destination::UprightOld) {
            if (token.text == "ud") BeginUpright();
            return;
        }
        return BeginDestination(destination);
    }
    if (state_.destination == Destination::UprightOld) return;
    if (IsOfField()) return ApplyFieldWord(word, token);
    if (word.action < Action::Plain) return ApplyTextWord(word, token);
    if (ApplyToCharacters(state_, word, token.number, token.hasNumber)) {
        if (word.action == Action::Font && state_.destination == Destination::Fonts) BeginFont(token.number);
        return;
    }
    int number = token.number;
    if (word.action == Action::LineHeight && !token.hasNumber) tokens_.TakeNumberAfterDashes(number);
    if (ApplyToParagraphs(state_, word, number, indents_)) return;
    if (word.action >= Action::RawUtf8) {
        ApplyDocumentWord(word, number);
    } else {
        ApplyTextWord(word, token);
    }
}

void RtfDocumentReader::BeginFont(int number) {
    fonts_.Begin(number);
    depthOfFont_ = groups_.size();
}

/// The text that the two stand for is read where they stand.
void RtfDocumentReader::BeginUpright() {
    if (groups_.size() >= 3) BeginDestination(groups_[groups_.size() - 2].before.destination);
}

void RtfDocumentReader::ApplyTextWord(const RtfWord& word, const RtfToken& token) {
    switch (word.action) {
        case Action::Character:
            return PutUnit(static_cast<char16_t>(word.value));
        case Action::ParagraphEnd:
            return EndParagraph();
        case Action::Break:
            if (IsBody()) EndParagraphIfAny();
            return;
        case Action::Cell:
            return EndCell();
        case Action::Row:
            return EndRow();
        case Action::Unicode:
            return OnUnicode(token.number);
        case Action::UnicodeSkip:
            state_.unicodeSkip = static_cast<std::uint8_t>(std::clamp(token.number, 0, 255));
            return;
        case Action::Color:
            state_.run.color = colors_[token.number];
            return;
        case Action::Background:
            state_.run.background = colors_[token.number];
            return;
        case Action::Bullet:
            // The paragraphs' that follow the group, not the group's.
            if (state_.destination == Destination::Numbering) groups_.back().before.paragraph.bullet = true;
            return;
        default:
            break;
    }
}

void RtfDocumentReader::ApplyFieldWord(const RtfWord& word, const RtfToken& token) {
    switch (word.action) {
        case Action::Character:
        case Action::Unicode:
        case Action::UnicodeSkip:
            return ApplyTextWord(word, token);
        case Action::FormResult:
            return field_.SetResult(token.number);
        case Action::FormDefault:
            return field_.SetDefault(token.number);
        default:
            break;
    }
}

void RtfDocumentReader::ApplyDocumentWord(const RtfWord& word, int number) {
    switch (word.action) {
        case Action::RawUtf8:
            rawIsUtf8_ = true;
            return;
        case Action::DocumentPage:
            documentPage_ = static_cast<CodePage>(word.value);
            return;
        case Action::AnsiPage:
            if (number > 0 && number <= code_page::Utf8) documentPage_ = static_cast<CodePage>(number);
            rawIsUtf8_ |= documentPage_ == code_page::Utf8;
            return;
        case Action::DefaultFont:
            defaultFont_ = number;
            return;
        case Action::DefaultTab:
            defaultTab_ = number;
            return;
        case Action::FontCharacterSet:
            return fonts_.SetCharacterSet(number);
        case Action::FontPage:
            return fonts_.SetPage(number);
        case Action::ColorPart:
            return colors_.SetPart(word.value, number);
        default:
            return ApplyPictureWord(word, number);
    }
}

void RtfDocumentReader::ApplyPictureWord(const RtfWord& word, int number) {
    switch (word.action) {
        case Action::PictureKind:
            return picture_.SetKind(static_cast<PictureKind>(word.value));
        case Action::PictureWidth:
            return picture_.SetWidth(number);
        case Action::PictureHeight:
            return picture_.SetHeight(number);
        case Action::PictureScaleX:
            return picture_.SetScaleX(number);
        case Action::PictureScaleY:
            return picture_.SetScaleY(number);
        default:
            break;
    }
}

}  // namespace tavrin::notes
