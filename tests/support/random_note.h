#pragma once

#include <string_view>

#include "notes/note.h"

namespace tavrin::tests {

/// A note made of arbitrary bytes: the same one of the same bytes. Every format and character that a note may
/// hold occurs.
notes::Note MakeNote(std::string_view bytes);

}  // namespace tavrin::tests
