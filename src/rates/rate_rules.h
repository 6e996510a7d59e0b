#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "data/value.h"
#include "rates/currency_names.h"

namespace tavrin::rates {

// What the rate windows may do, without a window and without a database.

/// No later than the last frozen day: its rates can be neither changed nor deleted, and no day is added
/// there.
bool IsFrozen(data::OleDate day, data::OleDate lastFrozenDay);

/// The last currency stays.
bool MayRemoveCurrency(const CurrencyNames& currencies);

// The entry of a day's rates.

enum class EntryMode { Add, Modify };

/// What an entry begins with, and what of it is its user's.
struct EntryRules {
    const char* title;
    bool choosesDay;      ///< the day is to be chosen, and must not be there yet
    bool beginsFromList;  ///< with the day and the rates of the list's current row, not with zeros
};
EntryRules RulesOf(EntryMode mode);

/// A value in the field over its cell.
struct TypedValue {
    std::string_view text;
    bool isEdited = false;  ///< another text than the cell's
};
enum class ValueRefusal { Missing, NoRate, TooManyDigits };
/// Why the value may not become the cell's. One of the database stays as it is until somebody changes it,
/// whatever it looks like.
std::optional<ValueRefusal> RefusalOf(const TypedValue& value);

/// Whether a number has room for one more digit, which takes the place of what is selected.
bool HasRoomForDigit(std::string_view text, std::string_view selected);

/// The number in a cell's text, its thousands separators and blanks aside; nothing when there is none.
std::optional<double> TypedRate(std::string_view text);

// Another currency.

enum class CurrencyMode { Add, Remove };

}  // namespace tavrin::rates
