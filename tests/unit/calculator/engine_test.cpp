#include "calculator/engine.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>

#include "data/error.h"
#include "two_displays.h"

namespace tavrin::tests {
namespace {

using calculator::Command;
using calculator::Unit;

/// A sequence of keys and what stands in the entry and in both displays afterwards, at 4.5 lei for one unit
/// of the currency.
struct Sequence {
    std::string_view keys;
    std::string_view entry;
    std::string_view lei;
    std::string_view currency;
    int decimals = 2;
};

std::ostream& operator<<(std::ostream& stream, const Sequence& sequence) {
    return stream << sequence.keys << " with " << sequence.decimals << " decimals";
}

class SequenceTest : public testing::TestWithParam<Sequence> {};

TEST_P(SequenceTest, ShowsItsResult) {
    const Sequence& sequence = GetParam();
    TwoDisplays shown;
    shown.conversion.SetRate(4.5);
    shown.conversion.SetDecimals(sequence.decimals);
    shown.Press(sequence.keys);
    EXPECT_EQ(shown.engine.EntryText(), sequence.entry);
    EXPECT_EQ(shown.Lei(), sequence.lei);
    EXPECT_EQ(shown.Currency(), sequence.currency);
}

#define SEQUENCES(name, ...) INSTANTIATE_TEST_SUITE_P(name, SequenceTest, testing::Values(__VA_ARGS__))

SEQUENCES(Typing, Sequence{"9", "9", "9,00", "2,00"}, Sequence{"0", "0", "0,00", "0,00"},
          Sequence{"007", "7", "7,00", "1,56"}, Sequence{"1234567", "1234567", "1.234.567,00", "274.348,22"},
          Sequence{"1.234", "1,23", "1,23", "0,27"}, Sequence{"1.2345678", "1,2345", "1,2345", "0,2743", 4},
          Sequence{"1.23456789", "1,234567", "1,234567", "0,274348", 6},
          Sequence{".5", "0,5", "0,50", "0,11"}, Sequence{"1.", "1", "1,00", "0,22"},
          Sequence{"1..5", "1,5", "1,50", "0,33"}, Sequence{"1.5.7", "1,57", "1,57", "0,35"},
          Sequence{"0.00", "0,00", "0,00", "0,00"}, Sequence{"0.05", "0,05", "0,05", "0,01"});

SEQUENCES(NoDecimals, Sequence{"12.3456", "12,3", "12", "3", 0}, Sequence{"12.3.4", "12,3", "12", "3", 0},
          Sequence{".5", "0,5", "0", "0", 0}, Sequence{"1.5", "1,5", "2", "0", 0});

SEQUENCES(FifteenCharacters,
          Sequence{"123456789012345", "123456789012345", "123.456.789.012.345,00", "27.434.842.002.743,30"},
          Sequence{"1234567890123456", "123456789012345", "123.456.789.012.345,00", "27.434.842.002.743,30"},
          Sequence{"1234567890123.456", "1234567890123,4", "1.234.567.890.123,40", "274.348.420.027,42"},
          Sequence{"-123456789012345", "123456789012345", "123.456.789.012.345,00", "27.434.842.002.743,30"},
          // The separator comes along with a digit that is the fifteenth character.
          Sequence{"12345678901234.56", "12345678901234,5", "12.345.678.901.234,50", "2.743.484.200.274,33"},
          // The sign has room; a digit has none any more.
          Sequence{"123456789012345n6", "-123456789012345", "-123.456.789.012.345,00",
                   "-27.434.842.002.743,30"},
          Sequence{"12345678901234n5", "-12345678901234", "-12.345.678.901.234,00", "-2.743.484.200.274,22"});

SEQUENCES(Sums, Sequence{"7+5=", "12", "12,00", "2,67"}, Sequence{"9-4=", "5", "5,00", "1,11"},
          Sequence{"6X7=", "42", "42,00", "9,33"}, Sequence{"9/2=", "4,5", "4,50", "1,00"},
          Sequence{"1+2+3+4=", "10", "10,00", "2,22"}, Sequence{"1+2X3=", "9", "9,00", "2,00"},
          Sequence{"4-9=", "-5", "-5,00", "-1,11"}, Sequence{"1+2+", "3", "3,00", "0,67"},
          Sequence{"5+", "5", "5,00", "1,11"}, Sequence{"5=", "5", "5,00", "1,11"},
          Sequence{"2++3=", "5", "5,00", "1,11"}, Sequence{"2+-3=", "-1", "-1,00", "-0,22"},
          Sequence{"2+X3=", "6", "6,00", "1,33"}, Sequence{"2X=3=", "3", "3,00", "0,67"},
          Sequence{"1234.56+1000=", "2234,56", "2.234,56", "496,57"},
          Sequence{"999999999999999X999999999999999=", "999999999999998000000000000000",
                   "9,99999999999998E+29", "2,22222222222222E+29"});

SEQUENCES(RestartAfterEquals, Sequence{"7+5=3", "3", "3,00", "0,67"}, Sequence{"7+5=3+", "3", "3,00", "0,67"},
          Sequence{"7+5=3+4", "4", "4,00", "0,89"}, Sequence{"7+5=3++4=", "4", "4,00", "0,89"},
          Sequence{"7+5=3++4=+1=", "5", "5,00", "1,11"}, Sequence{"7+5=3+4+2=", "6", "6,00", "1,33"},
          Sequence{"7+5=3.456=", "3,45", "3,45", "0,77"},
          // An operator right after the result goes on with it.
          Sequence{"7+5=+3=", "15", "15,00", "3,33"}, Sequence{"7+5==", "12", "12,00", "2,67"},
          // A percent key is taken although the result waits; the typed number is lost.
          Sequence{"7+5=3%", "12", "12,00", "2,67"});

SEQUENCES(Percent, Sequence{"200+10%", "220", "220,00", "48,89"},
          Sequence{"200-10%", "180", "180,00", "40,00"}, Sequence{"200X10%", "20", "20,00", "4,44"},
          Sequence{"200/10%", "2000", "2.000,00", "444,44"},
          Sequence{"1234.56+19%", "1469,13", "1.469,13", "326,47"},
          // Of a first operand it takes nothing, and typing goes on.
          Sequence{"50%", "50", "50,00", "11,11"}, Sequence{"50%7", "507", "507,00", "112,67"},
          // The pending operator stays, but the next number is a first operand again.
          Sequence{"200+10%5=", "5", "5,00", "1,11"}, Sequence{"200+10%5+1=", "6", "6,00", "1,33"},
          Sequence{"200+10%%", "220", "220,00", "48,89"},
          // Pressed in place of a second operand it waits like any operator, and then does nothing.
          Sequence{"200+%5=", "200", "200,00", "44,44"}, Sequence{"200+%5%", "200", "200,00", "44,44"});

SEQUENCES(ChangeOfSign, Sequence{"n", "0", "0,00", "0,00"}, Sequence{"5n", "-5", "-5,00", "-1,11"},
          Sequence{"5nn", "-5", "-5,00", "-1,11"}, Sequence{"5n6", "-56", "-56,00", "-12,44"},
          Sequence{"1.5n", "-1,5", "-1,50", "-0,33"}, Sequence{"5n+3=", "-2", "-2,00", "-0,44"},
          // It turns the running result as well, even while the second operand is typed.
          Sequence{"7+5n=", "-12", "-12,00", "-2,67"}, Sequence{"7+5=n+1=", "-11", "-11,00", "-2,44"},
          Sequence{"0.0n", "-0,0", "0,00", "0,00"});

SEQUENCES(Backspace, Sequence{"123<", "12", "12,00", "2,67"}, Sequence{"1<", "0", "0,00", "0,00"},
          Sequence{"<", "0", "0,00", "0,00"}, Sequence{"1.5<", "1", "1,00", "0,22"},
          Sequence{"1.5<<", "0", "0,00", "0,00"}, Sequence{"1.<5", "5", "5,00", "1,11"},
          Sequence{"12.<5", "15", "15,00", "3,33"}, Sequence{"5n<", "-", "0,00", "0,00"},
          Sequence{"5n<<", "0", "0,00", "0,00"}, Sequence{"5n<7", "-7", "-7,00", "-1,56"},
          Sequence{"5n<0", "-0", "0,00", "0,00"}, Sequence{"5n<07", "-07", "-7,00", "-1,56"},
          Sequence{"5n<n", "-", "0,00", "0,00"}, Sequence{"5n<.5", "-,5", "-0,50", "-0,11"},
          Sequence{"5n<+3=", "3", "3,00", "0,67"}, Sequence{"5n<0+3=", "3", "3,00", "0,67"},
          // A result is shortened as well, but the next digit still begins anew.
          Sequence{"7+5=<", "1", "1,00", "0,22"}, Sequence{"7+5=<9", "9", "9,00", "2,00"},
          Sequence{"7+5=<+1=", "13", "13,00", "2,89"});

SEQUENCES(TheSeparatorOutlivesOtherKeys,
          // Asked for before an operator, it comes with the next number.
          Sequence{"5.+3=", "5,3", "5,30", "1,18"}, Sequence{"5.+3", "0,3", "0,30", "0,07"},
          // A result with decimals refuses it.
          Sequence{"1.5+1=.5", "5", "5,00", "1,11"}, Sequence{"1+1=.5", "0,5", "0,50", "0,11"},
          Sequence{"5.C3", "3", "3,00", "0,67"}, Sequence{"5.A3", "3", "3,00", "0,67"});

SEQUENCES(Clearing, Sequence{"5C", "0", "5,00", "1,11"}, Sequence{"5A", "0", "5,00", "1,11"},
          Sequence{"5+3C4=", "9", "9,00", "2,00"}, Sequence{"5+3A4=", "4", "4,00", "0,89"},
          Sequence{"5+3A4=+1=", "5", "5,00", "1,11"}, Sequence{"5MAR", "0", "0,00", "0,00"},
          Sequence{"5MCR", "5", "5,00", "1,11"},
          // What is still shown after a cleared entry is no number that was typed.
          Sequence{"5C+3=", "3", "3,00", "0,67"});

SEQUENCES(MemoryKeys, Sequence{"5M", "0", "0,00", "0,00"}, Sequence{"5MR", "5", "5,00", "1,11"},
          Sequence{"5M3MR", "8", "8,00", "1,78"}, Sequence{"5M3WR", "2", "2,00", "0,44"},
          Sequence{"5WR", "-5", "-5,00", "-1,11"}, Sequence{"5MZR", "0", "0,00", "0,00"},
          Sequence{"R", "0", "0,00", "0,00"},
          // Storing leaves a zero that typing goes on from, so the operator takes it as a number.
          Sequence{"5M+3=", "3", "3,00", "0,67"}, Sequence{"7+5M=", "7", "7,00", "1,56"},
          // A result that was stored is no typed number; neither is a recalled one after an operator.
          Sequence{"7+5=M+1=", "13", "13,00", "2,89"}, Sequence{"5MR+2=", "7", "7,00", "1,56"},
          Sequence{"5M7+R=", "5", "5,00", "1,11"}, Sequence{"5M7+R+1=", "8", "8,00", "1,78"},
          // Digits are added to a recalled number where one is being typed.
          Sequence{"5M7R2", "52", "52,00", "11,56"}, Sequence{"1/3=MR", "0,33", "0,33", "0,07"},
          Sequence{"0.1M0.2M0.3WR", "0", "0,00", "0,00"}, Sequence{"0.1M0.2MR", "0,3", "0,30", "0,07"},
          Sequence{"0.1M0.2MR<", "0", "0,00", "0,00"},
          // A separator asked for before recalling a number that has one makes a text with two; the number is
          // what stands before the second.
          Sequence{"1.5M2.R7", "1,5,7", "1,50", "0,33"});

SEQUENCES(DivisionByZero, Sequence{"5/0=", "5", "5,00", "1,11"}, Sequence{"5/0%", "5", "5,00", "1,11"},
          Sequence{"5/0=+2=", "7", "7,00", "1,56"}, Sequence{"5/0+2=", "7", "7,00", "1,56"},
          Sequence{"0/0=", "0", "0,00", "0,00"});

SEQUENCES(Rounding, Sequence{"14.5X19%", "2,76", "2,76", "0,61"}, Sequence{"5.35/2=", "2,68", "2,68", "0,60"},
          Sequence{"100.5+19%", "119,6", "119,60", "26,58"}, Sequence{"1/8=", "0,12", "0,12", "0,03"},
          Sequence{"3/8=", "0,38", "0,38", "0,08"}, Sequence{"5/2=", "2", "2", "0", 0},
          Sequence{"7/2=", "4", "4", "1", 0}, Sequence{"1/3=", "0,33", "0,33", "0,07"},
          Sequence{"2/3=", "0,6667", "0,6667", "0,1482", 4},
          Sequence{"2/3=", "0,666667", "0,666667", "0,148148", 6}, Sequence{"1/3=X3=", "1", "1,00", "0,22"},
          // The running result is not rounded.
          Sequence{"1n/8/1=", "-0,12", "-0,12", "-0,03"}, Sequence{"1n/2=", "0", "0", "0", 0},
          Sequence{"1/3X3000=", "1000", "1.000,00", "222,22"});

TEST(Engine, AsksForARefreshOnlyWhereAKeyShowsSomething) {
    TwoDisplays shown;
    const auto refreshes = [&](std::string_view keys) {
        const int before = shown.refreshes;
        shown.Press(keys);
        return shown.refreshes - before;
    };
    EXPECT_EQ(refreshes("5"), 1);
    EXPECT_EQ(refreshes("."), 0);
    EXPECT_EQ(refreshes("2"), 1);
    EXPECT_EQ(refreshes("55555"), 1) << "one more decimal, the others are ignored";
    EXPECT_EQ(refreshes("+"), 0) << "a first operand";
    EXPECT_EQ(refreshes("-"), 0) << "another operator instead";
    EXPECT_EQ(refreshes("3="), 2);
    EXPECT_EQ(refreshes("n"), 1);
    EXPECT_EQ(refreshes("nnn"), 0);
    EXPECT_EQ(refreshes("C"), 0);
    EXPECT_EQ(refreshes("A"), 0);
    EXPECT_EQ(refreshes("Z"), 0);
    EXPECT_EQ(refreshes("M"), 1);
    EXPECT_EQ(refreshes("W"), 1);
    EXPECT_EQ(refreshes("R"), 1);
    EXPECT_EQ(refreshes("<"), 1);
    EXPECT_EQ(refreshes("5%"), 1) << "the digit alone";
}

TEST(Engine, MarksTheMemoryUntilItIsCleared) {
    TwoDisplays shown;
    EXPECT_TRUE(shown.Press("0M").memoryMark) << "even where it holds nothing";
    EXPECT_FALSE(shown.Press("Z").memoryMark);
    EXPECT_TRUE(shown.Press("5W").memoryMark);
    EXPECT_TRUE(shown.Press("C<=7+").memoryMark);
    EXPECT_FALSE(shown.Press("A").memoryMark) << "clearing all empties the memory";
}

TEST(Engine, ReportsEveryDivisionByZeroOnce) {
    TwoDisplays shown;
    EXPECT_EQ(shown.Press("5/0=").divisionsByZero, 1);
    EXPECT_EQ(shown.Press("A5/0%").divisionsByZero, 2);
    EXPECT_EQ(shown.Press("A5/0.00=").divisionsByZero, 3);
    EXPECT_EQ(shown.Press("A0X0=").divisionsByZero, 3);
    EXPECT_EQ(shown.Press("A5/1=").divisionsByZero, 3);
}

TEST(Engine, TakesTheOperandFromTheDisplayOfTheUnit) {
    TwoDisplays shown;
    shown.conversion.SetRate(4.5);
    shown.conversion.TypeIn(Unit::Currency);
    shown.Press("2");
    EXPECT_EQ(shown.Lei(), "9,00");
    EXPECT_EQ(shown.Press("+1=").Currency(), "3,00");
    EXPECT_EQ(shown.Lei(), "13,50");
    // The currency chooser has an amount converted without touching the entry.
    shown.Press("A8");
    shown.conversion.SetRate(0.5);
    shown.conversion.BuyFor(36);
    EXPECT_EQ(shown.Press("+1=").Currency(), "73,00");
}

TEST(Engine, KeepsTheDigitsOfAnEntryWhenThePrecisionChanges) {
    TwoDisplays shown;
    shown.conversion.SetDecimals(4);
    shown.Press("1.2345");
    shown.conversion.SetDecimals(0);
    EXPECT_EQ(shown.engine.EntryText(), "1,2345");
    EXPECT_EQ(shown.Lei(), "1");
    EXPECT_EQ(shown.Press("6").engine.EntryText(), "1,2345") << "no room";
    EXPECT_EQ(shown.Press("<").engine.EntryText(), "1,234");
}

TEST(Engine, TakesAnotherNumberAsEntryWithoutBeginningAnew) {
    TwoDisplays shown;
    shown.Press("9").engine.SetEntry(2.5);
    EXPECT_EQ(shown.engine.EntryText(), "2,5");
    EXPECT_EQ(shown.Press("1").engine.EntryText(), "2,51");
    shown.Press("+").engine.SetEntry(7);
    EXPECT_EQ(shown.Press("1").engine.EntryText(), "1");
}

struct Separator {
    std::string_view text;
    std::string_view entry;
};

TEST(Engine, WritesAnyDecimalSeparator) {
    for (const Separator& separator : {Separator{".", "12.5"}, Separator{",", "12,5"},
                                       Separator{"\xD9\xAB",
                                                 "12\xD9\xAB"
                                                 "5"},
                                       Separator{"::", "12::5"}, Separator{"", "12.5"}}) {
        data::Locale locale;
        locale.decimalSeparator = separator.text;
        TwoDisplays shown(locale);
        shown.Press("12.57");
        EXPECT_EQ(shown.engine.EntryValue(), 12.57);
        EXPECT_EQ(shown.Press("8").engine.EntryValue(), 12.57) << "the decimals are full";
        EXPECT_EQ(shown.Press("<").engine.EntryText(), separator.entry);
        EXPECT_EQ(shown.Press("<").engine.EntryText(), "12");
        shown.Press("A1234567890123.4");
        EXPECT_EQ(shown.engine.EntryValue(), 1234567890123.4) << "fifteen characters, whatever their bytes";
        EXPECT_EQ(shown.Press("5").engine.EntryValue(), 1234567890123.4);
    }
}

// Errors.

std::int32_t ErrorOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const data::Error& error) {
        return error.Number();
    }
    return 0;
}

