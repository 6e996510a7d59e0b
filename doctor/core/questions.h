#pragma once

#include <string>
#include <string_view>

#include "data/connection.h"
#include "data/error.h"
#include "doctor/core/finding.h"

namespace tavrin::doctor {

/// All rows of a query, read as the windows read theirs. \throws data::Error
data::TablePtr Ask(data::Connection& connection, std::string_view question);

/// Runs a statement as a window does: what gives rows is read, everything else only executed.
/// \throws data::Error
void Run(data::Connection& connection, const std::string& statement);

/// What failed, with the provider's number and words.
Text Refused(const Text& what, const data::Error& error);

/// What to do about a statement that was refused.
Text AdviceOn(const data::Error& error);

}  // namespace tavrin::doctor
