#include "data/rounding.h"

#include <array>
#include <cmath>

#include "data/binary_parts.h"
#include "data/powers_of_ten.h"

namespace tavrin::data {

namespace {

constexpr std::array<std::uint64_t, MaxRoundingDecimals + 1> PowersOfFive = {1, 5, 25, 125, 625, 3125, 15625};
// 9e15 units, a little less than 2^53.
constexpr std::array<double, MaxRoundingDecimals + 1> Limits = {9e15, 9e14, 9e13, 9e12, 9e11, 9e10, 9e9};
constexpr double SafeProduct = 17'592'186'044'416.0;  // 2^44, below which doubles are 2^-9 apart or less
constexpr double ClearOfTies = 0.49;

enum class Below { Nothing, Something };  ///< whether smaller digits than those at hand are not all zero

/// value / 2^shift to the nearest integer, a tie to the even one. \pre 0 < shift < 64
std::uint64_t ShiftRounded(std::uint64_t value, int shift, Below below) {
    const std::uint64_t quotient = value >> shift;
    const std::uint64_t rest = value & ((std::uint64_t{1} << shift) - 1);
    const std::uint64_t half = std::uint64_t{1} << (shift - 1);
    if (rest != half) return quotient + (rest > half ? 1 : 0);
    const bool pastTheTie = below == Below::Something || quotient % 2 == 1;
    return quotient + (pastTheTie ? 1 : 0);
}

/// significand * factor / 2^shift, rounded, where the product may be wider than 64 bits: it is formed without
/// its last four bits, which can only break a tie.
std::uint64_t ScaleRounded(std::uint64_t significand, std::uint64_t factor, int shift) {
    constexpr int Spare = 4;
    constexpr std::uint64_t SpareMask = (std::uint64_t{1} << Spare) - 1;
    if (shift <= 0) return significand * factor << -shift;
    if (shift <= Spare) return ShiftRounded(significand * factor, shift, Below::Nothing);
    if (shift - Spare >= 64) return 0;
    const std::uint64_t low = (significand & SpareMask) * factor;
    const std::uint64_t high = (significand >> Spare) * factor + (low >> Spare);
    return ShiftRounded(high, shift - Spare, (low & SpareMask) != 0 ? Below::Something : Below::Nothing);
}

}  // namespace

std::optional<std::uint64_t> RoundedUnits(double number, int decimals) {
    const auto places = static_cast<std::size_t>(decimals);
    const double magnitude = std::fabs(number);
    // Most numbers lie far from every tie: where even the product, which may be off by a 500th, is clear of
    // them, it shows the nearest integer.
    if (const double product = magnitude * PowersOfTen[places]; product < SafeProduct) {
        // NOLINTNEXTLINE(bugprone-incorrect-roundings): never negative, and ties are not for here
        const auto nearest = static_cast<std::int64_t>(product + 0.5);
        if (std::fabs(product - static_cast<double>(nearest)) < ClearOfTies)
            return static_cast<std::uint64_t>(nearest);
    }
    if (!(magnitude < Limits[places])) return std::nullopt;
    // Ten is two times five: the twos go into the exponent, so only a small factor is left to multiply by.
    const BinaryParts parts = Split(magnitude);
    return ScaleRounded(parts.significand, PowersOfFive[places], -(parts.exponent + decimals));
}

double RoundHalfEven(double number, int decimals) {
    const std::optional<std::uint64_t> units = RoundedUnits(number, decimals);
    if (!units) return number;
    if (*units == 0) return 0;
    const double magnitude = static_cast<double>(*units) / PowersOfTen[static_cast<std::size_t>(decimals)];
    return std::copysign(magnitude, number);
}

}  // namespace tavrin::data
