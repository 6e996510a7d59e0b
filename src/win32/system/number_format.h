#pragma once

#include <string>
#include <string_view>

#include "data/text/number_format.h"

namespace tavrin::win32 {

/// The platform's number formatting with everything said that its locale would say otherwise. Text that is no
/// number gives an empty text; so does, on some systems, a zero without a leading zero.
std::string FormatPlatformNumber(std::string_view number, const data::NumberFormat& format);

}  // namespace tavrin::win32
