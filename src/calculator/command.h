#pragma once

namespace tavrin::calculator {

/// Everything that a key of the calculator can ask of the engine.
enum class Command {
    Digit0,
    Digit1,
    Digit2,
    Digit3,
    Digit4,
    Digit5,
    Digit6,
    Digit7,
    Digit8,
    Digit9,
    DecimalPoint,
    Divide,
    Add,
    Multiply,
    Subtract,
    Equals,
    Percent,
    ChangeSign,
    Clear,
    ClearEntry,
    Backspace,
    MemoryClear,
    MemoryRecall,
    MemoryAdd,
    MemorySubtract,
};

inline constexpr int CommandCount = static_cast<int>(Command::MemorySubtract) + 1;

constexpr Command DigitCommand(int digit) {
    return static_cast<Command>(static_cast<int>(Command::Digit0) + digit);
}

}  // namespace tavrin::calculator
