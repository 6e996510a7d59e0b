#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tavrin::notes {

/// A character that a field shows by itself, with the looks that it names.
struct RtfFieldSign {
    char32_t character = 0;  ///< in a font of symbols the place in it where it is below 256
    std::string font = {};   ///< empty for that of the text around
    int points = 0;          ///< 0 for the size of the text around
    bool unicode = false;    ///< not a place in a code page or a font
};

/// The instruction of a field. Two kinds show something that their result does not say: a symbol, and a
/// form's box to be ticked.
class RtfField {
  public:
    void Begin() { *this = {}; }
    void Add(char32_t character);
    /// A form's box as it was left, and what it is where nobody touched it.
    void SetResult(int number) { result_ = number; }
    void SetDefault(int number) { default_ = number; }

    std::optional<RtfFieldSign> Sign() const;

  private:
    std::optional<RtfFieldSign> Symbol(std::string_view instruction) const;
    bool IsTicked() const;

    static constexpr int Untouched = 25;

    std::string instruction_;
    int result_ = Untouched;
    int default_ = 0;
};

}  // namespace tavrin::notes
