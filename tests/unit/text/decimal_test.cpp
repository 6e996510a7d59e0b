// The standard library's conversions, which the component leaves out for their size, are the measure here.

#include "data/text/decimal.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <random>

#include "data/text/number_text.h"

namespace tavrin::data {
namespace {

using Limits = std::numeric_limits<double>;

std::string Fixed(const Decimal& decimal) {
    std::string text;
    decimal.AppendTo(text, ".");
    return text;
}

template <class... Format>
std::string Standard(double number, Format... format) {
    std::array<char, 1500> text;
    const char* const end = std::to_chars(text.data(), text.data() + text.size(), number, format...).ptr;
    return std::string(static_cast<const char*>(text.data()), end);
}

double StandardNumber(const std::string& text) {
    double number = 0;
    const auto error = std::from_chars(text.data(), text.data() + text.size(), number).ec;
    return error == std::errc::result_out_of_range ? Limits::infinity() : number;
}

/// The standard's decimal of 15 significant digits, from its scientific form.
Decimal StandardDecimal(double number) {
    const std::string text = Standard(number, std::chars_format::scientific, 14);
    std::string digits = text.substr(0, text.find('e'));
    std::erase(digits, '.');
    digits.resize(digits.find_last_not_of('0') + 1);
    return {std::string_view(digits), std::atoi(text.substr(text.find('e') + 1).c_str()) + 1};
}

std::vector<double> Samples() {
    std::vector<double> samples = {
        Limits::denorm_min(), Limits::min(), Limits::max(), 5e-324, 1e22,       1e23,
        9007199254740993.0,   0.1,           1.0 / 3,       2.5,    123456.789, 4.9762};
    for (int exponent = -1074; exponent < 1024; exponent += 7) {
        const double power = std::ldexp(1, exponent);
        samples.push_back(power);
        samples.push_back(std::nextafter(power, 0));
        samples.push_back(std::nextafter(power, Limits::infinity()));
    }
    std::mt19937_64 random(20030520);
    while (samples.size() < 4000) {
        const auto number = std::bit_cast<double>(random() >> 1);
        if (std::isfinite(number)) samples.push_back(number);
    }
    for (int i = 0; i < 4000; ++i)
        samples.push_back(static_cast<double>(random() >> 11) / std::pow(10, i % 20));
    std::erase(samples, 0.0);
    return samples;
}

TEST(DecimalThorough, IsTheStandardLibrarysOfFifteenDigits) {
    for (const double sample : Samples()) {
        const Decimal expected = StandardDecimal(sample);
        const Decimal decimal = DecimalOf(sample);
        EXPECT_EQ(decimal.digits.View(), expected.digits.View()) << sample;
        EXPECT_EQ(decimal.point, expected.point) << sample;
    }
    EXPECT_EQ(Fixed(DecimalOf(0)), "0");
}

TEST(DecimalThorough, SeesNoDifferenceBetweenTheDoublesAroundADecimal) {
    std::mt19937_64 random(11);
    for (int i = 0; i < 50'000; ++i) {
        const std::uint64_t units = random() % (std::uint64_t{1} << (1 + random() % 49));
        const double decimal = static_cast<double>(units) / 1e6;
        for (const double number : {std::nextafter(decimal, 0), decimal, std::nextafter(decimal, 1e300)}) {
            ASSERT_EQ(Fixed(DecimalOf(number)), Fixed(StandardDecimal(number))) << std::hexfloat << number;
            ASSERT_EQ(Millionths(number).value_or(units), units) << std::hexfloat << number;
        }
    }
}

TEST(DecimalOfTest, FindsAmountsInMillionths) {
    EXPECT_EQ(Millionths(0), 0U);
    EXPECT_EQ(Millionths(2.755), 2755000U);
    EXPECT_EQ(Millionths(14.5 * 19 / 100), 2755000U);
    EXPECT_EQ(Millionths(0.1 + 0.2), 300000U);
    EXPECT_EQ(Millionths(999999999.999999), 999999999999999U);
    EXPECT_EQ(Millionths(1e9), std::nullopt);
    EXPECT_EQ(Millionths(1.0 / 3), std::nullopt);
    EXPECT_EQ(Millionths(1e-7), std::nullopt);
    EXPECT_EQ(Millionths(5e-324), std::nullopt);
    EXPECT_EQ(Millionths(Limits::infinity()), std::nullopt);
}

/// A decimal fraction as it is written.
Decimal Written(std::string_view whole, std::string_view fraction) {
    DigitText digits(whole);
    digits.Append(fraction);
    return {digits, static_cast<int>(whole.size())};
}

TEST(DecimalTest, RoundsTiesToTheEvenDigit) {
    const auto rounded = [](Decimal decimal, int places) {
        decimal.RoundToPlaces(places);
        return Fixed(decimal);
    };
    EXPECT_EQ(rounded(Written("", "5"), 0), "0");
    EXPECT_EQ(rounded(Written("1", "5"), 0), "2");
    EXPECT_EQ(rounded(Written("2", "5"), 0), "2");
    EXPECT_EQ(rounded(Written("", "125"), 2), "0.12");
    EXPECT_EQ(rounded(Written("", "375"), 2), "0.38");
    EXPECT_EQ(rounded(Written("", "3750000001"), 2), "0.38");
    EXPECT_EQ(rounded(Written("", "1250000001"), 2), "0.13");
    EXPECT_EQ(rounded(Written("99", "996"), 2), "100");
    EXPECT_EQ(rounded(Written("", "6"), 0), "1");
    EXPECT_EQ(rounded({"6", -1}, 0), "0");
    EXPECT_EQ(rounded({"1", -2}, 1), "0");
}

TEST(DecimalThorough, BecomesTheNearestDouble) {
    for (const double sample : Samples()) {
        EXPECT_EQ(DecimalOf(sample).ToDouble(),
                  StandardNumber(Standard(sample, std::chars_format::scientific, 14)))
            << sample;
    }
    EXPECT_EQ(DecimalOf(Limits::max()).ToDouble(), Limits::infinity()) << "its decimal lies above it";
}

TEST(DecimalThorough, ReadsWhatTheStandardLibraryReads) {
    std::mt19937_64 random(7);
    const auto pick = [&](int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); };
    for (int i = 0; i < 20000; ++i) {
        std::string text;
        for (int digits = 1 + pick(25); digits > 0; --digits)
            text += static_cast<char>('0' + pick(10));
        if (pick(2) == 0) text.insert(static_cast<std::size_t>(pick(static_cast<int>(text.size()))), ".");
        if (pick(2) == 0) text += "e" + std::to_string(pick(680) - 350);
        const LeadingNumber read = ReadDecimal(text, Exponents::Read);
        EXPECT_EQ(read.length, text.size());
        double expected = 0;
        const auto error = std::from_chars(text.data(), text.data() + text.size(), expected).ec;
        if (error == std::errc::result_out_of_range) {
            EXPECT_TRUE(std::isinf(read.number) || read.number < Limits::min()) << text;
        } else {
            EXPECT_EQ(read.number, expected) << text;
        }
    }
}

TEST(DecimalTest, ReadsTheMiddleBetweenTwoDoublesAsTheEvenOne) {
    EXPECT_EQ(ReadDecimal("9007199254740993", Exponents::Read).number, 9007199254740992.0);
    EXPECT_EQ(ReadDecimal("9007199254740995", Exponents::Read).number, 9007199254740996.0);
    EXPECT_EQ(
        ReadDecimal("9007199254740993" + std::string(".") + std::string(900, '0') + "1", Exponents::Read)
            .number,
        9007199254740994.0);
    EXPECT_EQ(ReadDecimal("1.7976931348623158e308", Exponents::Read).number, Limits::max());
    EXPECT_TRUE(std::isinf(ReadDecimal("1.7976931348623159e308", Exponents::Read).number));
    EXPECT_TRUE(std::isinf(ReadDecimal("1e99999999999", Exponents::Read).number));
    EXPECT_EQ(ReadDecimal("1e-99999999999", Exponents::Read).number, 0);
    EXPECT_EQ(ReadDecimal("0e99999999999", Exponents::Read).number, 0);
}

TEST(DecimalTest, ReadsNoMoreThanBelongsToTheNumber) {
    const auto read = [](std::string_view text, Exponents exponents) {
        return ReadDecimal(text, exponents).length;
    };
    EXPECT_EQ(read("", Exponents::Read), 0U);
    EXPECT_EQ(read("-", Exponents::Read), 0U);
    EXPECT_EQ(read(".", Exponents::Read), 0U);
    EXPECT_EQ(read("e5", Exponents::Read), 0U);
    EXPECT_EQ(read("nan", Exponents::Read), 0U);
    EXPECT_EQ(read("inf", Exponents::Read), 0U);
    EXPECT_EQ(read("-1.5.2", Exponents::Read), 4U);
    EXPECT_EQ(read("12e", Exponents::Read), 2U);
    EXPECT_EQ(read("12e+", Exponents::Read), 2U);
    EXPECT_EQ(read("12E+3x", Exponents::Read), 5U);
    EXPECT_EQ(read("12e3", Exponents::NotRead), 2U);
    EXPECT_EQ(read(".5", Exponents::Read), 2U);
    EXPECT_EQ(read("5.", Exponents::Read), 2U);
    EXPECT_EQ(ReadDecimal("-1.5.2", Exponents::Read).number, -1.5);
    EXPECT_EQ(ReadDecimal(".5", Exponents::Read).number, 0.5);
}

TEST(DecimalTest, WritesZerosWhereThePointLiesOutside) {
    EXPECT_EQ(Fixed({"12", 4}), "1200");
    EXPECT_EQ(Fixed({"12", 2}), "12");
    EXPECT_EQ(Fixed({"12", 1}), "1.2");
    EXPECT_EQ(Fixed({"12", 0}), "0.12");
    EXPECT_EQ(Fixed({"12", -2}), "0.0012");
    EXPECT_EQ(Fixed({}), "0");
}

TEST(DecimalThorough, IsTheShortestTextWithoutAnExponent) {
    for (const double sample : Samples()) {
        EXPECT_EQ(NumberText(sample), Fixed(StandardDecimal(sample)));
        EXPECT_EQ(NumberText(-sample), "-" + Fixed(StandardDecimal(sample)));
    }
}

}  // namespace
}  // namespace tavrin::data
