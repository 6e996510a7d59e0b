#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "data/value.h"
#include "host/embedded/code_page.h"
#include "host/embedded/line.h"

namespace tavrin::host {

/// What the program was started with. Texts are UTF-8.
struct Options {
    std::string database = "tavrin.db";
    CodePage codePage = CodePage::CentralEuropean;
    std::optional<LineSpeed> line;  ///< to the embedded database
    std::string adoConnection;      ///< empty: the embedded database
    std::int32_t company = 1;
    data::OleDate date;
    std::int16_t year = 0;
    std::string dll;         ///< empty: the one beside the program, by registration
    std::string tourFolder;  ///< empty: no tour
    bool followsResolution = false;
    bool help = false;
};

extern const char* const UsageText;

/// \throws std::invalid_argument with a text that says which option is wrong
Options ParseOptions(const std::vector<std::string>& arguments);

}  // namespace tavrin::host
