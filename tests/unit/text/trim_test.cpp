#include "data/text/trim.h"

#include <gtest/gtest.h>

namespace tavrin::data {
namespace {

TEST(TrimTest, TakesBlanksAndNothingElse) {
    EXPECT_EQ(Trimmed("  Ana Maria "), "Ana Maria");
    EXPECT_EQ(Trimmed("\tAna\n"), "\tAna\n");
    EXPECT_EQ(Trimmed("    "), "");
    EXPECT_EQ(Trimmed(""), "");
    EXPECT_EQ(Trimmed("x"), "x");
}

TEST(TrimTest, OnlyBlanksAreBlank) {
    EXPECT_TRUE(IsBlank(""));
    EXPECT_TRUE(IsBlank("  "));
    EXPECT_FALSE(IsBlank("\t"));
    EXPECT_FALSE(IsBlank(" x"));
}

}  // namespace
}  // namespace tavrin::data
