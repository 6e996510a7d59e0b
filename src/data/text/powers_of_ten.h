#pragma once

#include <array>

namespace tavrin::data {

/// Up to so many digits, decimals and doubles tell each other apart: a whole number of so many divided by a
/// power of ten is the double of that decimal, and its digits are the shortest that read back.
inline constexpr int SafeDigits = 15;

/// Exact, as all powers up to 1e22 are.
inline constexpr std::array<double, SafeDigits + 1> PowersOfTen = {
    1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

}  // namespace tavrin::data
