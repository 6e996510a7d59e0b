#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "data/table.h"

namespace tavrin::tests {

/// A table of any size that makes its cells up (100 times the row plus the field) and counts how many were
/// asked for.
class CountingTable : public data::Table {
  public:
    CountingTable(std::size_t rows, std::size_t fields) : rows_(rows) {
        for (std::size_t i = 0; i < fields; ++i)
            names_.push_back("F" + std::to_string(i));
    }

    std::size_t RowCount() const override { return rows_; }
    std::size_t FieldCount() const override { return names_.size(); }
    const std::string& FieldName(std::size_t field) const override { return names_[field]; }
    data::Value At(std::size_t row, std::size_t field) const override {
        ++reads;
        return static_cast<std::int64_t>(row * 100 + field);
    }

    mutable int reads = 0;

  private:
    std::size_t rows_;
    std::vector<std::string> names_;
};

}  // namespace tavrin::tests
