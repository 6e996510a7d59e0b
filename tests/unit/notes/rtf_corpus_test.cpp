#include <gtest/gtest.h>

#include <algorithm>

#include "notes/rtf_reader.h"
#include "notes/rtf_writer.h"
#include "support/note_dump.h"
#include "unit/notes/corpus.h"

namespace tavrin::tests {

void PrintTo(const NoteSample& sample, std::ostream* stream) {
    *stream << sample.habit;
}

namespace {

using notes::ReadRtf;
using notes::RtfOutcome;
using notes::RtfReading;
using notes::WriteRtf;

class NoteSampleTest : public testing::TestWithParam<NoteSample> {};

TEST_P(NoteSampleTest, ComesOutAsItIsSeen) {
    const RtfReading reading = ReadRtf(GetParam().file);
    EXPECT_EQ(reading.outcome, RtfOutcome::Whole);
    EXPECT_EQ(Dump(reading.note), GetParam().dump);
}

TEST_P(NoteSampleTest, IsTheSameNoteWhenWrittenAndRead) {
    const notes::Note note = ReadRtf(GetParam().file).note;
    const std::string written = WriteRtf(note);
    const RtfReading again = ReadRtf(written);
    EXPECT_EQ(again.outcome, RtfOutcome::Whole);
    EXPECT_FALSE(again.picturesLeftOut);
    EXPECT_TRUE(again.note == note) << written;
    EXPECT_EQ(WriteRtf(again.note), written);
    EXPECT_TRUE(std::ranges::all_of(
        written, [](char each) { return (each >= 0x20 && each < 0x7F) || each == '\r' || each == '\n'; }));
}

TEST_P(NoteSampleTest, OpensAsFarAsItGoesWhereverItIsCut) {
    const std::string_view file = GetParam().file;
    for (std::size_t length = 0; length < file.size(); ++length) {
        const RtfReading reading = ReadRtf(file.substr(0, length));
        const std::string written = WriteRtf(reading.note);
        if (reading.outcome != RtfOutcome::Whole && reading.outcome != RtfOutcome::Cut) continue;
        ASSERT_TRUE(ReadRtf(written).note == reading.note) << length << ": " << written;
    }
}

INSTANTIATE_TEST_SUITE_P(Texts, NoteSampleTest, testing::ValuesIn(TextSamples()));
INSTANTIATE_TEST_SUITE_P(Looks, NoteSampleTest, testing::ValuesIn(LookSamples()));
INSTANTIATE_TEST_SUITE_P(Structures, NoteSampleTest, testing::ValuesIn(StructureSamples()));
INSTANTIATE_TEST_SUITE_P(Rough, NoteSampleTest, testing::ValuesIn(RoughSamples()));

}  // namespace
}  // namespace tavrin::tests
