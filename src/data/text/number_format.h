#pragma once

#include <string>
#include <string_view>

namespace tavrin::data {

/// How a number's text is set for reading; the fields are those of the platform's NUMBERFMT.
struct NumberFormat {
    int decimals = 0;          ///< digits after the separator, rounded half away from zero
    int grouping = 3;          ///< digits in a group, 0 for none
    bool leadingZero = false;  ///< "0.5" rather than ".5"
    std::string decimalSeparator = ".";
    std::string thousandsSeparator = ",";
};

/// The portable twin of the platform's number formatting. `number` is digits with an optional leading "-" and
/// one optional "."; negative numbers get the "-" in front. Text that is no such number gives an empty text.
/// A whole zero without decimals and without a leading zero is an empty text.
std::string FormatNumber(std::string_view number, const NumberFormat& format);

}  // namespace tavrin::data
