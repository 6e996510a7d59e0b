#pragma once

#include <string>
#include <string_view>

#include "calculator/conversion.h"
#include "calculator/engine.h"
#include "data/text/grouped_number.h"

namespace tavrin::tests {

/// The shown side of a calculator without a window: the texts of two displays, a memory mark and the division
/// messages, as the window has them.
class TwoDisplays : public calculator::EngineListener {
  public:
    explicit TwoDisplays(data::Locale locale = {}) : locale_(std::move(locale)) {}

    void ShowValues() override { ++refreshes; }
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

    std::string Lei() const { return Text(conversion.Lei()); }
    std::string Currency() const { return Text(conversion.Currency()); }

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

    calculator::Conversion conversion;
    int refreshes = 0;
    int divisionsByZero = 0;
    int ignored = 0;  ///< keys that did nothing
    bool memoryMark = false;

  private:
    std::string Text(double number) const {
        std::string text;
        data::WriteGroupedNumber(text, number, conversion.Decimals(), locale_);
        return text;
    }

    data::Locale locale_;

  public:
    calculator::Engine engine{conversion, *this, locale_.decimalSeparator};
};

}  // namespace tavrin::tests
