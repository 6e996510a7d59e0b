#include "com/registration.h"

#include <oleauto.h>
#include <olectl.h>
#include <tavrin_interfaces.h>

#include <array>
#include <string>
#include <vector>

#include "win32/variant.h"

namespace tavrin::com {
namespace {

constexpr wchar_t ProgramId[] = L"Tavrin.Utile";

/// One value below HKEY_CLASSES_ROOT; an empty name is the key's own value.
struct Entry {
    std::wstring key;
    std::wstring name;
    std::wstring value;
};

std::wstring TextOf(REFGUID id) {
    std::array<wchar_t, 40> text{};
    StringFromGUID2(id, text.data(), static_cast<int>(text.size()));
    return text.data();
}

/// Keys stand before the keys below them.
std::vector<Entry> Entries(Server& server) {
    const std::wstring path = ModulePath(server.Instance());
    const TLIBATTR types = server.Types().Attributes();
    const std::wstring version =
        std::to_wstring(types.wMajorVerNum) + L"." + std::to_wstring(types.wMinorVerNum);
    const std::wstring classId = TextOf(__uuidof(::Utile));
    const std::wstring classKey = L"CLSID\\" + classId;
    return {
        {ProgramId, L"", ProgramId},
        {std::wstring(ProgramId) + L"\\CLSID", L"", classId},
        {classKey, L"", ProgramId},
        {classKey + L"\\InprocServer32", L"", path},
        {classKey + L"\\InprocServer32", L"ThreadingModel", L"Apartment"},
        {classKey + L"\\ProgID", L"", ProgramId},
        {classKey + L"\\VersionIndependentProgID", L"", ProgramId},
        {classKey + L"\\TypeLib", L"", TextOf(types.guid)},
        {classKey + L"\\Version", L"", version},
    };
}

bool Write(const Entry& entry) {
    const auto size = static_cast<DWORD>((entry.value.size() + 1) * sizeof(wchar_t));
    return RegSetKeyValueW(HKEY_CLASSES_ROOT, entry.key.c_str(), entry.name.c_str(), REG_SZ,
                           entry.value.c_str(), size) == ERROR_SUCCESS;
}

bool Remove(const std::wstring& key) {
    const LSTATUS removed = RegDeleteKeyW(HKEY_CLASSES_ROOT, key.c_str());
    return removed == ERROR_SUCCESS || removed == ERROR_FILE_NOT_FOUND;
}

bool RemoveEntries(Server& server) {
    const std::vector<Entry> entries = Entries(server);
    bool complete = true;
    for (auto entry = entries.rbegin(); entry != entries.rend(); ++entry)
        complete = Remove(entry->key) && complete;
    return complete;
}

bool WriteEntries(Server& server) {
    for (const Entry& entry : Entries(server))
        if (!Write(entry)) return false;
    return true;
}

bool RegisterTypes(Server& server) {
    const win32::ComPtr<ITypeLib> library = server.Types().Library();
    std::wstring path = ModulePath(server.Instance());
    return library && SUCCEEDED(RegisterTypeLib(library.Get(), path.data(), nullptr));
}

bool UnregisterTypes(Server& server) {
    const TLIBATTR types = server.Types().Attributes();
    BSTR path = nullptr;
    const HRESULT registered =
        QueryPathOfRegTypeLib(types.guid, types.wMajorVerNum, types.wMinorVerNum, types.lcid, &path);
    const win32::Bstr owner = win32::Bstr::Attach(path);
    if (FAILED(registered)) return true;
    return SUCCEEDED(
        UnRegisterTypeLib(types.guid, types.wMajorVerNum, types.wMinorVerNum, types.lcid, types.syskind));
}

}  // namespace

HRESULT Register(Server& server) {
    if (!WriteEntries(server)) {
        RemoveEntries(server);
        return SELFREG_E_CLASS;
    }
    if (!RegisterTypes(server)) {
        Unregister(server);
        return SELFREG_E_TYPELIB;
    }
    return S_OK;
}

HRESULT Unregister(Server& server) {
    const bool typesRemoved = UnregisterTypes(server);
    if (!RemoveEntries(server)) return SELFREG_E_CLASS;
    return typesRemoved ? S_OK : SELFREG_E_TYPELIB;
}

}  // namespace tavrin::com
