#pragma once

#include "data/value.h"
#include "host/embedded/field_type.h"
#include "win32/base/variant.h"

namespace tavrin::host {

/// A field's value in the type in which a provider gives it: Long, Double, Currency, Date or String.
win32::Variant ToVariant(const data::Value& value, FieldType type);

/// ADO's code for a field's type (DataTypeEnum).
std::int32_t DataTypeOf(FieldType type);

}  // namespace tavrin::host
