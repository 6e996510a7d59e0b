#pragma once

#include <string>

#include "notes/note.h"

namespace tavrin::tests {

/// A note as a text that tests compare: a line for each paragraph, `<...>` before it where it is not plain,
/// and
/// `{look|text}` around characters that are not Arial of 12 points in the standard colour.
std::string Dump(const notes::Note& note);

}  // namespace tavrin::tests
