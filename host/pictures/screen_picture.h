#pragma once

#include <windows.h>

#include <cstdint>
#include <vector>

namespace tavrin::host {

/// What stood in a part of the screen: 0x00RRGGBB a pixel, rows from the top.
struct ScreenPicture {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;
    bool operator==(const ScreenPicture&) const = default;
};

/// \param place in pixels of the screen; an empty one gives an empty picture
ScreenPicture CaptureScreen(const RECT& place);

}  // namespace tavrin::host
