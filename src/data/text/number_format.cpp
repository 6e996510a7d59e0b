#include "data/text/number_format.h"

#include <algorithm>
#include <optional>

#include "data/text/decimal.h"

namespace tavrin::data {

namespace {

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
    const bool isNegative = number.starts_with('-');
    std::optional<Decimal> decimal = DecimalIn(number.substr(isNegative ? 1 : 0));
    if (!decimal) return {};
    decimal->RoundToPlaces(format.decimals, Ties::AwayFromZero);
    std::string whole;
    decimal->AppendTo(whole, ".");
    const std::size_t point = std::min(whole.find('.'), whole.size());
    std::string fraction = whole.substr(std::min(point + 1, whole.size()));
    fraction.resize(static_cast<std::size_t>(format.decimals), '0');
    whole.resize(point);
    if (whole == "0" && !format.leadingZero) whole.clear();
    std::string text = Grouped(whole, static_cast<std::size_t>(format.grouping), format.thousandsSeparator);
    if (format.decimals > 0) text += format.decimalSeparator + fraction;
    return isNegative && !decimal->digits.IsEmpty() ? "-" + text : text;
}

}  // namespace tavrin::data
