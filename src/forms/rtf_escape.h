#pragma once

#include <string>
#include <string_view>

namespace tavrin::forms {

/// Turns RTF whose text is UTF-8, as editors write it on request (`{\urtf`), into RTF in plain ASCII that
/// every reader understands: each character beyond ASCII becomes its number, with a question mark for readers
/// that know no numbers. Bytes that are no UTF-8 become the replacement character.
std::string EscapeRtf(std::string_view utf8Rtf);

}  // namespace tavrin::forms
