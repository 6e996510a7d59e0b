#pragma once

#include <string>
#include <string_view>

namespace tavrin::data {

/// A statement as it may be told to anybody: "..." stands for all between its first quote and its last one.
/// Where a literal ends inside cannot be known, since statements hold what was typed as it was typed and an
/// apostrophe may be pasted. Only one day, or a range of two, stays readable.
std::string StatementWithoutTexts(std::string_view statement);

}  // namespace tavrin::data
