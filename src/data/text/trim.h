#pragma once

#include <string_view>

namespace tavrin::data {

/// Without the blanks around it; tabs and other white space count as text.
constexpr std::string_view Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

/// Empty, or nothing but blanks.
constexpr bool IsBlank(std::string_view text) {
    return text.find_first_not_of(' ') == std::string_view::npos;
}

}  // namespace tavrin::data
