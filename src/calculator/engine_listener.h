#pragma once

namespace tavrin::calculator {

/// What the engine needs of whoever shows its numbers. An error thrown from here ends the command; a
/// calculation that it cuts short begins anew.
class EngineListener {
  public:
    virtual ~EngineListener() = default;

    /// The conversion's values may have changed.
    virtual void ShowValues() = 0;
    /// Somebody divides by zero. Returns when the user has taken note.
    virtual void ReportDivisionByZero() = 0;
    virtual void ShowMemoryMark(bool visible) = 0;
};

}  // namespace tavrin::calculator
