#include "e2e/driver/component.h"

#include "e2e/driver/platform.h"
#include "e2e/driver/wait.h"
#include "win32/base/text.h"

namespace tavrin::e2e {

namespace {
std::wstring componentPath;  // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)
}

Component::Component() : module_(LoadLibraryW(Path().c_str())) {
    if (!module_) throw DriverError("cannot load " + win32::ToUtf8(Path()));
}

const std::wstring& Component::Path() {
    return componentPath;
}

void Component::SetPath(std::wstring path) {
    componentPath = std::move(path);
}

bool Component::IsLoaded() {
    return GetModuleHandleW(L"Tavrin.dll") != nullptr;
}

HRESULT Component::GetClassObject(REFCLSID classId, REFIID interfaceId, void** object) const {
    using Function = HRESULT STDAPICALLTYPE(REFCLSID, REFIID, void**);
    return reinterpret_cast<Function*>(reinterpret_cast<void (*)()>(Export("DllGetClassObject")))(
        classId, interfaceId, object);
}

HRESULT Component::Install(BOOL install, const wchar_t* forWhom) const {
    using Function = HRESULT STDAPICALLTYPE(BOOL, LPCWSTR);
    return reinterpret_cast<Function*>(reinterpret_cast<void (*)()>(Export("DllInstall")))(install, forWhom);
}

HRESULT Component::RegisterAsAllowed() const {
    return MayRegisterForMachine() ? Register() : Install(TRUE, L"user");
}

HRESULT Component::UnregisterAsAllowed() const {
    return MayRegisterForMachine() ? Unregister() : Install(FALSE, L"user");
}

HRESULT Component::Call(const char* name) const {
    using Function = HRESULT STDAPICALLTYPE();
    return reinterpret_cast<Function*>(reinterpret_cast<void (*)()>(Export(name)))();
}

FARPROC Component::Export(const char* name) const {
    const FARPROC address = GetProcAddress(module_.get(), name);
    if (address == nullptr) throw DriverError(std::string("the component does not export ") + name);
    return address;
}

}  // namespace tavrin::e2e
