#include "e2e/driver/late_call.h"

namespace tavrin::e2e {

namespace {

VARIANT OfType(VARTYPE type) {
    VARIANT variant;
    VariantInit(&variant);
    variant.vt = type;
    return variant;
}

VARIANT Reference(VARTYPE type, void* target) {
    VARIANT variant = OfType(static_cast<VARTYPE>(VT_BYREF | type));
    variant.byref = target;
    return variant;
}

HRESULT Call(IDispatch& object, DISPID id, DISPPARAMS& call, UINT* badArgument) {
    VARIANT result = OfType(VT_EMPTY);
    EXCEPINFO exception{};
    UINT place = 0;
    const HRESULT outcome =
        object.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &call, &result, &exception, &place);
    for (BSTR text : {exception.bstrSource, exception.bstrDescription, exception.bstrHelpFile})
        SysFreeString(text);
    VariantClear(&result);
    if (badArgument != nullptr) *badArgument = place;
    return outcome;
}

}  // namespace

HRESULT CallByName(IDispatch& object, const wchar_t* method, const std::vector<VARIANT>& arguments,
                   UINT* badArgument) {
    auto* name = const_cast<wchar_t*>(method);
    DISPID id = 0;
    const HRESULT found = object.GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id);
    if (FAILED(found)) return found;
    std::vector<VARIANT> reversed(arguments.rbegin(), arguments.rend());
    DISPPARAMS call{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
    return Call(object, id, call, badArgument);
}

HRESULT CallWithNamedArguments(IDispatch& object, const wchar_t* method,
                               const std::vector<VARIANT>& arguments, std::vector<const wchar_t*> names) {
    names.insert(names.begin(), method);
    std::vector<DISPID> ids(names.size());
    const HRESULT found =
        object.GetIDsOfNames(IID_NULL, const_cast<LPOLESTR*>(names.data()), static_cast<UINT>(names.size()),
                             LOCALE_USER_DEFAULT, ids.data());
    if (FAILED(found)) return found;
    // Named ones stand first, in the order of their numbers; the others follow backwards.
    const std::size_t unnamed = arguments.size() - (names.size() - 1);
    std::vector<VARIANT> ordered(arguments.begin() + static_cast<std::ptrdiff_t>(unnamed), arguments.end());
    for (std::size_t i = unnamed; i-- > 0;)
        ordered.push_back(arguments[i]);
    DISPPARAMS call{ordered.data(), ids.data() + 1, static_cast<UINT>(ordered.size()),
                    static_cast<UINT>(names.size() - 1)};
    return Call(object, ids[0], call, nullptr);
}

VARIANT ShortArgument(short number) {
    VARIANT variant = OfType(VT_I2);
    variant.iVal = number;
    return variant;
}

VARIANT LongArgument(long number) {
    VARIANT variant = OfType(VT_I4);
    variant.lVal = number;
    return variant;
}

VARIANT DoubleArgument(double number) {
    VARIANT variant = OfType(VT_R8);
    variant.dblVal = number;
    return variant;
}

VARIANT DateArgument(double days) {
    VARIANT variant = OfType(VT_DATE);
    variant.date = days;
    return variant;
}

VARIANT ObjectArgument(IDispatch* object) {
    VARIANT variant = OfType(VT_DISPATCH);
    variant.pdispVal = object;
    return variant;
}

VARIANT TextArgument(BSTR text) {
    VARIANT variant = OfType(VT_BSTR);
    variant.bstrVal = text;
    return variant;
}

VARIANT MissingArgument() {
    VARIANT variant = OfType(VT_ERROR);
    variant.scode = DISP_E_PARAMNOTFOUND;
    return variant;
}

VARIANT NullArgument() {
    return OfType(VT_NULL);
}

VARIANT ReferenceTo(VARIANT& variable) {
    return Reference(VT_VARIANT, &variable);
}

VARIANT ReferenceTo(IDispatch*& object) {
    return Reference(VT_DISPATCH, &object);
}

VARIANT ReferenceTo(short& number) {
    return Reference(VT_I2, &number);
}

VARIANT ReferenceTo(long& number) {
    return Reference(VT_I4, &number);
}

VARIANT ReferenceToDate(double& days) {
    return Reference(VT_DATE, &days);
}

}  // namespace tavrin::e2e
