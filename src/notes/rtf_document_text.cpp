#include <algorithm>
#include <cstdlib>
#include <utility>

#include "data/text/capitals.h"
#include "notes/rtf_document_reader.h"

// What a document's text becomes; groups and words are in rtf_document_reader.cpp.

namespace tavrin::notes {

namespace {

using Destination = RtfDestination;

bool IsLineEnd(unsigned char byte) {
    return byte == '\r' || byte == '\n';
}

bool IsHighSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit < 0xDC00;
}

bool IsLowSurrogate(char32_t unit) {
    return unit >= 0xDC00 && unit < 0xE000;
}

/// What stands at a place of a font of symbols, or of Windows' Western page.
char32_t CharacterOf(char32_t place, bool symbols) {
    if (symbols) return place >= 0x20 ? 0xF000 + place : 0;
    return CodePageDecoder().Put(code_page::Western, static_cast<unsigned char>(place)).value_or(0);
}

/// Whether tabs stand where they do in an editor. Who measures in centimetres has them closer by a sixtieth,
/// which nobody sees; and nobody reads by stops that are closer than a letter.
bool IsStandardTab(int width) {
    constexpr int Invisible = StandardTab / 60;
    constexpr int OneLetter = 72;
    return width < OneLetter || width > LongestLength || std::abs(width - StandardTab) <= Invisible;
}

/// Behind the stops that a paragraph has those of the document, as far as there is room for them.
void AddStops(TabStops& tabs, int width) {
    const int last = tabs.count == 0 ? 0 : tabs.stops[tabs.count - 1].position;
    for (int next = (last / width + 1) * width; next <= LongestLength && tabs.count < tabs.stops.size();
         next += width)
        tabs.stops[tabs.count++] = {static_cast<std::int16_t>(next), TabAlignment::Left};
}

/// What is no blank, and divides nothing: a font is asked for only where it will be used.
bool IsSign(char32_t character) {
    return NoteBuilder::IsText(character) && character > ' ' && character != character::LineSeparator &&
           character != character::ParagraphSeparator;
}

}  // namespace

// From the file's bytes to characters.

void RtfDocumentReader::OnText(std::string_view ascii) {
    if (state_.destination == Destination::Ignored) return;
    const auto skipped = std::min(ascii.size(), static_cast<std::size_t>(toSkip_));
    toSkip_ -= static_cast<int>(skipped);
    ascii.remove_prefix(skipped);
    if (state_.destination == Destination::Picture) return picture_.AddDigits(ascii);
    if (decoder_.IsInsideCharacter() && !ascii.empty() &&
        decoder_.Continues(PageOfBytes(), static_cast<unsigned char>(ascii.front()))) {
        PutByte(PageOfBytes(), static_cast<unsigned char>(ascii.front()));
        ascii.remove_prefix(1);
    }
    if (ascii.empty()) return;
    EndBrokenCharacters();
    if (IsBody() && !state_.capitals && !state_.smallCapitals) {
        FlushTabs();
        builder_.AddAscii(ascii, LookOfText(), state_.paragraph);
        hasContent_ = true;
        return;
    }
    for (const char each : ascii)
        Put(static_cast<unsigned char>(each));
}

void RtfDocumentReader::OnByte(const RtfToken& token) {
    if (state_.destination == Destination::Ignored || IsSkipped()) return;
    const bool raw = !token.text.empty();
    if (!raw && IsLineEnd(token.byte)) return OnLineEnd(token.byte);
    PutByte(raw && rawIsUtf8_ ? code_page::Utf8 : PageOfBytes(), token.byte);
}

/// Writers that give every byte by its number give the ends of lines so, too: one byte or two.
void RtfDocumentReader::OnLineEnd(unsigned char byte) {
    const bool second = byte == '\n' && byteBefore_ == '\r';
    byteBefore_ = byte;
    if (!second) EndParagraph();
}

void RtfDocumentReader::PutByte(CodePage page, unsigned char byte) {
    if (!decoder_.Continues(page, byte)) EndBrokenBytes();
    if (const auto decoded = decoder_.Put(page, byte)) PutUnit(*decoded);
}

/// Numbers are signed ones of 16 bits, but for writers that know no bounds.
void RtfDocumentReader::OnUnicode(int number) {
    EndBrokenBytes();
    if (number < 0) number += 0x10000;
    PutUnit(number >= 0 && number <= 0x10FFFF ? static_cast<char32_t>(number) : ReplacementCharacter);
    toSkip_ = state_.unicodeSkip;
}

