#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "data/text/digit_text.h"

namespace tavrin::data {

/// The rule by which numbers become texts and texts numbers: a number stands for the decimal of that many
/// digits that is nearest to its exact value, a tie to the even one. Up to so many, decimals and doubles tell
/// each other apart; what a double keeps behind them is nothing that anybody typed or could read.
inline constexpr int SignificantDigits = 15;

/// Exact, as all powers up to 1e22 are: a whole number of no more than SignificantDigits divided by one of
/// them is the double of that decimal.
inline constexpr std::array<double, SignificantDigits + 1> PowersOfTen = {
    1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

/// What becomes of a number in the middle between two that have as many digits as are kept.
enum class Ties { ToEven, AwayFromZero };

/// A number from 0 on as decimal digits. The point stands behind that many of them; where it lies before the
/// first (negative) or behind the last, zeros fill the gap. Neither the first nor the last digit is 0; zero
/// has none.
///
/// The conversions are exact, the same on every system and in every locale of the C library, and a tenth of
/// the size of the standard library's, which is why the component has its own.
struct Decimal {
    DigitText digits;
    int point = 0;

    /// Keeps so many digits.
    void RoundToDigits(int count, Ties ties = Ties::ToEven);
    /// Keeps so many digits behind the point.
    void RoundToPlaces(int places, Ties ties = Ties::ToEven) { RoundToDigits(point + places, ties); }

    /// Appends the number without an exponent and without superfluous zeros.
    void AppendTo(std::string& text, std::string_view separator) const;

    /// The nearest double, a tie to the even one; infinity where it is too large.
    double ToDouble() const;

  private:
    /// The next number with as many digits. \pre nothing is lost by dropping nines
    void CountUp();
};

/// The decimal that a number stands for, for its text and for rounding alike. \pre finite, not negative
Decimal DecimalOf(double magnitude);

inline constexpr int MillionthPlaces = 6;

/// The same decimal as a count of millionths, where it is one and small enough, as amounts and rates are: the
/// quick way. \pre not negative
std::optional<std::uint64_t> Millionths(double magnitude);

enum class Exponents { Read, NotRead };

/// The decimal of a text that is digits with at most one point, nothing where it is anything else.
std::optional<Decimal> DecimalIn(std::string_view text);

/// What a text begins with: a minus, digits, a separator and digits, an exponent.
struct LeadingNumber {
    double number = 0;       ///< infinite where it is too large
    std::size_t length = 0;  ///< of what was read; 0 where there is no digit
};
LeadingNumber ReadDecimal(std::string_view text, Exponents exponents, std::string_view separator = ".");

}  // namespace tavrin::data
