#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "data/text/decimal.h"

namespace tavrin::data {

// A number as plain text, by the rule of SignificantDigits: neither groups nor an exponent, "-" for
// negatives, zero without a sign. grouped_number.h writes one for reading.

/// `separator` stands before the decimals. `text` keeps its memory. \pre finite
void WriteNumber(std::string& text, double number, std::string_view separator);

/// The same with "." as separator; "nan", "inf" and "-inf" for what is no number.
std::string NumberText(double number);

/// The number that a text begins with: what follows a second separator does not count, and no digits at all
/// are 0. Zero has no sign.
double ReadNumber(std::string_view text, std::string_view separator);

/// The number that all of a text is, "." before its decimals; nothing where it is anything else. Infinite
/// where the number is too large.
std::optional<double> NumberIn(std::string_view text, Exponents exponents);

}  // namespace tavrin::data
