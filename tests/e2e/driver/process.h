#pragma once

#include <string>

namespace tavrin::e2e {

struct ProcessResult {
    unsigned long exitCode = 0;
    std::string output;  ///< lines end with \n
};

/// Runs a command line and waits for its end, half a minute at most. \throws DriverError when it cannot be
/// run or does not end.
ProcessResult RunProcess(const std::wstring& command);

/// A file of that name in the folder for temporary files.
std::wstring TemporaryPath(const wchar_t* name);

}  // namespace tavrin::e2e
