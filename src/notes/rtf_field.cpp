#include "notes/rtf_field.h"

#include <algorithm>
#include <charconv>
#include <system_error>

namespace tavrin::notes {

namespace {

constexpr std::size_t LongestInstruction = 256;  // one of those that are read is much shorter
constexpr char32_t EmptyBox = 0x2610;
constexpr char32_t TickedBox = 0x2612;
constexpr int LargestSize = 1638;

/// The next word, or what stands in quotation marks; empty at the end.
std::string_view TakeWord(std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    const bool quoted = text.starts_with('"');
    if (quoted) text.remove_prefix(1);
    const std::size_t length = std::min(text.find(quoted ? '"' : ' '), text.size());
    const std::string_view word = text.substr(0, length);
    text.remove_prefix(std::min(length + (quoted ? 1 : 0), text.size()));
    return word;
}

std::optional<int> ToNumber(std::string_view word) {
    const bool hexadecimal = word.starts_with("0x") || word.starts_with("0X");
    if (hexadecimal) word.remove_prefix(2);
    int number = 0;
    const auto read = std::from_chars(word.data(), word.data() + word.size(), number, hexadecimal ? 16 : 10);
    if (read.ec != std::errc() || read.ptr != word.data() + word.size() || number <= 0) return std::nullopt;
    return number;
}

}  // namespace

/// Nothing that is read is beyond ASCII, and no font's name has a semicolon.
void RtfField::Add(char32_t character) {
    const bool known = character >= 0x20 && character < 0x7F && character != ';';
    if (known && instruction_.size() < LongestInstruction) instruction_ += static_cast<char>(character);
}

std::optional<RtfFieldSign> RtfField::Sign() const {
    std::string_view instruction = instruction_;
    const std::string_view kind = TakeWord(instruction);
    if (kind == "SYMBOL") return Symbol(instruction);
    if (kind != "FORMCHECKBOX") return std::nullopt;
    return RtfFieldSign{.character = IsTicked() ? TickedBox : EmptyBox, .unicode = true};
}

bool RtfField::IsTicked() const {
    return (result_ == Untouched ? default_ : result_) == 1;
}

std::optional<RtfFieldSign> RtfField::Symbol(std::string_view instruction) const {
    const std::optional<int> number = ToNumber(TakeWord(instruction));
    if (!number || *number > 0x10FFFF) return std::nullopt;
    RtfFieldSign sign{.character = static_cast<char32_t>(*number), .unicode = *number > 0xFF};
    while (!instruction.empty()) {
        const std::string_view word = TakeWord(instruction);
        if (word == "\\u") sign.unicode = true;
        if (word == "\\f") sign.font = TakeWord(instruction);
        if (word == "\\s") sign.points = std::min(ToNumber(TakeWord(instruction)).value_or(0), LargestSize);
    }
    return sign;
}

}  // namespace tavrin::notes
