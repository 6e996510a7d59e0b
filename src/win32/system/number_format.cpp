#include "win32/system/number_format.h"

#include <windows.h>

#include <array>

namespace tavrin::win32 {

namespace {
constexpr UINT NegativeSignInFront = 1;
constexpr std::size_t LongestText = 200;
}  // namespace

std::string FormatPlatformNumber(std::string_view number, const data::NumberFormat& format) {
    std::string text(number);
    std::string decimalSeparator = format.decimalSeparator;
    std::string thousandsSeparator = format.thousandsSeparator;
    const NUMBERFMTA spelled{static_cast<UINT>(format.decimals), format.leadingZero ? 1U : 0U,
                             static_cast<UINT>(format.grouping), decimalSeparator.data(),
                             thousandsSeparator.data(),          NegativeSignInFront};
    std::array<char, LongestText> buffer{};
    const int written = GetNumberFormatA(LOCALE_USER_DEFAULT, 0, text.c_str(), &spelled, buffer.data(),
                                         static_cast<int>(buffer.size()));
    // The count includes the terminating zero.
    return written > 0 ? std::string(buffer.data(), static_cast<std::size_t>(written) - 1) : std::string();
}

}  // namespace tavrin::win32
