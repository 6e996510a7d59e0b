#pragma once

#include <bit>
#include <cstdint>

namespace tavrin::data {

/// A finite double from 0 on, as significand * 2^exponent.
struct BinaryParts {
    std::uint64_t significand;
    int exponent;
};

constexpr BinaryParts Split(double magnitude) {
    constexpr int FractionBits = 52;
    constexpr int Bias = 1075;
    constexpr std::uint64_t HiddenBit = std::uint64_t{1} << FractionBits;
    const auto bits = std::bit_cast<std::uint64_t>(magnitude);
    const auto exponent = static_cast<int>(bits >> FractionBits);
    const std::uint64_t fraction = bits & (HiddenBit - 1);
    if (exponent == 0) return {fraction, 1 - Bias};
    return {fraction | HiddenBit, exponent - Bias};
}

}  // namespace tavrin::data
