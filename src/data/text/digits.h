#pragma once

#include <algorithm>
#include <concepts>
#include <cstddef>
#include <string>
#include <string_view>

namespace tavrin::data {

/// One of 0 to 9; digits of other scripts do not count.
constexpr bool IsDigit(std::integral auto character) {
    return character >= '0' && character <= '9';
}

inline std::ptrdiff_t CountDigits(std::string_view text) {
    return std::ranges::count_if(text, [](char each) { return IsDigit(each); });
}

/// What a hexadecimal digit stands for, -1 for anything else.
constexpr int ValueOfHexDigit(char digit) {
    if (IsDigit(digit)) return digit - '0';
    if (digit >= 'a' && digit <= 'f') return digit - 'a' + 10;
    if (digit >= 'A' && digit <= 'F') return digit - 'A' + 10;
    return -1;
}

/// With zeros in front where it has fewer digits. \pre not negative
inline std::string ZeroPadded(int number, std::size_t width) {
    std::string digits = std::to_string(number);
    if (digits.size() < width) digits.insert(0, width - digits.size(), '0');
    return digits;
}

}  // namespace tavrin::data
