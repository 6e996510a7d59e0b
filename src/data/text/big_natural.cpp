#include "data/text/big_natural.h"

#include <algorithm>

namespace tavrin::data {

namespace {

constexpr int WordBits = 32;
// As many digits at once as a word holds.
constexpr int DigitsAtOnce = 9;
constexpr std::uint32_t Billion = 1'000'000'000;

}  // namespace

BigNatural::BigNatural(std::uint64_t number) {
    Push(static_cast<std::uint32_t>(number));
    Push(static_cast<std::uint32_t>(number >> WordBits));
    DropLeadingZeros();
}

BigNatural::BigNatural(std::string_view digits) {
    while (!digits.empty()) {
        const std::string_view part = digits.substr(0, DigitsAtOnce);
        std::uint32_t factor = 1;
        std::uint32_t number = 0;
        for (const char digit : part) {
            factor *= 10;
            number = number * 10 + static_cast<std::uint32_t>(digit - '0');
        }
        MultiplyAdd(factor, number);
        digits.remove_prefix(part.size());
    }
}

void BigNatural::DropLeadingZeros() {
    while (size_ > 0 && words_[size_ - 1] == 0)
        --size_;
}

void BigNatural::MultiplyAdd(std::uint32_t factor, std::uint32_t addend) {
    std::uint64_t carry = addend;
    for (std::uint32_t& word : Words()) {
        carry += std::uint64_t{word} * factor;
        word = static_cast<std::uint32_t>(carry);
        carry >>= WordBits;
    }
    if (carry != 0) Push(static_cast<std::uint32_t>(carry));
}

void BigNatural::MultiplyByPower(std::uint32_t base, int exponent) {
    for (; exponent >= DigitsAtOnce; exponent -= DigitsAtOnce) {
        std::uint32_t power = 1;
        for (int i = 0; i < DigitsAtOnce; ++i)
            power *= base;
        MultiplyAdd(power, 0);
    }
    for (; exponent > 0; --exponent)
        MultiplyAdd(base, 0);
}

void BigNatural::ShiftLeft(int bits) {
    const auto words = static_cast<std::size_t>(bits / WordBits);
    if (size_ > 0 && words > 0) {
        std::copy_backward(words_.begin(), words_.begin() + size_, words_.begin() + size_ + words);
        std::fill_n(words_.begin(), words, 0);
        size_ += words;
    }
    MultiplyAdd(std::uint32_t{1} << bits % WordBits, 0);
}

std::uint32_t BigNatural::DivideBy(std::uint32_t divisor) {
    std::uint64_t rest = 0;
    for (std::size_t i = size_; i-- > 0;) {
        rest = rest << WordBits | words_[i];
        words_[i] = static_cast<std::uint32_t>(rest / divisor);
        rest %= divisor;
    }
    DropLeadingZeros();
    return static_cast<std::uint32_t>(rest);
}

DigitText BigNatural::Digits() const {
    std::array<char, DigitText::Capacity + DigitsAtOnce> buffer;
    char* first = buffer.data() + buffer.size();
    for (BigNatural left = *this; left.size_ > 0;) {
        std::uint32_t part = left.DivideBy(Billion);
        for (int i = 0; i < DigitsAtOnce; ++i) {
            *--first = static_cast<char>('0' + part % 10);
            part /= 10;
        }
    }
    std::string_view digits(first, static_cast<std::size_t>(buffer.data() + buffer.size() - first));
    digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
    return digits;
}

std::strong_ordering BigNatural::operator<=>(const BigNatural& other) const {
    if (size_ != other.size_) return size_ <=> other.size_;
    const auto ours = Words();
    const auto theirs = other.Words();
    return std::lexicographical_compare_three_way(ours.rbegin(), ours.rend(), theirs.rbegin(), theirs.rend());
}

}  // namespace tavrin::data
