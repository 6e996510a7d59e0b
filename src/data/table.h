#pragma once

#include <cstddef>
#include <memory>
#include <string>

#include "data/value.h"

namespace tavrin::data {

/// The rows of one query, read in bulk and never changed afterwards. Cells are converted when they are asked
/// for, so that a grid over 100,000 rows pays only for the rows that it paints.
class Table {
  public:
    virtual ~Table() = default;

    virtual std::size_t RowCount() const = 0;
    virtual std::size_t FieldCount() const = 0;
    virtual const std::string& FieldName(std::size_t field) const = 0;

    /// \pre row < RowCount() and field < FieldCount()
    virtual Value At(std::size_t row, std::size_t field) const = 0;
};

using TablePtr = std::shared_ptr<const Table>;

}  // namespace tavrin::data
