#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "calculator/arithmetic.h"
#include "calculator/command.h"
#include "calculator/engine_listener.h"
#include "calculator/entry.h"
#include "calculator/memory.h"

namespace tavrin::calculator {

/// A four-function calculator with percent, a one-way sign change, memory and a chosen number of decimals.
/// The entry is kept as text, results are rounded half to even before they are shown; the running result
/// itself is never rounded. It knows no window. A key costs no allocation once the listener's own texts have
/// grown.
class Engine {
  public:
    /// `decimalSeparator` is the locale's. The listener outlives the engine.
    Engine(EngineListener& listener, std::string decimalSeparator);

    /// False where the key does nothing: a digit or a separator that has no place, a sign that cannot turn, a
    /// percentage of a first operand. \throws data::Error 6 when a result is no finite number, and what the
    /// listener throws; a calculation that an error cuts short begins anew, with the memory as it was.
    bool Press(Command command);

    /// Begins with an empty entry in another locale.
    void SetDecimalSeparator(std::string separator) { entry_ = Entry(std::move(separator)); }

    /// How many decimals may be typed and are kept of a result: 0, 2, 4 or 6. What was typed stays.
    void SetDecimals(int decimals) { decimals_ = decimals; }

    std::string_view EntryText() const { return entry_.Text(); }
    double EntryValue() const { return entry_.Value(); }
    /// Puts another number in place of the entry; whether the next digit begins a new one does not change.
    void SetEntry(double number) { entry_.SetNumber(number); }

  private:
    bool TypeDigit(int digit);
    bool TakeOperator(Operator taken);
    bool TakeFirstOperand(Operator taken);
    void TakeSecondOperand(Operator taken);
    void FinishPercent();
    void RestartAfterResult();
    void Continue(Operator taken);
    void ShowRounded(double number);
    void StartOver();
    double EnteredValue() const;
    bool ChangeSign();
    void Backspace();
    void Clear();
    void ClearMemory();
    void RecallMemory();
    void StoreEntry(void (Memory::*store)(double));

    EngineListener& listener_;
    Entry entry_;
    Arithmetic arithmetic_;
    Memory memory_;
    int decimals_ = 2;
};

}  // namespace tavrin::calculator
