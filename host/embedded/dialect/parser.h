#pragma once

#include <string_view>

#include "host/embedded/code_page.h"
#include "host/embedded/dialect/syntax.h"

namespace tavrin::host::dialect {

/// Reads one statement, as a database with that code page does.
/// \throws data::Error as the server for a malformed statement, or NotUnderstood for what this dialect lacks.
Statement Parse(std::string_view statement, CodePage page);

}  // namespace tavrin::host::dialect
