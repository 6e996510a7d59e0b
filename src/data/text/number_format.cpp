#include "data/text/number_format.h"

#include <algorithm>

namespace tavrin::forms {

namespace {

struct Decimal {
    bool negative = false;
    std::string whole;     ///< without leading zeros, empty for zero
    std::string fraction;  ///< as many digits as asked for
};

bool IsDigits(std::string_view text) {
    return std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

/// Adds one unit in the last place. A carry out of the first place becomes a new "1" in front.
void Increment(std::string& digits) {
    for (std::size_t place = digits.size(); place-- > 0;) {
        if (digits[place] != '9') {
            ++digits[place];
            return;
        }
        digits[place] = '0';
    }
    digits.insert(digits.begin(), '1');
}

void RoundTo(Decimal& decimal, std::string_view fraction, std::size_t places) {
    const bool roundUp = fraction.size() > places && fraction[places] >= '5';
    std::string digits = decimal.whole + std::string(fraction.substr(0, places));
    digits.append(places > fraction.size() ? places - fraction.size() : 0, '0');
    if (roundUp) Increment(digits);
    decimal.fraction = digits.substr(digits.size() - places);
    decimal.whole = digits.substr(0, digits.size() - places);
}

std::string Grouped(const std::string& digits, std::size_t grouping, const std::string& separator) {
    if (grouping == 0) return digits;
    std::string grouped;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % grouping == 0) grouped += separator;
        grouped += digits[i];
    }
    return grouped;
}

}  // namespace

std::string FormatNumber(std::string_view number, const NumberFormat& format) {
    Decimal decimal;
    decimal.negative = number.starts_with('-');
    if (decimal.negative) number.remove_prefix(1);
    const std::size_t point = number.find('.');
    std::string_view whole = number.substr(0, point);
    const std::string_view fraction =
        point == std::string_view::npos ? std::string_view{} : number.substr(point + 1);
    if (number.empty() || !IsDigits(whole) || !IsDigits(fraction) || whole.size() + fraction.size() == 0)
        return {};

    whole.remove_prefix(std::min(whole.find_first_not_of('0'), whole.size()));
    decimal.whole = whole;
    RoundTo(decimal, fraction, static_cast<std::size_t>(format.decimals));

    const bool zero = decimal.whole.empty() && decimal.fraction.find_first_not_of('0') == std::string::npos;
    if (decimal.whole.empty() && format.leadingZero) decimal.whole = "0";
    std::string text =
        Grouped(decimal.whole, static_cast<std::size_t>(format.grouping), format.thousandsSeparator);
    if (format.decimals > 0) text += format.decimalSeparator + decimal.fraction;
    return decimal.negative && !zero ? "-" + text : text;
}

}  // namespace tavrin::forms
