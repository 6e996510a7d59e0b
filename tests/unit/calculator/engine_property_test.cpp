#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <random>

#include "data/error.h"
#include "naive_calculator.h"
#include "two_displays.h"

namespace tavrin::tests {
namespace {

/// Everything that can be done to a calculator, the keys as often as users press them.
constexpr std::string_view Keys =
    "0011223344556677889900112233445566778899..........++++----XXXX////====%%%%nnnnnn<<<<<MWRZMWRCCAA";
constexpr std::string_view OtherActions = "uvpr";  // units, precision, rate

/// A round is some hundred thousand keys; TAVRIN_RANDOM_ROUNDS asks for more of them.
unsigned Rounds() {
    const char* const asked = std::getenv("TAVRIN_RANDOM_ROUNDS");
    return asked != nullptr ? static_cast<unsigned>(std::strtoul(asked, nullptr, 10)) : 1;
}

class EngineAgainstNaiveCalculator : public testing::TestWithParam<std::string_view> {
  protected:
    static forms::Locale With(std::string_view separator) {
        forms::Locale locale;
        locale.decimalSeparator = separator;
        return locale;
    }

    void StartOver() {
        engine = std::make_unique<TwoDisplays>(With(GetParam()));
        naive = std::make_unique<NaiveCalculator>(GetParam().front());
        done.clear();
    }

    void Do(char action, std::uint64_t choice) {
        done += action;
        const int engineError = ErrorOf([&] { DoToEngine(action, choice); });
        const int naiveError = ErrorOf([&] { DoToNaive(action, choice); });
        ASSERT_EQ(engineError, naiveError) << done;
        ASSERT_EQ(engine->engine.EntryText(), naive->entry) << done;
        ASSERT_EQ(engine->lei, naive->lei) << done;
        ASSERT_EQ(engine->currency, naive->currency) << done;
        ASSERT_EQ(engine->memoryMark, naive->mark) << done;
        ASSERT_EQ(engine->divisionsByZero, naive->messages) << done;
    }

    std::unique_ptr<TwoDisplays> engine;
    std::unique_ptr<NaiveCalculator> naive;
    std::string done;

  private:
    static constexpr int Decimals[] = {0, 2, 4, 6};
    static constexpr double Rates[] = {1, 4.5, 4.9762, 0.001, 0, 1e300, 1e-300, 3};

    void DoToEngine(char action, std::uint64_t choice) {
        switch (action) {
            case 'u':
            case 'v':
                engine->unit = action == 'u' ? Unit::Lei : Unit::Currency;
                engine->engine.SetEntry(engine->ShownValue());
                engine->ShowValues();
                break;
            case 'p':
                engine->SetDecimals(Decimals[choice % std::size(Decimals)]);
                engine->ShowValues();
                break;
            case 'r':
                engine->rate = Rates[choice % std::size(Rates)];
                break;
            default:
                engine->Press({&action, 1});
        }
    }

    void DoToNaive(char action, std::uint64_t choice) {
        switch (action) {
            case 'u':
            case 'v':
                return naive->ChooseUnit(action == 'u');
            case 'p':
                return naive->ChooseDecimals(Decimals[choice % std::size(Decimals)]);
            case 'r':
                naive->rate = Rates[choice % std::size(Rates)];
                return;
            default:
                return naive->Press(action);
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

TEST_P(EngineAgainstNaiveCalculator, AgreesOnRandomActions) {
    constexpr unsigned SessionsInARound = 2'000;
    constexpr int ActionsInASession = 100;
    std::mt19937_64 random(20'040'619);
    for (unsigned session = 0; session < SessionsInARound * Rounds(); ++session) {
        StartOver();
        for (int i = 0; i < ActionsInASession; ++i) {
            const std::uint64_t choice = random();
            const bool isKey = random() % 24 != 0;
            const std::string_view actions = isKey ? Keys : OtherActions;
            ASSERT_NO_FATAL_FAILURE(Do(actions[choice % actions.size()], choice / 97));
        }
    }
}

// Long operands and operators alone drive the running result to the ends of what a double holds.
TEST_P(EngineAgainstNaiveCalculator, AgreesOnResultsOfEverySize) {
    constexpr unsigned SessionsInARound = 300;
    std::mt19937_64 random(7);
    for (unsigned session = 0; session < SessionsInARound * Rounds(); ++session) {
        StartOver();
        for (int i = 0; i < 60; ++i) {
            for (std::uint64_t digits = random() % 17; digits > 0; --digits)
                ASSERT_NO_FATAL_FAILURE(Do("0123456789."[random() % 11], 0));
            ASSERT_NO_FATAL_FAILURE(Do("XXX///+-%nMR"[random() % 12], 0));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Separators, EngineAgainstNaiveCalculator, testing::Values(",", "."));

}  // namespace
}  // namespace tavrin::tests
