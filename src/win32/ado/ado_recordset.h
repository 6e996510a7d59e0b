#pragma once

#include <optional>
#include <string>
#include <vector>

#include "data/connection.h"
#include "win32/ado/dispatch_object.h"

namespace tavrin::win32 {

/// An ADO Recordset reached by late binding. It keeps the recordset's Field objects, which follow the current
/// row, so that a field costs one call, and asks for nothing twice that only its own calls can change.
class AdoRecordset : public data::Recordset {
  public:
    /// A recordset that a statement gave; null where the statement gave none.
    /// \param affectedRows what the provider said of the rows that the statement changed
    AdoRecordset(DispatchObject connection, DispatchObject recordset, Variant affectedRows = {});
    /// A new, closed one.
    explicit AdoRecordset(DispatchObject connection);

    /// The connection that the next Open takes.
    void BindTo(DispatchObject connection) { connection_ = std::move(connection); }

    /// Client-side, static and read-only, whatever the recordset was before.
    void Open(std::string_view source) override;
    bool IsOpen() const override;
    void Close() override;
    void Requery() override;

    bool AtBeginning() const override;
    bool AtEnd() const override;
    void MoveFirst() override;
    void MoveNext() override;
    void Move(std::int64_t rows) override;
    std::int64_t RecordCount() const override;
    std::int64_t AffectedRows() const override;

    std::size_t FieldCount() const override;
    std::string FieldName(std::size_t field) const override;
    data::Value Field(std::size_t field) const override;
    data::Value Field(std::string_view name) const override;

    data::TablePtr ReadAll() override;

  private:
    struct FieldEntry {
        std::string name;
        DispatchObject object;
    };

    /// What the recordset has said of the row that it stands on.
    struct Position {
        std::optional<bool> atBeginning;
        std::optional<bool> atEnd;
    };

    bool Ask(std::optional<bool>& known, std::wstring_view property) const;
    /// A call that leads to another row.
    template <class... Arguments>
    Variant CallMoving(std::wstring_view method, const Arguments&... arguments) const;
    /// Before other rows come, or none are left.
    void ForgetRows();
    const std::vector<FieldEntry>& Fields() const;
    const FieldEntry& FieldAt(std::size_t field) const;
    const DispatchObject& OpenRecordset() const;
    void ReadBlocks(class AdoTable& table) const;
    void RestorePosition(bool wasAtBeginning, std::int32_t position) const;

    DispatchObject connection_;
    DispatchObject recordset_;
    Variant affectedRows_;
    mutable std::vector<FieldEntry> fields_;
    mutable Position position_;
    mutable std::optional<std::int64_t> recordCount_;
};

}  // namespace tavrin::win32
