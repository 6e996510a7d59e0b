#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "doctor/core/finding.h"

namespace tavrin::doctor {

/// How the program was called. Texts are UTF-8.
struct Options {
    std::string source;  ///< of the database: a connection string, or a file; empty: none is looked at
    std::optional<std::int32_t> company;
    std::optional<Language> language;  ///< none: the system's
    std::string reportFile;            ///< empty: none
    bool help = false;
    bool version = false;
};

/// How this program calls the option for its database, and what the help says of it.
struct SourceOption {
    const char* name;
    const char* help;
    /// Whether a database is looked at where none is named.
    bool hasDefault = false;
};

/// \throws std::invalid_argument with one line. It names options alone, never what was given with them.
Options ParseOptions(const std::vector<std::string>& arguments, const SourceOption& source);

std::string UsageText(const SourceOption& source);

namespace exit_code {
inline constexpr int AllWell = 0;
inline constexpr int Errors = 1;  ///< at least one finding is an error
inline constexpr int WrongUse = 2;
inline constexpr int NoReport = 3;  ///< the report could not be written
}  // namespace exit_code

}  // namespace tavrin::doctor
