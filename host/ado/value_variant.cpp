#include "host/ado/value_variant.h"

namespace tavrin::host {

using win32::Variant;

Variant ToVariant(const data::Value& value, FieldType type) {
    if (value.IsNull() || value.IsEmpty()) return Variant::Null();
    switch (type) {
        case FieldType::Integer:
            return Variant(value.ToDouble()).ChangedTo(VT_I4);
        case FieldType::Double:
            return Variant(value.ToDouble());
        case FieldType::Money:
            return Variant(value.ToDouble()).ChangedTo(VT_CY);
        case FieldType::DateTime:
            return Variant::Date(value.ToDate().days);
        case FieldType::Text:
            break;
    }
    return Variant(std::string_view(value.ToText()));
}

std::int32_t DataTypeOf(FieldType type) {
    switch (type) {
        case FieldType::Integer:
            return 3;
        case FieldType::Double:
            return 5;
        case FieldType::Money:
            return 6;
        case FieldType::DateTime:
            return 135;
        case FieldType::Text:
            break;
    }
    return 202;
}

}  // namespace tavrin::host
