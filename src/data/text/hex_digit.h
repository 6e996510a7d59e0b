#pragma once

namespace tavrin::notes {

/// What a hexadecimal digit stands for, -1 for anything else.
constexpr int ValueOfHexDigit(char digit) {
    if (digit >= '0' && digit <= '9') return digit - '0';
    if (digit >= 'a' && digit <= 'f') return digit - 'a' + 10;
    if (digit >= 'A' && digit <= 'F') return digit - 'A' + 10;
    return -1;
}

}  // namespace tavrin::notes
