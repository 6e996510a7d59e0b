#include "data/checked_arithmetic.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>

#include "data/error.h"

namespace tavrin::data {
namespace {

std::int32_t ErrorOf(const std::function<double()>& operation) {
    try {
        operation();
    } catch (const Error& error) {
        return error.Number();
    }
    return 0;
}

TEST(CheckedArithmetic, LetsFiniteResultsPass) {
    EXPECT_EQ(CheckedResult(-1.5), -1.5);
    EXPECT_EQ(CheckedQuotient(9, 4.5), 2);
    EXPECT_EQ(CheckedQuotient(0, 4), 0);
}

TEST(CheckedArithmetic, OverflowsWhereTheResultIsNoNumber) {
    const double largest = std::numeric_limits<double>::max();
    EXPECT_EQ(ErrorOf([&] { return CheckedResult(largest * 2); }), error_number::Overflow);
    EXPECT_EQ(ErrorOf([&] { return CheckedResult(-largest * 2); }), error_number::Overflow);
    EXPECT_EQ(ErrorOf([&] { return CheckedQuotient(largest, 0.5); }), error_number::Overflow);
}

TEST(CheckedArithmetic, TellsADivisionByZeroFromZeroByZero) {
    EXPECT_EQ(ErrorOf([] { return CheckedQuotient(5, 0); }), error_number::DivisionByZero);
    EXPECT_EQ(ErrorOf([] { return CheckedQuotient(-5, -0.0); }), error_number::DivisionByZero);
    EXPECT_EQ(ErrorOf([] { return CheckedQuotient(0, 0); }), error_number::Overflow);
}

}  // namespace
}  // namespace tavrin::data
