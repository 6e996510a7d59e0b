// Feeds random bytes, alone and behind the start of a note, to the reader of notes. What comes out must keep
// to what a note may have, which is looked for here without the reader's help.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>

#include "notes/rtf_reader.h"

namespace {

using namespace tavrin::notes;

[[noreturn]] void Fail(const char* what, const std::string& file) {
    std::cerr << what << ": " << file << '\n';
    std::abort();
}

const char* ProblemOf(const Note& note) {
    if (!note.text.ends_with('\n')) return "a text without an end";
    const auto ends = static_cast<std::size_t>(std::ranges::count(note.text, '\n'));
    if (ends != note.paragraphs.size()) return "not as many paragraphs as ends";
    if (note.runs.empty() || note.runs.back().end != note.text.size()) return "a text without looks";
    for (std::size_t i = 1; i < note.runs.size(); ++i) {
        if (note.runs[i].end <= note.runs[i - 1].end) return "runs out of order";
        if (note.runs[i].format == note.runs[i - 1].format) return "runs that look alike";
    }
    for (const NoteRun& run : note.runs) {
        if (run.format.font >= note.fonts.size()) return "a font that is not there";
        if (run.format.halfPoints < 2 || run.format.halfPoints > 3276) return "a size beyond bounds";
    }
    for (const ParagraphFormat& format : note.paragraphs) {
        if (format.leftIndent < 0 || format.leftIndent + format.firstLineIndent < 0 || format.rightIndent < 0)
            return "an indent off the page";
        if (format.spaceBefore < 0 || format.spaceAfter < 0 || format.lineHeight < 0)
            return "a negative length";
        for (std::size_t i = 0; i < format.tabs.count; ++i) {
            const int before = i == 0 ? 0 : format.tabs.stops[i - 1].position;
            if (format.tabs.stops[i].position <= before) return "tab stops out of order";
        }
    }
    return nullptr;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    for (const char* start : {"", "{\\rtf1"}) {
        const std::string file = start + bytes;
        const RtfReading reading = ReadRtf(file);
        if (reading.outcome != RtfOutcome::Whole && reading.outcome != RtfOutcome::Cut) continue;
        if (const char* const problem = ProblemOf(reading.note)) Fail(problem, file);
    }
    return 0;
}
