#include "rates/rate_rules.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>

#include "data/text/date.h"
#include "data/text/decimal.h"

namespace tavrin::rates {

namespace {

/// As many as a number keeps on its way to the database and back.
constexpr std::ptrdiff_t MostDigits = 15;

std::ptrdiff_t CountDigits(std::string_view text) {
    return std::ranges::count_if(text, [](char each) { return each >= '0' && each <= '9'; });
}

}  // namespace

bool IsFrozen(data::OleDate day, data::OleDate lastFrozenDay) {
    return data::RoundedDay(day) <= data::RoundedDay(lastFrozenDay);
}

bool MayRemoveCurrency(const CurrencyNames& currencies) {
    return currencies.UpperBound() != CurrencyNames::FirstCurrency;
}

bool IsBlank(std::string_view text) {
    return text.find_first_not_of(' ') == std::string_view::npos;
}

EntryRules RulesOf(EntryMode mode) {
    if (mode == EntryMode::Add)
        return {.title = "Curs Valutar - Adaugare", .choosesDay = true, .beginsFromList = false};
    return {.title = "Curs Valutar - Modificare", .choosesDay = false, .beginsFromList = true};
}

std::optional<ValueRefusal> RefusalOf(const TypedValue& value) {
    if (IsBlank(value.text)) return ValueRefusal::Missing;
    if (!value.isEdited) return std::nullopt;
    // Letters and signs cannot be typed, but they can be pasted: what is no number is refused like a negative
    // one.
    const auto number = NumberIn(value.text);
    if (!number || *number < 0) return ValueRefusal::NoRate;
    if (CountDigits(value.text) > MostDigits) return ValueRefusal::TooManyDigits;
    return std::nullopt;
}

bool HasRoomForDigit(std::string_view text, std::string_view selected) {
    return CountDigits(text) - CountDigits(selected) < MostDigits;
}

std::optional<double> NumberIn(std::string_view text) {
    std::string number(text);
    std::erase(number, ',');
    std::erase(number, ' ');
    const auto [value, length] = data::ReadDecimal(number, data::Exponents::NotRead);
    const bool isWhole = length > 0 && length == number.size();
    return isWhole && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

}  // namespace tavrin::rates
