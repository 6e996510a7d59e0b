#include "win32/ado/variant_value.h"

#include <windows.h>

#include <oleauto.h>

#include <cstdint>

#include "data/error.h"
#include "win32/base/text.h"
#include "win32/base/variant.h"

namespace tavrin::win32 {
namespace {

constexpr double CurrencyScale = 10000.0;

data::Value Integer(std::int64_t number) {
    return data::Value(number);
}

data::Value FromUnsigned(std::uint64_t number) {
    if (number <= static_cast<std::uint64_t>(INT64_MAX)) return Integer(static_cast<std::int64_t>(number));
    return data::Value(static_cast<double>(number));
}

data::Value FromDecimal(DECIMAL decimal) {
    double number = 0;
    if (FAILED(VarR8FromDec(&decimal, &number))) throw data::RuntimeError(data::error_number::Overflow);
    return data::Value(number);
}

}  // namespace

data::Value ToValue(const VARIANT& variant) {
    switch (variant.vt) {
        case VT_EMPTY:
        case VT_ERROR:
            return {};
        case VT_NULL:
            return data::Null{};
        case VT_I1:
            return Integer(variant.cVal);
        case VT_I2:
            return Integer(variant.iVal);
        case VT_I4:
            return Integer(variant.lVal);
        case VT_INT:
            return Integer(variant.intVal);
        case VT_I8:
            return Integer(variant.llVal);
        case VT_UI1:
            return Integer(variant.bVal);
        case VT_UI2:
            return Integer(variant.uiVal);
        case VT_UI4:
            return Integer(variant.ulVal);
        case VT_UINT:
            return Integer(variant.uintVal);
        case VT_UI8:
            return FromUnsigned(variant.ullVal);
        case VT_BOOL:
            return Integer(variant.boolVal != VARIANT_FALSE ? -1 : 0);
        case VT_R4:
            return data::Value(static_cast<double>(variant.fltVal));
        case VT_R8:
            return data::Value(variant.dblVal);
        case VT_CY:
            return data::Value(static_cast<double>(variant.cyVal.int64) / CurrencyScale);
        case VT_DECIMAL:
            return FromDecimal(variant.decVal);
        case VT_DATE:
            return data::OleDate{variant.date};
        case VT_BSTR:
            return data::Value(ToUtf8({variant.bstrVal, SysStringLen(variant.bstrVal)}));
        default:
            break;
    }
    if ((variant.vt & VT_BYREF) != 0) return ToValue(Variant::Copy(variant).Get());
    throw data::RuntimeError(data::error_number::TypeMismatch);
}

}  // namespace tavrin::win32
