#include "data/text/digits.h"

#include <gtest/gtest.h>

namespace tavrin::data {
namespace {

TEST(DigitsTest, AreTheTenBetweenZeroAndNine) {
    int digits = 0;
    for (char32_t character = 0; character < 0x10000; ++character)
        digits += IsDigit(character) ? 1 : 0;
    EXPECT_EQ(digits, 10);
    EXPECT_TRUE(IsDigit('0'));
    EXPECT_TRUE(IsDigit(U'9'));
    EXPECT_FALSE(IsDigit(static_cast<char>(-1)));
}

TEST(DigitsTest, AreCountedAmongOtherCharacters) {
    EXPECT_EQ(CountDigits(""), 0);
    EXPECT_EQ(CountDigits("-12,5 x"), 3);
}

TEST(DigitsTest, OfSixteenStandForFifteenAtMost) {
    EXPECT_EQ(ValueOfHexDigit('0'), 0);
    EXPECT_EQ(ValueOfHexDigit('a'), 10);
    EXPECT_EQ(ValueOfHexDigit('F'), 15);
    EXPECT_EQ(ValueOfHexDigit('g'), -1);
}

TEST(DigitsTest, GetZerosInFrontAndKeepWhatIsLonger) {
    EXPECT_EQ(ZeroPadded(7, 2), "07");
    EXPECT_EQ(ZeroPadded(2003, 4), "2003");
    EXPECT_EQ(ZeroPadded(12345, 4), "12345");
}

}  // namespace
}  // namespace tavrin::data