void RtfDocumentReader::OnBinary(std::string_view bytes) {
    if (IsSkipped()) return;
    if (state_.destination == Destination::Picture) picture_.AddBytes(bytes);
}

bool RtfDocumentReader::IsSkipped() {
    if (toSkip_ == 0) return false;
    --toSkip_;
    return true;
}

/// Takes characters beyond U+FFFF in their two halves as well.
void RtfDocumentReader::PutUnit(char32_t unit) {
    const char32_t high = std::exchange(highSurrogate_, 0);
    if (IsLowSurrogate(unit)) {
        return Put(high != 0 ? 0x10000 + ((high - 0xD800) << 10U) + (unit - 0xDC00) : ReplacementCharacter);
    }
    if (high != 0) Put(ReplacementCharacter);
    if (IsHighSurrogate(unit)) {
        highSurrogate_ = unit;
    } else {
        Put(unit);
    }
}

void RtfDocumentReader::EndBrokenBytes() {
    if (decoder_.Break()) PutUnit(ReplacementCharacter);
}

void RtfDocumentReader::EndBrokenCharacters() {
    EndBrokenBytes();
    if (std::exchange(highSurrogate_, 0) != 0) Put(ReplacementCharacter);
}

// Fonts.

/// A number that the file does not explain means the font for which nothing was said.
RtfFont* RtfDocumentReader::CurrentFont() {
    if (state_.fontNumber != RtfState::DefaultFont) {
        if (RtfFont* const font = fonts_.Find(state_.fontNumber)) return font;
    }
    RtfFont* const font = fonts_.Find(defaultFont_);
    return font != nullptr ? font : fonts_.First();
}

CodePage RtfDocumentReader::PageOfBytes() {
    if (state_.destination == Destination::Fonts) return fonts_.Page().value_or(documentPage_);
    if (state_.page == 0) {
        const RtfFont* const font = CurrentFont();
        state_.page = font != nullptr ? font->page.value_or(documentPage_) : documentPage_;
    }
    return state_.page;
}

const RunFormat& RtfDocumentReader::LookOfText() {
    if (!std::exchange(state_.fontIsKnown, true)) {
        RtfFont* const font = CurrentFont();
        if (font != nullptr && !font->numberInNote)
            font->numberInNote = builder_.Font(font->name, font->symbols);
        state_.run.font = font != nullptr ? *font->numberInNote : builder_.Font({}, false);
    }
    return state_.run;
}

// Fields.

void RtfDocumentReader::EndInstruction() {
    sign_ = field_.Sign();
    depthOfSign_ = sign_ ? groups_.size() : 0;
    textBeforeSign_ = builder_.BytesOfText();
}

/// A result says what is to be seen; most writers give signs none.
void RtfDocumentReader::EndField() {
    depthOfSign_ = 0;
    if (textBeforeSign_ == builder_.BytesOfText() &&
        (IsBody() || state_.destination == Destination::Footnote))
        PutSign(*sign_);
}

void RtfDocumentReader::PutSign(const RtfFieldSign& sign) {
    if (!IsSeen()) return;
    const RtfState before = state_;
    if (sign.points > 0)
        ApplyToCharacters(state_, {.name = {}, .action = RtfAction::FontSize}, sign.points * 2, true);
    RtfFont named = RtfFonts::Named(sign.font);
    const RtfFont* const font = sign.font.empty() ? CurrentFont() : &named;
    const bool symbols = font != nullptr && font->symbols;
    const char32_t character = sign.unicode ? sign.character : CharacterOf(sign.character, symbols);
    if (IsSign(character)) {
        if (font == &named) state_.run.font = builder_.Font(named.name, named.symbols);
        if (font == &named) state_.fontIsKnown = true;
        state_.capitals = state_.smallCapitals = false;
        Put(character);
    }
    state_ = before;
}

// From characters to the note.

void RtfDocumentReader::Put(char32_t character) {
    switch (state_.destination) {
        case Destination::Body:
        case Destination::TextBox:
            return Insert(character);
        case Destination::Footnote:
            return InsertOfFootnote(character);
        case Destination::Fonts:
            return fonts_.Add(character);
        case Destination::Colors:
            return colors_.Add(character);
        case Destination::ListText:
            return listText_.Add(character);
        case Destination::FieldInstruction:
            return field_.Add(character);
        default:
            break;
    }
}

bool RtfDocumentReader::IsBody() const {
    return IsSeen() &&
           (state_.destination == Destination::Body || state_.destination == Destination::TextBox);
}

