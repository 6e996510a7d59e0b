#include "support/fake_rich_text.h"

#include <algorithm>
#include <charconv>

#include "data/error.h"

namespace tavrin::tests {

namespace {

using forms::CharacterFormat;

constexpr std::string_view Start = "{\\rtf1 ";

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

/// One character with its format: `{\b1\i0\ul0\strike0\fs20\cf255 Arial;a}`.
std::string Describe(char letter, const CharacterFormat& format) {
    const auto number = [](const char* word, int value) { return word + std::to_string(value); };
    std::string escaped = letter == '{' || letter == '}' || letter == '\\' ? "\\" : "";
    return "{" + number("\\b", *format.bold) + number("\\i", *format.italic) +
           number("\\ul", *format.underline) + number("\\strike", *format.strikeThru) +
           number("\\fs", static_cast<int>(*format.points * 2)) +
           number("\\cf", static_cast<int>(*format.color)) + " " + *format.face + ";" + escaped + letter +
           "}";
}

/// Reads what Describe has written, from the front of a text.
class Reader {
  public:
    explicit Reader(std::string_view rest) : rest_(rest) {}

    bool IsAtEnd() {
        // As every reader does, it passes over the ends of lines.
        while (rest_.starts_with('\n') || rest_.starts_with('\r'))
            rest_.remove_prefix(1);
        return rest_ == "}";
    }

    std::pair<char, CharacterFormat> Next() {
        CharacterFormat format;
        Expect("{");
        format.bold = Number("\\b") != 0;
        format.italic = Number("\\i") != 0;
        format.underline = Number("\\ul") != 0;
        format.strikeThru = Number("\\strike") != 0;
        format.points = Number("\\fs") / 2.0;
        format.color = static_cast<forms::Color>(Number("\\cf"));
        Expect(" ");
        const std::size_t end = std::min(rest_.find(';'), rest_.size());
        format.face = std::string(rest_.substr(0, end));
        rest_.remove_prefix(end);
        Expect(";");
        if (rest_.starts_with('\\')) Expect("\\");
        if (rest_.empty()) Fail();
        const char letter = rest_.front();
        rest_.remove_prefix(1);
        Expect("}");
        return {letter, format};
    }

  private:
    [[noreturn]] static void Fail() { throw data::Error(321, "no document of this editor"); }

    void Expect(std::string_view text) {
        if (!rest_.starts_with(text)) Fail();
        rest_.remove_prefix(text.size());
    }

    int Number(std::string_view word) {
        Expect(word);
        int value = 0;
        const auto read = std::from_chars(rest_.begin(), rest_.end(), value);
        if (read.ec != std::errc()) Fail();
        rest_ = {read.ptr, rest_.end()};
        return value;
    }

    std::string_view rest_;
};

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
    if (!rtf.starts_with(Start)) throw data::Error(321, "no document of this editor");
    std::vector<Character> loaded;
    for (Reader reader(rtf.substr(Start.size())); !reader.IsAtEnd();) {
        const auto [letter, format] = reader.Next();
        loaded.push_back({letter, format});
    }
    characters_ = std::move(loaded);
    start_ = length_ = 0;
    typing_ = Standard();
}

std::string FakeRichText::Save() const {
    if (whenStreaming) whenStreaming();
    if (failsToSave) throw data::Error(-2147467259, "the editor fails");
    std::string rtf(Start);
    for (const Character& character : characters_)
        rtf += Describe(character.letter, character.format);
    return rtf + "}";
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
