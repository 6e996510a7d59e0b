// One amount in lei and in a currency, without an engine or a window.

#include "calculator/conversion.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

#include "data/error.h"

namespace tavrin::tests {
namespace {

using calculator::Conversion;
using calculator::Unit;

template <class Action>
std::int32_t ErrorIn(Action action) {
    try {
        action();
    } catch (const data::Error& error) {
        return error.Number();
    }
    return 0;
}

Conversion At(double rate, Unit unit = Unit::Lei) {
    Conversion conversion;
    conversion.SetRate(rate);
    conversion.TypeIn(unit);
    return conversion;
}

TEST(Conversion, BeginsWithNothingInLeiAtARateOfOne) {
    const Conversion conversion;
    EXPECT_EQ(conversion.Lei(), 0);
    EXPECT_EQ(conversion.Currency(), 0);
    EXPECT_EQ(conversion.Rate(), 1);
    EXPECT_EQ(conversion.TypedIn(), Unit::Lei);
    EXPECT_EQ(conversion.Decimals(), 2);
}

TEST(Conversion, TheOtherValueFollowsTheTypedOne) {
    Conversion inLei = At(4);
    inLei.Type(10);
    EXPECT_EQ(inLei.Lei(), 10);
    EXPECT_EQ(inLei.Currency(), 2.5);
    Conversion inCurrency = At(4, Unit::Currency);
    inCurrency.Type(10);
    EXPECT_EQ(inCurrency.Currency(), 10);
    EXPECT_EQ(inCurrency.Lei(), 40);
}

TEST(Conversion, WhatIsTypedIsTheValueInTheUnit) {
    Conversion conversion = At(4);
    conversion.Type(10);
    EXPECT_EQ(conversion.Typed(), 10);
    conversion.TypeIn(Unit::Currency);
    EXPECT_EQ(conversion.Typed(), 2.5);
}

TEST(Conversion, NeitherARateNorAUnitConvertsByItself) {
    Conversion conversion = At(4);
    conversion.Type(10);
    conversion.SetRate(5);
    conversion.TypeIn(Unit::Currency);
    EXPECT_EQ(conversion.Lei(), 10);
    EXPECT_EQ(conversion.Currency(), 2.5);
}

TEST(Conversion, ANumberThatCannotBeConvertedIsTakenAllTheSame) {
    Conversion conversion = At(4);
    conversion.Type(10);
    conversion.SetRate(0);
    EXPECT_EQ(ErrorIn([&] { conversion.Type(7); }), data::error_number::DivisionByZero);
    EXPECT_EQ(conversion.Lei(), 7);
    EXPECT_EQ(conversion.Currency(), 2.5);
    EXPECT_EQ(ErrorIn([&] { conversion.Type(0); }), data::error_number::Overflow) << "zero by zero";
    EXPECT_EQ(conversion.Lei(), 0);

    Conversion large = At(1e308, Unit::Currency);
    EXPECT_EQ(ErrorIn([&] { large.Type(12); }), data::error_number::Overflow);
    EXPECT_EQ(large.Currency(), 12);
    EXPECT_EQ(large.Lei(), 0);
}

TEST(Conversion, WhatIsNoNumberIsNotTaken) {
    Conversion conversion;
    conversion.Type(5);
    EXPECT_EQ(ErrorIn([&] { conversion.Type(std::numeric_limits<double>::infinity()); }),
              data::error_number::Overflow);
    EXPECT_EQ(conversion.Lei(), 5);
}

TEST(Conversion, ClearingNeedsNoRate) {
    Conversion conversion = At(4);
    conversion.Type(10);
    conversion.SetRate(0);
    conversion.Clear();
    EXPECT_EQ(conversion.Lei(), 0);
    EXPECT_EQ(conversion.Currency(), 0);
}

TEST(Conversion, AnAmountKeepsItsWorthInLeiThroughAnotherRate) {
    Conversion conversion = At(3.5, Unit::Currency);
    conversion.Type(36);
    const double lei = conversion.WorthInLei();
    EXPECT_EQ(lei, 126);
    conversion.SetRate(4.5);
    conversion.BuyFor(lei);
    EXPECT_EQ(conversion.Currency(), 28);
    EXPECT_EQ(conversion.Lei(), 126) << "it stood there already";
}

TEST(Conversion, AnAmountThatARateCannotBuyIsNotTaken) {
    Conversion conversion = At(4);
    conversion.Type(10);
    conversion.SetRate(0);
    EXPECT_EQ(ErrorIn([&] { conversion.BuyFor(10); }), data::error_number::DivisionByZero);
    EXPECT_EQ(conversion.Currency(), 2.5);
    conversion.SetRate(1e308);
    conversion.TypeIn(Unit::Currency);
    EXPECT_EQ(ErrorIn([&] { conversion.Type(1e10); }), data::error_number::Overflow);
    EXPECT_EQ(ErrorIn([&] { conversion.WorthInLei(); }), data::error_number::Overflow);
}

}  // namespace
}  // namespace tavrin::tests
