#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>
#include <vector>

#include "notes/note.h"

namespace tavrin::notes {

/// The start of a list's paragraph: a bullet, or a number that is kept as text.
class RtfListText {
  public:
    void Begin() { length_ = 0; }
    void Add(char32_t character) {
        if (length_ < characters_.size()) characters_[length_++] = character;
    }
    const char32_t* begin() const { return characters_.data(); }
    const char32_t* end() const { return characters_.data() + length_; }

    /// Whether nothing is to be seen of it, as at a level of a list that has no numbers.
    bool IsBlank() const { return std::none_of(begin(), end(), IsSign); }

    bool IsBullet() const {
        if (std::count_if(begin(), end(), IsSign) != 1) return false;
        const char32_t sign = *std::find_if(begin(), end(), IsSign);
        const bool letter = (sign >= 'a' && sign <= 'z') || (sign >= 'A' && sign <= 'Z');
        return sign == 'o' || !(letter || (sign >= '0' && sign <= '9'));
    }

  private:
    static bool IsSign(char32_t character) { return character != '\t' && character != ' '; }

    std::array<char32_t, 64> characters_{};
    std::size_t length_ = 0;
};

/// The colours of a file: a semicolon ends each, and one that says nothing is the reader's own.
class RtfColors {
  public:
    void SetPart(int shift, int value) {
        if (color_ == AutomaticColor) color_ = 0;
        const auto part = static_cast<NoteColor>(std::clamp(value, 0, 255));
        color_ = (color_ & ~(NoteColor{0xFF} << shift)) | part << shift;
    }
    void Add(char32_t character) {
        if (character != ';' || colors_.size() == MostColors) return;
        colors_.push_back(std::exchange(color_, AutomaticColor));
    }
    NoteColor operator[](int number) const {
        const bool known = number >= 0 && static_cast<std::size_t>(number) < colors_.size();
        return known ? colors_[static_cast<std::size_t>(number)] : AutomaticColor;
    }

  private:
    static constexpr std::size_t MostColors = 0x10000;

    std::vector<NoteColor> colors_;
    NoteColor color_ = AutomaticColor;
};

}  // namespace tavrin::notes
