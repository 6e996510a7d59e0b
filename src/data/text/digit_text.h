#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace tavrin::data {

/// Decimal digits in a fixed buffer: numbers become text at every key, which must not cost an allocation.
/// Digits beyond the capacity are dropped.
class DigitText {
  public:
    /// More digits than any double has, and than decide which double is the nearest.
    static constexpr std::size_t Capacity = 804;

    DigitText() = default;
    DigitText(std::string_view digits) { Append(digits); }  // NOLINT(google-explicit-constructor)
    DigitText(const char* digits)
        : DigitText(std::string_view(digits)) {}  // NOLINT(google-explicit-constructor)
    DigitText(const DigitText& other) : DigitText(other.View()) {}
    DigitText& operator=(const DigitText& other) {
        size_ = other.size_;
        std::copy_n(other.digits_.begin(), size_, digits_.begin());
        return *this;
    }
    ~DigitText() = default;

    std::string_view View() const { return {digits_.data(), size_}; }
    std::size_t Size() const { return size_; }
    bool IsEmpty() const { return size_ == 0; }
    char operator[](std::size_t index) const { return digits_[index]; }
    char& Last() { return digits_[size_ - 1]; }

    void Append(std::string_view digits) {
        const std::size_t count = std::min(digits.size(), Capacity - size_);
        std::copy_n(digits.begin(), count, digits_.data() + size_);
        size_ += count;
    }
    void Resize(std::size_t size) {
        size = std::min(size, Capacity);
        while (size_ < size)
            digits_[size_++] = '0';
        size_ = size;
    }
    /// Removes every trailing occurrence of that digit.
    void DropLast(char digit) { size_ = View().find_last_not_of(digit) + 1; }

  private:
    std::array<char, Capacity> digits_;
    std::size_t size_ = 0;
};

}  // namespace tavrin::data
