#include "notes/note_filter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "data/error.h"

namespace tavrin::tests {
namespace {

using notes::FilterNote;
using namespace std::string_literals;

bool IsRefused(std::string_view file) {
    try {
        FilterNote(file);
        return false;
    } catch (const data::Error& error) {
        EXPECT_EQ(error.Number(), 321);
        return true;
    }
}

std::string Nested(int depth) {
    std::string file = "{\\rtf1 ";
    for (int i = 1; i < depth; ++i)
        file += "{a";
    return file + std::string(static_cast<std::size_t>(depth), '}');
}

/// A note with everything in it that writers use.
std::string FullNote() {
    return "{\\rtf1\\ansi\\ansicpg1250\\uc1\\deff0{\\fonttbl{\\f0\\fnil\\fcharset238 Arial;}}\r\n"
           "{\\colortbl;\\red255\\green0\\blue0;}{\\*\\generator Writer;}\r\n"
           "\\pard\\li-240 a\\'e3\\{b\\}\\\\ \\u259?\\u-10179?\\u-8704?\\~\\par\r\n"
           "{\\b bold {\\i both}}\\tab\\cf1 red}"s;
}

TEST(NoteFilterTest, ANoteIsKeptByteForByte) {
    EXPECT_EQ(FilterNote("{\\rtf1}"), "{\\rtf1}");
    EXPECT_EQ(FilterNote(FullNote()), FullNote());
    EXPECT_EQ(FilterNote("{\\urtf1 \xC8\x99}"), "{\\urtf1 \xC8\x99}");
    EXPECT_EQ(FilterNote("{\\rtf1 \xE3\xFF}"), "{\\rtf1 \xE3\xFF}");
}

TEST(NoteFilterTest, WhatDoesNotBeginAsRtfIsRefused) {
    for (const char* file :
         {"", "{", "text", "{\\rt", " {\\rtf1}", "{\\RTF1}", "\xEF\xBB\xBF{\\rtf1}", "{\\pdf}", "MZ\x90"})
        EXPECT_TRUE(IsRefused(file)) << file;
}

TEST(NoteFilterTest, WhatIsTruncatedAnywhereIsRefused) {
    const std::string note = FullNote();
    for (std::size_t length = 0; length < note.size(); ++length)
        EXPECT_TRUE(IsRefused(std::string_view(note).substr(0, length))) << length;
}

TEST(NoteFilterTest, WhatFollowsTheOutermostGroupIsLeftOut) {
    EXPECT_EQ(FilterNote("{\\rtf1 a}\r\n\0"s), "{\\rtf1 a}");
    EXPECT_EQ(FilterNote("{\\rtf1 a}{\\object b}}}}"), "{\\rtf1 a}");
}

TEST(NoteFilterTest, GroupsAreNestedThirtyDeepAtMost) {
    EXPECT_EQ(FilterNote(Nested(30)), Nested(30));
    EXPECT_TRUE(IsRefused(Nested(31)));
    EXPECT_TRUE(IsRefused(Nested(5000)));
    // Groups one after the other are not nested.
    std::string row = "{\\rtf1 ";
    for (int i = 0; i < 1000; ++i)
        row += "{\\b a}";
    EXPECT_EQ(FilterNote(row + "}"), row + "}");
    // Braces that are text count as none.
    EXPECT_FALSE(IsRefused("{\\rtf1 " + std::string(100, '\\') + "}"));
    std::string braces = "{\\rtf1 ";
    for (int i = 0; i < 100; ++i)
        braces += "\\{";
    EXPECT_EQ(FilterNote(braces + "}"), braces + "}");
}

TEST(NoteFilterTest, EightMegabytesAreTheMost) {
    const std::string start = "{\\rtf1 ";
    const std::string most = start + std::string(notes::MaximumNoteSize - start.size() - 1, 'a') + "}";
    EXPECT_EQ(FilterNote(most).size(), notes::MaximumNoteSize);
    EXPECT_TRUE(IsRefused(most + "\n"));
}

TEST(NoteFilterTest, EmbeddedObjectsAreLeftOutWithEverythingInThem) {
    EXPECT_EQ(
        FilterNote(
            "{\\rtf1 a{\\object\\objemb{\\*\\objclass Package}{\\*\\objdata 0105}{\\result {\\pict 00}}}b}"),
        "{\\rtf1 a\nb}");
    EXPECT_EQ(FilterNote("{\\rtf1 a{\\*\\objdata 0105}b}"), "{\\rtf1 a\nb}");
    EXPECT_EQ(FilterNote("{\\rtf1{x{\\b y}\\object z{c}}d}"), "{\\rtf1\nd}");
    EXPECT_EQ(FilterNote("{\\rtf1{\\object{\\object a}}b}"), "{\\rtf1\nb}");
    EXPECT_EQ(FilterNote("{\\rtf1{\\object1 a}b}"), "{\\rtf1\nb}");
    // What stands before and after does not grow together.
    EXPECT_EQ(FilterNote("{\\rtf1\\b{\\object x}ig}"), "{\\rtf1\\b\nig}");
    EXPECT_EQ(FilterNote("{\\rtf1\\b\\intbl ig}"), "{\\rtf1\\b\nig}");
    // Words that only begin like it, and the word as text, are no objects.
    EXPECT_EQ(FilterNote("{\\rtf1{\\objectx a}\\\\object}"), "{\\rtf1{\\objectx a}\\\\object}");
}

TEST(NoteFilterTest, ANoteThatIsItselfAnObjectIsRefused) {
    EXPECT_TRUE(IsRefused("{\\rtf1\\object\\objemb a}"));
    EXPECT_TRUE(IsRefused("{\\rtf1 a\\objdata 0105}"));
}

TEST(NoteFilterTest, BracesInsideAnObjectCountAsEverywhere) {
    EXPECT_TRUE(IsRefused("{\\rtf1{\\object a}"));
    EXPECT_TRUE(IsRefused("{\\rtf1{\\object" + Nested(30) + "}}"));
}

TEST(NoteFilterTest, ATableBecomesTextWithTabs) {
    EXPECT_EQ(
        FilterNote(
            "{\\rtf1\\trowd\\trgaph70\\cellx1000\\cellx2000\\pard\\intbl a\\cell b\\cell\\row\\pard c}"),
        "{\\rtf1\n\\trgaph70\n\n\\pard\na\\tab b\\tab \\par \\pard c}");
    EXPECT_EQ(FilterNote("{\\rtf1\\itap2 a\\nestcell{\\*\\nesttableprops\\nestrow}}"),
              "{\\rtf1\na\\tab {\\*\\nesttableprops\\par }}");
}

TEST(NoteFilterTest, ATableWordGoesWithItsNumberAndItsBlank) {
    EXPECT_EQ(FilterNote("{\\rtf1\\cellx-100 b}"), "{\\rtf1\nb}");
    EXPECT_EQ(FilterNote("{\\rtf1\\cellx100 b}"), "{\\rtf1\nb}");
    EXPECT_EQ(FilterNote("{\\rtf1\\cellx100  b}"), "{\\rtf1\n b}") << "one blank ends a word";
    EXPECT_EQ(FilterNote("{\\rtf1\\cellx-1\\b b}"), "{\\rtf1\n\\b b}");
    EXPECT_EQ(FilterNote("{\\rtf1\\cellx- b}"), "{\\rtf1\n- b}") << "a dash alone is text";
}

TEST(NoteFilterTest, BinaryDataIsWrittenInDigits) {
    EXPECT_EQ(FilterNote("{\\rtf1{\\pict\\wmetafile8\\bin4 \0{}\xFF}a}"s),
              "{\\rtf1{\\pict\\wmetafile8\n007b7dff}a}");
    EXPECT_EQ(FilterNote("{\\rtf1{\\pict\\bin0 }a}"), "{\\rtf1{\\pict\n}a}");
    EXPECT_EQ(FilterNote("{\\rtf1{\\pict\\bin}a}"), "{\\rtf1{\\pict\n}a}");
    EXPECT_EQ(FilterNote("{\\rtf1{\\object{\\*\\objdata\\bin3 }}}}}a}"), "{\\rtf1\na}");
}

TEST(NoteFilterTest, BinaryDataThatLiesAboutItsLengthIsRefused) {
    for (const char* length : {"-1", "100", "4294967296", "9999999999"})
        EXPECT_TRUE(IsRefused("{\\rtf1{\\pict\\bin"s + length + " ab}}")) << length;
}

TEST(NoteFilterTest, NulBytesAreRefused) {
    EXPECT_TRUE(IsRefused("{\\rtf1 a\0b}"s));
    EXPECT_TRUE(IsRefused("{\\rtf1 a\\\0b}"s));
    EXPECT_TRUE(IsRefused("{\\rtf1\0}"s));
}

TEST(NoteFilterTest, WordsAndNumbersThatNoWriterWritesAreRefused) {
    EXPECT_FALSE(IsRefused("{\\rtf1\\" + std::string(32, 'a') + "1234567890 }"));
    EXPECT_TRUE(IsRefused("{\\rtf1\\" + std::string(33, 'a') + "}"));
    EXPECT_TRUE(IsRefused("{\\rtf1\\fs12345678901 }"));
    EXPECT_EQ(FilterNote("{\\rtf1\\fs- a}"), "{\\rtf1\\fs- a}");
}

/// Whatever comes out is safe for an editor, and is a note itself.
void ExpectSafe(const std::string& kept) {
    EXPECT_EQ(FilterNote(kept), kept);
    EXPECT_EQ(kept.find('\0'), std::string::npos);
    EXPECT_EQ(kept.front(), '{');
    EXPECT_EQ(kept.back(), '}');
}

TEST(NoteFilterTest, ADamagedNoteIsRefusedOrMadeSafe) {
    std::mt19937 random(1);  // NOLINT(bugprone-random-generator-seed): the same damage each time
    const std::string note = FullNote();
    int kept = 0;
    for (int i = 0; i < 20000; ++i) {
        std::string damaged = note;
        for (int changes = 1 + static_cast<int>(random() % 4); changes > 0; --changes) {
            constexpr std::string_view Bytes("{}\\ \0a1-'*\xE3", 11);
            damaged[random() % damaged.size()] = Bytes[random() % Bytes.size()];
        }
        try {
            ExpectSafe(FilterNote(damaged));
            ++kept;
        } catch (const data::Error&) {
            continue;
        }
    }
    EXPECT_GT(kept, 1000);
    EXPECT_LT(kept, 19000);
}

}  // namespace
}  // namespace tavrin::tests
