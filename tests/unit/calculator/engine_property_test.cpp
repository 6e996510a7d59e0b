#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <random>

#include "calculator_pair.h"

namespace tavrin::tests {
namespace {

/// A round is some hundred thousand keys; TAVRIN_RANDOM_ROUNDS asks for more of them.
unsigned Rounds() {
    const char* const asked = std::getenv("TAVRIN_RANDOM_ROUNDS");
    return asked != nullptr ? static_cast<unsigned>(std::strtoul(asked, nullptr, 10)) : 1;
}

class EngineAgainstNaiveCalculator : public testing::TestWithParam<char> {
  protected:
    void StartOver() {
        pair_.emplace(GetParam());
        done_.clear();
    }

    void Do(char action, std::uint64_t choice) {
        done_ += action;
        ASSERT_EQ(pair_->Do(action, choice), "") << done_;
    }

  private:
    std::optional<CalculatorPair> pair_;
    std::string done_;
};

TEST_P(EngineAgainstNaiveCalculator, AgreesOnRandomActions) {
    constexpr unsigned SessionsInARound = 2'000;
    constexpr int ActionsInASession = 100;
    std::mt19937_64 random(20'040'619);
    for (unsigned session = 0; session < SessionsInARound * Rounds(); ++session) {
        StartOver();
        for (int i = 0; i < ActionsInASession; ++i) {
            const std::uint64_t choice = random();
            ASSERT_NO_FATAL_FAILURE(Do(CalculatorPair::ActionOf(choice), choice / 97));
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

INSTANTIATE_TEST_SUITE_P(Separators, EngineAgainstNaiveCalculator, testing::Values(',', '.'));

}  // namespace
}  // namespace tavrin::tests
