// The rate as the chooser reads it from its grid and as the calculator shows it.

#include "rates/rate_text.h"

#include <gtest/gtest.h>

#include <limits>
#include <optional>
#include <string>

#include "data/error.h"

namespace tavrin::tests {
namespace {

using rates::NumberOfRateText;
using rates::RateCaption;
using rates::RateOf;

const data::Locale Romanian{.decimalSeparator = ",", .thousandsSeparator = "."};
const data::Locale English{.decimalSeparator = ".", .thousandsSeparator = ","};

TEST(RateTextTest, CaptionsHaveTwoDecimalsAndGroupsOfThree) {
    EXPECT_EQ(RateCaption(1234567.891, "EUR", Romanian), "Cursul este de  1.234.567,89 Lei pentru 1 EUR");
    EXPECT_EQ(RateCaption(1234567.891, "EUR", English), "Cursul este de  1,234,567.89 Lei pentru 1 EUR");
    EXPECT_EQ(RateCaption(100, "$", English), "Cursul este de  100.00 Lei pentru 1 $");
}

TEST(RateTextTest, RatesBelowOneKeepTheirZero) {
    EXPECT_EQ(RateCaption(0.5, "HUF", Romanian), "Cursul este de  0,50 Lei pentru 1 HUF");
    EXPECT_EQ(RateCaption(0, "HUF", Romanian), "Cursul este de  0,00 Lei pentru 1 HUF");
    EXPECT_EQ(RateCaption(-0.5, "HUF", Romanian), "Cursul este de  -0,50 Lei pentru 1 HUF");
}

TEST(RateTextTest, ARateThatIsNoNumberLeavesItsPlaceEmpty) {
    const double infinite = std::numeric_limits<double>::infinity();
    EXPECT_EQ(RateCaption(infinite, "EUR", Romanian), "Cursul este de   Lei pentru 1 EUR");
    EXPECT_EQ(RateCaption(-infinite, "EUR", Romanian), "Cursul este de   Lei pentru 1 EUR");
}

TEST(RateTextTest, ThePointOfTheGridIsTheUsersSeparator) {
    EXPECT_EQ(NumberOfRateText("0.5", Romanian), 0.5);
    EXPECT_EQ(NumberOfRateText("37300.125", Romanian), 37300.125);
    EXPECT_EQ(NumberOfRateText("37300.125", English), 37300.125);
    EXPECT_EQ(NumberOfRateText("37,300.125", English), 37300.125) << "groups do not count";
    EXPECT_EQ(NumberOfRateText("1,234,567", English), 1234567);
    EXPECT_EQ(NumberOfRateText("7", Romanian), 7);
}

TEST(RateTextTest, WhatIsNoNumberIsATypeMismatch) {
    for (const char* text : {"", "abc", "1.2.3"}) {
        try {
            const double number = NumberOfRateText(text, Romanian);
            ADD_FAILURE() << "'" << text << "' was read as " << number;
        } catch (const data::Error& error) {
            EXPECT_EQ(error.Number(), data::error_number::TypeMismatch) << text;
        }
    }
}

TEST(RateTextTest, ARateOfTheDatabaseIsANumberOrATextWithThousands) {
    EXPECT_EQ(RateOf(data::Value(4.5)), 4.5);
    EXPECT_EQ(RateOf(data::Value(std::string("37,300.50"))), 37300.5);
    EXPECT_EQ(RateOf(data::Value(std::string("1,234,567"))), 1234567);
    EXPECT_EQ(RateOf(data::Value(data::Null{})), std::nullopt);
    EXPECT_THROW(RateOf(data::Value(std::string("x"))), data::Error);
}

}  // namespace
}  // namespace tavrin::tests
