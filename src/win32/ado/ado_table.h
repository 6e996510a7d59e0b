#pragma once

#include <windows.h>

#include <oaidl.h>

#include <memory>
#include <string>
#include <vector>

#include "data/table.h"
#include "win32/base/variant.h"

namespace tavrin::win32 {

/// One array of variants, indexed (field, row), as GetRows gives it.
class RowBlock {
  public:
    /// Takes the array out of the variant. \throws data::Error 13 where it is no such array.
    RowBlock(Variant array, std::size_t fieldCount);
    ~RowBlock();
    RowBlock(const RowBlock&) = delete;
    RowBlock& operator=(const RowBlock&) = delete;

    std::size_t RowCount() const { return rowCount_; }
    const VARIANT& At(std::size_t row, std::size_t field) const { return cells_[row * fieldCount_ + field]; }

  private:
    Variant array_;
    std::size_t fieldCount_;
    std::size_t rowCount_ = 0;
    const VARIANT* cells_ = nullptr;
};

/// The rows of one query in the very arrays in which the provider gave them. Cells become values only when
/// they are asked for.
class AdoTable : public data::Table {
  public:
    /// Rows per block; reading in blocks keeps the provider's arrays small.
    static constexpr std::size_t BlockRows = 256;

    explicit AdoTable(std::vector<std::string> fieldNames) : fieldNames_(std::move(fieldNames)) {}

    /// Appends the next block. Only the last one may hold fewer rows than BlockRows.
    /// \throws data::Error 13 where the variant holds no block of rows.
    /// \return how many rows it holds.
    std::size_t AddBlock(Variant array);

    std::size_t RowCount() const override { return rowCount_; }
    std::size_t FieldCount() const override { return fieldNames_.size(); }
    const std::string& FieldName(std::size_t field) const override { return fieldNames_[field]; }
    data::Value At(std::size_t row, std::size_t field) const override;

  private:
    std::vector<std::string> fieldNames_;
    std::vector<std::unique_ptr<RowBlock>> blocks_;
    std::size_t rowCount_ = 0;
};

}  // namespace tavrin::win32
