#pragma once

#include <string_view>
#include <vector>

namespace tavrin::tests {

/// A file as some program writes it, and what must come out: see note_dump.h.
struct NoteSample {
    std::string_view habit;
    std::string_view file;
    std::string_view dump;
};

// Every one of them is read to its end.
std::vector<NoteSample> TextSamples();       ///< characters, code pages, fonts
std::vector<NoteSample> LookSamples();       ///< characters' and paragraphs' looks
std::vector<NoteSample> StructureSamples();  ///< fields, objects, tables, lists, and what is no text
std::vector<NoteSample> RoughSamples();      ///< what no writer should write, and some do

std::vector<NoteSample> AllSamples();

}  // namespace tavrin::tests
