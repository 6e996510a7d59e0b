// note_exchange write FOLDER: twenty notes as the note pad saves them.
// note_exchange compare FOLDER: whether the files of those names there, which another program has written
// from them, are still the same notes: text, characters' and paragraphs' looks. Names what differs, and ends
// with 1 then.

#include <algorithm>
#include <array>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>
#include <string>

#include "notes/rtf_reader.h"
#include "notes/rtf_writer.h"
#include "support/note_dump.h"
#include "unit/notes/corpus.h"

namespace {

using namespace tavrin;
using tests::NoteSample;

/// Programs have ways of their own with fonts of symbols, with scripts that are written from right to left,
/// and with the looks of what is empty; what is here has none of that.
constexpr auto Chosen = std::to_array<std::string_view>({
    "paragraphs",
    "escaped signs",
    "tab and line",
    "blanks that do not break",
    "quotes and dashes by name",
    "numbers with a look-alike",
    "both halves",
    "Cyrillic",
    "the default font",
    "switched on and off",
    "every way to underline",
    "high and low",
    "sizes",
    "colours",
    "marked text",
    "alignments",
    "indents",
    "tab stops",
    "bullets of a text program",
    "a table",
});
static_assert(Chosen.size() == 20);

const NoteSample& SampleOf(std::string_view habit) {
    static const std::vector<NoteSample> samples = tests::AllSamples();
    const auto found = std::ranges::find(samples, habit, &NoteSample::habit);
    if (found == samples.end()) throw std::runtime_error("no sample: " + std::string(habit));
    return *found;
}

std::string NameOf(const std::string& folder, std::size_t number) {
    return folder + "/note-" + std::to_string(number) + ".rtf";
}

void Write(const std::string& folder) {
    for (std::size_t i = 0; i < Chosen.size(); ++i) {
        std::ofstream(NameOf(folder, i), std::ios::binary)
            << notes::WriteRtf(notes::ReadRtf(SampleOf(Chosen[i]).file).note);
    }
}

bool IsSame(const std::string& name, const NoteSample& sample) {
    std::ifstream stream(name, std::ios::binary);
    const std::string file{std::istreambuf_iterator<char>(stream), {}};
    const std::string found = tests::Dump(notes::ReadRtf(file).note);
    if (found == sample.dump) return true;
    std::cout << name << " (" << sample.habit << "):\n" << found << "\ninstead of\n" << sample.dump << '\n';
    return false;
}

int Compare(const std::string& folder) {
    std::size_t same = 0;
    for (std::size_t i = 0; i < Chosen.size(); ++i)
        same += IsSame(NameOf(folder, i), SampleOf(Chosen[i])) ? 1 : 0;
    std::cout << same << " of " << Chosen.size() << " notes are the same\n";
    return same == Chosen.size() ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    const std::string mode = argc == 3 ? argv[1] : "";
    if (mode == "compare") return Compare(argv[2]);
    if (mode != "write") return 2;
    Write(argv[2]);
    return 0;
}
