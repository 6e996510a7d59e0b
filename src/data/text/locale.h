#pragma once

#include <array>
#include <string>

namespace tavrin::data {

/// The user's locale, as far as windows show numbers and dates in it.
struct Locale {
    std::string decimalSeparator = ",";
    std::string thousandsSeparator = ".";
    std::array<std::string, 12> monthAbbreviations = {"ian", "feb", "mar", "apr", "mai", "iun",
                                                      "iul", "aug", "sep", "oct", "nov", "dec"};
};

}  // namespace tavrin::data
