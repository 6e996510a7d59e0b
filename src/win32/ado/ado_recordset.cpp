#include "win32/ado/ado_recordset.h"

#include <windows.h>

#include <combaseapi.h>

#include <algorithm>

#include "win32/ado/ado_table.h"
#include "win32/ado/provider_errors.h"
#include "win32/ado/variant_value.h"
#include "win32/base/text.h"

namespace tavrin::win32 {
namespace {

constexpr CLSID RecordsetClass = {
    0x00000535, 0x0000, 0x0010, {0x80, 0x00, 0x00, 0xAA, 0x00, 0x6D, 0x2E, 0xA4}};

constexpr std::int32_t UseClient = 3;
constexpr std::int32_t OpenStatic = 3;
constexpr std::int32_t LockReadOnly = 1;
constexpr std::int32_t Unspecified = -1;
constexpr std::int32_t StateOpen = 1;

DispatchObject CreateRecordsetObject() {
    ComPtr<IDispatch> object;
    const HRESULT created = CoCreateInstance(RecordsetClass, nullptr, CLSCTX_INPROC_SERVER,
                                             __uuidof(IDispatch), object.ReceiveVoid());
    if (FAILED(created)) throw UndescribedError(created, SystemMessage(created));
    return DispatchObject(std::move(object));
}

bool SameName(std::string_view one, std::string_view other) {
    const std::wstring left = ToWide(one);
    const std::wstring right = ToWide(other);
    return CompareStringOrdinal(left.data(), static_cast<int>(left.size()), right.data(),
                                static_cast<int>(right.size()), TRUE) == CSTR_EQUAL;
}

[[noreturn]] void ThrowNoSuchField() {
    throw data::RuntimeError(data::error_number::ItemNotFound);
}

}  // namespace

AdoRecordset::AdoRecordset(DispatchObject connection, DispatchObject recordset, Variant affectedRows)
    : connection_(std::move(connection)),
      recordset_(std::move(recordset)),
      affectedRows_(std::move(affectedRows)) {}

AdoRecordset::AdoRecordset(DispatchObject connection)
    : AdoRecordset(std::move(connection), CreateRecordsetObject()) {}

void AdoRecordset::Open(std::string_view source) {
    ForgetRows();
    recordset_.Put(L"CursorLocation", Variant(UseClient));
    recordset_.Put(L"CursorType", Variant(OpenStatic));
    recordset_.Put(L"LockType", Variant(LockReadOnly));
    WithProviderErrors(connection_, [&] {
        return recordset_.Call(L"Open", Variant(source), Variant(connection_.Object()), Variant(Unspecified),
                               Variant(Unspecified), Variant(Unspecified));
    });
}

bool AdoRecordset::IsOpen() const {
    return recordset_ && (recordset_.Get(L"State").ToLong() & StateOpen) != 0;
}

void AdoRecordset::Close() {
    ForgetRows();
    OpenRecordset().Call(L"Close");
}

void AdoRecordset::Requery() {
    ForgetRows();
    WithProviderErrors(connection_, [&] { return OpenRecordset().Call(L"Requery"); });
}

void AdoRecordset::ForgetRows() {
    fields_.clear();
    position_ = {};
    recordCount_.reset();
}

bool AdoRecordset::Ask(std::optional<bool>& known, std::wstring_view property) const {
    if (!known) known = OpenRecordset().Get(property).ToBoolean();
    return *known;
}

template <class... Arguments>
Variant AdoRecordset::CallMoving(std::wstring_view method, const Arguments&... arguments) const {
    position_ = {};
    return OpenRecordset().Call(method, arguments...);
}

bool AdoRecordset::AtBeginning() const {
    return Ask(position_.atBeginning, L"BOF");
}

bool AdoRecordset::AtEnd() const {
    return Ask(position_.atEnd, L"EOF");
}

void AdoRecordset::MoveFirst() {
    CallMoving(L"MoveFirst");
}

void AdoRecordset::MoveNext() {
    CallMoving(L"MoveNext");
}

void AdoRecordset::Move(std::int64_t rows) {
    const auto limited = std::clamp<std::int64_t>(rows, INT32_MIN, INT32_MAX);
    CallMoving(L"Move", Variant(static_cast<std::int32_t>(limited)));
}

std::int64_t AdoRecordset::RecordCount() const {
    if (!recordCount_) recordCount_ = OpenRecordset().Get(L"RecordCount").ToLong();
    return *recordCount_;
}

std::int64_t AdoRecordset::AffectedRows() const {
    return affectedRows_.Type() != VT_EMPTY ? affectedRows_.ToLong() : -1;
}

std::size_t AdoRecordset::FieldCount() const {
    return Fields().size();
}

std::string AdoRecordset::FieldName(std::size_t field) const {
    return FieldAt(field).name;
}

data::Value AdoRecordset::Field(std::size_t field) const {
    return ToValue(FieldAt(field).object.Get(L"Value").Get());
}

data::Value AdoRecordset::Field(std::string_view name) const {
    for (std::size_t field = 0; field < Fields().size(); ++field)
        if (SameName(fields_[field].name, name)) return Field(field);
    ThrowNoSuchField();
}

data::TablePtr AdoRecordset::ReadAll() {
    std::vector<std::string> names;
    for (const FieldEntry& field : Fields())
        names.push_back(field.name);
    auto table = std::make_shared<AdoTable>(std::move(names));
    const bool wasAtBeginning = AtBeginning();
    if (wasAtBeginning && AtEnd()) return table;
    const std::int32_t position = OpenRecordset().Get(L"AbsolutePosition").ToLong();
    MoveFirst();
    ReadBlocks(*table);
    RestorePosition(wasAtBeginning, position);
    return table;
}

void AdoRecordset::ReadBlocks(AdoTable& table) const {
    const Variant blockRows(static_cast<std::int32_t>(AdoTable::BlockRows));
    while (table.AddBlock(CallMoving(L"GetRows", blockRows)) == AdoTable::BlockRows && !AtEnd()) {
    }
}

/// \param position from 1; zero or less where the cursor stood on no row. Reading leaves it behind the last.
void AdoRecordset::RestorePosition(bool wasAtBeginning, std::int32_t position) const {
    if (position > 0) {
        position_ = {};
        OpenRecordset().Put(L"AbsolutePosition", Variant(position));
    }
    if (!wasAtBeginning) return;
    CallMoving(L"MoveFirst");
    CallMoving(L"MovePrevious");
}

const std::vector<AdoRecordset::FieldEntry>& AdoRecordset::Fields() const {
    if (!fields_.empty()) return fields_;
    const DispatchObject fields = OpenRecordset().GetObject(L"Fields");
    const std::int32_t count = fields.Get(L"Count").ToLong();
    std::vector<FieldEntry> entries;
    for (std::int32_t field = 0; field < count; ++field) {
        DispatchObject object = fields.GetObject(L"Item", Variant(field));
        std::string name = object.Get(L"Name").ToText();
        entries.push_back({std::move(name), std::move(object)});
    }
    fields_ = std::move(entries);
    return fields_;
}

const AdoRecordset::FieldEntry& AdoRecordset::FieldAt(std::size_t field) const {
    if (field >= Fields().size()) ThrowNoSuchField();
    return fields_[field];
}

/// \throws data::Error 3704 where a statement gave no recordset at all.
const DispatchObject& AdoRecordset::OpenRecordset() const {
    if (!recordset_) throw data::RuntimeError(data::error_number::ObjectClosed);
    return recordset_;
}

}  // namespace tavrin::win32
