#include "data/snapshot_recordset.h"

#include <algorithm>

#include "data/error.h"

namespace tavrin::data {
namespace {

[[noreturn]] void ThrowNoCurrentRecord() {
    throw Error(error_number::NoCurrentRecord,
                "Either BOF or EOF is True, or the current record has been deleted. Requested operation "
                "requires a current record.");
}

[[noreturn]] void ThrowItemNotFound() {
    throw Error(error_number::ItemNotFound,
                "Item cannot be found in the collection corresponding to the requested name or ordinal.");
}

char LowerAscii(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character + ('a' - 'A')) : character;
}

bool SameName(std::string_view left, std::string_view right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char a, char b) { return LowerAscii(a) == LowerAscii(b); });
}

}  // namespace

void SnapshotRecordset::Open(std::string_view source) {
    if (IsOpen()) {
        throw Error(error_number::ObjectOpen, "Operation is not allowed when the object is open.");
    }
    source_ = source;
    Load();
}

void SnapshotRecordset::Load() {
    table_ = Fetch(source_);
    position_ = 0;
}

void SnapshotRecordset::Close() {
    OpenTable();
    table_.reset();
}

void SnapshotRecordset::Requery() {
    OpenTable();
    table_.reset();
    Load();
}

const Table& SnapshotRecordset::OpenTable() const {
    if (!IsOpen()) {
        throw Error(error_number::ObjectClosed, "Operation is not allowed when the object is closed.");
    }
    return *table_;
}

std::int64_t SnapshotRecordset::LastPosition() const {
    return static_cast<std::int64_t>(OpenTable().RowCount());
}

bool SnapshotRecordset::AtBeginning() const {
    return OpenTable().RowCount() == 0 || position_ < 0;
}

bool SnapshotRecordset::AtEnd() const {
    return position_ >= LastPosition();
}

void SnapshotRecordset::MoveFirst() {
    if (LastPosition() == 0) ThrowNoCurrentRecord();
    position_ = 0;
}

void SnapshotRecordset::MoveNext() {
    Move(1);
}

void SnapshotRecordset::Move(std::int64_t rows) {
    const std::int64_t last = LastPosition();
    const bool pastTheEnd = rows > 0 && AtEnd();
    const bool beforeTheStart = rows < 0 && AtBeginning();
    if (last == 0 || pastTheEnd || beforeTheStart) ThrowNoCurrentRecord();
    // Clamp the distance first: the sum of position and distance could overflow.
    position_ += std::clamp(rows, -1 - position_, last - position_);
}

std::int64_t SnapshotRecordset::RecordCount() const {
    return LastPosition();
}

std::int64_t SnapshotRecordset::AbsolutePosition() const {
    constexpr std::int64_t unknown = -1;
    constexpr std::int64_t beforeFirst = -2;
    constexpr std::int64_t behindLast = -3;
    if (LastPosition() == 0) return unknown;
    if (AtBeginning()) return beforeFirst;
    return AtEnd() ? behindLast : position_ + 1;
}

std::size_t SnapshotRecordset::FieldCount() const {
    return IsOpen() ? table_->FieldCount() : 0;
}

std::string SnapshotRecordset::FieldName(std::size_t field) const {
    if (field >= FieldCount()) ThrowItemNotFound();
    return table_->FieldName(field);
}

Value SnapshotRecordset::Field(std::size_t field) const {
    if (field >= FieldCount()) ThrowItemNotFound();
    if (AtBeginning() || AtEnd()) ThrowNoCurrentRecord();
    return table_->At(static_cast<std::size_t>(position_), field);
}

Value SnapshotRecordset::Field(std::string_view name) const {
    for (std::size_t field = 0; field < FieldCount(); ++field) {
        if (SameName(table_->FieldName(field), name)) return Field(field);
    }
    ThrowItemNotFound();
}

TablePtr SnapshotRecordset::ReadAll() {
    OpenTable();
    return table_;
}

}  // namespace tavrin::data
