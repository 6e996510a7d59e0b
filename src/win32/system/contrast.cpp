#include "win32/system/contrast.h"

#include <windows.h>

namespace tavrin::win32 {

std::optional<forms::ContrastColors> HighContrast() {
    HIGHCONTRASTW setting{};
    setting.cbSize = sizeof setting;
    SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof setting, &setting, 0);
    if ((setting.dwFlags & HCF_HIGHCONTRASTON) == 0) return std::nullopt;
    return forms::ContrastColors{.window = GetSysColor(COLOR_WINDOW),
                                 .text = GetSysColor(COLOR_WINDOWTEXT),
                                 .disabled = GetSysColor(COLOR_GRAYTEXT),
                                 .highlight = GetSysColor(COLOR_HIGHLIGHT),
                                 .highlightText = GetSysColor(COLOR_HIGHLIGHTTEXT)};
}

forms::Color OnScreen(forms::ColorUse use, forms::Color color) {
    const auto colors = HighContrast();
    return colors ? forms::InContrast(*colors, use, color) : color;
}

}  // namespace tavrin::win32
