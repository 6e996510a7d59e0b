// What the calculator's characters and operator keys ask for, and that nothing else asks for anything.

#include "calculator/key_map.h"

#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tavrin::tests {
namespace {

using calculator::Command;
using calculator::CommandOfCharacter;
using calculator::OperatorKeys;

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

TEST(KeyMapTest, EveryOperatorHasItsPlaceAndItsCaption) {
    const std::vector<std::pair<std::string, Command>> expected = {
        {"/", Command::Divide},      {"+", Command::Add},    {"X", Command::Multiply},
        {"-", Command::Subtract},    {"=", Command::Equals}, {"%", Command::Percent},
        {"+/-", Command::ChangeSign}};
    ASSERT_EQ(OperatorKeys.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(OperatorKeys[i].caption, expected[i].first);
        EXPECT_EQ(OperatorKeys[i].command, expected[i].second) << expected[i].first;
    }
}

}  // namespace
}  // namespace tavrin::tests
