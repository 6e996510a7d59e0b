#pragma once

#include <string>
#include <string_view>

#include "addressbook/person.h"

namespace tavrin::addressbook {

// The statements on the address book's table, in one place. The host's database sees them exactly as they are
// built here, runs of blanks included. Values are trimmed, and nothing is escaped: an apostrophe that was
// pasted into a box makes a statement that the server refuses.

/// Everybody whose names match, ordered by name. The patterns are LIKE patterns of the server
/// (SearchPattern).
std::string ListStatement(std::string_view numePattern, std::string_view prenumePattern);

std::string InsertStatement(const Person& person);
/// Changes the details of the person of that name; a name never changes.
std::string UpdateStatement(const Person& person);
std::string DeleteStatement(std::string_view nume, std::string_view prenume);

}  // namespace tavrin::addressbook
