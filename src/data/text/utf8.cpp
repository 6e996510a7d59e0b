#include "data/text/utf8.h"

#include <algorithm>

namespace tavrin::data {

namespace {

bool BeginsCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

}  // namespace

int CountCharacters(std::string_view text) {
    return static_cast<int>(std::ranges::count_if(text, BeginsCharacter));
}

std::size_t OffsetOfCharacter(std::string_view text, int character) {
    std::size_t offset = 0;
    for (; offset < text.size(); ++offset) {
        if (BeginsCharacter(text[offset]) && character-- <= 0) break;
    }
    return offset;
}

}  // namespace tavrin::data
