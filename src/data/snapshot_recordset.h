#pragma once

#include <string>

#include "data/connection.h"

namespace tavrin::data {

/// The cursor of a static recordset over rows that were fetched at once. Derived classes only run the
/// statement. Errors carry ADO's numbers and descriptions.
class SnapshotRecordset : public Recordset {
  public:
    void Open(std::string_view source) override;
    bool IsOpen() const override { return table_ != nullptr; }
    void Close() override;
    /// A requery that fails leaves the recordset closed.
    void Requery() override;

    bool AtBeginning() const override;
    bool AtEnd() const override;
    void MoveFirst() override;
    void MoveNext() override;
    void Move(std::int64_t rows) override;
    std::int64_t RecordCount() const override;

    std::size_t FieldCount() const override;
    std::string FieldName(std::size_t field) const override;
    Value Field(std::size_t field) const override;
    Value Field(std::string_view name) const override;

    TablePtr ReadAll() override;

    /// The current row counted from 1. Before the first one -2, behind the last one -3, without rows -1.
    std::int64_t AbsolutePosition() const;

  protected:
    /// Runs the statement. Null where it gives no rows (a write): the recordset then stays closed.
    virtual TablePtr Fetch(const std::string& source) = 0;

  private:
    void Load();
    const Table& OpenTable() const;
    std::int64_t LastPosition() const;

    std::string source_;
    TablePtr table_;
    std::int64_t position_ = 0;  // -1 before the first row, RowCount() after the last
};

}  // namespace tavrin::data
