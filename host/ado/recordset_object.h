#pragma once

#include <memory>
#include <string>

#include "host/ado/connection_object.h"
#include "host/ado/fields_object.h"
#include "host/ado/live_objects.h"
#include "host/ado/session.h"
#include "host/automation/script_object.h"

namespace tavrin::host {

/// ADO's codes for cursors and locks.
namespace cursor {
inline constexpr std::int32_t UseServer = 2;
inline constexpr std::int32_t UseClient = 3;
inline constexpr std::int32_t ForwardOnly = 0;
inline constexpr std::int32_t Static = 3;
inline constexpr std::int32_t ReadOnly = 1;
}  // namespace cursor

/// An ADO Recordset. Its rows are a snapshot; one with a forward-only cursor counts no rows and goes back
/// only to the first.
class RecordsetObject : public ScriptObject {
  public:
    /// A new, closed one.
    RecordsetObject() = default;
    /// What a statement gave: closed where it gave no rows.
    RecordsetObject(std::shared_ptr<Session> session, std::unique_ptr<EmbeddedRecordset> rows,
                    std::int32_t cursorLocation);

  protected:
    std::span<const Member> Members() const override;
    void OnUse(const Member& member) override;
    void OnFailure(const data::Error& error) override;

  private:
    win32::Variant Open(const CallArguments& arguments);
    win32::Variant Requery(const CallArguments&);
    win32::Variant Close(const CallArguments&);
    win32::Variant State(const CallArguments&);

    win32::Variant Bof(const CallArguments&);
    win32::Variant Eof(const CallArguments&);
    win32::Variant RecordCount(const CallArguments&);
    win32::Variant GetAbsolutePosition(const CallArguments&);
    win32::Variant PutAbsolutePosition(const CallArguments& arguments);
    win32::Variant Move(const CallArguments& arguments);
    win32::Variant MoveFirst(const CallArguments&);
    win32::Variant MoveLast(const CallArguments&);
    win32::Variant MoveNext(const CallArguments&);
    win32::Variant MovePrevious(const CallArguments&);

    win32::Variant Fields(const CallArguments& arguments);
    win32::Variant GetRows(const CallArguments& arguments);

    win32::Variant GetSource(const CallArguments&);
    win32::Variant PutSource(const CallArguments& arguments);
    win32::Variant GetActiveConnection(const CallArguments&);
    win32::Variant PutActiveConnection(const CallArguments& arguments);
    win32::Variant GetCursorLocation(const CallArguments&);
    win32::Variant PutCursorLocation(const CallArguments& arguments);
    win32::Variant GetCursorType(const CallArguments&);
    win32::Variant PutCursorType(const CallArguments& arguments);
    win32::Variant GetLockType(const CallArguments&);
    win32::Variant PutLockType(const CallArguments& arguments);

    bool IsOpen() const { return recordset_->rows != nullptr && recordset_->rows->IsOpen(); }
    EmbeddedRecordset& Rows() const { return recordset_->Open(); }
    void UseConnection(const win32::Variant& connection);
    void RequireClosed() const;
    void RequireScrolling() const;
    void AskServerOfItsCursor() const;

    win32::ObjectCount::Ticket ticket_{LiveObjects::Get().recordsets};
    std::shared_ptr<RecordsetRows> recordset_ = std::make_shared<RecordsetRows>();
    std::shared_ptr<Session> session_;
    win32::ComPtr<ConnectionObject> connection_;  // for the one that was opened on it
    std::string source_;
    std::int32_t cursorLocation_ = cursor::UseServer;
    std::int32_t cursorType_ = cursor::ForwardOnly;
    std::int32_t lockType_ = cursor::ReadOnly;
};

}  // namespace tavrin::host
