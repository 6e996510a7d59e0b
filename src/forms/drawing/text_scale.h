#pragma once

#include <algorithm>

#include "forms/drawing/geometry.h"

namespace tavrin::forms {

/// Room for any one of the windows as it is at its smallest, its frame included.
inline constexpr Size LargestWindow{12600, 7800};

/// In percent: how much larger than they are drawn up windows are shown where the user wants texts that much
/// larger. Nothing of a window is out of reach, so it is no more than the screen has room for.
constexpr int UsableTextScale(int wanted, Size workArea) {
    constexpr int Standard = 100;
    constexpr int Largest = 225;  // that the system offers
    const int fitting = std::min(Standard * workArea.width / LargestWindow.width,
                                 Standard * workArea.height / LargestWindow.height);
    return std::clamp(wanted, Standard, std::clamp(fitting, Standard, Largest));
}

}  // namespace tavrin::forms
