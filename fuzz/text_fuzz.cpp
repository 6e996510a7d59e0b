// Feeds random texts and numbers to everything that reads or writes dates and numbers, and stops where what
// was written does not read back, or where something but a runtime error comes out.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <string>
#include <string_view>

#include "data/error.h"
#include "data/text/date.h"
#include "data/text/date_format.h"
#include "data/text/grouped_number.h"
#include "data/text/number_format.h"
#include "data/text/number_text.h"
#include "data/text/rounding.h"
#include "data/text/utf8.h"
#include "data/value.h"
#include "host/embedded/dialect/date_literal.h"
#include "host/embedded/money_text.h"
#include "host/embedded/text_rules.h"
#include "rates/rate_text.h"

namespace {

using namespace tavrin;

void Demand(bool right, const char* what, std::string_view text) {
    if (right) return;
    std::cerr << what << ": \"" << text << "\"\n";
    std::abort();
}

template <class Call>
void MayRefuse(Call call) {
    try {
        call();
    } catch (const data::Error&) {
        // In a runtime's or provider's terms: that is right.
    }
}

void ReadDates(const std::string& text) {
    if (const auto day = data::ParseDayMonthYear(text))
        Demand(data::ParseDayMonthYear(data::FormatDayMonthYear(*day)) == day, "dd/mm/yyyy", text);
    if (const auto day = data::ParseYearMonthDay(text))
        Demand(data::ParseYearMonthDay(data::FormatYearMonthDay(*day)) == day, "yyyy-mm-dd", text);
    const data::Value value(text);
    MayRefuse([&] { static_cast<void>(value.ToDate()); });
    for (const auto type : {host::dialect::TypeKind::DateTime, host::dialect::TypeKind::SmallDateTime})
        MayRefuse([&] { static_cast<void>(host::dialect::ParseDateLiteral(text, type)); });
    for (const data::DatePiece& piece : data::ParseDateFormat(text))
        static_cast<void>(piece.Text({2003, 5, 20}, data::Locale()));
}

/// A text has at most 15 significant digits and stands for a number that has the same text.
void DemandSameText(double number) {
    const std::string text = data::NumberText(number);
    Demand(text.find_first_of("eE") == std::string::npos, "exponent", text);
    Demand(data::NumberText(data::Value(text).ToDouble()) == text, "read back", text);
    Demand(data::NumberText(data::RoundHalfEven(number, 6)).size() <= text.size(), "rounded", text);
}

void DemandRewritten(const std::string& text, double read) {
    std::string again;
    data::WriteNumber(again, read, ",");
    Demand(again == text, "written", text);
}

void ReadNumbers(const std::string& text) {
    const data::Value value(text);
    MayRefuse([&] {
        const double number = value.ToDouble();
        DemandSameText(number);
    });
    MayRefuse([&] { static_cast<void>(value.ToInteger()); });
    for (const char* separator : {",", "."}) {
        data::Locale locale;
        locale.decimalSeparator = separator;
        locale.thousandsSeparator = *separator == ',' ? "." : ",";
        MayRefuse([&] { static_cast<void>(rates::NumberOfRateText(text, locale)); });
        const double number = data::ReadNumber(text, separator);
        Demand(!std::isnan(number), "no number", text);
    }
    for (const int decimals : {0, 2, 6})
        static_cast<void>(data::FormatNumber(text, {.decimals = decimals, .leadingZero = true}));
}

void ReadTexts(const std::string& text) {
    const std::string folded = host::FoldCase(text);
    Demand(host::FoldCase(folded) == folded, "folded twice", text);
    Demand(host::CompareText(text, folded) == 0, "compared with its folded form", text);
    const std::size_t units = host::Utf16Length(text);
    Demand(host::Utf16Prefix(text, units) == text, "its own prefix", text);
    Demand(host::Utf16Length(host::Utf16Prefix(text, units / 2)) <= units / 2, "half", text);
    Demand(data::CountCharacters(text) >= 0, "characters", text);
    const std::size_t half = text.size() / 2;
    const std::string left = text.substr(0, half);
    const std::string right = text.substr(half);
    const auto sign = [](int number) { return number < 0 ? -1 : number > 0 ? 1 : 0; };
    Demand(sign(host::CompareText(left, right)) == -sign(host::CompareText(right, left)), "order", text);
    static_cast<void>(host::LikeMatches(left, right));
    Demand(host::LikeMatches(left, "%"), "any text", text);
}

void WriteNumbers(double number) {
    std::string text;
    if (std::isfinite(number)) {
        MayRefuse([&] { DemandSameText(number); });
        data::WriteNumber(text, number, ",");
        const double read = data::ReadNumber(text, ",");
        if (std::isfinite(read)) DemandRewritten(text, read);
    }
    for (int decimals = 0; decimals <= 6; ++decimals)
        data::WriteGroupedNumber(text, number, decimals, data::Locale());
    const data::OleDate date{number};
    MayRefuse([&] { static_cast<void>(data::Value(number).ToInteger()); });
    static_cast<void>(data::Value(date).ToText());
    const data::CalendarDay day = data::ToCalendarDay(date);
    Demand(data::ToCalendarDay(data::ToOleDate(day)) == day, "day", data::FormatDayMonthYear(date));
    Demand(day.day >= 1 && day.day <= data::DaysInMonth(day.year, day.month), "no day", "");
    static_cast<void>(data::RoundedDay(date));
    if (const auto money = host::ToMoney(number)) {
        static_cast<void>(host::MoneyText(*money, host::Thousands::Grouped));
        static_cast<void>(host::MoneyText(*money, host::Thousands::Plain));
    }
    static_cast<void>(rates::RateCaption(number, "EUR", data::Locale()));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(bytes), size);
    ReadDates(text);
    ReadNumbers(text);
    ReadTexts(text);
    double number = 0;
    if (size >= sizeof number) {
        std::memcpy(&number, bytes, sizeof number);
        WriteNumbers(number);
    }
    return 0;
}
