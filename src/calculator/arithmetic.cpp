#include "calculator/arithmetic.h"

#include "data/checked_arithmetic.h"

namespace tavrin::calculator {

using data::CheckedQuotient;
using data::CheckedResult;

Outcome Arithmetic::Apply() {
    switch (pending_) {
        case Operator::Add:
            accumulator_ = CheckedResult(accumulator_ + operand_);
            break;
        case Operator::Subtract:
            accumulator_ = CheckedResult(accumulator_ - operand_);
            break;
        case Operator::Multiply:
            accumulator_ = CheckedResult(accumulator_ * operand_);
            break;
        case Operator::Divide:
            if (operand_ == 0) return Outcome::DividedByZero;
            accumulator_ = CheckedQuotient(accumulator_, operand_);
            break;
        default:
            break;
    }
    return Outcome::Done;
}

Outcome Arithmetic::ApplyPercent() {
    switch (pending_) {
        case Operator::Add:
            accumulator_ = CheckedResult(accumulator_ * (1 + operand_ / 100));
            break;
        case Operator::Subtract:
            accumulator_ = CheckedResult(accumulator_ * (1 - operand_ / 100));
            break;
        case Operator::Multiply:
            accumulator_ = CheckedResult(accumulator_ * operand_) / 100;
            break;
        case Operator::Divide:
            if (operand_ == 0) return Outcome::DividedByZero;
            accumulator_ = CheckedQuotient(accumulator_, operand_ / 100);
            break;
        default:
            break;
    }
    return Outcome::Done;
}

}  // namespace tavrin::calculator
