#include "com/apel_arguments.h"

#include <oleauto.h>

#include <array>
#include <optional>

#include "data/error.h"
#include "win32/base/variant.h"

namespace tavrin::com {
namespace {

using win32::Variant;

constexpr std::size_t ParameterCount = 4;

/// Where each parameter lies in the call's array, which holds named arguments first and the others backwards.
using Places = std::array<std::optional<UINT>, ParameterCount>;

HRESULT FindPlaces(const DISPPARAMS& call, Places& places, UINT& badArgument) {
    if (call.cArgs != ParameterCount || call.cNamedArgs > call.cArgs) return DISP_E_BADPARAMCOUNT;
    if (call.rgvarg == nullptr || (call.cNamedArgs > 0 && call.rgdispidNamedArgs == nullptr))
        return E_POINTER;
    for (UINT place = 0; place < call.cArgs; ++place) {
        badArgument = place;
        const bool isNamed = place < call.cNamedArgs;
        const auto parameter =
            isNamed ? static_cast<UINT>(call.rgdispidNamedArgs[place]) : call.cArgs - 1 - place;
        if (parameter >= ParameterCount) return DISP_E_PARAMNOTFOUND;
        if (places[parameter]) return DISP_E_PARAMNOTOPTIONAL;  // given twice, so another one is missing
        places[parameter] = place;
    }
    return S_OK;
}

bool IsDangling(const VARIANT& argument) {
    return (argument.vt & VT_BYREF) != 0 && argument.byref == nullptr;
}

HRESULT Unwrap(const VARIANT& argument, Variant& plain) {
    if (IsDangling(argument)) return DISP_E_TYPEMISMATCH;
    if (argument.vt == (VT_BYREF | VT_VARIANT) && IsDangling(*argument.pvarVal)) return DISP_E_TYPEMISMATCH;
    try {
        plain = Variant::Copy(argument);
    } catch (const data::Error&) {
        return DISP_E_TYPEMISMATCH;
    }
    return plain.IsMissing() ? DISP_E_PARAMNOTOPTIONAL : S_OK;
}

HRESULT Read(const Variant& plain, LCID, win32::ComPtr<IDispatch>& object) {
    object = plain.ToObject();
    if (object) return S_OK;
    const bool isNothing = (plain.Type() == VT_DISPATCH && plain.Get().pdispVal == nullptr) ||
                           (plain.Type() == VT_UNKNOWN && plain.Get().punkVal == nullptr);
    return isNothing ? S_OK : DISP_E_TYPEMISMATCH;
}

HRESULT Change(const Variant& plain, LCID locale, VARTYPE type, Variant& changed) {
    VARIANT source = plain.Get();  // a view: the call declares what it only reads without const
    return VariantChangeTypeEx(changed.Receive(), &source, locale, 0, type);
}

HRESULT Read(const Variant& plain, LCID locale, data::OleDate& date) {
    Variant changed;
    const HRESULT result = Change(plain, locale, VT_DATE, changed);
    if (SUCCEEDED(result)) date.days = changed.Get().date;
    return result;
}

HRESULT Read(const Variant& plain, LCID locale, std::int16_t& number) {
    Variant changed;
    const HRESULT result = Change(plain, locale, VT_I2, changed);
    if (SUCCEEDED(result)) number = changed.Get().iVal;
    return result;
}

HRESULT Read(const Variant& plain, LCID locale, std::int32_t& number) {
    Variant changed;
    const HRESULT result = Change(plain, locale, VT_I4, changed);
    if (SUCCEEDED(result)) number = changed.Get().lVal;
    return result;
}

template <class Target>
HRESULT ReadAt(const DISPPARAMS& call, UINT place, LCID locale, Target& target, UINT& badArgument) {
    badArgument = place;
    Variant plain;
    const HRESULT unwrapped = Unwrap(call.rgvarg[place], plain);
    return FAILED(unwrapped) ? unwrapped : Read(plain, locale, target);
}

}  // namespace

HRESULT ReadApelArguments(const DISPPARAMS& call, LCID locale, ApelArguments& arguments, UINT& badArgument) {
    Places places;
    HRESULT result = FindPlaces(call, places, badArgument);
    const auto read = [&](std::size_t parameter, auto& target) {
        if (SUCCEEDED(result)) result = ReadAt(call, *places[parameter], locale, target, badArgument);
    };
    read(0, arguments.connection);
    read(1, arguments.workDate);
    read(2, arguments.workYear);
    read(3, arguments.companyId);
    return result;
}

}  // namespace tavrin::com
