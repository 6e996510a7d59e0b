// Makes notes of random bytes and writes them: each file must be plain ASCII, and the note that is read from
// it the same.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>

#include "notes/rtf_reader.h"
#include "notes/rtf_writer.h"
#include "support/random_note.h"

namespace {

using namespace tavrin::notes;

[[noreturn]] void Fail(const char* what, const std::string& file) {
    std::cerr << what << ": " << file << '\n';
    std::abort();
}

bool IsPlain(char byte) {
    return (byte >= 0x20 && byte < 0x7F) || byte == '\r' || byte == '\n';
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Note note = tavrin::tests::MakeNote({reinterpret_cast<const char*>(data), size});
    const std::string file = WriteRtf(note);
    if (!std::ranges::all_of(file, IsPlain)) Fail("not plain", file);
    const RtfReading reading = ReadRtf(file);
    if (reading.outcome != RtfOutcome::Whole || reading.picturesLeftOut) Fail("not read", file);
    if (!(reading.note == note)) Fail("read otherwise", file);
    return 0;
}
