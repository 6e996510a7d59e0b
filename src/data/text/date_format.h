#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "data/text/date.h"
#include "data/text/locale.h"

namespace tavrin::data {

/// The parts of a day that a user changes one at a time.
enum class DatePart { None, Day, Month, Year };

/// A run of a date's text that shows one part, or a fixed text between the parts.
struct DatePiece {
    DatePart part = DatePart::None;
    int digits = 0;  ///< as many are typed, and shown unless the month's name is
    bool showsName = false;
    std::string fixedText;

    std::string Text(const CalendarDay& day, const Locale& locale) const;
};

/// Splits a custom format into its pieces: dd, MM, MMM, yy and yyyy are parts, everything else is fixed text.
std::vector<DatePiece> ParseDateFormat(std::string_view format);

/// Years of two digits: 0 to 29 are of this century, 30 to 99 of the last one; others stand as they are.
int FullYear(int year);

}  // namespace tavrin::data
