#pragma once

#include <string>
#include <string_view>

namespace tavrin::calculator {

/// Writes the decimal that a number stands for: at most 15 significant digits, the given separator, "-" for
/// negatives, neither groups nor an exponent. `text` keeps its memory.
void WriteNumber(std::string& text, double number, std::string_view separator);

/// The number that a text begins with: what follows a second separator does not count, and no digits at all
/// are 0. Zero has no sign.
double ReadNumber(std::string_view text, std::string_view separator);

}  // namespace tavrin::calculator
