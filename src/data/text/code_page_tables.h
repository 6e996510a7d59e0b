#pragma once

#include <cstddef>
#include <cstdint>

namespace tavrin::data {

/// The upper half of a code page with one byte for a character.
struct CodePageTable {
    std::uint16_t number;
    char16_t upperHalf[128];
};

inline constexpr std::size_t CodePageCount = 18;
extern const CodePageTable CodePageTables[CodePageCount];

}  // namespace tavrin::data
