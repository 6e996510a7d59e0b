#include "rates/rate_text.h"

#include <string_view>
#include <utility>

#include "data/text/number_format.h"
#include "data/text/number_text.h"

namespace tavrin::rates {

namespace {

void ReplaceAll(std::string& text, std::string_view what, std::string_view by) {
    if (what.empty()) return;
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size()))
        text.replace(at, what.size(), by);
}

}  // namespace

std::optional<double> RateOf(const data::Value& value) {
    if (value.IsNull()) return std::nullopt;
    if (!value.IsText()) return value.ToDouble();
    std::string text = value.ToText();
    std::erase(text, ',');
    return data::Value(std::move(text)).ToDouble();
}

double NumberOfRateText(std::string text, const data::Locale& locale) {
    ReplaceAll(text, ".", locale.decimalSeparator);
    const std::size_t separatorAt = text.find(locale.decimalSeparator);
    std::string number = text.substr(0, separatorAt);
    ReplaceAll(number, locale.thousandsSeparator, "");
    if (separatorAt != std::string::npos)
        number += "." + text.substr(separatorAt + locale.decimalSeparator.size());
    return data::Value(std::move(number)).ToDouble();
}

std::string RateCaption(double rate, const std::string& currency, const data::Locale& locale) {
    const std::string amount =
        data::FormatNumber(data::NumberText(rate), {.decimals = 2,
                                                    .grouping = 3,
                                                    .leadingZero = true,
                                                    .decimalSeparator = locale.decimalSeparator,
                                                    .thousandsSeparator = locale.thousandsSeparator});
    return "Cursul este de  " + amount + " Lei pentru 1 " + currency;
}

}  // namespace tavrin::rates
