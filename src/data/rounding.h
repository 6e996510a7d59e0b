#pragma once

#include <cstdint>
#include <optional>

namespace tavrin::data {

inline constexpr int MaxRoundingDecimals = 6;

/// Rounds to 0 to 6 decimals, a tie to the even digit. Decided on the number that the double really is, not
/// on a product: 1.005 lies a little below its tie and becomes 1, 2.5 is one and becomes 2. The result is the
/// double nearest to the rounded decimal; a result of zero has no sign. Infinities and NaN come back as they
/// are.
double RoundHalfEven(double number, int decimals);

/// The magnitude of a number in units of its last decimal, rounded in the same way: 12.344 with 2 decimals is
/// 1234. Nothing from 9e15 units on, where a double no longer tells one unit from the next.
std::optional<std::uint64_t> RoundedUnits(double number, int decimals);

}  // namespace tavrin::data
