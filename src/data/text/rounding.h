#pragma once

#include <cstdint>
#include <optional>

namespace tavrin::data {

inline constexpr int MaxRoundingDecimals = 6;

/// Rounds to 0 to 6 decimals, a tie to the even digit: the decimal that the number stands for (DecimalOf), so
/// that 2.675 is the tie that its reader sees, although no double is. The result is the double nearest to the
/// rounded decimal; a result of zero has no sign. Infinities and NaN come back as they are.
double RoundHalfEven(double number, int decimals);

/// The magnitude of a number in units of its last decimal, rounded in the same way: 12.344 with 2 decimals is
/// 1234. Nothing from 1e15 units on, where its decimal has no digit left to round.
std::optional<std::uint64_t> RoundedUnits(double number, int decimals);

}  // namespace tavrin::data
