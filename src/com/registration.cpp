#include "com/registration.h"

#include <olectl.h>

#include <algorithm>
#include <string>
#include <vector>

#include "com/registry_entries.h"

namespace tavrin::com {
namespace {

// Keys of the system's own, which the first class of a user brings along; the last is the user's classes.
constexpr const wchar_t* SharedKeys[] = {L"CLSID", L"Interface", L"TypeLib", L""};

bool WriteAll(const Registry& registry, const std::vector<RegistryEntry>& entries) {
    return std::ranges::all_of(entries, [&](const RegistryEntry& entry) { return registry.Write(entry); });
}

/// With what other tools may have put below.
bool RemoveAll(const Registry& registry, const std::vector<RegistryEntry>& entries) {
    bool complete = true;
    for (const RegistryEntry& entry : entries)
        complete = registry.RemoveTree(entry.key) && complete;
    return complete;
}

std::wstring ParentOf(const std::wstring& key) {
    return key.substr(0, key.find_last_of(L'\\'));
}

/// The key of the files goes only when the other bitness has none in it; the rest of the library with it.
bool RemoveTypeLibrary(const Registry& registry, Server& server) {
    const std::wstring file = TypeLibraryFileKey(server);
    if (!registry.Remove(file)) return false;
    if (!registry.Remove(ParentOf(file))) return true;
    return RemoveAll(registry, TypeLibraryEntries(server));
}

void RemoveSharedKeys(const Registry& registry) {
    for (const wchar_t* key : SharedKeys)
        registry.RemoveIfEmpty(key);
}

}  // namespace

HRESULT Register(Server& server, Scope scope) {
    const Registry registry(scope);
    HRESULT result = S_OK;
    if (!WriteAll(registry, ClassEntries(server))) {
        result = SELFREG_E_CLASS;
    } else if (!WriteAll(registry, InterfaceEntries(server)) ||
               !WriteAll(registry, TypeLibraryEntries(server))) {
        result = SELFREG_E_TYPELIB;
    }
    if (FAILED(result)) Unregister(server, scope);
    return result;
}

HRESULT Unregister(Server& server, Scope scope) {
    const Registry registry(scope);
    const bool libraryRemoved = RemoveTypeLibrary(registry, server);
    const bool interfacesRemoved = RemoveAll(registry, InterfaceEntries(server));
    const bool classRemoved = RemoveAll(registry, ClassEntries(server));
    if (scope == Scope::User) RemoveSharedKeys(registry);
    if (!classRemoved) return SELFREG_E_CLASS;
    return libraryRemoved && interfacesRemoved ? S_OK : SELFREG_E_TYPELIB;
}

HRESULT ScopeOf(const wchar_t* name, Scope& scope) {
    scope = Scope::Machine;
    if (name == nullptr || *name == L'\0') return S_OK;
    if (lstrcmpiW(name, L"user") != 0) return E_INVALIDARG;
    scope = Scope::User;
    return S_OK;
}

}  // namespace tavrin::com
