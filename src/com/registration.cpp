#include "com/registration.h"

#include <olectl.h>

#include <algorithm>
#include <vector>

#include "com/registry_entries.h"
#include "win32/base/module_path.h"

namespace tavrin::com {
namespace {

// Keys of the system's own, which the first class of a user brings along; the last is the user's classes.
constexpr const wchar_t* SharedKeys[] = {L"CLSID", L"Interface", L"TypeLib", L""};

bool WriteAll(const Registry& registry, Part part, const std::wstring& file) {
    return std::ranges::all_of(EntriesOf(part, file),
                               [&](const RegistryEntry& entry) { return registry.Write(entry); });
}

/// With what other tools may have put below.
bool RemoveAll(const Registry& registry, Part part) {
    bool complete = true;
    for (const RegistryEntry& entry : EntriesOf(part, L""))
        complete = registry.RemoveTree(entry.key) && complete;
    return complete;
}

std::wstring ParentOf(const std::wstring& key) {
    return key.substr(0, key.find_last_of(L'\\'));
}

bool NamesAnother(const Registry& registry, Part part, const std::wstring& file) {
    const std::optional<std::wstring> registered = registry.Read(FileKeyOf(part));
    return registered && !win32::IsSamePath(*registered, file);
}

/// The ProgID stays while the other bitness has its class.
bool RemoveClass(const Registry& registry) {
    const bool complete = RemoveAll(registry, Part::Class);
    return registry.IsInOtherView(FileKeyOf(Part::Class)) ? complete
                                                          : RemoveAll(registry, Part::Program) && complete;
}

/// The key of the files goes only when the other bitness has none in it; the rest of the library with it.
bool RemoveTypeLibrary(const Registry& registry) {
    const std::wstring file = FileKeyOf(Part::File);
    if (!registry.Remove(file)) return false;
    if (!registry.Remove(ParentOf(file))) return true;
    const bool complete = RemoveAll(registry, Part::Library);
    registry.RemoveIfEmpty(ParentOf(EntriesOf(Part::Library, L"").front().key));
    return complete;
}

void RemoveSharedKeys(const Registry& registry) {
    for (const wchar_t* key : SharedKeys)
        registry.RemoveIfEmpty(key);
}

}  // namespace

HRESULT Register(const std::wstring& file, Scope scope) {
    const Registry registry(scope);
    HRESULT result = S_OK;
    if (!WriteAll(registry, Part::Program, file) || !WriteAll(registry, Part::Class, file)) {
        result = SELFREG_E_CLASS;
    } else if (!WriteAll(registry, Part::Library, file) || !WriteAll(registry, Part::File, file)) {
        result = SELFREG_E_TYPELIB;
    }
    if (FAILED(result)) Unregister(file, scope);
    return result;
}

HRESULT Unregister(const std::wstring& file, Scope scope) {
    const Registry registry(scope);
    const bool libraryRemoved = NamesAnother(registry, Part::File, file) || RemoveTypeLibrary(registry);
    const bool classRemoved = NamesAnother(registry, Part::Class, file) || RemoveClass(registry);
    if (scope == Scope::User) RemoveSharedKeys(registry);
    if (!classRemoved) return SELFREG_E_CLASS;
    return libraryRemoved ? S_OK : SELFREG_E_TYPELIB;
}

HRESULT ScopeOf(const wchar_t* name, Scope& scope) {
    scope = Scope::Machine;
    if (name == nullptr || *name == L'\0') return S_OK;
    if (lstrcmpiW(name, L"user") != 0) return E_INVALIDARG;
    scope = Scope::User;
    return S_OK;
}

}  // namespace tavrin::com
