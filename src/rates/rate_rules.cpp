#include "rates/rate_rules.h"

#include <cmath>
#include <string>

#include "data/text/date.h"
#include "data/text/decimal.h"
#include "data/text/digits.h"
#include "data/text/number_text.h"
#include "data/text/trim.h"

namespace tavrin::rates {

bool IsFrozen(data::OleDate day, data::OleDate lastFrozenDay) {
    return data::RoundedDay(day) <= data::RoundedDay(lastFrozenDay);
}

bool MayRemoveCurrency(const CurrencyNames& currencies) {
    return currencies.UpperBound() != CurrencyNames::FirstCurrency;
}

EntryRules RulesOf(EntryMode mode) {
    if (mode == EntryMode::Add)
        return {.title = "Curs Valutar - Adaugare", .choosesDay = true, .beginsFromList = false};
    return {.title = "Curs Valutar - Modificare", .choosesDay = false, .beginsFromList = true};
}

std::optional<ValueRefusal> RefusalOf(const TypedValue& value) {
    if (data::IsBlank(value.text)) return ValueRefusal::Missing;
    if (!value.isEdited) return std::nullopt;
    // Letters and signs cannot be typed, but they can be pasted: what is no number is refused like a negative
    // one.
    const auto number = TypedRate(value.text);
    if (!number || *number < 0) return ValueRefusal::NoRate;
    if (data::CountDigits(value.text) > data::SignificantDigits) return ValueRefusal::TooManyDigits;
    return std::nullopt;
}

bool HasRoomForDigit(std::string_view text, std::string_view selected) {
    return data::CountDigits(text) - data::CountDigits(selected) < data::SignificantDigits;
}

std::optional<double> TypedRate(std::string_view text) {
    std::string number(text);
    std::erase(number, ',');
    std::erase(number, ' ');
    const std::optional<double> read = data::NumberIn(number, data::Exponents::NotRead);
    return read && std::isfinite(*read) ? read : std::nullopt;
}

}  // namespace tavrin::rates
