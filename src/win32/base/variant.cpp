#include "win32/base/variant.h"

#include <new>
#include <utility>

#include "data/error.h"
#include "win32/base/text.h"

namespace tavrin::win32 {
namespace {

[[noreturn]] void ThrowConversion(HRESULT result) {
    if (result == E_OUTOFMEMORY) throw std::bad_alloc();
    if (result == DISP_E_OVERFLOW) throw data::RuntimeError(data::error_number::Overflow);
    throw data::RuntimeError(data::error_number::TypeMismatch);
}

/// MinGW declares sources that are only read without const.
VARIANT* ReadOnly(const VARIANT& source) {
    return const_cast<VARIANT*>(&source);
}

}  // namespace

Bstr::Bstr(std::wstring_view text) : text_(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {
    if (text_ == nullptr) throw std::bad_alloc();
}

Bstr::Bstr(std::string_view utf8) : Bstr(std::wstring_view(ToWide(utf8))) {}

Bstr Bstr::Attach(BSTR text) {
    Bstr owner;
    owner.text_.reset(text);
    return owner;
}

Variant::Variant(std::int16_t number) : Variant() {
    content_.vt = VT_I2;
    content_.iVal = number;
}

Variant::Variant(std::int32_t number) : Variant() {
    content_.vt = VT_I4;
    content_.lVal = number;
}

Variant::Variant(double number) : Variant() {
    content_.vt = VT_R8;
    content_.dblVal = number;
}

Variant::Variant(std::string_view utf8) : Variant() {
    content_.bstrVal = Bstr(utf8).Detach();
    content_.vt = VT_BSTR;
}

Variant::Variant(const ComPtr<IDispatch>& object) : Variant() {
    content_.vt = VT_DISPATCH;
    object.CopyTo(&content_.pdispVal);
}

Variant::Variant(Variant&& other) noexcept : content_(other.Detach()) {}

Variant& Variant::operator=(Variant&& other) noexcept {
    std::swap(content_, other.content_);
    return *this;
}

Variant Variant::Boolean(bool value) {
    Variant result;
    result.content_.vt = VT_BOOL;
    result.content_.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
    return result;
}

Variant Variant::Date(double days) {
    Variant result(days);
    result.content_.vt = VT_DATE;
    return result;
}

Variant Variant::Null() {
    Variant result;
    result.content_.vt = VT_NULL;
    return result;
}

Variant Variant::Missing() {
    Variant result;
    result.content_.vt = VT_ERROR;
    result.content_.scode = DISP_E_PARAMNOTFOUND;
    return result;
}

Variant Variant::Copy(const VARIANT& source) {
    Variant result;
    const HRESULT copied = VariantCopyInd(&result.content_, ReadOnly(source));
    if (FAILED(copied)) ThrowConversion(copied);
    // A reference to a variant may itself hold a reference.
    if ((result.Type() & VT_BYREF) != 0) return Copy(std::as_const(result).content_);
    return result;
}

Variant Variant::Reference(Variant& target) {
    Variant result;
    result.content_.vt = VT_BYREF | VT_VARIANT;
    result.content_.pvarVal = &target.content_;
    return result;
}

VARIANT* Variant::Receive() {
    VariantClear(&content_);
    return &content_;
}

VARIANT Variant::Detach() {
    const VARIANT content = content_;
    VariantInit(&content_);
    return content;
}

Variant Variant::ChangedTo(VARTYPE type, LCID locale) const {
    Variant result;
    const HRESULT changed = VariantChangeTypeEx(&result.content_, ReadOnly(content_), locale, 0, type);
    if (FAILED(changed)) ThrowConversion(changed);
    return result;
}

std::int32_t Variant::ToLong() const {
    return ChangedTo(VT_I4).content_.lVal;
}

bool Variant::ToBoolean() const {
    return ChangedTo(VT_BOOL).content_.boolVal != VARIANT_FALSE;
}

std::string Variant::ToText() const {
    const Variant text = ChangedTo(VT_BSTR);
    return ToUtf8({text.content_.bstrVal, SysStringLen(text.content_.bstrVal)});
}

ComPtr<IDispatch> Variant::ToObject() const {
    if (Type() == VT_DISPATCH) return ComPtr<IDispatch>(content_.pdispVal);
    if (Type() == VT_UNKNOWN) return ComPtr<IUnknown>(content_.punkVal).As<IDispatch>();
    return nullptr;
}

}  // namespace tavrin::win32
