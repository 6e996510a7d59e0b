#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tavrin::rates {

/// The column titles of the rate list, counted from 1 so that they line up with the columns of its grid:
/// element 1 is "Data", elements 2 to UpperBound() are the currency codes in the order of the table's
/// columns.
class CurrencyNames {
  public:
    static constexpr int FirstCurrency = 2;

    const std::string& operator[](int element) const { return names_[static_cast<std::size_t>(element - 1)]; }
    int UpperBound() const { return static_cast<int>(names_.size()); }
    void Add(std::string currency) { names_.push_back(std::move(currency)); }

    bool operator==(const CurrencyNames&) const = default;

  private:
    std::vector<std::string> names_ = {"Data"};
};

}  // namespace tavrin::rates
