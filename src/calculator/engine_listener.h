#pragma once

namespace tavrin::calculator {

/// What the engine needs from whoever shows its numbers. An error thrown from here ends the command, and a
/// calculation that it interrupts starts over.
class EngineListener {
  public:
    virtual ~EngineListener() = default;

    /// The conversion's values may have changed.
    virtual void ShowValues() = 0;
    /// Reports a division by zero. Returns once the user has acknowledged it.
    virtual void ReportDivisionByZero() = 0;
    virtual void ShowMemoryMark(bool visible) = 0;
};

}  // namespace tavrin::calculator
