#include "data/text/rounding.h"

#include <array>
#include <cmath>

#include "data/text/decimal.h"

namespace tavrin::data {

namespace {

static_assert(MaxRoundingDecimals == MillionthPlaces,
              "millionths can be rounded to every number of decimals");

/// How far, as a part of itself, a number may lie from its decimal, and a product from what it should be.
constexpr double MostShift = 1e-14;
/// Above, no product is clear of ties.
constexpr double LargestProduct = 1e14;

/// Nothing where it lies so near to a tie that only the decimal itself can tell.
std::optional<std::uint64_t> UnitsClearOfTies(double magnitude, std::size_t places) {
    const double product = magnitude * PowersOfTen[places];
    if (!(product < LargestProduct)) return std::nullopt;
    // NOLINTNEXTLINE(bugprone-incorrect-roundings): never negative, and ties are not for here
    const auto nearest = static_cast<std::int64_t>(product + 0.5);
    if (std::fabs(product - static_cast<double>(nearest)) + product * MostShift >= 0.5) return std::nullopt;
    return static_cast<std::uint64_t>(nearest);
}

std::uint64_t MillionthsToUnits(std::uint64_t millionths, std::size_t places) {
    const auto unit = static_cast<std::uint64_t>(PowersOfTen[MillionthPlaces - places]);
    const std::uint64_t units = millionths / unit;
    const std::uint64_t twiceTheRest = millionths % unit * 2;
    const bool isUp = twiceTheRest == unit ? units % 2 == 1 : twiceTheRest > unit;
    return units + (isUp ? 1 : 0);
}

std::uint64_t DecimalToUnits(Decimal decimal, int places) {
    decimal.RoundToPlaces(places);
    decimal.digits.Resize(decimal.digits.IsEmpty() ? 0 : static_cast<std::size_t>(decimal.point + places));
    std::uint64_t units = 0;
    for (const char digit : decimal.digits.View())
        units = units * 10 + static_cast<std::uint64_t>(digit - '0');
    return units;
}

}  // namespace

std::optional<std::uint64_t> RoundedUnits(double number, int decimals) {
    const auto places = static_cast<std::size_t>(decimals);
    const double magnitude = std::fabs(number);
    if (const auto units = UnitsClearOfTies(magnitude, places)) return units;
    if (const auto millionths = Millionths(magnitude)) return MillionthsToUnits(*millionths, places);
    if (!(magnitude < PowersOfTen[SignificantDigits - places])) return std::nullopt;
    return DecimalToUnits(DecimalOf(magnitude), decimals);
}

double RoundHalfEven(double number, int decimals) {
    if (!std::isfinite(number)) return number;
    const std::optional<std::uint64_t> units = RoundedUnits(number, decimals);
    if (!units) return std::copysign(DecimalOf(std::fabs(number)).ToDouble(), number);
    if (*units == 0) return 0;
    const double magnitude = static_cast<double>(*units) / PowersOfTen[static_cast<std::size_t>(decimals)];
    return std::copysign(magnitude, number);
}

}  // namespace tavrin::data
