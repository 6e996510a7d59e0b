#pragma once

#include "host/embedded/embedded_recordset.h"
#include "win32/base/variant.h"

namespace tavrin::host {

/// Up to that many rows from the current one (all that are left where the number is negative) as an array of
/// variants, indexed (field, row); the recordset moves behind them. \throws data::Error 3021 where none is
/// left
win32::Variant TakeRows(EmbeddedRecordset& recordset, std::int64_t rows);

}  // namespace tavrin::host
