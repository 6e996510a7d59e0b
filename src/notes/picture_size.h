#pragma once

#include <optional>
#include <string_view>

#include "notes/note.h"

namespace tavrin::notes {

struct PixelSize {
    std::size_t width = 0;
    std::size_t height = 0;
};

/// The size of a picture in pixels, as its own header says. None if it is not of that kind, is truncated, or
/// has more pixels than a note's picture may.
std::optional<PixelSize> SizeOfPicture(PictureKind kind, std::string_view bytes);

}  // namespace tavrin::notes
