#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "data/text/digit_text.h"

namespace tavrin::data {

/// A number from 0 on as decimal digits. The point stands behind that many of them; where it lies before the
/// first (negative) or behind the last, zeros fill the gap. Neither the first nor the last digit is 0; zero
/// has none.
///
/// The conversions are exact, the same on every system and in every locale of the C library, and a tenth of
/// the size of the standard library's, which is why the component has its own.
struct Decimal {
    DigitText digits;
    int point = 0;

    /// Keeps so many digits, a tie to the even one.
    void RoundToDigits(int count);
    /// Keeps so many digits behind the point.
    void RoundToPlaces(int places) { RoundToDigits(point + places); }

    /// Adds the number without an exponent and with no more zeros than it needs.
    void AppendTo(std::string& text, std::string_view separator) const;

    /// The nearest double, a tie to the even one; infinity where it is too large.
    double ToDouble() const;

  private:
    /// The next number with as many digits. \pre nothing is lost by dropping nines
    void CountUp();
};

/// The decimal that a number stands for, for its text and for rounding alike: its exact value to 15
/// significant digits, a tie to the even one. What a double keeps behind them is nothing that anybody typed
/// or could read. \pre finite, not negative
Decimal DecimalOf(double magnitude);

inline constexpr int MillionthPlaces = 6;

/// The same decimal as a count of millionths, where it is one and small enough, as amounts and rates are: the
/// quick way. \pre not negative
std::optional<std::uint64_t> Millionths(double magnitude);

enum class Exponents { Read, NotRead };

/// What a text begins with: a minus, digits, a separator and digits, an exponent.
struct ReadNumber {
    double number = 0;
    std::size_t length = 0;  ///< of what was read; 0 where there is no digit
};

/// Infinite where the number is too large.
ReadNumber ReadDecimal(std::string_view text, Exponents exponents, std::string_view separator = ".");

}  // namespace tavrin::data
