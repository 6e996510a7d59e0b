#pragma once

#include <string_view>

#include "host/embedded/dialect/syntax.h"

namespace tavrin::host::dialect {

/// Reads one statement.
/// \throws data::Error as the server for a malformed statement, or NotUnderstood for what this dialect lacks.
Statement Parse(std::string_view statement);

}  // namespace tavrin::host::dialect
