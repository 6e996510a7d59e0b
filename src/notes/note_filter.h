#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tavrin::notes {

/// The longest note file, in bytes. Ten times as much as anybody types; editors take a hundred times the
/// file's size in memory.
inline constexpr std::size_t MaximumNoteSize = std::size_t{8} * 1024 * 1024;

/// How deep groups may be nested, the outermost one included. Some editors fail beyond 32.
inline constexpr int MaximumNesting = 30;

/// What of a note file an editor may see. A file comes from outside and editors trust it, so it is walked
/// through once before: it must begin as RTF, end its groups, and stay within the bounds above. Embedded
/// objects are left out, tables become text with tabs, binary data is written out in digits, and nothing
/// follows the outermost group.
/// \throws data::Error for a file that is no note
std::string FilterNote(std::string_view file);

}  // namespace tavrin::notes
