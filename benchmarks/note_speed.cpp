#include "note_speed.h"

#include <cstdio>
#include <vector>

#include "alternating.h"
#include "median.h"
#include "notes/rtf_reader.h"
#include "notes/rtf_writer.h"
#include "sample_note.h"

namespace tavrin::bench {

namespace {

constexpr std::size_t NoteSize = std::size_t{1} << 20;

void Print(const char* what, std::size_t bytes, const std::vector<double>& seconds) {
    std::printf("  %-10s %7.1f MB/s\n", what, static_cast<double>(bytes) / Median(seconds) / 1e6);
}

}  // namespace

void PrintNoteSpeed(int rounds) {
    const std::string file = SampleNote(NoteSize);
    std::vector<double> reading;
    std::vector<double> writing;
    std::string written;
    for (int i = 0; i < rounds; ++i) {
        notes::RtfReading result;
        reading.push_back(SecondsOf([&] { result = notes::ReadRtf(file); }));
        writing.push_back(SecondsOf([&] { written = notes::WriteRtf(result.note); }));
    }
    Print("read", file.size(), reading);
    Print("written", written.size(), writing);
}

}  // namespace tavrin::bench
