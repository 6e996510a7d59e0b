#pragma once

#include <string>
#include <string_view>

#include "calculator/engine.h"
#include "data/checked_arithmetic.h"
#include "forms/grouped_number.h"

namespace tavrin::tests {

enum class Unit { Lei, Currency };

/// The shown side of a calculator without a window: two displays, a rate, a unit, a memory mark and the
/// division messages, as the window has them.
class TwoDisplays : public calculator::EngineListener {
  public:
    explicit TwoDisplays(forms::Locale locale = {}) : locale_(std::move(locale)) {}

    void ShowValues() override {
        ++refreshes;
        if (engine.EntryText() == "-0") {
            lei = currency = 0;
            return;
        }
        const double entered = data::CheckedResult(engine.EntryValue());
        if (unit == Unit::Lei) {
            lei = entered;
            currency = data::CheckedQuotient(entered, rate);
        } else {
            currency = entered;
            lei = data::CheckedResult(entered * rate);
        }
    }
    double ShownValue() const override { return unit == Unit::Lei ? lei : currency; }
    void ReportDivisionByZero() override { ++divisionsByZero; }
    void ShowMemoryMark(bool visible) override { memoryMark = visible; }

    /// Presses one key after the other: digits and "." "+" "-" "X" "/" "=" "%", "n" changes the sign, "C"
    /// clears the entry, "A" all, "<" takes the last character back, "M" adds to the memory, "W" subtracts
    /// from it, "R" recalls and "Z" clears it.
    TwoDisplays& Press(std::string_view keys) {
        for (const char key : keys)
            ignored += engine.Press(CommandOf(key)) ? 0 : 1;
        return *this;
    }

    void SetDecimals(int decimals) {
        decimals_ = decimals;
        engine.SetDecimals(decimals);
    }

    std::string Lei() const { return Text(lei); }
    std::string Currency() const { return Text(currency); }

    static calculator::Command CommandOf(char key) {
        using calculator::Command;
        constexpr std::string_view Keys = "0123456789./+X-=%nAC<ZRMW";
        constexpr Command Commands[] = {
            Command::Digit0,        Command::Digit1,      Command::Digit2,       Command::Digit3,
            Command::Digit4,        Command::Digit5,      Command::Digit6,       Command::Digit7,
            Command::Digit8,        Command::Digit9,      Command::DecimalPoint, Command::Divide,
            Command::Add,           Command::Multiply,    Command::Subtract,     Command::Equals,
            Command::Percent,       Command::ChangeSign,  Command::Clear,        Command::ClearEntry,
            Command::Backspace,     Command::MemoryClear, Command::MemoryRecall, Command::MemoryAdd,
            Command::MemorySubtract};
        static_assert(Keys.size() == std::size(Commands));
        return Commands[Keys.find(key)];
    }

    double rate = 1;
    Unit unit = Unit::Lei;
    double lei = 0;
    double currency = 0;
    int refreshes = 0;
    int divisionsByZero = 0;
    int ignored = 0;  ///< keys that did nothing
    bool memoryMark = false;

  private:
    std::string Text(double number) const {
        std::string text;
        forms::WriteGroupedNumber(text, number, decimals_, locale_);
        return text;
    }

    forms::Locale locale_;
    int decimals_ = 2;

  public:
    calculator::Engine engine{*this, locale_.decimalSeparator};
};

}  // namespace tavrin::tests
