#include "addressbook/text_rules.h"

#include <gtest/gtest.h>

namespace tavrin::addressbook {
namespace {

TEST(TextRules, EightCharactersAreRefused) {
    int refused = 0;
    for (char32_t character = 0; character < 0x300; ++character)
        refused += IsRefused(character) ? 1 : 0;
    EXPECT_EQ(refused, 8);
    for (const char32_t character : std::u32string_view(U"';%,\"][`"))
        EXPECT_TRUE(IsRefused(character)) << static_cast<char>(character);
}

TEST(TextRules, LookalikesOfTheRefusedCharactersPass) {
    for (const char32_t character : std::u32string_view(U"/\u2019\u201D\u00B4\uFF05\b\r\t"))
        EXPECT_FALSE(IsRefused(character)) << static_cast<unsigned>(character);
}

TEST(TextRules, ABlankSearchBoxAsksForEverybody) {
    EXPECT_EQ(SearchPattern(""), "%");
    EXPECT_EQ(SearchPattern("    "), "%");
}

TEST(TextRules, ASearchTextStandsAsItIs) {
    EXPECT_EQ(SearchPattern("Pop"), "Pop");
    EXPECT_EQ(SearchPattern(" Pop"), " Pop");
    EXPECT_EQ(SearchPattern("Pop "), "Pop ");
}

TEST(TextRules, EverySlashIsAWildcard) {
    EXPECT_EQ(SearchPattern("Pop/"), "Pop%");
    EXPECT_EQ(SearchPattern("/escu"), "%escu");
    EXPECT_EQ(SearchPattern("/a//b/"), "%a%%b%");
    EXPECT_EQ(SearchPattern("/"), "%");
    EXPECT_EQ(SearchPattern(" /"), " %");
    EXPECT_EQ(SearchPattern("\\"), "\\");
}

}  // namespace
}  // namespace tavrin::addressbook