TEST(Engine, OverflowsWhenAResultIsTooLarge) {
    TwoDisplays shown;
    shown.Press("999999999999999");
    const std::int32_t error = ErrorOf([&] {
        for (int i = 0; i < 30; ++i)
            shown.Press("X999999999999999");
    });
    EXPECT_EQ(error, data::error_number::Overflow);
    EXPECT_EQ(shown.engine.EntryText(), "999999999999999") << "the operand is still shown";
    EXPECT_EQ(shown.Press("7+5=").engine.EntryText(), "12");
}

/// The memory holds 42, and the next operator drives the running result out of range.
void MakeNearlyOverflow(TwoDisplays& shown) {
    shown.Press("42M");
    for (int i = 0; i < 20; ++i)
        shown.Press("999999999999999X");
    shown.Press("999999999999999");
}

struct AfterAnError {
    const char* last;  ///< the key that fails, and what is pressed after it
    const char* next;
    const char* entry;
};

TEST(Engine, BeginsAnewAfterAnErrorAndKeepsItsMemory) {
    for (const AfterAnError& after :
         {AfterAnError{"X", "7+5=", "12"}, AfterAnError{"=", "C7+5=", "12"}, AfterAnError{"%", "7+5=", "12"},
          AfterAnError{"X", "+7+5=", "12"}, AfterAnError{".X", "7+5=", "12"},
          AfterAnError{"X", "n", "-999999999999999"}, AfterAnError{"=", "<", "99999999999999"},
          AfterAnError{"=", "R", "42"}, AfterAnError{"=", "M1WR", "1000000000000040"}}) {
        TwoDisplays shown;
        MakeNearlyOverflow(shown);
        EXPECT_EQ(ErrorOf([&] { shown.Press(after.last); }), data::error_number::Overflow);
        EXPECT_EQ(shown.Press(after.next).engine.EntryText(), after.entry) << after.last << after.next;
        EXPECT_TRUE(shown.memoryMark);
    }
}

