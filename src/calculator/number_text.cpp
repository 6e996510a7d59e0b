#include "calculator/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

#include "data/rounding.h"

namespace tavrin::calculator {

namespace {

// The longest text of a number: "0.", the zeros of the smallest double and its digits.
using Buffer = std::array<char, 400>;

// Up to this many digits, decimals and doubles tell each other apart: an integer divided by a power of ten is
// the double of that decimal, and its digits are the shortest that read back.
constexpr int ExactDigits = 15;
constexpr double WholeFrom = 9007199254740992.0;  // 2^53
constexpr std::uint64_t ExactLimit = 1'000'000'000'000'000;
constexpr std::array<double, ExactDigits + 1> PowersOfTen = {1,   1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                             1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

/// Writes units / 10^decimals without zeros at its end.
void WriteUnits(std::string& text, std::uint64_t units, int decimals, std::string_view separator) {
    while (decimals > 0 && units % 10 == 0) {
        units /= 10;
        --decimals;
    }
    std::array<char, ExactDigits + 1> digits;
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

/// For whole numbers whose last digits a double does not know: zeros stand for those.
void WriteLarge(std::string& text, double magnitude) {
    Buffer written;
    const char* const begin = written.data();
    const char* const end = std::to_chars(written.data(), written.data() + written.size(), magnitude,
                                          std::chars_format::scientific)
                                .ptr;
    const char* const exponentSign = std::find(begin, end, 'e') + 1;
    int exponent = 0;
    std::from_chars(exponentSign + 1, end, exponent);
    std::size_t missing = static_cast<std::size_t>(exponent) + 1;
    for (const char character : std::string_view(begin, static_cast<std::size_t>(exponentSign - begin - 1))) {
        if (character == '.') continue;
        text += character;
        --missing;
    }
    text.append(missing, '0');
}

void WriteAny(std::string& text, double magnitude, std::string_view separator) {
    Buffer digits;
    const char* const begin = digits.data();
    const char* const end =
        std::to_chars(digits.data(), digits.data() + digits.size(), magnitude, std::chars_format::fixed).ptr;
    const char* const point = std::find(begin, end, '.');
    text.append(begin, point);
    if (point == end) return;
    text += separator;
    text.append(point + 1, end);
}

/// Digits as they are typed: nothing but a sign, digits and a separator, few enough to be exact.
struct PlainNumber {
    std::uint64_t units = 0;
    int digits = 0;
    bool plain = true;

    void Take(std::string_view part) {
        for (const char character : part) {
            if (character < '0' || character > '9' || ++digits > ExactDigits) {
                plain = false;
                return;
            }
            units = units * 10 + static_cast<std::uint64_t>(character - '0');
        }
    }
};

double ReadAny(std::string_view whole, std::string_view fraction) {
    // The library reads "inf" and "nan" as well, which are no numbers here.
    const std::size_t begin = whole.starts_with('-') ? 1 : 0;
    if (begin < whole.size() && (whole[begin] < '0' || whole[begin] > '9')) return 0;
    Buffer text;
    const auto copied = std::min(whole.size(), text.size() - 1);
    char* end = std::copy_n(whole.begin(), copied, text.begin());
    *end++ = '.';
    end = std::copy_n(fraction.begin(), std::min(fraction.size(), text.size() - copied - 1), end);
    double number = 0;
    std::from_chars(text.data(), end, number, std::chars_format::fixed);
    return number == 0 ? 0 : number;
}

}  // namespace

void WriteNumber(std::string& text, double number, std::string_view separator) {
    text.clear();
    if (number < 0) text += '-';
    const double magnitude = std::fabs(number);
    constexpr int Decimals = data::MaxRoundingDecimals;
    const std::optional<std::uint64_t> units = data::RoundedUnits(number, Decimals);
    const bool isExact =
        units && *units < ExactLimit && static_cast<double>(*units) / PowersOfTen[Decimals] == magnitude;
    if (isExact) {
        WriteUnits(text, *units, Decimals, separator);
    } else if (magnitude >= WholeFrom) {
        WriteLarge(text, magnitude);
    } else {
        WriteAny(text, magnitude, separator);
    }
}

double ReadNumber(std::string_view text, std::string_view separator) {
    const std::size_t separatorAt = text.find(separator);
    const std::string_view whole = text.substr(0, separatorAt);
    std::string_view fraction;
    if (separatorAt != std::string_view::npos) {
        fraction = text.substr(separatorAt + separator.size());
        fraction = fraction.substr(0, fraction.find(separator));
    }
    const bool negative = whole.starts_with('-');
    PlainNumber number;
    number.Take(whole.substr(negative ? 1 : 0));
    number.Take(fraction);
    if (!number.plain) return ReadAny(whole, fraction);
    if (number.units == 0) return 0;
    const double magnitude = static_cast<double>(number.units) / PowersOfTen[fraction.size()];
    return negative ? -magnitude : magnitude;
}

}  // namespace tavrin::calculator
