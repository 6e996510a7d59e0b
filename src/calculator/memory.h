#pragma once

#include "data/checked_arithmetic.h"

namespace tavrin::calculator {

/// The memory register. \throws Error 6 on overflow; the register then keeps what it held.
class Memory {
  public:
    double Value() const { return value_; }
    void Clear() { value_ = 0; }
    void Add(double number) { value_ = data::CheckedResult(value_ + number); }
    void Subtract(double number) { value_ = data::CheckedResult(value_ - number); }

  private:
    double value_ = 0;
};

}  // namespace tavrin::calculator
