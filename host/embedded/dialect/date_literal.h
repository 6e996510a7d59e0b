#pragma once

#include <string_view>

#include "data/value.h"
#include "host/embedded/dialect/sql_type.h"

namespace tavrin::host::dialect {

/// The date that a text stands for where the server expects one: 'yyyy-mm-dd', 'yyyymmdd', 'mm-dd-yyyy' (the
/// month first, with - / or . between), each with or without 'hh:mm[:ss[.fff]]'; a time alone, or nothing,
/// falls on 1 January 1900. smalldatetime rounds to the minute. \throws data::Error 80040E07 where it is no
/// such text, or lies outside the type's range.
data::OleDate ParseDateLiteral(std::string_view text, TypeKind type);

}  // namespace tavrin::host::dialect
