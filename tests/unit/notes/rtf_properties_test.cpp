// What holds for every file and every note.

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <random>

#include "notes/rtf_reader.h"
#include "notes/rtf_writer.h"
#include "support/note_dump.h"
#include "support/random_note.h"
#include "unit/notes/corpus.h"

namespace tavrin::tests {
namespace {

using notes::Note;
using notes::ReadRtf;
using notes::RtfOutcome;
using notes::RtfReading;
using notes::WriteRtf;

std::string RandomBytes(std::mt19937& random, std::size_t length) {
    std::string bytes(length, '\0');
    std::ranges::generate(bytes, [&] { return static_cast<char>(random()); });
    return bytes;
}

std::string Repeated(std::string_view text, std::size_t times) {
    std::string all;
    all.reserve(text.size() * times);
    for (std::size_t i = 0; i < times; ++i)
        all += text;
    return all;
}

/// What comes out of a file is a note: it survives being written and read, and being so again changes
/// nothing.
void ExpectNote(const RtfReading& reading, std::string_view file) {
    if (reading.outcome != RtfOutcome::Whole && reading.outcome != RtfOutcome::Cut) {
        EXPECT_TRUE(reading.note == Note());
        return;
    }
    const std::string written = WriteRtf(reading.note);
    const RtfReading again = ReadRtf(written);
    ASSERT_EQ(again.outcome, RtfOutcome::Whole);
    ASSERT_TRUE(again.note == reading.note) << file << "\n" << Dump(reading.note) << "\n" << Dump(again.note);
    ASSERT_EQ(WriteRtf(again.note), written);
}

TEST(RandomNotes, EveryNoteIsReadAsItWasWritten) {
    std::mt19937 random(1);  // NOLINT(bugprone-random-generator-seed): the same notes each time
    std::size_t pictures = 0;
    std::size_t bullets = 0;
    for (int i = 0; i < 600; ++i) {
        const Note note = MakeNote(RandomBytes(random, random() % 400));
        pictures += note.pictures.size();
        bullets += static_cast<std::size_t>(
            std::ranges::count(note.paragraphs, true, &notes::ParagraphFormat::bullet));
        const std::string written = WriteRtf(note);
        ASSERT_TRUE(ReadRtf(written).note == note) << written << "\n"
                                                   << Dump(note) << "\n"
                                                   << Dump(ReadRtf(written).note);
    }
    EXPECT_GT(pictures, 50U);
    EXPECT_GT(bullets, 50U);
}

TEST(RandomNotes, DamagedFilesGiveNotesOrNothing) {
    std::mt19937 random(2);  // NOLINT(bugprone-random-generator-seed): the same damage each time
    constexpr std::string_view Bytes("{}\\ \0a1-'*\xE3;", 12);
    int read = 0;
    for (const NoteSample& sample : AllSamples()) {
        for (int i = 0; i < 20; ++i) {
            std::string damaged(sample.file);
            for (auto changes = 1 + random() % 4; changes > 0; --changes)
                damaged[random() % damaged.size()] = Bytes[random() % Bytes.size()];
            const RtfReading reading = ReadRtf(damaged);
            read += reading.outcome == RtfOutcome::Whole || reading.outcome == RtfOutcome::Cut ? 1 : 0;
            ExpectNote(reading, damaged);
        }
    }
    EXPECT_GT(read, 1000);
}

TEST(RandomNotes, ArbitraryBytesBehindAStartGiveNotesOrNothing) {
    std::mt19937 random(3);  // NOLINT(bugprone-random-generator-seed): the same bytes each time
    for (int i = 0; i < 500; ++i) {
        const std::string file = "{\\rtf1 " + RandomBytes(random, random() % 200);
        ExpectNote(ReadRtf(file), file);
    }
    for (const char* file :
         {"", "{", "text", "{\\rt", "{\\RTF1}", "{\\pdf}", "MZ\x90", "<html>", "\\rtf1", "}{\\rtf1}"}) {
        EXPECT_EQ(ReadRtf(file).outcome, RtfOutcome::NoNote) << file;
    }
}

TEST(RtfPropertiesTest, AFileThatLostItsEndIsReadAsFarAsItGoes) {
    const RtfReading cut = ReadRtf(R"({\rtf1{\fonttbl{\f0 Arial;}}\b unu\par doi)");
    EXPECT_EQ(cut.outcome, RtfOutcome::Cut);
    EXPECT_EQ(Dump(cut.note), "{b|unu}\n{b|doi}");
    for (const char* file : {"{\\rtf1 a\\'", "{\\rtf1 a\\'e", "{\\rtf1 a\\"})
        EXPECT_EQ(Dump(ReadRtf(file).note), "a") << file;
    EXPECT_EQ(Dump(ReadRtf("{\\rtf1 a\\'}").note), "a");
    EXPECT_EQ(ReadRtf("{\\rtf1 a\\'}").outcome, RtfOutcome::Whole);
    for (const char* file :
         {"{\\rtf1", R"({\rtf1{\fonttbl{\f0 Ar)", R"({\rtf1{\info{\title Titlu)", R"({\rtf1{\*\x\bin99 a)"})
        EXPECT_EQ(ReadRtf(file).outcome, RtfOutcome::NothingLeft) << file;
}

TEST(RtfPropertiesTest, PicturesThatANoteDoesNotTakeAreTold) {
    for (const char* picture :
         {R"({\pict\wmetafile8 0100})", R"({\pict\emfblip 01})", R"({\pict\dibitmap0 28})", R"({\pict 00})",
          R"({\pict\pngblip 00})", R"({\pict\jpegblip ffd8ff})",
          // 65,535 by 65,535
          R"({\pict\jpegblip ffd8ffc0000b08ffffffff010101ffd9})",
          R"({\object{\result{\pict\wmetafile8 01}}})"}) {
        const RtfReading reading = ReadRtf("{\\rtf1 a" + std::string(picture) + "b}");
        EXPECT_TRUE(reading.picturesLeftOut) << picture;
        EXPECT_EQ(Dump(reading.note), "ab") << picture;
    }
    EXPECT_FALSE(ReadRtf(R"({\rtf1 a{\pict\wmetafile8}{\v{\pict\wmetafile8 01}}b})").picturesLeftOut);
}

/// The lengths of the paragraphs of a note whose characters are ASCII.
std::vector<std::size_t> Lengths(const Note& note) {
    std::vector<std::size_t> lengths;
    for (std::size_t begin = 0, end = 0; (end = note.text.find('\n', begin)) != std::string::npos;
         begin = end + 1)
        lengths.push_back(end - begin);
    return lengths;
}

TEST(RtfPropertiesTest, ALongParagraphGoesOnInAnother) {
    const std::string words = Repeated("cuvant, ", 4000);
    const RtfReading reading = ReadRtf(R"({\rtf1\pard\qc\li500\fi-200\sb100\sa100 )" + words + "\\par}");
    EXPECT_TRUE(reading.paragraphsDivided);
    EXPECT_EQ(Lengths(reading.note), (std::vector<std::size_t>{11'000, 11'000, 10'000}));
    std::string text = reading.note.text;
    std::erase(text, '\n');
    EXPECT_EQ(text, words);
    const std::string dump = Dump(reading.note);
    EXPECT_TRUE(dump.starts_with("<center left500 first-200 before100>cuvant"));
    EXPECT_NE(dump.find("\n<center left500>cuvant"), std::string::npos);
    EXPECT_NE(dump.find("\n<center left500 after100>cuvant"), std::string::npos);
    ExpectNote(reading, "words");
    EXPECT_FALSE(ReadRtf("{\\rtf1 " + Repeated("cuvant, ", 1375) + "}").paragraphsDivided);
    const RtfReading digits = ReadRtf("{\\rtf1 " + std::string(12'000, '1') + "}");
    EXPECT_EQ(Lengths(digits.note), (std::vector<std::size_t>{11'200, 800}));
    ExpectNote(digits, "digits");
}

TEST(RtfPropertiesTest, ALongStretchOfLettersAndBlanksGoesOnInAnother) {
    const RtfReading words = ReadRtf("{\\rtf1 1" + Repeated("cuvant ", 600) + "}");
    EXPECT_TRUE(words.paragraphsDivided);
    EXPECT_EQ(Lengths(words.note), (std::vector<std::size_t>{2003, 2002, 196}));
    ExpectNote(words, "words");
    const RtfReading letters = ReadRtf("{\\rtf1 " + std::string(6000, 'a') + "}");
    EXPECT_EQ(Lengths(letters.note), (std::vector<std::size_t>{2200, 2200, 1600}));
    ExpectNote(letters, "letters");
    // Formats and other letters do not end it; signs and digits do.
    EXPECT_TRUE(ReadRtf("{\\rtf1 " + Repeated("\\b ab\\b0 cd\\'e3 ", 400) + "}").paragraphsDivided);
    EXPECT_TRUE(ReadRtf("{\\rtf1 " + Repeated("unu doi trei patru \r\n", 400) + "}").paragraphsDivided);
    EXPECT_FALSE(ReadRtf("{\\rtf1 " + Repeated("unu doi trei patru,\r\n", 400) + "}").paragraphsDivided);
    for (const char* end : {".", "7", "\\tab ", "\\line "}) {
        const std::string file = "{\\rtf1 " + Repeated("cuvant ", 250) + end + Repeated("cuvant ", 250) + "}";
        EXPECT_FALSE(ReadRtf(file).paragraphsDivided) << end;
    }
}

TEST(RtfPropertiesTest, ALongParagraphGoesOnWhereALineEnds) {
    const RtfReading reading = ReadRtf("{\\rtf1 " + Repeated("Un rand al scrisorii\\line ", 2000) + "}");
    EXPECT_TRUE(reading.paragraphsDivided);
    EXPECT_EQ(reading.note.paragraphs.size(), 5U);
    std::string text = reading.note.text;
    std::ranges::replace(text, '\v', '\n');
    EXPECT_TRUE(text == Repeated("Un rand al scrisorii\n", 2000) + "\n");
    ExpectNote(reading, "lines");
    EXPECT_FALSE(ReadRtf("{\\rtf1 " + Repeated("Un rand\\line ", 1000) + "}").paragraphsDivided);
}

TEST(RtfPropertiesTest, AParagraphMayBeKeptAsLongAsItIs) {
    for (const std::string& piece :
         {std::string("cuvant "), std::string("litere"), std::string("rand\\line ")}) {
        const std::string file = "{\\rtf1 " + Repeated(piece, 5000) + "}";
        const RtfReading reading = ReadRtf(file, notes::RtfIndents::Standard, notes::LongParagraphs::Kept);
        EXPECT_FALSE(reading.paragraphsDivided);
        EXPECT_EQ(reading.note.paragraphs.size(), 1U) << piece;
    }
}

TEST(RtfPropertiesTest, WhatIsNotToBeSeenIsNotAtAnyDepth) {
    for (const std::size_t depth : std::initializer_list<std::size_t>{1, 3'990, 4'090, 20'000}) {
        const std::string hidden =
            R"({\*\x unu{doi}trei}{\fonttbl{\f9 patru;}}{\pict 00}{\field{\*\fldinst cinci}{\fldrslt b}})";
        const RtfReading reading =
            ReadRtf("{\\rtf1 a" + std::string(depth, '{') + hidden + std::string(depth, '}') + "c}");
        EXPECT_EQ(reading.note.text, "abc\n") << depth;
    }
}

TEST(RtfThorough, WhatIsMoreThanANoteMayHaveIsTold) {
    const auto outcome = [](std::string_view text, std::size_t times) {
        return ReadRtf("{\\rtf1 " + Repeated(text, times) + "}").outcome;
    };
    EXPECT_EQ(outcome("0123456789abcde ", notes::MaximumCharacters / 17), RtfOutcome::Whole);
    EXPECT_EQ(outcome("0123456789abcde ", notes::MaximumCharacters / 16), RtfOutcome::TooLarge);
    EXPECT_EQ(outcome("\\par", notes::MaximumParagraphs + 1), RtfOutcome::TooLarge);
    EXPECT_EQ(outcome("\\b a\\b0 a", notes::MaximumRuns / 2 + 2), RtfOutcome::TooLarge);
}

/// A fraction of a second with sanitizers: what grows with the square takes minutes.
TEST(RtfThorough, TimeGrowsWithTheFileAlone) {
    constexpr std::size_t Size = 60'000;
    for (const char* piece : {"{",
                              "}{",
                              "{{}",
                              "\\",
                              "\\par\\pard",
                              "\\cell",
                              "\\'",
                              "\\u-10179?",
                              "{\\*\\x",
                              "{\\fonttbl{\\f0;",
                              R"(\f1{\fonttbl\f1 a;})",
                              "\\colortbl;",
                              ";",
                              R"(\tx1\tx2\tx3)",
                              "{\\pict\\jpegblip 00}",
                              "{\\pntext a}",
                              "\\bin1",
                              "\\cell a",
                              "\\fi1\\li2",
                              "\xE3",
                              "\\uc9999\\u1",
                              "{\\footnote a}",
                              R"({\field{\*\fldinst SYMBOL 183 \\f a}})",
                              R"({\field{\*\fldinst FORMCHECKBOX}{\fldrslt}})",
                              R"({\nonshppict{\pict\jpegblip 00}})",
                              "\\caps\\'e3",
                              "\\cf1\\cf2",
                              R"(\fonttbl\f0;\f1;)"}) {
        const auto start = std::chrono::steady_clock::now();
        const std::string file = "{\\rtf1{" + Repeated(piece, Size / std::string_view(piece).size());
        const RtfReading reading = ReadRtf(file);
        WriteRtf(reading.note);
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10)) << piece;
    }
    std::string fonts = "{\\rtf1{\\fonttbl";
    for (int i = 20'000; i > 0; --i)
        fonts += "\\f" + std::to_string(i) + " a" + std::to_string(i) + ";";
    fonts += "}";
    for (int i = 0; i < 20'000; ++i)
        fonts += "\\f" + std::to_string(i) + " a";
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(ReadRtf(fonts + "}").outcome, RtfOutcome::Whole);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

TEST(RtfThorough, GroupsMayBeNestedToAnyDepth) {
    constexpr std::size_t Depth = 100'000;
    const RtfReading reading =
        ReadRtf("{\\rtf1 a" + Repeated("{\\b b", Depth) + std::string(Depth, '}') + "c}");
    EXPECT_EQ(reading.outcome, RtfOutcome::Whole);
    EXPECT_TRUE(Dump(reading.note).starts_with("a{b|bbbb"));
    EXPECT_TRUE(reading.note.text.ends_with("bc\n"));
}

/// Not among the samples, as an editor may take the letter for the symbol's own number.
TEST(RtfPropertiesTest, SymbolsAreNoLettersAndHaveNoCapitals) {
    const RtfReading reading =
        ReadRtf(R"({\rtf1{\fonttbl{\f0 Arial;}{\f1\fcharset2 Symbol;}}\f0\caps a\f1 b\f0 c})");
    EXPECT_EQ(Dump(reading.note), "A{Symbol symbols|b}C");
}

TEST(RtfPropertiesTest, IndentsAreReadAsTheEditorMeansThem) {
    const auto dump = [](notes::RtfIndents indents) {
        return Dump(
            ReadRtf(R"({\rtf1\pard\li360\fi360 a\par\pard\fi720 b\par\pard\li-360\fi360 c\par})", indents)
                .note);
    };
    EXPECT_EQ(dump(notes::RtfIndents::Exchanged), "<left720 first-360>a\n<left720>b\n<first360>c");
    EXPECT_EQ(dump(notes::RtfIndents::Standard), "<left360 first360>a\n<first720>b\n<first360>c");
}

}  // namespace
}  // namespace tavrin::tests
