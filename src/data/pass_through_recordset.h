#pragma once

#include <memory>
#include <string>
#include <utility>

#include "data/connection.h"

namespace tavrin::data {

/// Forwards everything to another recordset; derived classes override what they do differently.
class PassThroughRecordset : public Recordset {
  public:
    explicit PassThroughRecordset(std::unique_ptr<Recordset> rows) : rows_(std::move(rows)) {}

    void Open(std::string_view source) override { rows_->Open(source); }
    bool IsOpen() const override { return rows_->IsOpen(); }
    void Close() override { rows_->Close(); }
    void Requery() override { rows_->Requery(); }
    bool AtBeginning() const override { return rows_->AtBeginning(); }
    bool AtEnd() const override { return rows_->AtEnd(); }
    void MoveFirst() override { rows_->MoveFirst(); }
    void MoveNext() override { rows_->MoveNext(); }
    void Move(std::int64_t rows) override { rows_->Move(rows); }
    std::int64_t RecordCount() const override { return rows_->RecordCount(); }
    std::int64_t AffectedRows() const override { return rows_->AffectedRows(); }
    std::size_t FieldCount() const override { return rows_->FieldCount(); }
    std::string FieldName(std::size_t field) const override { return rows_->FieldName(field); }
    Value Field(std::size_t field) const override { return rows_->Field(field); }
    Value Field(std::string_view name) const override { return rows_->Field(name); }
    TablePtr ReadAll() override { return rows_->ReadAll(); }

  protected:
    Recordset& Rows() { return *rows_; }
    const Recordset& Rows() const { return *rows_; }
    std::unique_ptr<Recordset> TakeRows() { return std::move(rows_); }

  private:
    std::unique_ptr<Recordset> rows_;
};

}  // namespace tavrin::data
