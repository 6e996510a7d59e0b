#pragma once

#include <cstdint>
#include <random>

namespace tavrin::e2e {

/// The same numbers for the same seed, everywhere.
class Random {
  public:
    explicit Random(unsigned seed) : generator_(seed) {}

    unsigned Below(unsigned limit) { return static_cast<unsigned>(generator_() % limit); }
    bool OnceIn(unsigned times) { return Below(times) == 0; }
    /// Of any size up to 64 bits.
    std::uint64_t Bits() { return generator_() >> Below(64); }
    template <class Array>
    auto Pick(const Array& from) {
        return from[Below(static_cast<unsigned>(from.size()))];
    }

  private:
    std::mt19937_64 generator_;
};

}  // namespace tavrin::e2e
