#pragma once

#include "data/error.h"
#include "doctor/core/finding.h"

namespace tavrin::doctor {

/// What an error says, in the report's language. The words of providers and of the system stay as they are.
Text WordsOf(const data::Error& error);

}  // namespace tavrin::doctor
