#include "data/statement_without_texts.h"

#include <algorithm>

namespace tavrin::data {
namespace {

/// Four digits and two times two, in the order of a filter or of a write.
bool IsDay(std::string_view text) {
    std::string shape(text);
    std::ranges::replace_if(
        shape, [](char c) { return c >= '0' && c <= '9'; }, '9');
    return shape == "9999-99-99" || shape == "99-99-9999";
}

bool IsDayOrRange(std::string_view quoted) {
    constexpr std::string_view between = "' and '";
    const std::size_t middle = quoted.find(between);
    if (middle == std::string_view::npos) return IsDay(quoted);
    return IsDay(quoted.substr(0, middle)) && IsDay(quoted.substr(middle + between.size()));
}

}  // namespace

std::string StatementWithoutTexts(std::string_view statement) {
    const std::size_t first = statement.find('\'');
    if (first == std::string_view::npos) return std::string(statement);
    const std::string_view before = statement.substr(0, first + 1);
    const std::string_view rest = statement.substr(first + 1);
    const std::size_t last = rest.rfind('\'');
    if (last == std::string_view::npos) return std::string(before).append("...");
    if (IsDayOrRange(rest.substr(0, last))) return std::string(statement);
    return std::string(before).append("...").append(rest.substr(last));
}

}  // namespace tavrin::data
