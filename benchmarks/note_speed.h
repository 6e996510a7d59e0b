#pragma once

namespace tavrin::bench {

/// Prints how many megabytes of a note file are read and written in a second.
void PrintNoteSpeed(int rounds);

}  // namespace tavrin::bench