TEST(Engine, BeginsAnewAfterAResultThatCannotBeConverted) {
    TwoDisplays shown;
    for (const char* keys : {"7+5=", "7+5%", "7+5=3+"}) {
        shown.Press("A").conversion.SetRate(1);
        const std::string_view typed(keys);
        shown.Press(typed.substr(0, typed.size() - 1)).conversion.SetRate(0);
        EXPECT_EQ(ErrorOf([&] { shown.Press(typed.substr(typed.size() - 1)); }),
                  data::error_number::DivisionByZero);
        shown.conversion.SetRate(1);
        EXPECT_EQ(shown.Press("7+5=").engine.EntryText(), "12") << keys;
    }
}

TEST(Engine, TakesTypedKeysThatCannotBeConverted) {
    TwoDisplays shown;
    shown.conversion.SetRate(0);
    for (const char* key : {"1", "2", "n"})
        EXPECT_EQ(ErrorOf([&] { shown.Press(key); }), data::error_number::DivisionByZero) << key;
    EXPECT_EQ(shown.engine.EntryText(), "-12");
    EXPECT_EQ(shown.Lei(), "-12,00");
    shown.conversion.SetRate(2);
    EXPECT_EQ(shown.Press("+5=").engine.EntryText(), "-7");
}

TEST(Engine, ShowsTheTypedNumberEvenWhereItCannotBeConverted) {
    TwoDisplays shown;
    shown.conversion.TypeIn(Unit::Currency);
    shown.conversion.SetRate(1e308);
    shown.Press("1");
    EXPECT_EQ(ErrorOf([&] { shown.Press("2"); }), data::error_number::Overflow);
    EXPECT_EQ(shown.Currency(), "12,00") << "an operator takes what is shown";
}

