#pragma once

#include <string>
#include <string_view>

namespace tavrin::doctor {

/// A connection string as it may be shown: the values of all keywords that name a password are three stars.
/// Reads quotes and braces as providers do; where a quote is not closed, everything behind it is left out.
std::string WithoutPasswords(std::string_view connection);

/// A text in which somebody may have repeated the connection string's passwords, without them.
std::string WithoutPasswordsOf(std::string_view connection, std::string text);

}  // namespace tavrin::doctor
