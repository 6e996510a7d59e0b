#pragma once

namespace tavrin::host::dialect::function_name {

// What the translated statements call, and the engine's side provides.
inline constexpr const char* Collation = "tavrin_text";
inline constexpr const char* Year = "tavrin_year";
inline constexpr const char* Month = "tavrin_month";
inline constexpr const char* Day = "tavrin_day";
inline constexpr const char* DateText = "tavrin_date_text";    ///< (date) "dd/mm/yyyy"
inline constexpr const char* Money = "tavrin_money";           ///< (number) rounded to four decimals
inline constexpr const char* MoneyText = "tavrin_money_text";  ///< (money, style)
inline constexpr const char* Like = "tavrin_like";             ///< (text, pattern)
inline constexpr const char* FitText = "tavrin_fit_text";      ///< (text, length), refuses what is longer

}  // namespace tavrin::host::dialect::function_name
