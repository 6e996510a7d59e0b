#pragma once

#include <optional>
#include <string_view>

#include "calculator/command.h"

namespace tavrin::calculator {

/// What a typed character asks for; nothing for characters that the calculator does not know. The point is
/// the decimal key in every locale, the comma is none.
std::optional<Command> CommandOfCharacter(char32_t character);

/// What an operator button asks for. Its caption says so, not its place.
std::optional<Command> CommandOfOperator(std::string_view caption);

}  // namespace tavrin::calculator
