#include "data/checked_arithmetic.h"

#include <cmath>

#include "data/error.h"

namespace tavrin::data {

double CheckedResult(double result) {
    if (!std::isfinite(result)) throw Error(error_number::Overflow, "Overflow");
    return result;
}

double CheckedQuotient(double dividend, double divisor) {
    if (divisor == 0 && dividend != 0) throw Error(error_number::DivisionByZero, "Division by zero");
    if (divisor == 0) throw Error(error_number::Overflow, "Overflow");
    return CheckedResult(dividend / divisor);
}

}  // namespace tavrin::data
