#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tavrin::host {

// Text as the server's default collation sees it: without regard to case, with regard to accents, trailing
// blanks ignored in comparisons. Case is folded for ASCII and for the Romanian letters (both the comma and
// the cedilla forms); other scripts compare by code point. A Romanian accent decides the order only between
// texts that are alike without it.

/// Takes one character off the front. A byte that begins no valid sequence counts as a character by itself.
/// \pre !text.empty()
char32_t TakeCharacter(std::string_view& text);

/// The lower-case form; invalid UTF-8 passes through byte by byte.
std::string FoldCase(std::string_view text);

/// Equality of table and column names: case and trailing blanks do not count.
bool SameName(std::string_view left, std::string_view right);

/// Negative, zero or positive, as memcmp.
int CompareText(std::string_view left, std::string_view right);

/// LIKE: % any run, _ any one character, [abc], [a-f] and [^abc] one character of (or not of) a set.
bool LikeMatches(std::string_view text, std::string_view pattern);

/// The length in UTF-16 units, in which declared lengths count.
std::size_t Utf16Length(std::string_view text);

/// The first units of the text; a character that would be cut in two is left out.
std::string Utf16Prefix(std::string_view text, std::size_t units);

}  // namespace tavrin::host
