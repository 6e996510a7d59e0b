#pragma once

#include <string>
#include <string_view>

namespace tavrin::data {

/// A statement fit for a log: "..." replaces everything between its first quote and its last. Where a literal
/// ends in between cannot be known, as values are not escaped and an apostrophe may have been pasted. Only a
/// single day, or a range of two, stays readable.
std::string StatementWithoutTexts(std::string_view statement);

}  // namespace tavrin::data
