#pragma once

#include <optional>
#include <string>

namespace tavrin::host {

/// Rounded to money's four decimals, half away from zero; nothing outside money's range.
std::optional<double> ToMoney(double amount);

enum class Thousands { Plain, Grouped };

/// An amount of money with two decimals: "12345.67" or "12,345.67".
std::string MoneyText(double amount, Thousands thousands);

}  // namespace tavrin::host
