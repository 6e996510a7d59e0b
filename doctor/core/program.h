#pragma once

#include <functional>
#include <string>
#include <vector>

#include "doctor/core/finding.h"
#include "doctor/core/options.h"
#include "doctor/core/report.h"

namespace tavrin::doctor {

/// What the program needs of the system that it runs on.
struct Surroundings {
    SourceOption source;
    Language language = Language::English;  ///< the system's
    Origin origin;
    std::function<Report(const Options& options)> examine;
    std::function<void(const std::string& text)> print;     ///< UTF-8, on the console
    std::function<void(const std::string& text)> complain;  ///< the same, where errors go
    /// False where the file cannot be written. The name is UTF-8.
    std::function<bool(const std::string& file, const std::string& content)> write;
};

/// The whole program, from its arguments to its exit code.
int RunProgram(const std::vector<std::string>& arguments, const Surroundings& surroundings);

}  // namespace tavrin::doctor
