#pragma once

#include <string_view>
#include <vector>

namespace tavrin::doctor {

/// What stands behind a keyword of a connection string. What is not known to be harmless is not shown.
enum class ValueKind {
    Setting,     ///< harmless
    Server,      ///< where it is: may be shown to its owner
    User,        ///< the same of a name
    Connection,  ///< a connection string in its turn
    Unknown,     ///< nobody knows what it says
    Secret,      ///< a password or the like, or what belongs to no keyword
};

/// What stands between two semicolons. All is a part of the text that was read.
struct Piece {
    std::string_view text;     ///< without blanks around
    std::string_view keyword;  ///< the same
    std::string_view value;    ///< the same, with its quotes or braces; all of the text where no "=" stands
    ValueKind kind = ValueKind::Secret;
    bool isQuoted = false;  ///< the value stands in quotes or braces, all of it
    /// All of it may be the rest of the piece before: a secret without quotes, but with a semicolon in it.
    bool isRemainder = false;
};

/// The pieces that are not empty, read as providers read them: in quotes and braces a semicolon stands for
/// itself, and so does a doubled closing one. A quote that is not closed takes everything behind it.
std::vector<Piece> ReadConnectionString(std::string_view text);

}  // namespace tavrin::doctor
