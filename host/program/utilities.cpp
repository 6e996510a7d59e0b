#include "host/program/utilities.h"

#include <combaseapi.h>
#include <oleauto.h>

#include <utility>

#include "data/error.h"
#include "win32/base/text.h"
#include "win32/base/unknown_object.h"
#include "win32/base/variant.h"

namespace tavrin::host {
namespace {

using win32::ComPtr;

void Check(HRESULT result, const std::string& what) {
    if (FAILED(result)) throw data::Error(result, what + ": " + win32::SystemMessage(result));
}

/// Hears `Iesire`.
class EventSink : public win32::UnknownObject<__Utile> {
  public:
    explicit EventSink(std::function<void()> whenLeft) : whenLeft_(std::move(whenLeft)) {}

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) noexcept override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                     UINT*) noexcept override {
        constexpr DISPID iesire = 1;
        if (member != iesire) return DISP_E_MEMBERNOTFOUND;
        whenLeft_();
        return S_OK;
    }

  private:
    std::function<void()> whenLeft_;
};

win32::OwnedModule Load(const std::wstring& dll) {
    win32::OwnedModule module(LoadLibraryW(dll.c_str()));
    if (!module) Check(HRESULT_FROM_WIN32(GetLastError()), win32::ToUtf8(dll));
    return module;
}

template <class Function>
Function* Export(HMODULE module, const char* name) {
    const FARPROC address = GetProcAddress(module, name);
    if (address == nullptr) Check(HRESULT_FROM_WIN32(GetLastError()), name);
    return reinterpret_cast<Function*>(reinterpret_cast<void (*)()>(address));
}

/// For the machine where the user may, else for the user alone.
void Register(const std::wstring& dll) {
    const win32::OwnedModule module = Load(dll);
    if (SUCCEEDED(Export<HRESULT STDAPICALLTYPE()>(module.get(), "DllRegisterServer")())) return;
    Check(Export<HRESULT STDAPICALLTYPE(BOOL, LPCWSTR)>(module.get(), "DllInstall")(TRUE, L"user"),
          "DllInstall");
}

bool CanUnload(HMODULE module) {
    const FARPROC canUnload = GetProcAddress(module, "DllCanUnloadNow");
    return canUnload != nullptr &&
           reinterpret_cast<HRESULT STDAPICALLTYPE (*)()>(reinterpret_cast<void (*)()>(canUnload))() == S_OK;
}

/// What the component said about its last failure.
std::string LastDescription(HRESULT result) {
    ComPtr<IErrorInfo> info;
    if (::GetErrorInfo(0, info.Receive()) != S_OK) return win32::SystemMessage(result);
    BSTR description = nullptr;
    info->GetDescription(&description);
    return win32::ToUtf8(win32::Bstr::Attach(description).View());
}

}  // namespace

Utilities Utilities::FromRegistration(const std::wstring& dll, std::function<void()> whenLeft) {
    Register(dll);
    CLSID classId;
    Check(CLSIDFromProgID(L"Tavrin.Utile", &classId), "Tavrin.Utile");
    ComPtr<_Utile> utile;
    Check(CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, __uuidof(_Utile), utile.ReceiveVoid()),
          "Tavrin.Utile");
    return {nullptr, std::move(utile), std::move(whenLeft)};
}

Utilities Utilities::FromFile(const std::wstring& dll, std::function<void()> whenLeft) {
    win32::OwnedModule module = Load(dll);
    const auto getClassObject =
        Export<HRESULT STDAPICALLTYPE(REFCLSID, REFIID, void**)>(module.get(), "DllGetClassObject");
    ComPtr<IClassFactory> factory;
    Check(getClassObject(__uuidof(Utile), __uuidof(IClassFactory), factory.ReceiveVoid()),
          "DllGetClassObject");
    ComPtr<_Utile> utile;
    Check(factory->CreateInstance(nullptr, __uuidof(_Utile), utile.ReceiveVoid()), "Tavrin.Utile");
    return {std::move(module), std::move(utile), std::move(whenLeft)};
}

Utilities::Utilities(win32::OwnedModule module, ComPtr<_Utile> utile, std::function<void()> whenLeft)
    : module_(std::move(module)), utile_(std::move(utile)) {
    const auto container = utile_.As<IConnectionPointContainer>();
    if (!container) Check(E_NOINTERFACE, "Tavrin.Utile");
    Check(container->FindConnectionPoint(__uuidof(__Utile), events_.Receive()), "Iesire");
    Check(events_->Advise(win32::MakeObject<EventSink>(std::move(whenLeft)).Get(), &cookie_), "Iesire");
}

Utilities::~Utilities() {
    if (events_) events_->Unadvise(cookie_);
    events_.Reset();
    utile_.Reset();
    if (!module_) return;
    // A window that the user has left open still needs the component's code.
    if (!CanUnload(module_.get())) static_cast<void>(module_.release());
}

void Utilities::Apel(const ComPtr<IDispatch>& connection, data::OleDate date, std::int16_t year,
                     std::int32_t company) {
    IDispatch* passed = connection.Get();
    const HRESULT result = utile_->Apel(&passed, date.days, year, company);
    if (FAILED(result)) throw data::Error(result, LastDescription(result));
}

}  // namespace tavrin::host
