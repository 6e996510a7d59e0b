#include "data/value.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "data/error.h"
#include "data/text/date.h"
#include "data/text/number_text.h"

namespace tavrin::data {
namespace {

template <class Action>
std::int32_t ErrorNumber(Action action) {
    try {
        action();
    } catch (const Error& error) {
        return error.Number();
    }
    return 0;
}

Value Text(const char* text) {
    return std::string(text);
}

TEST(NumberTextTest, UsesAPointAndNoExponent) {
    EXPECT_EQ(NumberText(0), "0");
    EXPECT_EQ(NumberText(-0.0), "0");
    EXPECT_EQ(NumberText(37500), "37500");
    EXPECT_EQ(NumberText(37512.5), "37512.5");
    EXPECT_EQ(NumberText(0.1), "0.1");
    EXPECT_EQ(NumberText(-4.9762), "-4.9762");
    EXPECT_EQ(NumberText(0.000001), "0.000001");
    EXPECT_EQ(NumberText(1e-7), "0.0000001");
    EXPECT_EQ(NumberText(999999999999999), "999999999999999");
    EXPECT_EQ(NumberText(1e15), "1000000000000000");
    EXPECT_EQ(NumberText(1e21), "1000000000000000000000");
    EXPECT_EQ(NumberText(-1.5e20), "-150000000000000000000");
    EXPECT_EQ(NumberText(std::numeric_limits<double>::max()), "179769313486232" + std::string(294, '0'));
    EXPECT_EQ(NumberText(-HUGE_VAL), "-inf");
    EXPECT_EQ(NumberText(std::nan("")), "nan");
}

TEST(NumberTextTest, HasNoMoreThanFifteenDigits) {
    EXPECT_EQ(NumberText(123456789012345), "123456789012345");
    EXPECT_EQ(NumberText(1234567890123456), "1234567890123460");
    EXPECT_EQ(NumberText(12345678901234567.0), "12345678901234600");
    EXPECT_EQ(NumberText(1.23456789012345), "1.23456789012345");
    EXPECT_EQ(NumberText(1.234567890123456), "1.23456789012346");
    EXPECT_EQ(NumberText(0.12345678901234567), "0.123456789012346");
    EXPECT_EQ(NumberText(0.1 + 0.2), "0.3");
    EXPECT_EQ(NumberText(1.1 * 1.1), "1.21");
    EXPECT_EQ(NumberText(1.0 / 3), "0.333333333333333");
}

TEST(NumberTextThorough, ReadsBackAsANumberWithTheSameText) {
    std::mt19937_64 random(1);
    for (int count = 0; count < 10000; ++count) {
        const double number =
            std::ldexp(static_cast<double>(random()), static_cast<int>(random() % 200) - 160);
        const std::string text = NumberText(number);
        const double readBack = Value(text).ToDouble();
        ASSERT_EQ(NumberText(readBack), text);
        ASSERT_NEAR(readBack, number, number * 5e-15);
    }
}

TEST(ValueText, IsWhatAGridShows) {
    EXPECT_EQ(Value().ToText(), "");
    EXPECT_EQ(Value(Null{}).ToText(), "");
    EXPECT_EQ(Value(std::int64_t{-7}).ToText(), "-7");
    EXPECT_EQ(Value(std::int64_t{12345678901234567}).ToText(), "12345678901234567")
        << "every digit is its own";
    EXPECT_EQ(Value(37512.25).ToText(), "37512.25");
    EXPECT_EQ(Value(1e15).ToText(), "1000000000000000");
    EXPECT_EQ(Text("Țăran").ToText(), "Țăran");
    EXPECT_EQ(Value(ToOleDate({2003, 5, 20})).ToText(), "20/05/2003");
    EXPECT_EQ(Value(OleDate{2.5}).ToText(), "01/01/1900 12:00:00");
}

TEST(ValueText, TimeOfDayIsRoundedToTheSecond) {
    const double day = ToOleDate({2003, 5, 20}).days;
    EXPECT_EQ(Value(OleDate{day + 86399.4 / 86400}).ToText(), "20/05/2003 23:59:59");
    EXPECT_EQ(Value(OleDate{day + 86399.6 / 86400}).ToText(), "21/05/2003");
    EXPECT_EQ(Value(OleDate{-1.25}).ToText(), "29/12/1899 06:00:00");
}

TEST(ValueNumber, ConvertsWhatIsANumber) {
    EXPECT_EQ(Value().ToDouble(), 0);
    EXPECT_EQ(Value(std::int64_t{5}).ToDouble(), 5);
    EXPECT_EQ(Value(OleDate{37761}).ToDouble(), 37761);
    EXPECT_EQ(Text(" 37512.5 ").ToDouble(), 37512.5);
    EXPECT_EQ(Text("+1").ToDouble(), 1);
    EXPECT_EQ(Text("-.5").ToDouble(), -0.5);
    EXPECT_EQ(Text("1e3").ToDouble(), 1000);
}

TEST(ValueNumber, RefusesWhatIsNone) {
    for (const char* const text : {"", " ", "1,5", "1 2", "abc", "1x", "inf", "nan", "+-1", "0x10", "-"}) {
        EXPECT_EQ(ErrorNumber([&] { Text(text).ToDouble(); }), error_number::TypeMismatch) << text;
        EXPECT_EQ(ErrorNumber([&] { Text(text).ToInteger(); }), error_number::TypeMismatch) << text;
    }
    EXPECT_EQ(ErrorNumber([] { Value(Null{}).ToDouble(); }), error_number::InvalidUseOfNull);
    EXPECT_EQ(ErrorNumber([] { Value(Null{}).ToInteger(); }), error_number::InvalidUseOfNull);
    EXPECT_EQ(ErrorNumber([] { Text("1e999").ToDouble(); }), error_number::Overflow);
}

TEST(ValueInteger, RoundsHalvesToEven) {
    EXPECT_EQ(Value(0.5).ToInteger(), 0);
    EXPECT_EQ(Value(1.5).ToInteger(), 2);
    EXPECT_EQ(Value(2.5).ToInteger(), 2);
    EXPECT_EQ(Value(-1.5).ToInteger(), -2);
    EXPECT_EQ(Value(-2.5).ToInteger(), -2);
    EXPECT_EQ(Value(2.500001).ToInteger(), 3);
    EXPECT_EQ(Text("3.5").ToInteger(), 4);
}

TEST(ValueInteger, KeepsItsRange) {
    constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
    EXPECT_EQ(Value(largest).ToInteger(), largest);
    EXPECT_EQ(Text("9223372036854775807").ToInteger(), largest);
    EXPECT_EQ(Value(-9223372036854775808.0).ToInteger(), std::numeric_limits<std::int64_t>::min());
    for (const double outside : {9223372036854775808.0, -1e19, std::nan(""), HUGE_VAL}) {
        EXPECT_EQ(ErrorNumber([&] { Value(outside).ToInteger(); }), error_number::Overflow) << outside;
    }
}

TEST(ValueDate, ReadsBothFixedForms) {
    const OleDate day = ToOleDate({2003, 5, 20});
    EXPECT_EQ(Text("2003-05-20").ToDate(), day);
    EXPECT_EQ(Text("20/05/2003").ToDate(), day);
    EXPECT_EQ(Value(day.days).ToDate(), day);
    EXPECT_EQ(Value(std::int64_t{37761}).ToDate(), day);
    EXPECT_EQ(Value().ToDate(), OleDate{});
    for (const char* const text : {"", "05-20-2003", "2003-02-29", "31/06/2003", "20/5/2003", "0/0/0"}) {
        EXPECT_EQ(ErrorNumber([&] { Text(text).ToDate(); }), error_number::TypeMismatch) << text;
    }
    EXPECT_EQ(ErrorNumber([] { Value(Null{}).ToDate(); }), error_number::InvalidUseOfNull);
}

}  // namespace
}  // namespace tavrin::data
