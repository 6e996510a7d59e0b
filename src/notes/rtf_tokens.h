#pragma once

#include <string_view>

namespace tavrin::notes {

struct RtfToken {
    enum class Kind {
        End,
        GroupStart,
        GroupEnd,
        Word,    ///< `text` is its name
        Symbol,  ///< a backslash and `text`, which is no letter
        Text,    ///< printable ASCII
        Byte,    ///< any other byte of text, also one that is written in digits
        Binary,  ///< `text` is what it holds
    };

    Kind kind = Kind::End;
    std::string_view text = {};
    int number = 0;  ///< of a word, as large as an int may be
    bool hasNumber = false;
    unsigned char byte = 0;
};

/// Takes a file apart, from front to back, into what RTF is made of. Every sequence of bytes is made of
/// something: ends of lines and NUL bytes stand for nothing, and what is no token is text.
class RtfTokens {
  public:
    explicit RtfTokens(std::string_view file) : rest_(file) {}

    RtfToken Next();

    /// Some editors write a negative number with two dashes. The one behind a word that had none, if it is
    /// written so.
    bool TakeNumberAfterDashes(int& number);

  private:
    RtfToken Take(RtfToken::Kind kind, std::size_t length);
    RtfToken Control();
    RtfToken Word();
    RtfToken HexByte();
    RtfToken Binary(int length);
    RtfToken OtherByte();

    std::string_view rest_;
};

}  // namespace tavrin::notes