void RtfDocumentReader::Insert(char32_t character) {
    if (!IsSeen()) return;
    if (character == character::ParagraphSeparator) return EndParagraph();
    if (character == character::LineSeparator) character = character::LineBreak;
    if (!NoteBuilder::IsText(character)) return;
    FlushTabs();
    const char32_t seen = AsSeen(character);
    if (seen == character || state_.capitals) {
        builder_.Add(seen, LookOfText(), state_.paragraph);
    } else {
        builder_.Add(seen, LookOfSmallCapitals(), state_.paragraph);
    }
    hasContent_ = true;
}

/// In a font of symbols no letter is one.
char32_t RtfDocumentReader::AsSeen(char32_t character) {
    if (!state_.capitals && !state_.smallCapitals) return character;
    const RtfFont* const font = CurrentFont();
    return font != nullptr && font->symbols ? character : data::ToCapital(character);
}

/// Four fifths of the size, as text programs show them.
RunFormat RtfDocumentReader::LookOfSmallCapitals() {
    RunFormat look = LookOfText();
    look.halfPoints = static_cast<std::uint16_t>(std::max(look.halfPoints * 4 / 5, 2));
    return look;
}

/// A row is one line, which stands as its first cell does.
void RtfDocumentReader::EndCell() {
    if (!IsBody()) return;
    ++pendingTabs_;
    if (!row_) row_ = state_.paragraph;
}

/// Cells that nothing follows in their row need no tab.
void RtfDocumentReader::FlushTabs() {
    for (; pendingTabs_ > 0 && !builder_.IsTooLarge(); --pendingTabs_)
        builder_.Add(character::Tab, LookOfText(), state_.paragraph);
}

void RtfDocumentReader::EndParagraph() {
    toSkip_ = 0;
    EndBrokenCharacters();
    if (state_.destination == Destination::Footnote) return InsertOfFootnote(' ');
    if (!IsBody()) return;
    PutParagraphEnd();
    hasContent_ = true;
}

/// The look of a paragraph's end is to be seen in an empty one alone.
void RtfDocumentReader::PutParagraphEnd() {
    pendingTabs_ = 0;
    ParagraphFormat format = row_.value_or(state_.paragraph);
    row_.reset();
    format.bullet |= std::exchange(bullet_, false);
    if (!IsStandardTab(defaultTab_) && builder_.HasTabInParagraph()) AddStops(format.tabs, defaultTab_);
    builder_.EndParagraph(builder_.IsParagraphEmpty() ? LookOfText() : state_.run, format);
}

void RtfDocumentReader::EndRow() {
    if (!IsBody()) return;
    pendingTabs_ = 0;
    EndParagraph();
}

void RtfDocumentReader::EndParagraphIfAny() {
    if (IsSeen() && !builder_.IsParagraphEmpty()) PutParagraphEnd();
}

/// In brackets, where its number would be; its paragraphs and the blanks around it count as one blank.
void RtfDocumentReader::InsertOfFootnote(char32_t character) {
    if (!IsSeen()) return;
    if (character == ' ' || character == character::Tab) {
        footnoteBlank_ = true;
        return;
    }
    const bool blank = std::exchange(footnoteBlank_, false);
    if (!std::exchange(inFootnote_, true)) {
        InsertAll(" [");
    } else if (blank) {
        Insert(' ');
    }
    Insert(character);
}

void RtfDocumentReader::EndFootnote() {
    footnoteBlank_ = false;
    if (std::exchange(inFootnote_, false)) Insert(']');
}

void RtfDocumentReader::InsertAll(std::string_view ascii) {
    for (const char each : ascii)
        Insert(static_cast<unsigned char>(each));
}

void RtfDocumentReader::EndListText() {
    if (!IsBody() || listText_.IsBlank()) return;
    if (listText_.IsBullet()) {
        bullet_ = true;
        return;
    }
    for (const char32_t each : listText_)
        Insert(each);
}

void RtfDocumentReader::EndPicture() {
    if (!picture_.HasContent() || !IsSeen()) return;
    auto picture = picture_.Finish();
    if (!picture || !builder_.HasRoomFor(*picture)) {
        picturesLeftOut_ = true;
        return;
    }
    builder_.AddPicture(std::move(*picture), LookOfText(), state_.paragraph);
    pictureEnd_ = builder_.BytesOfText();
    hasContent_ = true;
}

}  // namespace tavrin::notes
