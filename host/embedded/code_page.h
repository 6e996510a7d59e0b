#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tavrin::host {

/// The code page of a database's collation. A text that a statement gives without N passes through it, even
/// on its way to an nvarchar column.
enum class CodePage : std::uint16_t {
    CentralEuropean = 1250,  ///< of Romanian_CI_AS and its like
    Western = 1252,          ///< of Latin1_General_CI_AS and SQL_Latin1_General_CP1_CI_AS
    Utf8 = 65001,            ///< of collations whose names end in _UTF8: everything is kept
};

/// What is left of a text on the other side. A Latin letter with a mark that the page lacks becomes the
/// letter without it where the system's best fit says so, everything else that it lacks a question mark. The
/// best fit of signs and of other scripts is not known here.
std::string ThroughCodePage(std::string_view text, CodePage page);

}  // namespace tavrin::host
