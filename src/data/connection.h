#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "data/table.h"
#include "data/value.h"

namespace tavrin::data {

/// A cursor over the rows of one query, in ADO's terms. The cursor is client-side, static
/// and read-only (CursorLocation 3, CursorType 3, LockType 1; options -1): a snapshot that other users'
/// changes reach only through Requery. Every member throws Error as the provider reports it.
class Recordset {
  public:
    virtual ~Recordset() = default;

    virtual void Open(std::string_view source) = 0;
    virtual bool IsOpen() const = 0;
    virtual void Close() = 0;
    virtual void Requery() = 0;

    virtual bool AtBeginning() const = 0;  ///< BOF
    virtual bool AtEnd() const = 0;        ///< EOF
    virtual void MoveFirst() = 0;
    virtual void MoveNext() = 0;
    virtual void Move(std::int64_t rows) = 0;  ///< forward from the current row; stops at EOF
    virtual std::int64_t RecordCount() const = 0;
    /// How many rows the statement changed that gave this recordset; -1 if the provider does not say.
    virtual std::int64_t AffectedRows() const { return -1; }

    virtual std::size_t FieldCount() const = 0;
    virtual std::string FieldName(std::size_t field) const = 0;
    virtual Value Field(std::size_t field) const = 0;
    virtual Value Field(std::string_view name) const = 0;  ///< names are compared without case

    /// All rows at once, from the first; the current row does not move. The table stays valid after Requery
    /// and Close.
    virtual TablePtr ReadAll() = 0;

    /// No rows: both BOF and EOF.
    bool HasRows() const { return !(AtBeginning() && AtEnd()); }
};

/// The host's database connection. Owned by the host; the windows hold a shared reference.
class Connection {
  public:
    virtual ~Connection() = default;

    /// Runs one statement. Rows, where it gives any, come as an open recordset; a write gives a closed one.
    virtual std::unique_ptr<Recordset> Execute(std::string_view statement) = 0;

    /// A new, closed recordset bound to this connection.
    virtual std::unique_ptr<Recordset> CreateRecordset() = 0;

    /// The closed recordset of another connection, bound to this one from now on. Where there is none, or it
    /// is of another kind, a new one takes its place.
    virtual std::unique_ptr<Recordset> Adopt(std::unique_ptr<Recordset> recordset);
};

/// The first field of the first row of a statement. \throws Error 3021 when there is no row.
Value ExecuteScalar(Connection& connection, std::string_view statement);

}  // namespace tavrin::data
