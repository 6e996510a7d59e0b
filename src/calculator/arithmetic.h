#pragma once

#include <cstdint>

namespace tavrin::calculator {

enum class Operator { None, Divide, Add, Multiply, Subtract, Equals, Percent };

enum class Outcome { Done, DividedByZero };

/// The running calculation: the result so far, the operator that waits for its second operand, and how many
/// operands were taken. It knows nothing of typing and rounds nothing.
class Arithmetic {
  public:
    double Accumulator() const { return accumulator_; }
    double Operand() const { return operand_; }
    Operator Pending() const { return pending_; }

    void Clear() { *this = Arithmetic(); }
    void SetPending(Operator pending) { pending_ = pending; }
    void SetAccumulator(double number) { accumulator_ = number; }
    void SetOperand(double number) { operand_ = number; }
    void NegateAccumulator() { accumulator_ *= -1; }

    /// Counts one more operand and answers how many there are: 1 or 2.
    std::int32_t CountOperand() { return ++operandCount_; }
    void SetOperandCount(std::int32_t count) { operandCount_ = count; }

    /// Applies the pending operator to accumulator and operand; one that is none of the four leaves the
    /// accumulator as it is, as does a division by zero. \throws Error 6 on overflow.
    Outcome Apply();
    /// The same with the operand as a percentage of the accumulator.
    Outcome ApplyPercent();

  private:
    double accumulator_ = 0;
    double operand_ = 0;
    Operator pending_ = Operator::None;
    std::int32_t operandCount_ = 0;
};

}  // namespace tavrin::calculator
