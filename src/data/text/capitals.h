#pragma once

namespace tavrin::data {

/// A letter as a capital, for text that is shown so: Latin, Greek and Cyrillic letters that have one of their
/// own. Everything else as it is.
constexpr char32_t ToCapital(char32_t letter) {
    if (letter < 0x80) return letter >= 'a' && letter <= 'z' ? letter - 0x20 : letter;
    const auto within = [letter](char32_t first, char32_t last) { return letter >= first && letter <= last; };
    if (within(0xE0, 0xFE)) return letter != 0xF7 ? letter - 0x20 : letter;
    if (letter == 0xFF) return 0x178;
    if (letter == 0x131) return 'I';
    // Capitals and small letters alternate: even and odd, or odd and even.
    if (within(0x100, 0x137) || within(0x14A, 0x177) || within(0x200, 0x21F) || within(0x222, 0x233) ||
        within(0x460, 0x481) || within(0x48A, 0x4BF) || within(0x4D0, 0x52F) || within(0x1E00, 0x1E95) ||
        within(0x1EA0, 0x1EFF))
        return letter & ~char32_t{1};
    if (within(0x139, 0x148) || within(0x179, 0x17E)) return letter % 2 == 0 ? letter - 1 : letter;
    if (letter == 0x3AC) return 0x386;
    if (within(0x3AD, 0x3AF)) return letter - 37;
    if (letter == 0x3C2) return 0x3A3;
    if (within(0x3B1, 0x3CB)) return letter - 0x20;
    if (letter == 0x3CC) return 0x38C;
    if (within(0x3CD, 0x3CE)) return letter - 63;
    if (within(0x430, 0x44F)) return letter - 0x20;
    if (within(0x450, 0x45F)) return letter - 0x50;
    return letter;
}

}  // namespace tavrin::data
