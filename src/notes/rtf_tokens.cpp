#include "notes/rtf_tokens.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <system_error>

#include "data/text/digits.h"
#include "notes/plain_ascii.h"

namespace tavrin::notes {

namespace {

using Kind = RtfToken::Kind;

/// What a byte is outside of words.
enum class Class : unsigned char { Plain, Brace, Backslash, Skipped, Other };

constexpr std::array<Class, 256> MakeClasses() {
    std::array<Class, 256> classes{};
    for (std::size_t i = 0; i < classes.size(); ++i)
        classes[i] = PlainBytes[i] ? Class::Plain : Class::Other;
    classes['{'] = classes['}'] = Class::Brace;
    classes['\\'] = Class::Backslash;
    classes['\r'] = classes['\n'] = classes['\0'] = Class::Skipped;
    return classes;
}

constexpr std::array<Class, 256> Classes = MakeClasses();

Class ClassOf(char byte) {
    return Classes[static_cast<unsigned char>(byte)];
}

bool IsLetter(char byte) {
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}

template <class Predicate>
std::size_t LengthWhile(std::string_view text, std::size_t from, Predicate predicate) {
    while (from < text.size() && predicate(text[from]))
        ++from;
    return from;
}

/// Digits, and a dash in front of them if there is one. What is larger than an int may be counts as that.
int NumberIn(std::string_view digits) {
    int number = 0;
    const auto read = std::from_chars(digits.begin(), digits.end(), number);
    if (read.ec == std::errc()) return number;
    return digits.starts_with('-') ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
}

}  // namespace

RtfToken RtfTokens::Next() {
    while (!rest_.empty() && ClassOf(rest_.front()) == Class::Skipped)
        rest_.remove_prefix(1);
    if (rest_.empty()) return {};
    switch (ClassOf(rest_.front())) {
        case Class::Brace:
            return Take(rest_.front() == '{' ? Kind::GroupStart : Kind::GroupEnd, 1);
        case Class::Backslash:
            return Control();
        case Class::Plain:
            return Take(Kind::Text, LengthOfPlain(rest_));
        default:
            return OtherByte();
    }
}

RtfToken RtfTokens::Take(Kind kind, std::size_t length) {
    const RtfToken token{.kind = kind, .text = rest_.substr(0, length)};
    rest_.remove_prefix(length);
    return token;
}

RtfToken RtfTokens::OtherByte() {
    RtfToken token = Take(Kind::Byte, 1);
    token.byte = static_cast<unsigned char>(token.text.front());
    return token;
}

RtfToken RtfTokens::Control() {
    rest_.remove_prefix(1);
    if (rest_.empty()) return {};
    if (IsLetter(rest_.front())) return Word();
    if (rest_.front() == '\'') return HexByte();
    return Take(Kind::Symbol, 1);
}

RtfToken RtfTokens::Word() {
    const std::size_t nameEnd = LengthWhile(rest_, 1, IsLetter);
    const bool negative = nameEnd < rest_.size() && rest_[nameEnd] == '-';
    const std::size_t digits = nameEnd + (negative ? 1 : 0);
    const std::size_t numberEnd = LengthWhile(rest_, digits, data::IsDigit<char>);
    RtfToken token{.kind = Kind::Word, .text = rest_.substr(0, nameEnd)};
    token.hasNumber = numberEnd > digits;
    if (token.hasNumber) token.number = NumberIn(rest_.substr(nameEnd, numberEnd - nameEnd));
    rest_.remove_prefix(token.hasNumber ? numberEnd : nameEnd);
    if (rest_.starts_with(' ')) rest_.remove_prefix(1);
    return token.text == "bin" ? Binary(token.number) : token;
}

RtfToken RtfTokens::Binary(int length) {
    return Take(Kind::Binary, std::min(static_cast<std::size_t>(std::max(length, 0)), rest_.size()));
}

RtfToken RtfTokens::HexByte() {
    // A file that was cut within a byte has none there, and no letter either.
    const bool cut = rest_.size() == 1 || (rest_.size() == 2 && data::ValueOfHexDigit(rest_[1]) >= 0);
    if (cut) rest_ = {};
    if (rest_.empty()) return {};
    if (rest_.size() >= 3) {
        const int high = data::ValueOfHexDigit(rest_[1]);
        const int low = data::ValueOfHexDigit(rest_[2]);
        if (high >= 0 && low >= 0) {
            rest_.remove_prefix(3);
            return {.kind = Kind::Byte, .byte = static_cast<unsigned char>(high << 4 | low)};
        }
    }
    return Take(Kind::Symbol, 1);
}

bool RtfTokens::TakeNumberAfterDashes(int& number) {
    if (!rest_.starts_with("--")) return false;
    const std::size_t end = LengthWhile(rest_, 2, data::IsDigit<char>);
    if (end == 2) return false;
    number = NumberIn(rest_.substr(1, end - 1));
    rest_.remove_prefix(end);
    if (rest_.starts_with(' ')) rest_.remove_prefix(1);
    return true;
}

}  // namespace tavrin::notes
