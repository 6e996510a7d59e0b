#pragma once

#include "data/text/locale.h"

namespace tavrin::win32 {

/// The separators and the months' abbreviations that the user has set.
data::Locale ReadUserLocale();

}  // namespace tavrin::win32
