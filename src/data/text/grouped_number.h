#pragma once

#include <string>

#include "data/text/locale.h"

namespace tavrin::data {

/// Writes a number for reading: digits in groups of three, a fixed number of decimals (0 to 6, rounded as
/// RoundHalfEven does), zero without a sign. From 1e21 on, where a row of zeros would have no room, in
/// the form 1,5E+25. What is no number is an empty text. `text` keeps its memory.
void WriteGroupedNumber(std::string& text, double number, int decimals, const Locale& locale);

}  // namespace tavrin::data
