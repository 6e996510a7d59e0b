#include "data/text/number_text.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>

namespace tavrin::data {
namespace {

std::string Written(double number, std::string_view separator = ",") {
    std::string text = "left over";
    WriteNumber(text, number, separator);
    return text;
}

TEST(WriteNumber, WritesTheDecimalOfFifteenDigits) {
    EXPECT_EQ(Written(0), "0");
    EXPECT_EQ(Written(-0.0), "0");
    EXPECT_EQ(Written(12), "12");
    EXPECT_EQ(Written(-12.5), "-12,5");
    EXPECT_EQ(Written(0.05), "0,05");
    EXPECT_EQ(Written(0.000001), "0,000001");
    EXPECT_EQ(Written(100), "100");
    EXPECT_EQ(Written(123456789.123456), "123456789,123456");
    EXPECT_EQ(Written(0.1 + 0.2), "0,3");
    EXPECT_EQ(Written(1.0 / 3), "0,333333333333333");
    EXPECT_EQ(Written(1.5, "\xD9\xAB"),
              "1\xD9\xAB"
              "5");
}

TEST(WriteNumber, WritesNoExponent) {
    EXPECT_EQ(Written(999999999999999), "999999999999999");
    EXPECT_EQ(Written(1e15), "1000000000000000");
    EXPECT_EQ(Written(1e16), "10000000000000000");
    EXPECT_EQ(Written(1e23), "100000000000000000000000");
    EXPECT_EQ(Written(-1.5e25), "-15000000000000000000000000");
    EXPECT_EQ(Written(12345678901234567.0), "12345678901234600");
    EXPECT_EQ(Written(1e-9), "0,000000001");
    EXPECT_EQ(Written(std::numeric_limits<double>::max()).size(), 309U);
    EXPECT_EQ(Written(-std::numeric_limits<double>::denorm_min()).size(), 341U);
}

TEST(ReadNumber, ReadsWhatIsTyped) {
    EXPECT_EQ(ReadNumber("0", ","), 0);
    EXPECT_EQ(ReadNumber("12", ","), 12);
    EXPECT_EQ(ReadNumber("-12,5", ","), -12.5);
    EXPECT_EQ(ReadNumber("-05", ","), -5);
    EXPECT_EQ(ReadNumber("999999999999999", ","), 999999999999999);
    EXPECT_EQ(ReadNumber("0,1", ","), 0.1);
    EXPECT_EQ(ReadNumber("1234567890123,45", ","), 1234567890123.45);
    EXPECT_EQ(ReadNumber("12345678901234567890", ","), 12345678901234567890.0);
}

TEST(ReadNumber, ReadsTextsThatAreNoNumberAsFarAsTheyGo) {
    EXPECT_EQ(ReadNumber("-", ","), 0);
    EXPECT_FALSE(std::signbit(ReadNumber("-", ",")));
    EXPECT_FALSE(std::signbit(ReadNumber("-0", ",")));
    EXPECT_FALSE(std::signbit(ReadNumber("-0,00", ",")));
    EXPECT_EQ(ReadNumber("", ","), 0);
    EXPECT_EQ(ReadNumber("-,5", ","), -0.5);
    EXPECT_EQ(ReadNumber("1,5,7", ","), 1.5);
    EXPECT_EQ(ReadNumber(",", ","), 0);
    EXPECT_EQ(ReadNumber("12abc", ","), 12);
    EXPECT_FALSE(std::signbit(ReadNumber("-00000000000000000000,0", ",")));
}

TEST(ReadNumber, WordsAreNoNumbers) {
    for (const char* word : {"nan", "NaN", "-nan", "nAn(1)x", "inf", "-infinity", "abc"})
        EXPECT_EQ(ReadNumber(word, ","), 0) << word;
}

TEST(NumberTextAgainstItsReader, ReadsBackAsANumberWithTheSameText) {
    std::mt19937_64 random(4);
    for (int i = 0; i < 60'000; ++i) {
        const double number = std::bit_cast<double>(random());
        if (!(std::fabs(number) < 1.79769313486231e308)) continue;
        const std::string text = Written(number);
        ASSERT_EQ(Written(ReadNumber(text, ",")), text);
    }
}

TEST(NumberTextAgainstItsReader, ReadsBackDecimalsOfUpToFifteenDigits) {
    std::mt19937_64 random(5);
    for (int i = 0; i < 60'000; ++i) {
        const std::uint64_t range = std::uint64_t{1} << (1 + random() % 49);
        const double number =
            static_cast<double>(random() % range) / std::pow(10.0, static_cast<double>(random() % 8));
        const std::string text = Written(number);
        ASSERT_EQ(ReadNumber(text, ","), number) << text;
        ASSERT_LE(text.size(), 17U);
    }
}

}  // namespace
}  // namespace tavrin::data
