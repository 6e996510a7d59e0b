#include "calculator/engine.h"

#include <utility>

#include "data/checked_arithmetic.h"
#include "data/text/rounding.h"

namespace tavrin::calculator {

Engine::Engine(Conversion& conversion, EngineListener& listener, std::string decimalSeparator)
    : conversion_(conversion), listener_(listener), entry_(std::move(decimalSeparator)) {}

bool Engine::Press(Command command) {
    switch (command) {
        case Command::DecimalPoint:
            return entry_.TypeSeparator();
        case Command::Divide:
            return TakeOperator(Operator::Divide);
        case Command::Add:
            return TakeOperator(Operator::Add);
        case Command::Multiply:
            return TakeOperator(Operator::Multiply);
        case Command::Subtract:
            return TakeOperator(Operator::Subtract);
        case Command::Equals:
            return TakeOperator(Operator::Equals);
        case Command::Percent:
            return TakeOperator(Operator::Percent);
        case Command::ChangeSign:
            return ChangeSign();
        case Command::Clear:
            Clear();
            break;
        case Command::ClearEntry:
            entry_.Clear();
            break;
        case Command::Backspace:
            Backspace();
            break;
        case Command::MemoryClear:
            ClearMemory();
            break;
        case Command::MemoryRecall:
            RecallMemory();
            break;
        case Command::MemoryAdd:
            StoreEntry(&Memory::Add);
            break;
        case Command::MemorySubtract:
            StoreEntry(&Memory::Subtract);
            break;
        default:
            return TypeDigit(static_cast<int>(command) - static_cast<int>(Command::Digit0));
    }
    return true;
}

// The entry.

void Engine::ShowEntry() {
    try {
        ConvertEntry();
    } catch (...) {
        // What was typed is shown even where it cannot be converted.
        listener_.ShowValues();
        throw;
    }
    listener_.ShowValues();
}

void Engine::ConvertEntry() {
    if (entry_.Text() == "-0") return conversion_.Clear();
    conversion_.Type(entry_.Value());
}

void Engine::ChooseUnit(Unit unit) {
    conversion_.TypeIn(unit);
    entry_.SetNumber(conversion_.Typed());
    ShowEntry();
}

// Typing.

bool Engine::TypeDigit(int digit) {
    if (!entry_.TypeDigit(digit, conversion_.Decimals())) return false;
    ShowEntry();
    return true;
}

bool Engine::ChangeSign() {
    if (!entry_.ChangeSign()) return false;
    // The running result turns with the entry, whether it is what the entry shows or not.
    arithmetic_.NegateAccumulator();
    ShowEntry();
    return true;
}

void Engine::Backspace() {
    entry_.DropLast();
    ShowEntry();
}

// Operators.

bool Engine::TakeOperator(Operator taken) {
    if (entry_.StartsAnew()) {
        arithmetic_.SetPending(taken);
        return true;
    }
    if (arithmetic_.CountOperand() == 1) return TakeFirstOperand(taken);
    try {
        TakeSecondOperand(taken);
    } catch (...) {
        StartOver();
        throw;
    }
    return true;
}

bool Engine::TakeFirstOperand(Operator taken) {
    arithmetic_.SetAccumulator(conversion_.Typed());
    if (taken == Operator::Percent) {
        arithmetic_.SetOperandCount(0);
        return false;
    }
    arithmetic_.SetPending(taken);
    entry_.StartAnew();
    return true;
}

void Engine::TakeSecondOperand(Operator taken) {
    arithmetic_.SetOperand(conversion_.Typed());
    if (taken == Operator::Percent) return FinishPercent();
    if (arithmetic_.Pending() == Operator::Equals) return RestartAfterResult();
    Continue(taken);
}

void Engine::FinishPercent() {
    if (arithmetic_.ApplyPercent() == Outcome::DividedByZero) listener_.ReportDivisionByZero();
    ShowRounded(arithmetic_.Accumulator());
    arithmetic_.SetOperand(0);
    arithmetic_.SetOperandCount(0);
    entry_.StartAnew();
    // The pending operator stays: the next number is counted as a first operand all the same.
}

void Engine::RestartAfterResult() {
    // A number typed after "=" is shown, but neither it nor the operator is kept: the user begins again.
    ShowRounded(arithmetic_.Operand());
    arithmetic_.SetAccumulator(0);
    arithmetic_.SetOperand(0);
    arithmetic_.SetOperandCount(0);
    entry_.StartAnew();
}

void Engine::Continue(Operator taken) {
    if (arithmetic_.Apply() == Outcome::DividedByZero) listener_.ReportDivisionByZero();
    ShowRounded(arithmetic_.Accumulator());
    arithmetic_.SetOperandCount(1);
    entry_.StartAnew();
    arithmetic_.SetPending(taken);
}

void Engine::ShowRounded(double number) {
    entry_.SetNumber(data::CheckedResult(data::RoundHalfEven(number, conversion_.Decimals())));
    ShowEntry();
}

void Engine::StartOver() {
    // The number in the entry stays, as it stays on the screen.
    arithmetic_.Clear();
    entry_.Restart();
}

void Engine::Clear() {
    arithmetic_.Clear();
    entry_.Clear();
    ClearMemory();
}

// Memory.

void Engine::ClearMemory() {
    listener_.ShowMemoryMark(false);
    memory_.Clear();
}

void Engine::RecallMemory() {
    entry_.SetNumber(memory_.Value());
    ShowEntry();
}

void Engine::StoreEntry(void (Memory::*store)(double)) {
    listener_.ShowMemoryMark(true);
    (memory_.*store)(entry_.Value());
    entry_.SetZero();
    ShowEntry();
}

}  // namespace tavrin::calculator
