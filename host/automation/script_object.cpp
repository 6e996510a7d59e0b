#include "host/automation/script_object.h"

#include <new>

#include "win32/base/text.h"

namespace tavrin::host {
namespace {

using win32::Bstr;
using win32::Variant;

constexpr IID NativeId = {0x733f7ab6, 0x0b04, 0x4931, {0x8e, 0x37, 0x60, 0x6e, 0xe4, 0xd2, 0x3a, 0xe1}};

/// Runtime errors travel in the low word of a control's error, as a real provider sends them.
HRESULT ResultOf(std::int32_t number) {
    return number < 0 ? number : MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, number);
}

HRESULT Report(const data::Error& error, EXCEPINFO* exception) {
    if (exception != nullptr) {
        *exception = {};
        exception->scode = ResultOf(error.Number());
        exception->bstrSource = Bstr(std::string_view("Tavrin host")).Detach();
        exception->bstrDescription = Bstr(std::string_view(error.what())).Detach();
    }
    return DISP_E_EXCEPTION;
}

bool SameName(const wchar_t* one, const wchar_t* other) {
    return CompareStringOrdinal(one, -1, other, -1, TRUE) == CSTR_EQUAL;
}

/// The only named argument is the value of a property that is set.
bool HasOtherNames(const DISPPARAMS& call) {
    if (call.cNamedArgs == 0) return false;
    return call.cNamedArgs != 1 || call.rgdispidNamedArgs[0] != DISPID_PROPERTYPUT;
}

}  // namespace

HRESULT ScriptObject::QueryInterface(REFIID id, void** object) noexcept {
    if (object == nullptr || !IsEqualIID(id, NativeId)) return UnknownObject::QueryInterface(id, object);
    *object = this;
    AddRef();
    return S_OK;
}

win32::ComPtr<ScriptObject> ScriptObject::From(const win32::ComPtr<IDispatch>& object) {
    win32::ComPtr<ScriptObject> native;
    if (object) object->QueryInterface(NativeId, native.ReceiveVoid());
    return native;
}

HRESULT ScriptObject::GetTypeInfoCount(UINT* count) noexcept {
    if (count == nullptr) return E_POINTER;
    *count = 0;
    return S_OK;
}

HRESULT ScriptObject::GetTypeInfo(UINT, LCID, ITypeInfo** info) noexcept {
    if (info == nullptr) return E_POINTER;
    *info = nullptr;
    return DISP_E_BADINDEX;
}

HRESULT ScriptObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) noexcept {
    if (names == nullptr || ids == nullptr || count == 0) return E_POINTER;
    for (UINT i = 0; i < count; ++i)
        ids[i] = DISPID_UNKNOWN;
    for (const Member& member : Members()) {
        if (!SameName(member.name, names[0])) continue;
        ids[0] = member.id;
        return count == 1 ? S_OK : DISP_E_UNKNOWNNAME;  // parameters go by their order alone
    }
    return DISP_E_UNKNOWNNAME;
}

HRESULT ScriptObject::Invoke(DISPID id, REFIID, LCID, WORD kind, DISPPARAMS* call, VARIANT* result,
                             EXCEPINFO* exception, UINT*) noexcept try {
    if (result != nullptr) VariantInit(result);
    if (call == nullptr) return E_POINTER;
    const Member* member = Find(id, kind);
    if (member == nullptr) return DISP_E_MEMBERNOTFOUND;
    if (HasOtherNames(*call)) return DISP_E_NONAMEDARGS;
    if (call->cArgs > member->maxArguments) return DISP_E_BADPARAMCOUNT;
    // A member may release the last reference to its own object.
    const win32::ComPtr<IDispatch> alive(this);
    try {
        RunMember(*member, *call, result);
        return S_OK;
    } catch (const data::Error& error) {
        OnFailure(error);
        return Report(error, exception);
    }
} catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
} catch (...) {
    return E_UNEXPECTED;
}

const Member* ScriptObject::Find(DISPID id, WORD kind) const {
    if ((kind & DISPATCH_PROPERTYPUTREF) != 0) kind |= DISPATCH_PROPERTYPUT;
    for (const Member& member : Members())
        if (member.id == id && (static_cast<WORD>(member.access) & kind) != 0) return &member;
    return nullptr;
}

void ScriptObject::RunMember(const Member& member, const DISPPARAMS& call, VARIANT* result) {
    OnUse(member);
    Variant answer = member.run(*this, CallArguments(call));
    if (result != nullptr) *result = answer.Detach();
}

}  // namespace tavrin::host
