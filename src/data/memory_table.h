#pragma once

#include <string>
#include <vector>

#include "data/table.h"

namespace tavrin::data {

/// A table whose cells lie in memory, row after row.
class MemoryTable : public Table {
  public:
    using Row = std::vector<Value>;

    explicit MemoryTable(std::vector<std::string> fieldNames) : fieldNames_(std::move(fieldNames)) {}
    MemoryTable(std::vector<std::string> fieldNames, const std::vector<Row>& rows);

    /// \pre row.size() == FieldCount()
    void AddRow(Row row);

    std::size_t RowCount() const override { return rowCount_; }
    std::size_t FieldCount() const override { return fieldNames_.size(); }
    const std::string& FieldName(std::size_t field) const override { return fieldNames_[field]; }
    Value At(std::size_t row, std::size_t field) const override {
        return cells_[row * fieldNames_.size() + field];
    }

  private:
    std::vector<std::string> fieldNames_;
    std::vector<Value> cells_;
    std::size_t rowCount_ = 0;
};

}  // namespace tavrin::data
