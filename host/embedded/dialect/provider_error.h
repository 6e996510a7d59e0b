#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "data/error.h"

namespace tavrin::host::dialect {

/// Numbers with which a database provider reports a refused statement.
namespace provider_error {
inline constexpr std::int32_t ErrorsInCommand = data::error_number::ErrorsInCommand;
inline constexpr std::int32_t IntegrityViolation = data::error_number::IntegrityViolation;
inline constexpr std::int32_t NoCommandText = -2147217908;     ///< 80040E0C
inline constexpr std::int32_t CantConvertValue = -2147217913;  ///< 80040E07: a text that is no date or number
inline constexpr std::int32_t NoTable = -2147217865;           ///< 80040E37
inline constexpr std::int32_t DataOverflow = -2147217833;      ///< 80040E57: too long, too large
inline constexpr std::int32_t NotImplemented = -2147467263;    ///< 80004001: this database's own limits
inline constexpr std::int32_t Unspecified = -2147467259;       ///< 80004005
}  // namespace provider_error

// One maker per refusal, worded as the server words it.
data::Error IncorrectSyntax(std::string_view near);
data::Error IncorrectSyntaxNearKeyword(std::string_view keyword);
data::Error UnclosedQuote(std::string_view text);
data::Error MissingName();
data::Error NameTooLong(std::string_view name);
data::Error NestedTooDeeply();
data::Error UnknownTable(std::string_view name);
data::Error UnknownColumn(std::string_view name);
data::Error UnboundName(std::string_view name);
data::Error UnknownType(std::string_view name);
data::Error DuplicateColumn(std::string_view column, std::string_view table);
data::Error TableExists(std::string_view table);
data::Error ColumnSetTwice(std::string_view column);
data::Error ValueCountMismatch(bool fewerColumns);
data::Error TableValueCountMismatch();
data::Error NotGrouped(std::string_view column);
data::Error OrderByNotSelected();
data::Error OrderByOutOfRange(std::string_view position);
data::Error BadDate();
data::Error DateOutOfRange();
data::Error BadNumber(std::string_view text);
data::Error NumberOutOfRange(std::string_view type);
data::Error TextTruncated();
data::Error NullNotAllowed(std::string_view column, std::string_view table);
data::Error DuplicateKey(std::string_view table);
data::Error NoCommandText();

/// A valid statement, perhaps, but one that the embedded database has not learned.
data::Error NotUnderstood(const std::string& what);

}  // namespace tavrin::host::dialect
