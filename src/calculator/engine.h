#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "calculator/arithmetic.h"
#include "calculator/command.h"
#include "calculator/conversion.h"
#include "calculator/engine_listener.h"
#include "calculator/entry.h"
#include "calculator/memory.h"

namespace tavrin::calculator {

/// A four-function calculator with percent, a one-way sign change, and memory. The entry is kept as text and
/// converted whenever it is to be shown; an operator takes its operand from the conversion. Results are
/// rounded half to even, to the conversion's decimals, before they are shown; the running result itself is
/// never rounded. It knows no window. A key costs no allocation once the listener's own texts have grown.
class Engine {
  public:
    /// `decimalSeparator` is the locale's. Conversion and listener outlive the engine.
    Engine(Conversion& conversion, EngineListener& listener, std::string decimalSeparator);

    /// False where the key does nothing: a digit or a separator that has no place, a sign that cannot turn, a
    /// percentage of a first operand. \throws data::Error 6 when a result is no finite number, and what the
    /// listener throws; a calculation that an error cuts short begins anew, with the memory as it was.
    bool Press(Command command);

    /// Begins with an empty entry in another locale.
    void SetDecimalSeparator(std::string separator) { entry_ = Entry(std::move(separator)); }

    /// Converts the entry as it stands and has the values shown. \throws what Conversion::Type throws, once
    /// the listener has been told
    void ShowEntry();
    /// The value in that unit becomes the entry, from which typing goes on. \throws as ShowEntry
    void ChooseUnit(Unit unit);

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
    bool ChangeSign();
    void Backspace();
    void Clear();
    void ClearMemory();
    void RecallMemory();
    void StoreEntry(void (Memory::*store)(double));
    void ConvertEntry();

    Conversion& conversion_;
    EngineListener& listener_;
    Entry entry_;
    Arithmetic arithmetic_;
    Memory memory_;
};

}  // namespace tavrin::calculator
