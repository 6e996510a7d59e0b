#include "forms/rtf_escape.h"

#include <gtest/gtest.h>

namespace tavrin::tests {
namespace {

using forms::EscapeRtf;

TEST(RtfEscapeTest, TheStartIsThatOfPlainRtf) {
    EXPECT_EQ(EscapeRtf("{\\urtf\\deff0 a}"), "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0 a}");
    EXPECT_EQ(EscapeRtf("{\\urtf1\\deff0 a}"), "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0 a}");
    EXPECT_EQ(EscapeRtf("{\\rtf1\\deff0 a}"), "{\\rtf1\\deff0 a}");
    EXPECT_EQ(EscapeRtf(""), "");
}

TEST(RtfEscapeTest, CharactersBeyondAsciiBecomeNumbers) {
    EXPECT_EQ(EscapeRtf("\xC4\x83\xC5\x9F\xC5\xA3"), "\\u259?\\u351?\\u355?");
    EXPECT_EQ(EscapeRtf("\xC8\x99\xC8\x9B"), "\\u537?\\u539?");
    EXPECT_EQ(EscapeRtf("a\xCE\xB1z"), "a\\u945?z");
    EXPECT_EQ(EscapeRtf("\xE2\x82\xAC"), "\\u8364?");
    EXPECT_EQ(EscapeRtf("\xEF\xBF\xBD"), "\\u-3?");
    EXPECT_EQ(EscapeRtf("\xF0\x9F\x98\x80"), "\\u-10179?\\u-8704?");
}

TEST(RtfEscapeTest, WhatIsNoUtf8BecomesTheReplacementCharacter) {
    EXPECT_EQ(EscapeRtf("\x80"), "\\u-3?");
    EXPECT_EQ(EscapeRtf("\xC4"), "\\u-3?");
    EXPECT_EQ(EscapeRtf("\xC4z"), "\\u-3?z");
    EXPECT_EQ(EscapeRtf("\xE2\x82z"), "\\u-3?z");
    EXPECT_EQ(EscapeRtf("\xFF\xFE"), "\\u-3?\\u-3?");
    EXPECT_EQ(EscapeRtf("\xF4\xBF\xBF\xBF"), "\\u-3?");
}

TEST(RtfEscapeTest, AsciiIsKeptAsItIs) {
    EXPECT_EQ(EscapeRtf("{\\b a\\{\\'e3\\u259?}\r\n"), "{\\b a\\{\\'e3\\u259?}\r\n");
}

}  // namespace
}  // namespace tavrin::tests
