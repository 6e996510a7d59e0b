#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "data/connection.h"

namespace tavrin::tests {

/// Does what the recordset underneath does; a test overrides the member that a strange provider does
/// otherwise.
class PassThroughRecordset : public data::Recordset {
  public:
    explicit PassThroughRecordset(std::unique_ptr<data::Recordset> rows) : rows_(std::move(rows)) {}

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
    std::size_t FieldCount() const override { return rows_->FieldCount(); }
    std::string FieldName(std::size_t field) const override { return rows_->FieldName(field); }
    data::Value Field(std::size_t field) const override { return rows_->Field(field); }
    data::Value Field(std::string_view name) const override { return rows_->Field(name); }
    data::TablePtr ReadAll() override { return rows_->ReadAll(); }

  private:
    std::unique_ptr<data::Recordset> rows_;
};

/// Hands out recordsets of another kind over those of the connection underneath.
class PassThroughConnection : public data::Connection {
  public:
    using Wrap = std::function<std::unique_ptr<data::Recordset>(std::unique_ptr<data::Recordset>)>;

    PassThroughConnection(data::Connection& underlying, Wrap wrap)
        : underlying_(underlying), wrap_(std::move(wrap)) {}

    std::unique_ptr<data::Recordset> Execute(std::string_view statement) override {
        return wrap_(underlying_.Execute(statement));
    }
    std::unique_ptr<data::Recordset> CreateRecordset() override {
        return wrap_(underlying_.CreateRecordset());
    }

  private:
    data::Connection& underlying_;
    Wrap wrap_;
};

}  // namespace tavrin::tests
