#include "host/embedded/code_page.h"

#include <algorithm>
#include <iterator>

#include "data/text/code_page_tables.h"
#include "host/embedded/text_rules.h"

namespace tavrin::host {
namespace {

constexpr char32_t FirstFitted = 0xC0;

// The best fit of U+00C0 to U+017F, the same for both pages wherever one lacks the letter, but for a capital
// D with stroke. The Romanian letters with a comma below came into Unicode later and have none.
constexpr std::string_view BestFits =
    "A??A?AA?E?E?I??I?NO??O??OU?U????a??a?aa?e?e?i??i?no??o??ou?u???y"
    "AaAaAaCcCcCcCcDd?dEeEeEeEeEeGgGgGgGgHhHhIiIiIiIiIi??JjKk?LlLlLl?"
    "?LlNnNnNn???OoOoOoOoRrRrRrSsSsSs??TtTtTtUuUuUuUuUuUuWwYyYZzZz???";
static_assert(FirstFitted + BestFits.size() == 0x180);

constexpr char Lost = '?';

char BestFit(char32_t character) {
    if (character < FirstFitted || character - FirstFitted >= BestFits.size()) return Lost;
    return BestFits[character - FirstFitted];
}

const data::CodePageTable& TableOf(CodePage page) {
    return *std::ranges::find(data::CodePageTables, static_cast<std::uint16_t>(page),
                              &data::CodePageTable::number);
}

bool Has(const data::CodePageTable& table, char32_t character) {
    constexpr char32_t Undefined = 0xFFFD;
    if (character < 0x80) return true;
    return character != Undefined &&
           std::ranges::find(table.upperHalf, character) != std::end(table.upperHalf);
}

}  // namespace

std::string ThroughCodePage(std::string_view text, CodePage page) {
    if (page == CodePage::Utf8) return std::string(text);
    const data::CodePageTable& table = TableOf(page);
    std::string kept;
    while (!text.empty()) {
        const std::string_view before = text;
        const char32_t character = TakeCharacter(text);
        if (Has(table, character)) {
            kept.append(before.substr(0, before.size() - text.size()));
        } else {
            kept.append(character < 0x10000 ? 1 : 2, BestFit(character));
        }
    }
    return kept;
}

}  // namespace tavrin::host
