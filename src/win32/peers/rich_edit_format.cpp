#include "win32/peers/rich_edit_format.h"

#include <cmath>

#include "win32/base/text.h"

namespace tavrin::win32 {

namespace {

constexpr int TwipsPerPoint = 20;

struct Effect {
    DWORD mask;
    DWORD effect;
    std::optional<bool> forms::CharacterFormat::*property;
};

constexpr Effect Effects[] = {
    {CFM_BOLD, CFE_BOLD, &forms::CharacterFormat::bold},
    {CFM_ITALIC, CFE_ITALIC, &forms::CharacterFormat::italic},
    {CFM_UNDERLINE, CFE_UNDERLINE, &forms::CharacterFormat::underline},
    {CFM_STRIKEOUT, CFE_STRIKEOUT, &forms::CharacterFormat::strikeThru},
};

}  // namespace

forms::CharacterFormat ToCharacterFormat(const CHARFORMAT2W& format) {
    forms::CharacterFormat result;
    if (format.dwMask & CFM_FACE) result.face = ToUtf8(format.szFaceName);
    if (format.dwMask & CFM_SIZE) result.points = static_cast<double>(format.yHeight) / TwipsPerPoint;
    for (const Effect& each : Effects) {
        if (format.dwMask & each.mask) result.*each.property = (format.dwEffects & each.effect) != 0;
    }
    if (format.dwMask & CFM_COLOR) {
        const bool automatic = (format.dwEffects & CFE_AUTOCOLOR) != 0;
        result.color = automatic ? GetSysColor(COLOR_WINDOWTEXT) : format.crTextColor;
    }
    return result;
}

CHARFORMAT2W ToPlatformFormat(const forms::CharacterFormat& format) {
    CHARFORMAT2W result{};
    result.cbSize = sizeof result;
    if (format.face) {
        // The character set goes along, else a face that has none of the old one is not shown.
        result.dwMask |= CFM_FACE | CFM_CHARSET;
        result.bCharSet = DEFAULT_CHARSET;
        ToWide(*format.face).copy(result.szFaceName, LF_FACESIZE - 1);
    }
    if (format.points) {
        result.dwMask |= CFM_SIZE;
        result.yHeight = static_cast<LONG>(std::lround(*format.points * TwipsPerPoint));
    }
    for (const Effect& each : Effects) {
        if (!(format.*each.property)) continue;
        result.dwMask |= each.mask;
        if (*(format.*each.property)) result.dwEffects |= each.effect;
    }
    if (format.color) {
        result.dwMask |= CFM_COLOR;
        result.crTextColor = *format.color;
    }
    return result;
}

}  // namespace tavrin::win32
