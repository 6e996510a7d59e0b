#pragma once

#include <string>

#include "notes/note.h"

namespace tavrin::notes {

/// The note as an RTF file in plain ASCII, in the words that every reader knows: what ReadRtf makes of it is
/// the same note again.
std::string WriteRtf(const Note& note);

}  // namespace tavrin::notes
