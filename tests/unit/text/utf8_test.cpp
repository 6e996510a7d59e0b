#include "data/text/utf8.h"

#include <gtest/gtest.h>

namespace tavrin::tests {
namespace {

TEST(Utf8Test, CountsCharactersNotBytes) {
    EXPECT_EQ(data::CountCharacters(""), 0);
    EXPECT_EQ(data::CountCharacters("leu"), 3);
    EXPECT_EQ(data::CountCharacters("ăîș€"), 4);
    EXPECT_EQ(data::CountCharacters("\xF0\x9F\x98\x80"), 1);
}

TEST(Utf8Test, FindsWhereACharacterBegins) {
    const std::string text = "aă€b";
    EXPECT_EQ(data::OffsetOfCharacter(text, 0), 0U);
    EXPECT_EQ(data::OffsetOfCharacter(text, 1), 1U);
    EXPECT_EQ(data::OffsetOfCharacter(text, 2), 3U);
    EXPECT_EQ(data::OffsetOfCharacter(text, 3), 6U);
    EXPECT_EQ(data::OffsetOfCharacter(text, 4), 7U);
    EXPECT_EQ(data::OffsetOfCharacter(text, 99), 7U);
    EXPECT_EQ(data::OffsetOfCharacter(text, -1), 0U);
}

TEST(Utf8Test, BrokenTextIsNoTrouble) {
    EXPECT_EQ(data::CountCharacters("\x80\x80"), 0);
    EXPECT_EQ(data::OffsetOfCharacter("\x80\x80", 0), 2U);
    EXPECT_EQ(data::CountCharacters("a\xC4"), 2);
}

TEST(Utf8Test, OnlyPlainCapitalsHaveASmallLetter) {
    EXPECT_EQ(data::LowerCase(U'A'), U'a');
    EXPECT_EQ(data::LowerCase(U'Z'), U'z');
    EXPECT_EQ(data::LowerCase(U'@'), U'@');
    EXPECT_EQ(data::LowerCase(U'['), U'[');
    EXPECT_EQ(data::LowerCase(U'\u0102'), U'\u0102');
}

}  // namespace
}  // namespace tavrin::tests
