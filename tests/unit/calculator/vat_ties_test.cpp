// All amounts to 999.99 with the rates of value added tax, against whole numbers.

#include <gtest/gtest.h>

#include <string>

#include "two_displays.h"

namespace tavrin::tests {
namespace {

/// Ten-thousandths to hundredths, a tie to the even one.
int RoundedHundredths(int tenThousandths) {
    const int rest = tenThousandths % 100;
    const int hundredths = tenThousandths / 100;
    return hundredths + (rest > 50 || (rest == 50 && hundredths % 2 == 1) ? 1 : 0);
}

/// 1234 as "12<separator>34".
std::string Hundredths(int number, char separator) {
    std::string fraction = std::to_string(number % 100);
    fraction.insert(0, 2 - fraction.size(), '0');
    return std::to_string(number / 100) + separator + fraction;
}

std::string WithoutGroups(std::string text) {
    std::erase(text, '.');
    return text;
}

class ValueAddedTaxAgainstPaper : public testing::TestWithParam<int> {
  protected:
    /// Presses "amount operator rate %" and compares what is shown, counted in ten-thousandths.
    void Expect(int amount, char sign, int expected) {
        const std::string keys = "A" + Hundredths(amount, '.') + sign + std::to_string(GetParam()) + "%";
        shown_.Press(keys);
        ASSERT_EQ(WithoutGroups(shown_.Lei()), Hundredths(RoundedHundredths(expected), ',')) << keys;
        ASSERT_EQ(shown_.engine.EntryValue(), RoundedHundredths(expected) / 100.0) << keys;
        ties += expected % 100 == 50 ? 1 : 0;
    }

    int ties = 0;

  private:
    TwoDisplays shown_;
};

TEST_P(ValueAddedTaxAgainstPaper, OfEveryAmountIsRoundedHalfToEven) {
    for (int amount = 1; amount <= 99'999; ++amount)
        ASSERT_NO_FATAL_FAILURE(Expect(amount, 'X', amount * GetParam()));
    EXPECT_EQ(ties, GetParam() == 5 ? 5'000 : 1'000);
}

TEST_P(ValueAddedTaxAgainstPaper, IsAddedAndTakenOffAtEveryTie) {
    for (int amount = 1; amount <= 99'999; ++amount) {
        if (amount * GetParam() % 100 != 50) continue;
        ASSERT_NO_FATAL_FAILURE(Expect(amount, '+', amount * (100 + GetParam())));
        ASSERT_NO_FATAL_FAILURE(Expect(amount, '-', amount * (100 - GetParam())));
    }
    EXPECT_EQ(ties, GetParam() == 5 ? 10'000 : 2'000);
}

INSTANTIATE_TEST_SUITE_P(Rates, ValueAddedTaxAgainstPaper, testing::Values(5, 9, 11, 19));

TEST(HalvesAgainstPaper, OfEveryAmountAreRoundedHalfToEven) {
    TwoDisplays shown;
    for (int amount = 1; amount <= 99'999; ++amount) {
        shown.Press("A" + Hundredths(amount, '.') + "/2=");
        const int expected = RoundedHundredths(amount * 50);
        ASSERT_EQ(WithoutGroups(shown.Lei()), Hundredths(expected, ',')) << amount;
    }
}

}  // namespace
}  // namespace tavrin::tests
