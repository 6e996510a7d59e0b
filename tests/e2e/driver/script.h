#pragma once

#include <string>

#include "e2e/driver/process.h"

namespace tavrin::e2e {

/// Runs VBScript text through the system's script host and waits for its end, half a minute at most.
/// \throws DriverError when it cannot be run or does not end.
ProcessResult RunScript(const std::string& text);

}  // namespace tavrin::e2e
