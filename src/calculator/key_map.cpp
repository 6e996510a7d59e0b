#include "calculator/key_map.h"

#include <algorithm>
#include <array>

namespace tavrin::calculator {

namespace {

struct CharacterCommand {
    char32_t character;
    Command command;
};
constexpr std::array<CharacterCommand, 10> Characters = {{
    {U'*', Command::Multiply},
    {U'+', Command::Add},
    {U'-', Command::Subtract},
    {U'/', Command::Divide},
    {U'\r', Command::Equals},
    {U'%', Command::Percent},
    {U'.', Command::DecimalPoint},
    {U'C', Command::ClearEntry},
    {U'c', Command::ClearEntry},
    {U'\b', Command::Backspace},
}};

}  // namespace

std::optional<Command> CommandOfCharacter(char32_t character) {
    if (character >= U'0' && character <= U'9') return DigitCommand(static_cast<int>(character - U'0'));
    const auto* const found = std::ranges::find(Characters, character, &CharacterCommand::character);
    return found != Characters.end() ? std::optional(found->command) : std::nullopt;
}

}  // namespace tavrin::calculator
