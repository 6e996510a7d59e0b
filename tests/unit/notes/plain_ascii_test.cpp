#include "notes/plain_ascii.h"

#include <gtest/gtest.h>

#include <string>

namespace tavrin::tests {
namespace {

TEST(PlainAsciiTest, EndsAtTheFirstByteThatIsNotPlainWhereverItStands) {
    for (int byte = 0; byte < 256; ++byte) {
        const auto each = static_cast<char>(byte);
        const bool plain = byte >= 0x20 && byte < 0x7F && each != '{' && each != '}' && each != '\\';
        for (std::size_t place = 0; place < 20; ++place) {
            std::string text(20, place % 2 == 0 ? ' ' : 'z');
            text[place] = each;
            EXPECT_EQ(notes::LengthOfPlain(text), plain ? text.size() : place) << byte;
        }
    }
}

TEST(PlainAsciiTest, GoesNoFurtherThanTheText) {
    const std::string text(40, 'a');
    for (std::size_t length = 0; length <= text.size(); ++length)
        EXPECT_EQ(notes::LengthOfPlain(std::string_view(text).substr(0, length)), length);
}

}  // namespace
}  // namespace tavrin::tests
