#include "win32/desktop/message_service.h"

#include <combaseapi.h>
#include <oaidl.h>

#include "win32/base/text.h"
#include "win32/window/modality.h"

namespace tavrin::win32 {
namespace {

constexpr CLSID ServiceClass = {0x0A427BFB, 0x6C7C, 0x4D5D, {0x94, 0xF0, 0x23, 0xFF, 0x29, 0x58, 0xBF, 0x58}};
constexpr IID ServiceInterface = {
    0x35B26AF6, 0x7638, 0x4943, {0x81, 0x79, 0x78, 0xCF, 0x0B, 0x5B, 0x55, 0x38}};
constexpr wchar_t OperationName[] = L"ShowMessage";

/// The object's own interface, which is a dispatch interface; else whatever it dispatches by default.
ComPtr<IDispatch> CreateService() {
    ComPtr<IUnknown> object;
    if (FAILED(CoCreateInstance(ServiceClass, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER,
                                __uuidof(IUnknown), object.ReceiveVoid())))
        return nullptr;
    ComPtr<IUnknown> ownInterface;
    object->QueryInterface(ServiceInterface, ownInterface.ReceiveVoid());
    ComPtr<IDispatch> dispatch = ownInterface.As<IDispatch>();
    return dispatch ? dispatch : object.As<IDispatch>();
}

/// Owns a description that a type information lends.
class FunctionDescription {
  public:
    FunctionDescription(ITypeInfo& info, UINT index) : info_(info) {
        info_.GetFuncDesc(index, &description_);
    }
    ~FunctionDescription() {
        if (description_ != nullptr) info_.ReleaseFuncDesc(description_);
    }
    FunctionDescription(const FunctionDescription&) = delete;
    FunctionDescription& operator=(const FunctionDescription&) = delete;

    /// The methods that every dispatch interface has are restricted; properties are no operations.
    bool IsOperation() const {
        return description_ != nullptr && description_->invkind == INVOKE_FUNC &&
               (description_->wFuncFlags & FUNCFLAG_FRESTRICTED) == 0;
    }
    bool Exists() const { return description_ != nullptr; }
    DISPID Id() const { return description_->memid; }

  private:
    ITypeInfo& info_;
    FUNCDESC* description_ = nullptr;
};

/// \throws data::Error where the object describes no method
DISPID FirstOperation(IDispatch& object) {
    ComPtr<ITypeInfo> info;
    object.GetTypeInfo(0, LOCALE_USER_DEFAULT, info.Receive());
    for (UINT index = 0; info; ++index) {
        const FunctionDescription function(*info, index);
        if (!function.Exists()) break;
        if (function.IsOperation()) return function.Id();
    }
    throw data::Error(DISP_E_MEMBERNOTFOUND, SystemMessage(DISP_E_MEMBERNOTFOUND));
}

}  // namespace

MessageService::MessageService(const forms::Desktop& desktop)
    : desktop_(desktop), service_(CreateService()) {}

int MessageService::ShowMessage(const std::string& prompt, int icon, int buttons, const std::string& title) {
    return service_ ? ShowByService(prompt, icon, buttons, title)
                    : ShowByPlatform(prompt, icon, buttons, title);
}

int MessageService::ShowByService(const std::string& prompt, int icon, int buttons,
                                  const std::string& title) const {
    const Variant text(prompt);
    const Variant caption(title);
    const Variant none(std::int32_t{0});
    const std::optional<DISPID> named = service_.Find(OperationName);
    const DISPID id = named ? *named : FirstOperation(*service_.Object());
    return service_
        .CallById(id, text, Variant(std::int32_t{icon}), Variant(std::int32_t{buttons}), caption, none, none)
        .ToLong();
}

int MessageService::ShowByPlatform(const std::string& prompt, int icon, int buttons,
                                   const std::string& title) const {
    const HWND owner = OwnerOfMessage(desktop_, GetActiveWindow());
    const UINT style = static_cast<UINT>(icon) | static_cast<UINT>(buttons) | MB_TOPMOST | MB_SETFOREGROUND;
    return MessageBoxW(owner, ToWide(prompt).c_str(), ToWide(title).c_str(), style);
}

}  // namespace tavrin::win32
