#pragma once

#include <optional>
#include <string>

#include "data/text/locale.h"
#include "data/value.h"

namespace tavrin::rates {

/// A rate as the database gives it: a number, or a text with thousands separators. Nothing for NULL.
std::optional<double> RateOf(const data::Value& value);

/// The number of a rate as a grid shows it, "." before its decimals: read as a number typed in the user's
/// locale once the "." has become the locale's separator. Group separators do not count.
/// \throws data::Error 13 (type mismatch) for a text that is no number, an empty one included, 6 (overflow)
///         for one out of range.
double NumberOfRateText(std::string text, const data::Locale& locale);

/// "Cursul este de  4,00 Lei pentru 1 EUR": two decimals, halves away from zero, the locale's separators.
std::string RateCaption(double rate, const std::string& currency, const data::Locale& locale);

}  // namespace tavrin::rates
