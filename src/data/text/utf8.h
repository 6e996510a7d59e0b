#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tavrin::data {

// Positions in edit fields count characters (code points); texts are UTF-8. A byte that cannot begin or
// continue a character counts as part of the one before it.

int CountCharacters(std::string_view text);

/// Where the character of that number begins; the text's end where there are not so many.
std::size_t OffsetOfCharacter(std::string_view text, int character);

/// The small letter of a capital one between A and Z, anything else as it is.
constexpr char32_t LowerCase(char32_t letter) {
    return letter >= U'A' && letter <= U'Z' ? letter + (U'a' - U'A') : letter;
}

}  // namespace tavrin::data
