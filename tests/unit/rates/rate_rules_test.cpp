// What the rate windows may do, asked without one.

#include "rates/rate_rules.h"

#include <gtest/gtest.h>

#include <string>

#include "data/text/date.h"

namespace tavrin::rates {
namespace {

TEST(RateRules, TheLastFrozenDayIsFrozenAndTheNextIsNot) {
    const data::OleDate last = data::ToOleDate({2003, 5, 12});
    EXPECT_TRUE(IsFrozen(data::ToOleDate({2003, 5, 11}), last));
    EXPECT_TRUE(IsFrozen(last, last));
    EXPECT_FALSE(IsFrozen(data::ToOleDate({2003, 5, 13}), last));
}

TEST(RateRules, DaysAreComparedAsWholeOnes) {
    EXPECT_TRUE(IsFrozen(data::OleDate{37753.4}, data::OleDate{37753}));
    EXPECT_FALSE(IsFrozen(data::OleDate{37753.6}, data::OleDate{37753}));
    EXPECT_TRUE(IsFrozen(data::OleDate{37754}, data::OleDate{37753.6}));
}

TEST(RateRules, TheLastCurrencyStays) {
    CurrencyNames names;
    names.Add("EUR");
    EXPECT_FALSE(MayRemoveCurrency(names));
    names.Add("USD");
    EXPECT_TRUE(MayRemoveCurrency(names));
}

TEST(RateRules, ANewDayIsChosenAndACorrectedOneComesFromTheList) {
    const EntryRules adding = RulesOf(EntryMode::Add);
    EXPECT_STREQ(adding.title, "Curs Valutar - Adaugare");
    EXPECT_TRUE(adding.choosesDay);
    EXPECT_FALSE(adding.beginsFromList);
    const EntryRules modifying = RulesOf(EntryMode::Modify);
    EXPECT_STREQ(modifying.title, "Curs Valutar - Modificare");
    EXPECT_FALSE(modifying.choosesDay);
    EXPECT_TRUE(modifying.beginsFromList);
}

TEST(RateRules, ATypedValueIsANumberThatIsNotNegative) {
    for (const char* text : {"0", "1", "37,500", "4.97", " 12 ", "999999999999999", "1 000"})
        EXPECT_EQ(RefusalOf({text, true}), std::nullopt) << text;
    for (const char* text : {"-1", "abc", "1-2", "1e5", "-", ".", "12x"})
        EXPECT_EQ(RefusalOf({text, true}), ValueRefusal::NoRate) << text;
    for (const char* text : {"", "   "}) {
        EXPECT_EQ(RefusalOf({text, true}), ValueRefusal::Missing);
        EXPECT_EQ(RefusalOf({text, false}), ValueRefusal::Missing) << "even where the database has none";
    }
    EXPECT_EQ(RefusalOf({"1234567890123456", true}), ValueRefusal::TooManyDigits);
    EXPECT_EQ(RefusalOf({"0.000000000000001", true}), ValueRefusal::TooManyDigits);
}

TEST(RateRules, AValueOfTheDatabaseStaysWhateverItLooksLike) {
    for (const char* text : {"-1", "abc", "1234567890123456", "1e300"})
        EXPECT_EQ(RefusalOf({text, false}), std::nullopt) << text;
}

TEST(RateRules, ANumberHasFifteenDigits) {
    EXPECT_TRUE(HasRoomForDigit("12345678901234", ""));
    EXPECT_FALSE(HasRoomForDigit("123456789012345", ""));
    EXPECT_FALSE(HasRoomForDigit("123,456,789,012,345", ""));
    EXPECT_TRUE(HasRoomForDigit("123,456,789,012,345", "5")) << "its place is taken";
    EXPECT_FALSE(HasRoomForDigit("123,456,789,012,345", ",")) << "no digit goes";
}

TEST(RateRules, ANumberIsReadPastSeparatorsAndBlanks) {
    EXPECT_EQ(TypedRate("37,500"), 37500);
    EXPECT_EQ(TypedRate(" 1 234,5.5 "), 12345.5);
    EXPECT_EQ(TypedRate("-2"), -2);
    EXPECT_EQ(TypedRate(""), std::nullopt);
    EXPECT_EQ(TypedRate("12x"), std::nullopt);
    EXPECT_EQ(TypedRate(std::string(400, '9')), std::nullopt) << "out of range";
}

}  // namespace
}  // namespace tavrin::rates
