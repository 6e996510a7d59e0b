#include "data/text/rounding.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>

namespace tavrin::data {
namespace {

struct Rounding {
    double number;
    int decimals;
    double rounded;
};

std::ostream& operator<<(std::ostream& stream, const Rounding& rounding) {
    return stream << rounding.number << " at " << rounding.decimals;
}

class RoundHalfEvenTest : public testing::TestWithParam<Rounding> {};

TEST_P(RoundHalfEvenTest, GivesTheNearestDoubleOfTheRoundedDecimal) {
    const Rounding& rounding = GetParam();
    EXPECT_EQ(RoundHalfEven(rounding.number, rounding.decimals), rounding.rounded);
    EXPECT_EQ(RoundHalfEven(-rounding.number, rounding.decimals), -rounding.rounded);
}

INSTANTIATE_TEST_SUITE_P(
    Ties, RoundHalfEvenTest,
    testing::Values(Rounding{0.5, 0, 0}, Rounding{1.5, 0, 2}, Rounding{2.5, 0, 2}, Rounding{3.5, 0, 4},
                    Rounding{0.125, 2, 0.12}, Rounding{0.375, 2, 0.38}, Rounding{0.625, 2, 0.62},
                    Rounding{2.125, 2, 2.12}, Rounding{0.03125, 4, 0.0312}, Rounding{0.09375, 4, 0.0938},
                    Rounding{1.0078125, 6, 1.007812}, Rounding{1.0234375, 6, 1.023438},
                    Rounding{99999999999999.5, 0, 1e14}, Rounding{99999999999998.5, 0, 99999999999998}));

INSTANTIATE_TEST_SUITE_P(TiesThatNoDoubleIs, RoundHalfEvenTest,
                         testing::Values(Rounding{1.005, 2, 1}, Rounding{1.015, 2, 1.02},
                                         Rounding{1.025, 2, 1.02}, Rounding{2.675, 2, 2.68},
                                         Rounding{1.115, 2, 1.12}, Rounding{0.285, 2, 0.28},
                                         Rounding{8.345, 2, 8.34}, Rounding{1.45, 1, 1.4},
                                         Rounding{14.5 * 19 / 100, 2, 2.76}, Rounding{5.35 / 2, 2, 2.68},
                                         Rounding{100.5 * 1.19, 2, 119.6}, Rounding{0.00005, 4, 0},
                                         Rounding{0.00015, 4, 0.0002}, Rounding{0.0000005, 6, 0},
                                         Rounding{0.0000015, 6, 0.000002}));

// Where a double is nearer to a tie than fifteen digits tell, it stands for the tie.
INSTANTIATE_TEST_SUITE_P(
    BesideATie, RoundHalfEvenTest,
    testing::Values(Rounding{std::nextafter(2.5, 3), 0, 2}, Rounding{std::nextafter(3.5, 3), 0, 4},
                    Rounding{2.50000000000001, 0, 3}, Rounding{3.49999999999999, 0, 3},
                    Rounding{0.500000000000001, 0, 1}, Rounding{std::nextafter(0.125, 1), 2, 0.12},
                    Rounding{0.125000000000001, 2, 0.13}, Rounding{std::nextafter(0.375, 0), 2, 0.38},
                    Rounding{0.374999999999999, 2, 0.37}, Rounding{std::nextafter(1.0078125, 2), 6, 1.007812},
                    Rounding{1.00781250000001, 6, 1.007813}));

INSTANTIATE_TEST_SUITE_P(LargeNumbers, RoundHalfEvenTest,
                         testing::Values(Rounding{1e15, 0, 1e15}, Rounding{1e15, 6, 1e15},
                                         Rounding{std::nextafter(1e15, 0), 2, 1e15},
                                         Rounding{999999999999999, 0, 999999999999999},
                                         Rounding{std::nextafter(1e15, 2e15), 0, 1e15},
                                         Rounding{89999999999999.99, 2, 90000000000000},
                                         Rounding{123456789012.123456, 6, 123456789012.123},
                                         Rounding{8999999999.9999995, 6, 9000000000},
                                         Rounding{1e300, 6, 1e300},
                                         Rounding{12345678901234567.0, 2, 12345678901234600.0},
                                         Rounding{1.7e308 + 1e292, 0, 1.7e308}));

INSTANTIATE_TEST_SUITE_P(SmallNumbers, RoundHalfEvenTest,
                         testing::Values(Rounding{0, 0, 0}, Rounding{0.1, 0, 0}, Rounding{1e-7, 6, 0},
                                         Rounding{5e-324, 6, 0}, Rounding{1e-310, 6, 0},
                                         Rounding{0.000001, 6, 0.000001}));

TEST(RoundHalfEven, LosesTheSignOfAZero) {
    EXPECT_FALSE(std::signbit(RoundHalfEven(-0.5, 0)));
    EXPECT_FALSE(std::signbit(RoundHalfEven(-0.004, 2)));
    EXPECT_FALSE(std::signbit(RoundHalfEven(-0.0, 2)));
    EXPECT_TRUE(std::signbit(RoundHalfEven(-0.006, 2)));
}

TEST(RoundHalfEven, LeavesWhatIsNoNumberAlone) {
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(RoundHalfEven(infinity, 2), infinity);
    EXPECT_EQ(RoundHalfEven(-infinity, 2), -infinity);
    EXPECT_TRUE(std::isnan(RoundHalfEven(std::numeric_limits<double>::quiet_NaN(), 2)));
}

TEST(RoundedUnits, CountsTheLastDecimal) {
    EXPECT_EQ(RoundedUnits(1.005, 2), 100U);
    EXPECT_EQ(RoundedUnits(-12.5, 2), 1250U);
    EXPECT_EQ(RoundedUnits(0.3, 6), 300000U);
    EXPECT_EQ(RoundedUnits(999999999999999, 0), 999999999999999U);
    EXPECT_EQ(RoundedUnits(1e15, 0), std::nullopt);
    EXPECT_EQ(RoundedUnits(999999999.999999, 6), 999999999999999U);
    EXPECT_EQ(RoundedUnits(1e9, 6), std::nullopt);
}

/// The same by way of a text of 15 digits, rounded as one does on paper.
double RoundedOnPaper(double number, int decimals) {
    std::array<char, 64> written;
    std::snprintf(written.data(), written.size(), "%.14e", number);
    std::string digits = std::string(written.data()).substr(0, 16);
    digits.erase(1, 1);
    const int exponent = std::atoi(written.data() + 17);
    const int kept = exponent + 1 + decimals;
    if (kept < 0) return 0;
    if (kept >= 15) return std::strtod(written.data(), nullptr);
    const std::string rest = digits.substr(static_cast<std::size_t>(kept));
    const std::string half = "5" + std::string(rest.size() - 1, '0');
    auto units = std::strtoll(("0" + digits.substr(0, static_cast<std::size_t>(kept))).c_str(), nullptr, 10);
    if (rest > half || (rest == half && units % 2 == 1)) ++units;
    return std::strtod((std::to_string(units) + "e-" + std::to_string(decimals)).c_str(), nullptr);
}

class RoundingAgainstPaper : public testing::TestWithParam<int> {};

TEST_P(RoundingAgainstPaper, AgreesOnRandomDoublesOfEverySize) {
    const int decimals = GetParam();
    std::mt19937_64 random(static_cast<unsigned>(decimals) + 1);
    std::uniform_int_distribution<int> exponent(-60, 70);
    std::uniform_real_distribution<double> significand(1, 2);
    for (int i = 0; i < 50'000; ++i) {
        const double number = std::ldexp(significand(random), exponent(random));
        ASSERT_EQ(RoundHalfEven(number, decimals), RoundedOnPaper(number, decimals))
            << std::hexfloat << number;
    }
}

TEST_P(RoundingAgainstPaper, AgreesAroundEveryTie) {
    const int decimals = GetParam();
    const double power = std::pow(10.0, decimals);
    std::mt19937_64 random(static_cast<unsigned>(decimals) + 77);
    for (int i = 0; i < 50'000; ++i) {
        const std::uint64_t range = std::uint64_t{1} << (1 + random() % 53);
        const double tie = (static_cast<double>(random() % range) + 0.5) / power;
        for (const double number : {std::nextafter(tie, 0), tie, std::nextafter(tie, 1e300)}) {
            ASSERT_EQ(RoundHalfEven(number, decimals), RoundedOnPaper(number, decimals))
                << std::hexfloat << number;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Decimals, RoundingAgainstPaper, testing::Range(0, MaxRoundingDecimals + 1));

}  // namespace
}  // namespace tavrin::data
