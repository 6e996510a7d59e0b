#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "data/error.h"
#include "naive_calculator.h"
#include "two_displays.h"

namespace tavrin::tests {

/// The engine and the slow model of its rules, side by side.
class CalculatorPair {
  public:
    /// The keys of TwoDisplays::Press, about as often as users press them.
    static constexpr std::string_view Keys =
        "0011223344556677889900112233445566778899..........++++----XXXX////====%%%%nnnnnn<<<<<MWRZMWRCCAA";
    /// "u" chooses lei and "v" the currency as the unit; "p" another precision, "r" another rate.
    static constexpr std::string_view OtherActions = "uvpr";

    static char ActionOf(std::size_t choice) {
        const std::size_t action = choice % (Keys.size() + OtherActions.size());
        return action < Keys.size() ? Keys[action] : OtherActions[action - Keys.size()];
    }

    explicit CalculatorPair(char decimalSeparator)
        : engine(LocaleWith(decimalSeparator)), naive(decimalSeparator) {}

    /// Does the same to both. \return what they differ in afterwards, nothing when they agree
    std::string Do(char action, std::uint64_t choice) {
        const int engineError = ErrorOf([&] { DoToEngine(action, choice); });
        const int naiveError = ErrorOf([&] { DoToNaive(action, choice); });
        return Difference("error", engineError, naiveError) +
               Difference("entry", std::string(engine.engine.EntryText()), naive.entry) +
               Difference("lei", engine.conversion.Lei(), naive.lei) +
               Difference("currency", engine.conversion.Currency(), naive.currency) +
               Difference("memory mark", engine.memoryMark, naive.mark) +
               Difference("messages", engine.divisionsByZero, naive.messages) +
               Difference("ignored keys", engine.ignored, naive.ignored);
    }

    TwoDisplays engine;
    NaiveCalculator naive;

  private:
    static constexpr int Decimals[] = {0, 2, 4, 6};
    static constexpr double Rates[] = {1, 4.5, 4.9762, 0.001, 0, 1e300, 1e-300, 3};

    static data::Locale LocaleWith(char decimalSeparator) {
        data::Locale locale;
        locale.decimalSeparator = decimalSeparator;
        return locale;
    }

    static std::string Text(const std::string& text) { return text; }
    template <class Number>
    static std::string Text(Number number) {
        return std::to_string(number);
    }
    template <class Value>
    static std::string Difference(const char* name, const Value& engineHas, const Value& naiveHas) {
        if (engineHas == naiveHas) return {};
        return std::string(name) + " " + Text(engineHas) + " instead of " + Text(naiveHas) + " ";
    }

    void DoToEngine(char action, std::uint64_t choice) {
        switch (action) {
            case 'u':
            case 'v':
                engine.engine.ChooseUnit(action == 'u' ? calculator::Unit::Lei : calculator::Unit::Currency);
                break;
            case 'p':
                engine.conversion.SetDecimals(Decimals[choice % std::size(Decimals)]);
                engine.engine.ShowEntry();
                break;
            case 'r':
                engine.conversion.SetRate(Rates[choice % std::size(Rates)]);
                break;
            default:
                engine.Press({&action, 1});
        }
    }

    void DoToNaive(char action, std::uint64_t choice) {
        switch (action) {
            case 'u':
            case 'v':
                return naive.ChooseUnit(action == 'u');
            case 'p':
                return naive.ChooseDecimals(Decimals[choice % std::size(Decimals)]);
            case 'r':
                naive.rate = Rates[choice % std::size(Rates)];
                return;
            default:
                return naive.Press(action);
        }
    }

    template <class Action>
    static int ErrorOf(Action action) {
        try {
            action();
        } catch (const data::Error& error) {
            return error.Number();
        } catch (int number) {
            return number;
        }
        return 0;
    }
};

}  // namespace tavrin::tests
