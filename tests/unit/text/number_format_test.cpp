#include "data/text/number_format.h"

#include <gtest/gtest.h>

namespace tavrin::tests {
namespace {

using data::FormatNumber;

TEST(NumberFormatTest, GroupsThousands) {
    EXPECT_EQ(FormatNumber("1", {}), "1");
    EXPECT_EQ(FormatNumber("999", {}), "999");
    EXPECT_EQ(FormatNumber("1000", {}), "1,000");
    EXPECT_EQ(FormatNumber("37500", {}), "37,500");
    EXPECT_EQ(FormatNumber("1234567", {}), "1,234,567");
    EXPECT_EQ(FormatNumber("1234567", {.grouping = 0}), "1234567");
}

TEST(NumberFormatTest, RoundsHalfAwayFromZero) {
    EXPECT_EQ(FormatNumber("12.5", {}), "13");
    EXPECT_EQ(FormatNumber("12.49", {}), "12");
    EXPECT_EQ(FormatNumber("-2.5", {}), "-3");
    EXPECT_EQ(FormatNumber("999.5", {}), "1,000");
    EXPECT_EQ(FormatNumber("1.005", {.decimals = 2}), "1.01");
    EXPECT_EQ(FormatNumber("9.999", {.decimals = 2}), "10.00");
}

TEST(NumberFormatTest, ShowsAZeroInFrontOnlyWhereAskedTo) {
    EXPECT_EQ(FormatNumber("0", {}), "");
    EXPECT_EQ(FormatNumber("000", {}), "");
    EXPECT_EQ(FormatNumber("0.4", {}), "");
    EXPECT_EQ(FormatNumber("0", {.leadingZero = true}), "0");
    EXPECT_EQ(FormatNumber("0.5", {.decimals = 1}), ".5");
    EXPECT_EQ(FormatNumber("0.5", {.decimals = 1, .leadingZero = true}), "0.5");
}

TEST(NumberFormatTest, FillsDecimalsWithZeros) {
    EXPECT_EQ(FormatNumber("7", {.decimals = 2}), "7.00");
    EXPECT_EQ(FormatNumber("7.1", {.decimals = 4, .decimalSeparator = ",", .thousandsSeparator = "."}),
              "7,1000");
}

TEST(NumberFormatTest, WhatIsNoNumberGivesNothing) {
    for (const char* text : {"", "-", ".", "abc", "1e5", "1,000", "--1", "1.2.3", " 1"}) {
        EXPECT_EQ(FormatNumber(text, {}), "") << text;
    }
}

}  // namespace
}  // namespace tavrin::tests
