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

    /// Until the entry changes.
    std::string_view Text() const { return text_; }
    double Value() const;

    /// Whether the next digit begins a new number.
    bool StartsAnew() const { return startsAnew_; }
    void StartAnew() { startsAnew_ = true; }
    /// The same, and no separator is waited for any more.
    void Restart() {
        startsAnew_ = true;
        separatorPending_ = false;
    }

    /// False when the digit has no room: after fifteen characters, or after the last decimal. A separator
    /// that was asked for comes with its digit, so a full fourteen digits may become sixteen characters.
    bool TypeDigit(int digit, int decimals);
    /// Nothing is seen of the separator before the next digit. False where there is one, or is waited for.
    bool TypeSeparator();
    /// One way only: a number that has its minus keeps it, and zero takes none. False when nothing changed.
    bool ChangeSign();
    /// Takes the last character back, and with it a separator that would be left at the end.
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
