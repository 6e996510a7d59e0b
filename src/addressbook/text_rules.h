#pragma once

#include <string>
#include <string_view>

namespace tavrin::addressbook {

// What may stand in a box of the address book and how it is read.

/// The characters that no box takes from the keyboard. They are all that keeps quotes and wildcards out of
/// the statements: pasted text is not looked at.
bool IsRefused(char32_t character);

/// What a search box asks for: every name when it is blank, else its text as it stands, with the user's
/// wildcard "/" turned into the server's.
std::string SearchPattern(std::string_view boxText);

}  // namespace tavrin::addressbook
