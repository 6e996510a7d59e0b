// Reads random bytes as a note, writes it, and reads that: the second note must be the first, and a second
// file the same as the first one.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>

#include "notes/rtf_reader.h"
#include "notes/rtf_writer.h"

namespace {

using namespace tavrin::notes;

[[noreturn]] void Fail(const char* what, const std::string& file) {
    std::cerr << what << ": " << file << '\n';
    std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const RtfReading first = ReadRtf("{\\rtf1" + std::string(reinterpret_cast<const char*>(data), size));
    if (first.outcome != RtfOutcome::Whole && first.outcome != RtfOutcome::Cut) return 0;
    const std::string file = WriteRtf(first.note);
    const RtfReading second = ReadRtf(file);
    if (second.outcome != RtfOutcome::Whole) Fail("not read", file);
    if (!(second.note == first.note)) Fail("read otherwise", file);
    if (WriteRtf(second.note) != file) Fail("written otherwise", file);
    return 0;
}