TEST(Engine, RefusesANumberWhoseDecimalNoDoubleHolds) {
    TwoDisplays shown;
    shown.Press("5").engine.SetEntry(std::numeric_limits<double>::max());
    EXPECT_EQ(ErrorOf([&] { shown.engine.ShowEntry(); }), data::error_number::Overflow);
    EXPECT_EQ(shown.Lei(), "5,00") << "what was shown before";
}

TEST(Engine, SaysWhichKeysDoNothing) {
    const auto ignored = [](std::string_view keys) { return TwoDisplays().Press(keys).ignored; };
    EXPECT_EQ(ignored("123456789012345"), 0);
    EXPECT_EQ(ignored("1234567890123456"), 1) << "a sixteenth digit";
    EXPECT_EQ(ignored("1.23"), 0);
    EXPECT_EQ(ignored("1.2345"), 2) << "more decimals than are kept";
    EXPECT_EQ(ignored("1..5"), 1) << "a second point";
    EXPECT_EQ(ignored("1.5.5"), 1);
    EXPECT_EQ(ignored("n"), 1) << "zero has no sign";
    EXPECT_EQ(ignored("5n"), 0);
    EXPECT_EQ(ignored("5nn"), 1) << "a minus stays";
    EXPECT_EQ(ignored("50%"), 1) << "a percentage of nothing";
    EXPECT_EQ(ignored("200+10%"), 0);
    EXPECT_EQ(ignored("1++-2==3+C<<A=MRZWRZ"), 0);
}

