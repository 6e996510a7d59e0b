#pragma once

#include <array>
#include <optional>

#include "calculator/command.h"

namespace tavrin::calculator {

/// What a typed character asks for; nothing for characters that the calculator does not know. The point is
/// the decimal key in every locale, the comma is none.
std::optional<Command> CommandOfCharacter(char32_t character);

/// The keys of the array Operator: element 0 divides, and so on.
struct OperatorKey {
    const char* caption;
    const char* spoken;  ///< the name for assistive tools
    Command command;
};
inline constexpr std::array<OperatorKey, 7> OperatorKeys = {{
    {"/", "împărțit", Command::Divide},
    {"+", "plus", Command::Add},
    {"X", "înmulțit", Command::Multiply},
    {"-", "minus", Command::Subtract},
    {"=", "egal", Command::Equals},
    {"%", "procent", Command::Percent},
    {"+/-", "schimbă semnul", Command::ChangeSign},
}};

}  // namespace tavrin::calculator
