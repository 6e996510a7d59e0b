// What the calculator's characters and captions ask for, and that nothing else asks for anything.

#include "calculator/key_map.h"

#include <gtest/gtest.h>

#include <map>
#include <optional>

namespace tavrin::tests {
namespace {

using calculator::Command;
using calculator::CommandOfCharacter;
using calculator::CommandOfOperator;

TEST(KeyMapTest, KnownCharactersAndNoOthers) {
    const std::map<char32_t, Command> expected = {{U'*', Command::Multiply},     {U'+', Command::Add},
                                                  {U'-', Command::Subtract},     {U'/', Command::Divide},
                                                  {U'\r', Command::Equals},      {U'%', Command::Percent},
                                                  {U'C', Command::ClearEntry},   {U'c', Command::ClearEntry},
                                                  {U'.', Command::DecimalPoint}, {U'\b', Command::Backspace}};
    for (char32_t character = 0; character < 0x300; ++character) {
        const auto known = expected.find(character);
        std::optional<Command> command;
        if (known != expected.end()) command = known->second;
        if (character >= U'0' && character <= U'9')
            command = calculator::DigitCommand(static_cast<int>(character - U'0'));
        EXPECT_EQ(CommandOfCharacter(character), command) << static_cast<unsigned>(character);
    }
}

TEST(KeyMapTest, KnownCaptionsAndNoOthers) {
    EXPECT_EQ(CommandOfOperator("/"), Command::Divide);
    EXPECT_EQ(CommandOfOperator("+"), Command::Add);
    EXPECT_EQ(CommandOfOperator("X"), Command::Multiply);
    EXPECT_EQ(CommandOfOperator("-"), Command::Subtract);
    EXPECT_EQ(CommandOfOperator("="), Command::Equals);
    EXPECT_EQ(CommandOfOperator("%"), Command::Percent);
    EXPECT_EQ(CommandOfOperator("+/-"), Command::ChangeSign);
    for (const char* caption : {"", "x", "*", "+/", "C", "M+", " ", "= "})
        EXPECT_EQ(CommandOfOperator(caption), std::nullopt) << "'" << caption << "'";
}

}  // namespace
}  // namespace tavrin::tests
