#pragma once

#include <string>

namespace tavrin::e2e {

struct ScriptResult {
    unsigned long exitCode = 0;
    std::string output;  ///< lines end with \n
};

/// Runs VBScript text through the system's script host and waits for its end, half a minute at most.
/// \throws DriverError when it cannot be run or does not end.
ScriptResult RunScript(const std::string& text);

}  // namespace tavrin::e2e
