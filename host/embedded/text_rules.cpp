#include "host/embedded/text_rules.h"

#include <array>

namespace tavrin::host {
namespace {

struct Accent {
    char32_t upper;
    char32_t lower;
    char32_t plain;
};

constexpr std::array<Accent, 7> RomanianLetters{{{0x102, 0x103, 'a'},
                                                 {0xC2, 0xE2, 'a'},
                                                 {0xCE, 0xEE, 'i'},
                                                 {0x15E, 0x15F, 's'},
                                                 {0x218, 0x219, 's'},
                                                 {0x162, 0x163, 't'},
                                                 {0x21A, 0x21B, 't'}}};

std::size_t SequenceLength(unsigned char lead) {
    if (lead >= 0xF0) return 4;
    if (lead >= 0xE0) return 3;
    return lead >= 0xC2 ? 2 : 1;
}

}  // namespace

char32_t TakeCharacter(std::string_view& text) {
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t length = SequenceLength(lead);
    if (length == 1 || length > text.size()) {
        text.remove_prefix(1);
        return lead;
    }
    char32_t character = lead & (0xFFU >> (length + 1));
    for (std::size_t index = 1; index < length; ++index) {
        const auto byte = static_cast<unsigned char>(text[index]);
        if ((byte & 0xC0U) != 0x80U) {
            text.remove_prefix(1);
            return lead;
        }
        character = (character << 6U) | (byte & 0x3FU);
    }
    text.remove_prefix(length);
    return character;
}

namespace {

char32_t Folded(char32_t character) {
    if (character >= 'A' && character <= 'Z') return character + ('a' - 'A');
    if (character < 0x80) return character;
    for (const Accent& accent : RomanianLetters) {
        if (character == accent.upper) return accent.lower;
    }
    return character;
}

char32_t WithoutAccent(char32_t folded) {
    if (folded < 0x80) return folded;
    for (const Accent& accent : RomanianLetters) {
        if (folded == accent.lower) return accent.plain;
    }
    return folded;
}

char32_t TakeFolded(std::string_view& text) {
    return Folded(TakeCharacter(text));
}

std::string_view WithoutTrailingBlanks(std::string_view text) {
    const std::size_t last = text.find_last_not_of(' ');
    return last == std::string_view::npos ? std::string_view{} : text.substr(0, last + 1);
}

// Consumes the set after its opening bracket; a set that is never closed matches nothing.
bool SetMatches(std::string_view& pattern, char32_t character) {
    const bool negated = !pattern.empty() && pattern.front() == '^';
    if (negated) pattern.remove_prefix(1);
    bool found = false;
    while (!pattern.empty() && pattern.front() != ']') {
        const char32_t first = TakeFolded(pattern);
        char32_t last = first;
        if (pattern.size() > 1 && pattern[0] == '-' && pattern[1] != ']') {
            pattern.remove_prefix(1);
            last = TakeFolded(pattern);
        }
        found = found || (character >= first && character <= last);
    }
    if (pattern.empty()) return false;
    pattern.remove_prefix(1);
    return found != negated;
}

// Consumes one pattern element that stands for exactly one character.
bool ElementMatches(std::string_view& pattern, char32_t character) {
    const char32_t element = TakeFolded(pattern);
    if (element == '_') return true;
    if (element == '[') return SetMatches(pattern, character);
    return element == character;
}

void AppendUtf8(std::string& text, char32_t character) {
    const auto byte = [&](char32_t bits) { text.push_back(static_cast<char>(bits)); };
    if (character < 0x800) {
        byte(0xC0U | (character >> 6U));
    } else {
        byte(0xE0U | (character >> 12U));
        byte(0x80U | ((character >> 6U) & 0x3FU));
    }
    byte(0x80U | (character & 0x3FU));
}

}  // namespace

std::string FoldCase(std::string_view text) {
    std::string folded;
    folded.reserve(text.size());
    while (!text.empty()) {
        const std::string_view before = text;
        const char32_t character = TakeCharacter(text);
        const char32_t lower = Folded(character);
        if (lower < 0x80) {
            folded.push_back(static_cast<char>(lower));
        } else if (lower != character) {
            AppendUtf8(folded, lower);
        } else {
            folded.append(before.substr(0, before.size() - text.size()));
        }
    }
    return folded;
}

bool SameName(std::string_view left, std::string_view right) {
    return CompareText(left, right) == 0;
}

int CompareText(std::string_view left, std::string_view right) {
    left = WithoutTrailingBlanks(left);
    right = WithoutTrailingBlanks(right);
    int accents = 0;
    while (!left.empty() && !right.empty()) {
        const char32_t a = TakeFolded(left);
        const char32_t b = TakeFolded(right);
        if (a == b) continue;
        const char32_t plainA = WithoutAccent(a);
        const char32_t plainB = WithoutAccent(b);
        if (plainA != plainB) return plainA < plainB ? -1 : 1;
        if (accents == 0) accents = a < b ? -1 : 1;
    }
    if (left.empty() != right.empty()) return left.empty() ? -1 : 1;
    return accents;
}

bool LikeMatches(std::string_view text, std::string_view pattern) {
    std::string_view textAfterRun;  // where the last % could take one character more
    std::string_view patternAfterRun;
    bool inRun = false;
    while (!text.empty() || !pattern.empty()) {
        if (!pattern.empty() && pattern.front() == '%') {
            pattern.remove_prefix(1);
            textAfterRun = text;
            patternAfterRun = pattern;
            inRun = true;
            continue;
        }
        if (!text.empty() && !pattern.empty() && ElementMatches(pattern, TakeFolded(text))) continue;
        if (!inRun || textAfterRun.empty()) return false;
        TakeCharacter(textAfterRun);
        text = textAfterRun;
        pattern = patternAfterRun;
    }
    return true;
}

std::size_t Utf16Length(std::string_view text) {
    std::size_t units = 0;
    while (!text.empty())
        units += TakeCharacter(text) >= 0x10000 ? 2 : 1;
    return units;
}

std::string Utf16Prefix(std::string_view text, std::size_t units) {
    std::string_view rest = text;
    std::size_t taken = 0;
    while (!rest.empty()) {
        std::string_view next = rest;
        taken += TakeCharacter(next) >= 0x10000 ? 2 : 1;
        if (taken > units) break;
        rest = next;
    }
    return std::string(text.substr(0, text.size() - rest.size()));
}

}  // namespace tavrin::host
