// The standard library's conversions, which the component leaves out for their size, are the measure here.

#include "data/decimal.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>

#include "data/value.h"

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

/// The standard's digits: those of its scientific form.
std::string StandardDigits(double number) {
    std::string digits = Standard(number, std::chars_format::scientific);
    digits.resize(digits.find('e'));
    std::erase(digits, '.');
    return digits;
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

TEST(ShortestDigitsTest, AreThoseOfTheStandardLibrary) {
    for (const double sample : Samples()) {
        std::string expected = StandardDigits(sample);
        expected.resize(expected.find_last_not_of('0') + 1);
        EXPECT_EQ(ShortestDigits(sample).digits.View(), expected) << sample;
        EXPECT_EQ(ShortestDigits(sample).ToDouble(), sample);
    }
}

TEST(ExactDecimalTest, HasEveryDigit) {
    for (const double sample : Samples()) {
        std::string expected = Standard(sample, std::chars_format::fixed, 1074);
        expected.resize(expected.find_last_not_of('0') + 1);
        if (expected.back() == '.') expected.pop_back();
        EXPECT_EQ(Fixed(ExactDecimal(sample)), expected) << sample;
    }
    EXPECT_EQ(Fixed(ExactDecimal(0)), "0");
}

TEST(DecimalTest, RoundsToPlacesAsTheStandardLibraryDoes) {
    for (const double sample : Samples()) {
        for (const int places : {0, 2, 6}) {
            Decimal decimal = ExactDecimal(sample);
            decimal.RoundToPlaces(places);
            EXPECT_EQ(decimal.ToDouble(), StandardNumber(Standard(sample, std::chars_format::fixed, places)))
                << sample;
        }
    }
}

TEST(DecimalTest, RoundsTiesToTheEvenDigit) {
    const auto rounded = [](double number, int places) {
        Decimal decimal = ExactDecimal(number);
        decimal.RoundToPlaces(places);
        return Fixed(decimal);
    };
    EXPECT_EQ(rounded(0.5, 0), "0");
    EXPECT_EQ(rounded(1.5, 0), "2");
    EXPECT_EQ(rounded(2.5, 0), "2");
    EXPECT_EQ(rounded(0.125, 2), "0.12");
    EXPECT_EQ(rounded(0.375, 2), "0.38");
    EXPECT_EQ(rounded(99.996, 2), "100");
    EXPECT_EQ(rounded(0.6, 0), "1");
    EXPECT_EQ(rounded(0.06, 0), "0");
    EXPECT_EQ(rounded(0.001, 1), "0");
}

TEST(DecimalTest, ReadsWhatTheStandardLibraryReads) {
    std::mt19937_64 random(7);
    const auto pick = [&](int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); };
    for (int i = 0; i < 20000; ++i) {
        std::string text;
        for (int digits = 1 + pick(25); digits > 0; --digits)
            text += static_cast<char>('0' + pick(10));
        if (pick(2) == 0) text.insert(static_cast<std::size_t>(pick(static_cast<int>(text.size()))), ".");
        if (pick(2) == 0) text += "e" + std::to_string(pick(680) - 350);
        const ReadNumber read = ReadDecimal(text, Exponents::Read);
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

TEST(ShortestDecimalTest, IsTheStandardLibrarysText) {
    for (const double sample : Samples()) {
        const std::string expected =
            sample < 1e15 ? Standard(sample, std::chars_format::fixed) : Standard(sample);
        EXPECT_EQ(ShortestDecimal(sample), expected);
        EXPECT_EQ(ShortestDecimal(-sample), "-" + expected);
    }
}

}  // namespace
}  // namespace tavrin::data
