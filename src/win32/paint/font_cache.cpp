#include "win32/paint/font_cache.h"

#include <cmath>

#include "win32/base/text.h"
#include "win32/system/dpi.h"

namespace tavrin::win32 {

namespace {

OwnedFont Create(const forms::Font& font, int height) {
    LOGFONTW description{};
    description.lfHeight = -height;
    description.lfWeight = font.bold ? FW_BOLD : FW_NORMAL;
    description.lfItalic = font.italic;
    description.lfUnderline = font.underline;
    description.lfCharSet = DEFAULT_CHARSET;
    description.lfQuality = CLEARTYPE_QUALITY;
    ToWide(font.face).copy(description.lfFaceName, LF_FACESIZE - 1);
    return OwnedFont(CreateFontIndirectW(&description));
}

}  // namespace

HFONT FontCache::Find(const forms::Font& font, int dpi) {
    const int height = static_cast<int>(std::lround(font.points * dpi / PointsPerInch));
    const auto [entry, isNew] =
        fonts_.try_emplace(Key{font.face, height, font.bold, font.italic, font.underline});
    if (isNew) entry->second = Create(font, height);
    return entry->second.get();
}

}  // namespace tavrin::win32
