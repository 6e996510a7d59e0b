#include "data/text/date_format.h"

#include <algorithm>
#include <array>

#include "data/text/digits.h"

namespace tavrin::data {

namespace {

struct Token {
    std::string_view text;
    DatePart part;
    int digits;
    bool showsName;
};

/// Longer tokens first.
constexpr std::array<Token, 5> Tokens = {{
    {"yyyy", DatePart::Year, 4, false},
    {"yy", DatePart::Year, 2, false},
    {"MMM", DatePart::Month, 2, true},
    {"MM", DatePart::Month, 2, false},
    {"dd", DatePart::Day, 2, false},
}};

int NumberOf(const DatePiece& piece, const CalendarDay& day) {
    switch (piece.part) {
        case DatePart::Day:
            return day.day;
        case DatePart::Month:
            return day.month;
        default:
            return piece.digits == 2 ? day.year % 100 : day.year;
    }
}

/// The token that a format begins with, null where it begins with none.
const Token* FindToken(std::string_view format) {
    for (const Token& token : Tokens) {
        if (format.starts_with(token.text)) return &token;
    }
    return nullptr;
}

}  // namespace

std::string DatePiece::Text(const CalendarDay& day, const Locale& locale) const {
    if (part == DatePart::None) return fixedText;
    if (showsName) return locale.monthAbbreviations[static_cast<std::size_t>(day.month - 1)];
    return ZeroPadded(NumberOf(*this, day), static_cast<std::size_t>(digits));
}

std::vector<DatePiece> ParseDateFormat(std::string_view format) {
    std::vector<DatePiece> pieces;
    while (!format.empty()) {
        if (const Token* token = FindToken(format)) {
            pieces.push_back({token->part, token->digits, token->showsName, {}});
            format.remove_prefix(token->text.size());
            continue;
        }
        if (pieces.empty() || pieces.back().part != DatePart::None) pieces.emplace_back();
        pieces.back().fixedText += format.front();
        format.remove_prefix(1);
    }
    return pieces;
}

int FullYear(int year) {
    if (year < 0 || year > 99) return year;
    return year < 30 ? 2000 + year : 1900 + year;
}

}  // namespace tavrin::data
