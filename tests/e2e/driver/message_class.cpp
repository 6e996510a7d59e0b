#include "e2e/driver/message_class.h"

#include <oleauto.h>
#include <tavrin_interfaces.h>

#include "e2e/driver/component.h"
#include "e2e/driver/wait.h"
#include "win32/base/com_ptr.h"
#include "win32/base/text.h"
#include "win32/base/unknown_object.h"

namespace tavrin::e2e {

namespace {

using win32::ComPtr;

constexpr CLSID MessageClassId = {
    0x0A427BFB, 0x6C7C, 0x4D5D, {0x94, 0xF0, 0x23, 0xFF, 0x29, 0x58, 0xBF, 0x58}};
/// As in the component's own default interface, which lends its description: any will do whose first
/// operation has this number.
constexpr DISPID OperationId = 1;
constexpr UINT OperationArguments = 6;

ComPtr<ITypeInfo> DescribeOperation() {
    ComPtr<ITypeLib> library;
    ComPtr<ITypeInfo> info;
    LoadTypeLibEx(Component::Path().c_str(), REGKIND_NONE, library.Receive());
    if (library) library->GetTypeInfoOfGuid(__uuidof(_Utile), info.Receive());
    return info;
}

class MessageObject final : public win32::UnknownObject<IDispatch> {
  public:
    explicit MessageObject(MessageClass& owner) : owner_(owner) {}

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override {
        *count = 1;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** info) noexcept override {
        return DescribeOperation().CopyTo(info);
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID,
                                            DISPID* ids) noexcept override {
        if (!owner_.knowsName || _wcsicmp(names[0], L"ShowMessage") != 0) return DISP_E_UNKNOWNNAME;
        ids[0] = OperationId;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS* call, VARIANT* result,
                                     EXCEPINFO*, UINT*) noexcept override {
        if (member != OperationId) return DISP_E_MEMBERNOTFOUND;
        if (call->cArgs != OperationArguments) return DISP_E_BADPARAMCOUNT;
        owner_.Note({Text(*call, 0), Number(*call, 1), Number(*call, 2), Text(*call, 3), Number(*call, 4),
                     Number(*call, 5)});
        if (result == nullptr) return S_OK;
        result->vt = VT_I4;
        result->lVal = owner_.answer;
        return S_OK;
    }

  private:
    static VARIANT& At(const DISPPARAMS& call, UINT index) {
        return call.rgvarg[OperationArguments - 1 - index];
    }
    static std::string Text(const DISPPARAMS& call, UINT index) {
        const VARIANT& argument = At(call, index);
        return argument.vt == VT_BSTR ? win32::ToUtf8({argument.bstrVal, SysStringLen(argument.bstrVal)})
                                      : "(none)";
    }
    static long Number(const DISPPARAMS& call, UINT index) {
        const VARIANT& argument = At(call, index);
        return argument.vt == VT_I4 ? argument.lVal : argument.vt == VT_I2 ? argument.iVal : -1;
    }

    MessageClass& owner_;
};

class MessageFactory final : public win32::UnknownObject<IClassFactory> {
  public:
    explicit MessageFactory(MessageClass& owner) : owner_(owner) {}

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID id, void** object) noexcept override {
        ++owner_.created;
        return win32::MakeObject<MessageObject>(owner_)->QueryInterface(id, object);
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) noexcept override { return S_OK; }

  private:
    MessageClass& owner_;
};

}  // namespace

MessageClass::MessageClass() {
    const auto factory = win32::MakeObject<MessageFactory>(*this);
    if (FAILED(CoRegisterClassObject(MessageClassId, factory.Get(), CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE,
                                     &cookie_))) {
        throw DriverError("the message class cannot be registered");
    }
}

MessageClass::~MessageClass() {
    CoRevokeClassObject(cookie_);
}

std::vector<MessageArguments> MessageClass::Messages() const {
    const std::lock_guard lock(mutex_);
    return messages_;
}

void MessageClass::Note(MessageArguments arguments) {
    const std::lock_guard lock(mutex_);
    messages_.push_back(std::move(arguments));
}

}  // namespace tavrin::e2e
