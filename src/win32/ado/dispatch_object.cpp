#include "win32/ado/dispatch_object.h"

#include "win32/base/text.h"

namespace tavrin::win32 {
namespace {

/// What an object says about its failure. Owns the texts inside.
class ExceptionInfo {
  public:
    ExceptionInfo() = default;
    ~ExceptionInfo() {
        SysFreeString(info_.bstrSource);
        SysFreeString(info_.bstrDescription);
        SysFreeString(info_.bstrHelpFile);
    }
    ExceptionInfo(const ExceptionInfo&) = delete;
    ExceptionInfo& operator=(const ExceptionInfo&) = delete;

    EXCEPINFO* Receive() { return &info_; }

    [[noreturn]] void Throw() {
        if (info_.pfnDeferredFillIn != nullptr) info_.pfnDeferredFillIn(&info_);
        const HRESULT result = Result();
        const std::wstring_view text(info_.bstrDescription, SysStringLen(info_.bstrDescription));
        if (text.empty()) throw UndescribedError(NumberOf(result), SystemMessage(result));
        throw data::Error(NumberOf(result), ToUtf8(text));
    }

    /// ADO's own errors carry the runtime number in the low word; providers' numbers are kept whole.
    static std::int32_t NumberOf(HRESULT result) {
        const bool isControlError = FAILED(result) && HRESULT_FACILITY(result) == FACILITY_CONTROL;
        return isControlError ? HRESULT_CODE(result) : result;
    }

  private:
    HRESULT Result() const {
        if (info_.scode != 0) return info_.scode;
        return info_.wCode != 0 ? static_cast<HRESULT>(info_.wCode) : DISP_E_EXCEPTION;
    }

    EXCEPINFO info_{};
};

[[noreturn]] void ThrowUnsupported(std::wstring_view member) {
    throw data::RuntimeError(data::error_number::MemberNotSupported, ToUtf8(member));
}

}  // namespace

void DispatchObject::Put(std::wstring_view property, const Variant& value) const {
    VARIANT argument = value.Get();
    DISPID named = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{&argument, &named, 1, 1};
    const bool isObject = value.Type() == VT_DISPATCH;
    Invoke(Resolve(property), isObject ? DISPATCH_PROPERTYPUTREF : DISPATCH_PROPERTYPUT, parameters);
}

std::optional<DISPID> DispatchObject::Find(std::wstring_view member) const {
    DISPID id = DISPID_UNKNOWN;
    return FAILED(TryResolve(member, id)) ? std::nullopt : std::optional(id);
}

DISPID DispatchObject::Resolve(std::wstring_view member) const {
    DISPID id = DISPID_UNKNOWN;
    const HRESULT result = TryResolve(member, id);
    if (result == DISP_E_UNKNOWNNAME) ThrowUnsupported(member);
    if (FAILED(result)) throw UndescribedError(result, SystemMessage(result));
    return id;
}

HRESULT DispatchObject::TryResolve(std::wstring_view member, DISPID& id) const {
    if (!object_) throw data::ObjectNotSet();
    if (const auto known = resolved_.find(member); known != resolved_.end()) {
        id = known->second;
        return S_OK;
    }
    std::wstring name(member);
    LPOLESTR names = name.data();
    const HRESULT result = object_->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id);
    if (SUCCEEDED(result)) resolved_.emplace(std::move(name), id);
    return result;
}

Variant DispatchObject::Invoke(DISPID id, WORD kind, DISPPARAMS& parameters) const {
    if (!object_) throw data::ObjectNotSet();
    // The object may let go of its owner during the call.
    const ComPtr<IDispatch> object = object_;
    Variant result;
    ExceptionInfo exception;
    UINT badArgument = 0;
    const bool isPut = (kind & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
    const HRESULT outcome =
        object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, kind, &parameters,
                       isPut ? nullptr : result.Receive(), exception.Receive(), &badArgument);
    if (outcome == DISP_E_EXCEPTION) exception.Throw();
    if (FAILED(outcome)) throw UndescribedError(ExceptionInfo::NumberOf(outcome), SystemMessage(outcome));
    return result;
}

}  // namespace tavrin::win32
