#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tavrin::calculator {

/// The number being typed, or the last result: a text in the user's locale, and what may be typed onto it.
/// Lengths count characters; the separator is one, however many bytes it takes.
class Entry {
  public:
    /// `separator` is the locale's decimal separator, as UTF-8.
    explicit Entry(std::string separator);

    /// Valid until the entry changes.
    std::string_view Text() const { return text_; }
    double Value() const;

    /// Whether the next digit begins a new number.
    bool StartsAnew() const { return startsAnew_; }
    void StartAnew() { startsAnew_ = true; }
    /// The same, and forgets a separator that was asked for.
    void Restart() {
        startsAnew_ = true;
        separatorPending_ = false;
    }

    /// False when the digit has no room: after fifteen characters, or after the last decimal. A separator
    /// that was asked for comes with its digit, so a full fourteen digits may become sixteen characters.
    bool TypeDigit(int digit, int decimals);
    /// The separator appears with the next digit. False if there is one already, or one was asked for.
    bool TypeSeparator();
    /// One way only: a negative number stays negative, and zero takes no sign. False if nothing changed.
    bool ChangeSign();
    /// Deletes the last character, and a separator that would then stand at the end.
    void DropLast();

    void SetNumber(double number);
    /// "0", onto which typing goes on.
    void SetZero() {
        text_ = "0";
        separatorAt_ = std::string::npos;
    }
    /// "0", and the next digit begins a new number.
    void Clear();

  private:
    bool HasSeparator() const { return separatorAt_ != std::string::npos; }
    int Length() const;
    bool FractionIsFull(int decimals) const;

    std::string separator_;
    std::string text_;
    std::size_t separatorAt_ = std::string::npos;  ///< where the first one stands in the text
    bool startsAnew_ = true;
    bool separatorPending_ = false;
};

}  // namespace tavrin::calculator