TEST(Engine, OverflowsInPercentMemoryAndDivision) {
    const std::string huge = [] {
        std::string keys = "999999999999999";
        for (int i = 0; i < 19; ++i)
            keys += "X999999999999999";
        return keys;
    }();
    EXPECT_EQ(ErrorOf([&] { TwoDisplays().Press(huge + "X999999999999999%"); }),
              data::error_number::Overflow);
    EXPECT_EQ(ErrorOf([&] { TwoDisplays().Press(huge + "X1000000=M"); }), 0);
    EXPECT_EQ(ErrorOf([&] { TwoDisplays().Press(huge + "X100000000=MRMRMRMR"); }),
              data::error_number::Overflow);
    TwoDisplays shown;
    shown.conversion.SetDecimals(6);
    EXPECT_EQ(ErrorOf([&] { shown.Press(huge + "X10000000=/0.000001="); }), data::error_number::Overflow);
}

TEST(Engine, ARateOfZeroFailsInEveryKeyThatShows) {
    TwoDisplays shown;
    shown.conversion.SetRate(0);
    EXPECT_EQ(ErrorOf([&] { shown.Press("5"); }), data::error_number::DivisionByZero);
    EXPECT_EQ(shown.Lei(), "5,00") << "what came before the division is shown";
    EXPECT_EQ(shown.engine.EntryText(), "5");
    EXPECT_EQ(ErrorOf([&] { shown.Press("<"); }), data::error_number::Overflow) << "zero by zero";
    EXPECT_EQ(ErrorOf([&] { shown.Press("+"); }), 0);
}

}  // namespace
}  // namespace tavrin::tests
