#include "host/embedded/money_text.h"

#include <cmath>
#include <cstdint>

namespace tavrin::host {
namespace {

constexpr double MoneyUnits = 10000;
constexpr double LargestMoney = 922337203685477.0;

std::int64_t RoundedHundredths(double amount) {
    const std::int64_t units = std::llround(amount * MoneyUnits);
    const std::int64_t half = units < 0 ? -50 : 50;
    return (units + half) / 100;
}

}  // namespace

std::optional<double> ToMoney(double amount) {
    if (!(std::fabs(amount) < LargestMoney)) return std::nullopt;
    return static_cast<double>(std::llround(amount * MoneyUnits)) / MoneyUnits;
}

std::string MoneyText(double amount, Thousands thousands) {
    const std::optional<double> money = ToMoney(amount);
    if (!money) return {};
    const std::int64_t hundredths = RoundedHundredths(*money);
    const std::int64_t magnitude = hundredths < 0 ? -hundredths : hundredths;
    std::string whole = std::to_string(magnitude / 100);
    if (thousands == Thousands::Grouped) {
        for (std::size_t left = whole.size(); left > 3;)
            whole.insert(left -= 3, ",");
    }
    const std::int64_t cents = magnitude % 100;
    const std::string decimals = (cents < 10 ? "0" : "") + std::to_string(cents);
    return (hundredths < 0 ? "-" : "") + whole + "." + decimals;
}

}  // namespace tavrin::host
