#include "forms/grid_viewport.h"

#include <algorithm>
#include <cstdint>

namespace tavrin::forms {

namespace {
constexpr int ShortestThumb = 360;

int Scaled(std::int64_t value, std::int64_t numerator, std::int64_t denominator) {
    return denominator > 0 ? static_cast<int>(value * numerator / denominator) : 0;
}
}  // namespace

Rect ScrollBar::Thumb(bool vertical) const {
    const int length = vertical ? track.height : track.width;
    const int thumb = std::min(length, std::max(ShortestThumb, Scaled(length, shown, total)));
    const int start = Scaled(length - thumb, first, Last());
    return vertical ? Rect{track.left, track.top + start, track.width, thumb}
                    : Rect{track.left + start, track.top, thumb, track.height};
}

int ScrollBar::FirstAt(int place, bool vertical) const {
    const Rect thumb = Thumb(vertical);
    const int room = vertical ? track.height - thumb.height : track.width - thumb.width;
    const int offset = place - (vertical ? track.top : track.left);
    return std::clamp(Scaled(offset, Last(), room), 0, Last());
}

}  // namespace tavrin::forms
