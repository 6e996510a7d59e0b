#include "win32/system/user_locale.h"

#include <windows.h>

#include <array>

#include "win32/base/text.h"

namespace tavrin::win32 {

namespace {

/// The setting's text; `fallback` where the system has none.
std::string Read(LCTYPE setting, const std::string& fallback) {
    std::array<wchar_t, 80> text{};
    const int length =
        GetLocaleInfoW(LOCALE_USER_DEFAULT, setting, text.data(), static_cast<int>(text.size()));
    return length > 0 ? ToUtf8(text.data()) : fallback;
}

}  // namespace

data::Locale ReadUserLocale() {
    data::Locale locale;
    locale.decimalSeparator = Read(LOCALE_SDECIMAL, locale.decimalSeparator);
    locale.thousandsSeparator = Read(LOCALE_STHOUSAND, locale.thousandsSeparator);
    LCTYPE month = LOCALE_SABBREVMONTHNAME1;
    for (std::string& name : locale.monthAbbreviations)
        name = Read(month++, name);
    return locale;
}

}  // namespace tavrin::win32
