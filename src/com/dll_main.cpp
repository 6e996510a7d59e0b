// The five exports and the one object that stands behind them. Nothing of the component's is done at process
// detach: by then the host's objects and other modules may be gone. The runtime alone gives its memory back.

#include <windows.h>

#include <objbase.h>
#include <tavrin_interfaces.h>

#include <cstddef>
#include <new>
#include <string>

#include "com/class_factory.h"
#include "com/registration.h"
#include "com/runtime_memory.h"
#include "com/runtime_threads.h"
#include "com/server.h"
#include "win32/base/module_path.h"
#include "win32/base/translation.h"

namespace tavrin::com {
namespace {

// Made when the DLL comes, never destroyed: Server::Retire empties it when the component may go. A static of
// a function would be made under a lock, for which the runtime takes memory that it never gives back.
alignas(Server) std::byte serverStorage[sizeof(Server)];
Server* server = nullptr;

Server& TheServer() {
    return *server;
}

std::wstring OwnFile() {
    return tavrin::win32::ModulePath(TheServer().Instance());
}

}  // namespace
}  // namespace tavrin::com

using namespace tavrin::com;

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, void* processEnds) noexcept {
    if (reason == DLL_PROCESS_ATTACH) server = new (serverStorage) Server(module);
    if (reason == DLL_PROCESS_DETACH && processEnds == nullptr) {
        FreeRuntimeMemory();
        FreeRuntimeThreads();
    }
    return TRUE;
}

// The platform declares the first two exports, and without noexcept.
STDAPI DllCanUnloadNow() {
    return tavrin::win32::Translated([] { return TheServer().Retire() ? S_OK : S_FALSE; });
}

STDAPI DllGetClassObject(REFCLSID classId, REFIID id, void** object) {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (!IsEqualCLSID(classId, __uuidof(::Utile))) return CLASS_E_CLASSNOTAVAILABLE;
    return tavrin::win32::Translated(
        [&] { return tavrin::win32::MakeObject<ClassFactory>(TheServer())->QueryInterface(id, object); });
}

STDAPI DllRegisterServer() noexcept {
    return tavrin::win32::Translated([] { return Register(OwnFile(), Scope::Machine); });
}

STDAPI DllUnregisterServer() noexcept {
    return tavrin::win32::Translated([] { return Unregister(OwnFile(), Scope::Machine); });
}

STDAPI DllInstall(BOOL install, LPCWSTR forWhom) noexcept {
    return tavrin::win32::Translated([&] {
        Scope scope{};
        if (const HRESULT named = ScopeOf(forWhom, scope); FAILED(named)) return named;
        return install != FALSE ? Register(OwnFile(), scope) : Unregister(OwnFile(), scope);
    });
}
