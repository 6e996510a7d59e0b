#include "host/ado/recordset_object.h"

#include <array>

#include "host/ado/row_array.h"

namespace tavrin::host {

using win32::Variant;

RecordsetObject::RecordsetObject(std::shared_ptr<Session> session, std::unique_ptr<EmbeddedRecordset> rows,
                                 std::int32_t cursorLocation)
    : session_(std::move(session)), cursorLocation_(cursorLocation) {
    recordset_->rows = std::move(rows);
    // A client's cursor is always static.
    if (cursorLocation_ == cursor::UseClient) cursorType_ = cursor::Static;
}

std::span<const Member> RecordsetObject::Members() const {
    using Self = RecordsetObject;
    static constexpr std::array table{
        Member{L"Fields", 0, Access::Get, 1, Run<&Self::Fields>},
        Member{L"AbsolutePosition", 1000, Access::Get, 0, Run<&Self::GetAbsolutePosition>},
        Member{L"AbsolutePosition", 1000, Access::Put, 1, Run<&Self::PutAbsolutePosition>},
        Member{L"ActiveConnection", 1001, Access::Get, 0, Run<&Self::GetActiveConnection>},
        Member{L"ActiveConnection", 1001, Access::Put, 1, Run<&Self::PutActiveConnection>},
        Member{L"BOF", 1002, Access::Get, 0, Run<&Self::Bof>},
        Member{L"CursorType", 1005, Access::Get, 0, Run<&Self::GetCursorType>},
        Member{L"CursorType", 1005, Access::Put, 1, Run<&Self::PutCursorType>},
        Member{L"EOF", 1006, Access::Get, 0, Run<&Self::Eof>},
        Member{L"LockType", 1008, Access::Get, 0, Run<&Self::GetLockType>},
        Member{L"LockType", 1008, Access::Put, 1, Run<&Self::PutLockType>},
        Member{L"RecordCount", 1010, Access::Get, 0, Run<&Self::RecordCount>},
        Member{L"Source", 1011, Access::Get, 0, Run<&Self::GetSource>},
        Member{L"Source", 1011, Access::Put, 1, Run<&Self::PutSource>},
        Member{L"Close", 1014, Access::Call, 0, Run<&Self::Close>},
        Member{L"GetRows", 1016, Access::Call, 3, Run<&Self::GetRows>},
        Member{L"Move", 1017, Access::Call, 2, Run<&Self::Move>},
        Member{L"MoveNext", 1018, Access::Call, 0, Run<&Self::MoveNext>},
        Member{L"MovePrevious", 1019, Access::Call, 0, Run<&Self::MovePrevious>},
        Member{L"MoveFirst", 1020, Access::Call, 0, Run<&Self::MoveFirst>},
        Member{L"MoveLast", 1021, Access::Call, 0, Run<&Self::MoveLast>},
        Member{L"Open", 1022, Access::Call, 5, Run<&Self::Open>},
        Member{L"Requery", 1023, Access::Call, 1, Run<&Self::Requery>},
        Member{L"CursorLocation", 1051, Access::Get, 0, Run<&Self::GetCursorLocation>},
        Member{L"CursorLocation", 1051, Access::Put, 1, Run<&Self::PutCursorLocation>},
        Member{L"State", 1054, Access::Get, 0, Run<&Self::State>},
    };
    return table;
}

void RecordsetObject::OnUse(const Member& member) {
    if (member.access == Access::Get) {
        recordset_->questions.Note(Questions::OfRecordset, member.name);
    } else {
        recordset_->questions.NoteCall();
    }
}

void RecordsetObject::OnFailure(const data::Error& error) {
    if (session_ != nullptr) session_->Record(error);
}

// Open and closed.

Variant RecordsetObject::Open(const CallArguments& arguments) {
    RequireClosed();
    constexpr std::int32_t unspecified = -1;
    if (arguments.Has(0)) source_ = arguments.Text(0);
    if (arguments.Has(1)) UseConnection(arguments.At(1));
    const std::int32_t type = arguments.LongOr(2, unspecified);
    const std::int32_t lock = arguments.LongOr(3, unspecified);
    if (type != unspecified) cursorType_ = type;
    if (lock != unspecified) lockType_ = lock;
    if (cursorLocation_ == cursor::UseClient) cursorType_ = cursor::Static;
    if (session_ == nullptr) ado_error::ThrowInvalidConnection();
    recordset_->rows = session_->Run(source_);
    return {};
}

Variant RecordsetObject::Requery(const CallArguments&) {
    Rows();
    recordset_->rows.reset();  // one that fails leaves the recordset closed
    recordset_->rows = session_->Run(source_);
    return {};
}

Variant RecordsetObject::Close(const CallArguments&) {
    Rows();
    recordset_->rows.reset();
    return {};
}

Variant RecordsetObject::State(const CallArguments&) {
    return Variant(std::int32_t{IsOpen() ? 1 : 0});
}

// The current row.

Variant RecordsetObject::Bof(const CallArguments&) {
    return Variant::Boolean(Rows().AtBeginning());
}

Variant RecordsetObject::Eof(const CallArguments&) {
    return Variant::Boolean(Rows().AtEnd());
}

Variant RecordsetObject::RecordCount(const CallArguments&) {
    constexpr std::int32_t unknown = -1;
    AskServerOfItsCursor();
    const std::int64_t count = Rows().RecordCount();
    return Variant(cursorType_ == cursor::ForwardOnly ? unknown : static_cast<std::int32_t>(count));
}

Variant RecordsetObject::GetAbsolutePosition(const CallArguments&) {
    RequireScrolling();
    AskServerOfItsCursor();
    return Variant(static_cast<std::int32_t>(Rows().AbsolutePosition()));
}

Variant RecordsetObject::PutAbsolutePosition(const CallArguments& arguments) {
    RequireScrolling();
    const std::int32_t position = arguments.At(0).ToLong();
    AskServerOfItsCursor();
    if (position < 1 || position > Rows().RecordCount()) ado_error::ThrowWrongArguments();
    Rows().MoveFirst();
    Rows().Move(position - 1);
    return {};
}

Variant RecordsetObject::Move(const CallArguments& arguments) {
    if (arguments.Has(1)) ado_error::ThrowWrongArguments();  // bookmarks are not offered
    const std::int32_t rows = arguments.At(0).ToLong();
    if (rows < 0) RequireScrolling();
    AskServerOfItsCursor();
    Rows().Move(rows);
    return {};
}

Variant RecordsetObject::MoveFirst(const CallArguments&) {
    AskServerOfItsCursor();
    Rows().MoveFirst();
    return {};
}

Variant RecordsetObject::MoveLast(const CallArguments&) {
    RequireScrolling();
    AskServerOfItsCursor();
    Rows().MoveFirst();
    Rows().Move(Rows().RecordCount() - 1);
    return {};
}

Variant RecordsetObject::MoveNext(const CallArguments&) {
    AskServerOfItsCursor();
    Rows().MoveNext();
    return {};
}

Variant RecordsetObject::MovePrevious(const CallArguments&) {
    RequireScrolling();
    AskServerOfItsCursor();
    Rows().Move(-1);
    return {};
}

// Contents.

Variant RecordsetObject::Fields(const CallArguments& arguments) {
    const auto fields = win32::MakeObject<FieldsObject>(recordset_);
    return arguments.Has(0) ? AsVariant(fields->FieldAt(arguments.At(0))) : AsVariant(fields);
}

Variant RecordsetObject::GetRows(const CallArguments& arguments) {
    constexpr std::int32_t rest = -1;
    if (arguments.Has(1) || arguments.Has(2))
        ado_error::ThrowWrongArguments();  // always from here, all fields
    AskServerOfItsCursor();
    return TakeRows(Rows(), arguments.LongOr(0, rest));
}

// Settings.

Variant RecordsetObject::GetSource(const CallArguments&) {
    return Variant(std::string_view(source_));
}

Variant RecordsetObject::PutSource(const CallArguments& arguments) {
    RequireClosed();
    source_ = arguments.Text(0);
    return {};
}

Variant RecordsetObject::GetActiveConnection(const CallArguments&) {
    return AsVariant(connection_);
}

Variant RecordsetObject::PutActiveConnection(const CallArguments& arguments) {
    RequireClosed();
    UseConnection(arguments.At(0));
    return {};
}

Variant RecordsetObject::GetCursorLocation(const CallArguments&) {
    return Variant(cursorLocation_);
}

Variant RecordsetObject::PutCursorLocation(const CallArguments& arguments) {
    RequireClosed();
    cursorLocation_ = arguments.At(0).ToLong();
    return {};
}

Variant RecordsetObject::GetCursorType(const CallArguments&) {
    return Variant(cursorType_);
}

Variant RecordsetObject::PutCursorType(const CallArguments& arguments) {
    RequireClosed();
    cursorType_ = arguments.At(0).ToLong();
    return {};
}

Variant RecordsetObject::GetLockType(const CallArguments&) {
    return Variant(lockType_);
}

Variant RecordsetObject::PutLockType(const CallArguments& arguments) {
    RequireClosed();
    lockType_ = arguments.At(0).ToLong();
    return {};
}

void RecordsetObject::UseConnection(const Variant& connection) {
    const auto native = NativeObject<ConnectionObject>(connection.ToObject());
    if (!native) ado_error::ThrowWrongArguments();
    connection_ = native;
    session_ = native->SharedSession();
}

void RecordsetObject::RequireClosed() const {
    if (IsOpen()) ado_error::ThrowOpen();
}

void RecordsetObject::RequireScrolling() const {
    Rows();
    if (cursorType_ == cursor::ForwardOnly) ado_error::ThrowNotThisCursor();
}

/// Rows of a client's cursor came with the statement, those of a forward-only one come as a stream.
void RecordsetObject::AskServerOfItsCursor() const {
    if (cursorLocation_ != cursor::UseClient && cursorType_ != cursor::ForwardOnly && session_ != nullptr)
        session_->AskServer();
}

}  // namespace tavrin::host
