#pragma once

namespace tavrin::data {

// Arithmetic as the windows' rules know it: what is no number is an error, never an infinity.

/// The result of an operation on finite numbers. \throws Error 6 (overflow) when it is not finite.
double CheckedResult(double result);

/// \throws Error 11 (division by zero), for 0/0 and a result out of range 6 (overflow).
double CheckedQuotient(double dividend, double divisor);

}  // namespace tavrin::data
