#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "notes/code_pages.h"

namespace tavrin::notes {

/// A font of a file: the number by which the file calls it, and what it is.
struct RtfFont {
    int number = 0;
    std::string name;
    bool symbols = false;
    std::optional<CodePage> page;               ///< none where it is the document's
    std::optional<std::uint16_t> numberInNote;  ///< once it has been used
};

/// Reads a file's table of fonts: entries that a number begins and a semicolon, or the end of their group,
/// ends. Anything between them is ignored.
class RtfFonts {
  public:
    void Begin(int number);
    void SetCharacterSet(int characterSet);
    void SetPage(int page);
    /// The page that the begun font's name is written in.
    std::optional<CodePage> Page() const { return begun_ ? font_.page : std::nullopt; }
    void Add(char32_t character);
    void End();

    /// A font that stands in no table.
    static RtfFont Named(std::string_view name);

    /// Null for one that is not in the table.
    RtfFont* Find(int number);
    RtfFont* First() { return fonts_.empty() ? nullptr : &fonts_[first_]; }

  private:
    void Keep();

    std::vector<RtfFont> fonts_;  ///< by their numbers
    std::size_t first_ = 0;       ///< the one that came first
    RtfFont font_;                ///< the one that has begun
    bool begun_ = false;
};

}  // namespace tavrin::notes
