#pragma once

#include <windows.h>

#include <map>
#include <string>
#include <tuple>

#include "forms/drawing/font.h"
#include "win32/base/handles.h"

namespace tavrin::win32 {

/// The platform's fonts, one per face, size and resolution in use. A font lives as long as the cache.
class FontCache {
  public:
    HFONT Find(const forms::Font& font, int dpi);

  private:
    using Key = std::tuple<std::string, int, bool, bool, bool>;
    std::map<Key, OwnedFont> fonts_;
};

}  // namespace tavrin::win32
