#pragma once

#include <functional>
#include <string>

#include "forms/drawing/geometry.h"

namespace tavrin::forms {

class Surface;

/// What Ctrl+C takes along, in the forms that other programs may want.
struct Copied {
    std::string text;                                     ///< rows end with CR LF, columns are parted by tabs
    Size pictureSize{};                                   ///< twips
    std::function<void(Surface& surface)> drawPicture{};  ///< empty where there is none
};

}  // namespace tavrin::forms
