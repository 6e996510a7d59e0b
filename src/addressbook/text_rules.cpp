#include "addressbook/text_rules.h"

#include <algorithm>

#include "data/text/trim.h"

namespace tavrin::addressbook {

namespace {
constexpr std::u32string_view RefusedCharacters = U"';%,\"][`";
constexpr char UserWildcard = '/';
constexpr char ServerWildcard = '%';
}  // namespace

bool IsRefused(char32_t character) {
    return RefusedCharacters.find(character) != std::u32string_view::npos;
}

std::string SearchPattern(std::string_view boxText) {
    if (data::IsBlank(boxText)) return std::string(1, ServerWildcard);
    std::string pattern(boxText);
    std::ranges::replace(pattern, UserWildcard, ServerWildcard);
    return pattern;
}

}  // namespace tavrin::addressbook
