#pragma once

#include <array>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "data/text/digit_text.h"

namespace tavrin::data {

/// A whole number, 0 or more, as large as it takes to turn doubles into decimal digits and back without an
/// error, and just enough arithmetic for that. It allocates nothing.
class BigNatural {
  public:
    explicit BigNatural(std::uint64_t number);
    /// \pre nothing but digits
    explicit BigNatural(std::string_view digits);

    void ShiftLeft(int bits);
    void MultiplyByPower(std::uint32_t base, int exponent);

    /// Digits without zeros at the front; none for zero. \pre they have room
    DigitText Digits() const;

    std::strong_ordering operator<=>(const BigNatural& other) const;

  private:
    void MultiplyAdd(std::uint32_t factor, std::uint32_t addend);
    /// What is left over.
    std::uint32_t DivideBy(std::uint32_t divisor);
    void DropLeadingZeros();

    void Push(std::uint32_t word) { words_[size_++] = word; }
    std::span<std::uint32_t> Words() { return std::span(words_).first(size_); }
    std::span<const std::uint32_t> Words() const { return std::span(words_).first(size_); }

    /// 800 digits times or against ten to the power of 1,200, and a double's own factor of two.
    static constexpr std::size_t MostWords = 192;
    std::array<std::uint32_t, MostWords> words_;  ///< the lowest first; the last of them is not 0
    std::size_t size_ = 0;
};

}  // namespace tavrin::data
