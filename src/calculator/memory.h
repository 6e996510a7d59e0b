#pragma once

#include <cmath>

#include "data/checked_arithmetic.h"
#include "data/text/decimal.h"

namespace tavrin::calculator {

/// The memory register. \throws Error 6 on overflow; the register then keeps what it held.
class Memory {
  public:
    double Value() const { return value_; }
    void Clear() { value_ = 0; }
    void Add(double number) { Keep(value_ + number); }
    void Subtract(double number) { Keep(value_ - number); }

  private:
    /// Keeps exactly what recalling it shows, so that sums of amounts do not drift.
    void Keep(double number) {
        const double magnitude = data::DecimalOf(std::fabs(data::CheckedResult(number))).ToDouble();
        value_ = data::CheckedResult(number < 0 ? -magnitude : magnitude);
    }

    double value_ = 0;
};

}  // namespace tavrin::calculator
