#pragma once

#include <string>
#include <vector>

namespace tavrin::verify {

/// What verify.cmd was called with.
struct Options {
    bool help = false;
    std::string filter = "*";      ///< of GoogleTest
    bool tour = true;              ///< the stand-in host shows every window
    std::string connectionString;  ///< empty where no server is to be used
};

extern const char* const UsageText;

/// A selection that takes a minute: it shows that the kit works here.
extern const char* const QuickFilter;

/// \throws std::invalid_argument for what is no option; the message repeats no connection string
Options ParseOptions(const std::vector<std::string>& arguments);

}  // namespace tavrin::verify
