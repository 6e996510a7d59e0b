#include "addressbook/text_rules.h"

#include <algorithm>

namespace tavrin::addressbook {

namespace {
constexpr std::u32string_view RefusedCharacters = U"';%,\"][`";
constexpr char UserWildcard = '/';
constexpr char ServerWildcard = '%';
}  // namespace

std::string_view Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

bool IsRefused(char32_t character) {
    return RefusedCharacters.find(character) != std::u32string_view::npos;
}

std::string SearchPattern(std::string_view boxText) {
    if (Trimmed(boxText).empty()) return std::string(1, ServerWildcard);
    std::string pattern(boxText);
    std::ranges::replace(pattern, UserWildcard, ServerWildcard);
    return pattern;
}

}  // namespace tavrin::addressbook
