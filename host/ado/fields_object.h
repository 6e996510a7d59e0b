#pragma once

#include <cstddef>
#include <memory>
#include <utility>

#include "host/ado/live_objects.h"
#include "host/ado/questions.h"
#include "host/automation/script_object.h"
#include "host/embedded/embedded_recordset.h"

namespace tavrin::host {

/// The rows that a recordset, its Fields and its Field objects look at; null while it is closed.
struct RecordsetRows {
    std::unique_ptr<EmbeddedRecordset> rows;
    Questions questions;

    /// \throws data::Error 3704
    EmbeddedRecordset& Open() const;
};

/// One field; its value is the current row's.
class FieldObject : public ScriptObject {
  public:
    FieldObject(std::shared_ptr<RecordsetRows> recordset, std::size_t index)
        : recordset_(std::move(recordset)), index_(index) {}

  protected:
    std::span<const Member> Members() const override;
    void OnUse(const Member& member) override;

  private:
    win32::Variant Value(const CallArguments&);
    win32::Variant Name(const CallArguments&);
    win32::Variant Type(const CallArguments&);
    win32::Variant DefinedSize(const CallArguments&);
    const FieldInfo& Info() const;

    win32::ObjectCount::Ticket ticket_{LiveObjects::Get().fields};
    std::shared_ptr<RecordsetRows> recordset_;
    std::size_t index_;
};

/// A recordset's fields, by their place from 0 or by name.
class FieldsObject : public ScriptObject {
  public:
    explicit FieldsObject(std::shared_ptr<RecordsetRows> recordset) : recordset_(std::move(recordset)) {}

    /// \throws data::Error 3265 where there is no such field
    win32::ComPtr<FieldObject> FieldAt(const win32::Variant& place) const;

  protected:
    std::span<const Member> Members() const override;
    void OnUse(const Member& member) override;

  private:
    win32::Variant Count(const CallArguments&);
    win32::Variant Item(const CallArguments& arguments);
    std::size_t IndexOf(const std::string& name) const;

    win32::ObjectCount::Ticket ticket_{LiveObjects::Get().fields};
    std::shared_ptr<RecordsetRows> recordset_;
};

}  // namespace tavrin::host
