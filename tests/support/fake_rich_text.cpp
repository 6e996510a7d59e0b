#include "support/fake_rich_text.h"

#include <algorithm>

#include "data/error.h"
#include "notes/code_pages.h"
#include "notes/note_builder.h"
#include "notes/rtf_reader.h"
#include "notes/rtf_writer.h"

namespace tavrin::tests {

namespace {

using forms::CharacterFormat;

CharacterFormat Standard() {
    return {.face = "Arial",
            .points = 10,
            .bold = false,
            .italic = false,
            .underline = false,
            .strikeThru = false,
            .color = forms::Black};
}

template <class Value>
void Apply(std::optional<Value>& property, const std::optional<Value>& change) {
    if (change) property = change;
}

void ApplyAll(CharacterFormat& format, const CharacterFormat& change) {
    Apply(format.face, change.face);
    Apply(format.points, change.points);
    Apply(format.bold, change.bold);
    Apply(format.italic, change.italic);
    Apply(format.underline, change.underline);
    Apply(format.strikeThru, change.strikeThru);
    Apply(format.color, change.color);
}

template <class Value>
void KeepShared(std::optional<Value>& property, const std::optional<Value>& other) {
    if (property != other) property.reset();
}

void KeepAllShared(CharacterFormat& format, const CharacterFormat& other) {
    KeepShared(format.face, other.face);
    KeepShared(format.points, other.points);
    KeepShared(format.bold, other.bold);
    KeepShared(format.italic, other.italic);
    KeepShared(format.underline, other.underline);
    KeepShared(format.strikeThru, other.strikeThru);
    KeepShared(format.color, other.color);
}

constexpr int HalfPointsOfPoint = 2;

notes::RunFormat ToNote(const CharacterFormat& format, notes::NoteBuilder& builder) {
    notes::RunFormat look;
    look.font = builder.Font(*format.face, false);
    look.halfPoints = static_cast<std::uint16_t>(*format.points * HalfPointsOfPoint);
    look.bold = *format.bold;
    look.italic = *format.italic;
    look.underline = *format.underline;
    look.strikeThru = *format.strikeThru;
    look.color = *format.color == forms::Black ? notes::AutomaticColor : *format.color;
    return look;
}

CharacterFormat FromNote(const notes::RunFormat& look, const notes::Note& note) {
    return {.face = note.fonts.at(look.font).name,
            .points = static_cast<double>(look.halfPoints) / HalfPointsOfPoint,
            .bold = look.bold,
            .italic = look.italic,
            .underline = look.underline,
            .strikeThru = look.strikeThru,
            .color = look.color == notes::AutomaticColor ? forms::Black : forms::Color{look.color}};
}

}  // namespace

FakeRichText& FakeRichText::Give(forms::RichTextBox& box) {
    auto editor = std::make_unique<FakeRichText>(box);
    FakeRichText& given = *editor;
    box.SetPeer(std::move(editor));
    return given;
}

FakeRichText::FakeRichText(forms::RichTextBox& box) : typing_(Standard()), box_(box) {}

std::string FakeRichText::Text() const {
    std::string text;
    for (const Character& character : characters_)
        text += character.letter == '\r' ? "\r\n" : std::string(1, character.letter);
    return text;
}

void FakeRichText::SetText(const std::string& text) {
    characters_.clear();
    start_ = length_ = 0;
    typing_ = Standard();
    for (const char letter : text)
        characters_.push_back({letter, typing_});
}

CharacterFormat FakeRichText::SelectionFormat() const {
    if (length_ == 0) return typing_;
    CharacterFormat format = characters_[start_].format;
    for (std::size_t i = start_; i < start_ + length_; ++i)
        KeepAllShared(format, characters_[i].format);
    return format;
}

void FakeRichText::FormatSelection(const CharacterFormat& format) {
    if (length_ == 0) ApplyAll(typing_, format);
    for (std::size_t i = start_; i < start_ + length_; ++i)
        ApplyAll(characters_[i].format, format);
}

void FakeRichText::Load(std::string_view rtf) {
    ++loads;
    if (whenStreaming) whenStreaming();
    const notes::RtfReading reading =
        notes::ReadRtf(rtf, notes::RtfIndents::Standard, notes::LongParagraphs::Kept);
    characters_.clear();
    start_ = length_ = 0;
    const bool fails = loadsToFail > 0;
    loadsToFail -= fails ? 1 : 0;
    if (fails || reading.outcome != notes::RtfOutcome::Whole) {
        characters_.push_back({reading.note.text.empty() ? '?' : reading.note.text.front(), Standard()});
        throw data::Error(321, "no document of this editor");
    }
    std::size_t begin = 0;
    for (const notes::NoteRun& run : reading.note.runs) {
        for (; begin < run.end; ++begin) {
            const char letter = reading.note.text[begin];
            characters_.push_back({letter == '\n' ? '\r' : letter, FromNote(run.format, reading.note)});
        }
    }
    characters_.pop_back();  // the last paragraph's end is not to be seen
    typing_ = Standard();
}

std::string FakeRichText::Save() const {
    if (whenStreaming) whenStreaming();
    if (failsToSave) throw data::Error(-2147467259, "the editor fails");
    if (!written.empty()) return written;
    notes::NoteBuilder builder(notes::LongParagraphs::Kept);
    notes::CodePageDecoder decoder;
    for (const Character& character : characters_) {
        const notes::RunFormat look = ToNote(character.format, builder);
        if (character.letter == '\r') {
            builder.EndParagraph(look, {});
        } else if (const auto whole =
                       decoder.Put(notes::code_page::Utf8, static_cast<unsigned char>(character.letter))) {
            builder.Add(*whole, look, {});
        }
    }
    builder.EndParagraph(ToNote(typing_, builder), {});
    return notes::WriteRtf(builder.Finish());
}

void FakeRichText::Type(std::string_view text) {
    const auto at = characters_.begin() + static_cast<std::ptrdiff_t>(start_);
    auto place = characters_.erase(at, at + static_cast<std::ptrdiff_t>(length_));
    for (const char letter : text)
        place = characters_.insert(place, {letter, typing_}) + 1;
    start_ += text.size();
    length_ = 0;
    box_.HandleSelectionChange();
}

void FakeRichText::Select(std::size_t start, std::size_t length) {
    start_ = std::min(start, characters_.size());
    length_ = std::min(length, characters_.size() - start_);
    if (length_ == 0 && start_ > 0) typing_ = characters_[start_ - 1].format;
    box_.HandleSelectionChange();
}

}  // namespace tavrin::tests
