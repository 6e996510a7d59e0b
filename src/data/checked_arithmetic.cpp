#include "data/checked_arithmetic.h"

#include <cmath>

#include "data/error.h"

namespace tavrin::data {

double CheckedResult(double result) {
    if (!std::isfinite(result)) throw RuntimeError(error_number::Overflow);
    return result;
}

double CheckedQuotient(double dividend, double divisor) {
    if (divisor == 0 && dividend != 0) throw RuntimeError(error_number::DivisionByZero);
    if (divisor == 0) throw RuntimeError(error_number::Overflow);
    return CheckedResult(dividend / divisor);
}

}  // namespace tavrin::data
