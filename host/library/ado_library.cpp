// The stand-in host's Connection and Recordset as a COM library in the place of the system's ADO: the
// examples then connect under Wine as they would to a server. The connection string names the database file
// after "Data Source="; a new file is filled with demo data.

#include <windows.h>

#include <objbase.h>

#include <string>

#include "data/error.h"
#include "host/ado/connection_object.h"
#include "host/ado/live_objects.h"
#include "host/ado/object_factory.h"
#include "host/ado/recordset_object.h"
#include "host/embedded/demo_data.h"
#include "host/library/ado_registration.h"
#include "win32/base/module_path.h"

namespace tavrin::host {
namespace {

HINSTANCE instance = nullptr;

/// \throws data::Error where the connection string names no file
std::shared_ptr<EmbeddedDatabase> OpenNamedDatabase(const std::string& connectionString) {
    const std::string key = "Data Source=";
    const std::size_t start = connectionString.find(key);
    if (start == std::string::npos)
        throw data::Error(E_INVALIDARG, "the connection string has no Data Source");
    const std::size_t from = start + key.size();
    return OpenDemoDatabase(connectionString.substr(from, connectionString.find(';', from) - from));
}

win32::ComPtr<ConnectionObject> MakeConnection() {
    return win32::MakeObject<ConnectionObject>(ConnectionObject::Opener(OpenNamedDatabase));
}

bool IsUnused() {
    const LiveObjects& alive = LiveObjects::Get();
    return alive.connections.Alive() + alive.recordsets.Alive() + alive.fields.Alive() +
               alive.errors.Alive() ==
           0;
}

}  // namespace
}  // namespace tavrin::host

using namespace tavrin::host;

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, void*) noexcept {
    if (reason == DLL_PROCESS_ATTACH) instance = module;
    return TRUE;
}

STDAPI DllCanUnloadNow() {
    return IsUnused() ? S_OK : S_FALSE;
}

STDAPI DllGetClassObject(REFCLSID classId, REFIID id, void** object) try {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (IsEqualCLSID(classId, AdoConnectionClass)) {
        return tavrin::win32::MakeObject<ObjectFactory<ConnectionObject>>(MakeConnection)
            ->QueryInterface(id, object);
    }
    if (IsEqualCLSID(classId, AdoRecordsetClass))
        return tavrin::win32::MakeObject<ObjectFactory<RecordsetObject>>()->QueryInterface(id, object);
    return CLASS_E_CLASSNOTAVAILABLE;
} catch (...) {
    return E_OUTOFMEMORY;
}

STDAPI DllRegisterServer() noexcept try {
    return RegisterAdo(tavrin::win32::ModulePath(instance));
} catch (...) {
    return E_OUTOFMEMORY;
}

STDAPI DllUnregisterServer() noexcept try { return UnregisterAdo(); } catch (...) {
    return E_OUTOFMEMORY;
}
