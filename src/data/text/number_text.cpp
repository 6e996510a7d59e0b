#include "data/text/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

#include "data/text/digits.h"

namespace tavrin::data {

namespace {

/// Writes units / 10^decimals without zeros at its end.
void WriteUnits(std::string& text, std::uint64_t units, int decimals, std::string_view separator) {
    while (decimals > 0 && units % 10 == 0) {
        units /= 10;
        --decimals;
    }
    std::array<char, SignificantDigits + 1> digits;
    const char* const begin = digits.data();
    const char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), units).ptr;
    const auto places = static_cast<std::ptrdiff_t>(decimals);
    const char* const point = end - std::min(places, end - begin);
    text.append(begin, point);
    if (point == begin) text += '0';
    if (decimals == 0) return;
    text += separator;
    text.append(static_cast<std::size_t>(places - (end - point)), '0');
    text.append(point, end);
}

/// Digits as they are typed, few enough to be exact.
struct PlainNumber {
    std::uint64_t units = 0;
    int digits = 0;

    /// What follows the digits that a text begins with.
    std::string_view Take(std::string_view text) {
        std::size_t taken = 0;
        for (; taken < text.size() && digits < SignificantDigits; ++taken, ++digits) {
            if (!IsDigit(text[taken])) break;
            units = units * 10 + static_cast<std::uint64_t>(text[taken] - '0');
        }
        return text.substr(taken);
    }
};

}  // namespace

void WriteNumber(std::string& text, double number, std::string_view separator) {
    text.clear();
    if (number < 0) text += '-';
    const double magnitude = std::fabs(number);
    if (const auto millionths = Millionths(magnitude)) {
        WriteUnits(text, *millionths, MillionthPlaces, separator);
    } else {
        DecimalOf(magnitude).AppendTo(text, separator);
    }
}

std::string NumberText(double number) {
    if (std::isnan(number)) return "nan";
    if (std::isinf(number)) return number < 0 ? "-inf" : "inf";
    std::string text;
    WriteNumber(text, number, ".");
    return text;
}

double ReadNumber(std::string_view text, std::string_view separator) {
    const bool negative = text.starts_with('-');
    PlainNumber number;
    std::string_view rest = number.Take(text.substr(negative ? 1 : 0));
    int places = 0;
    if (rest.starts_with(separator)) {
        const int whole = number.digits;
        rest = number.Take(rest.substr(separator.size()));
        places = number.digits - whole;
    }
    if (!rest.empty()) {
        const double any = ReadDecimal(text, Exponents::NotRead, separator).number;
        return any == 0 ? 0 : any;
    }
    if (number.units == 0) return 0;
    const double magnitude =
        static_cast<double>(number.units) / PowersOfTen[static_cast<std::size_t>(places)];
    return negative ? -magnitude : magnitude;
}

std::optional<double> NumberIn(std::string_view text, Exponents exponents) {
    const auto [number, length] = ReadDecimal(text, exponents);
    return length > 0 && length == text.size() ? std::optional(number) : std::nullopt;
}

}  // namespace tavrin::data
