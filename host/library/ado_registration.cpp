#include "host/library/ado_registration.h"

#include <objbase.h>

#include <array>

#include "host/ado/object_factory.h"

namespace tavrin::host {
namespace {

constexpr std::array Classes{AdoConnectionClass, AdoRecordsetClass};
constexpr wchar_t Former[] = L"TavrinFormer";  ///< the name under which the system's own library waits

std::wstring ServerKey(REFCLSID id) {
    std::array<wchar_t, 40> text{};
    StringFromGUID2(id, text.data(), static_cast<int>(text.size()));
    return std::wstring(L"Software\\Classes\\CLSID\\") + text.data() + L"\\InprocServer32";
}

/// Empty where there is no such value.
std::wstring Read(const std::wstring& key, const wchar_t* name) {
    std::array<wchar_t, 1024> value{};
    auto size = static_cast<DWORD>(sizeof value);
    const LSTATUS read =
        RegGetValueW(HKEY_LOCAL_MACHINE, key.c_str(), name, RRF_RT_REG_SZ, nullptr, value.data(), &size);
    return read == ERROR_SUCCESS ? value.data() : L"";
}

HRESULT Write(const std::wstring& key, const wchar_t* name, const std::wstring& value) {
    const auto size = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
    const LSTATUS written =
        RegSetKeyValueW(HKEY_LOCAL_MACHINE, key.c_str(), name, REG_SZ, value.c_str(), size);
    return HRESULT_FROM_WIN32(static_cast<DWORD>(written));
}

HRESULT Replace(const std::wstring& key, const std::wstring& library) {
    const std::wstring system = Read(key, L"");
    if (system.empty()) return REGDB_E_CLASSNOTREG;
    HRESULT result = S_OK;
    if (Read(key, Former).empty()) result = Write(key, Former, system);
    return FAILED(result) ? result : Write(key, L"", library);
}

HRESULT Restore(const std::wstring& key) {
    const std::wstring system = Read(key, Former);
    if (system.empty()) return S_OK;
    const HRESULT result = Write(key, L"", system);
    RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, key.c_str(), Former);
    return result;
}

}  // namespace

HRESULT RegisterAdo(const std::wstring& library) {
    HRESULT result = S_OK;
    for (const CLSID& id : Classes)
        if (SUCCEEDED(result)) result = Replace(ServerKey(id), library);
    if (FAILED(result)) UnregisterAdo();
    return result;
}

HRESULT UnregisterAdo() {
    HRESULT result = S_OK;
    for (const CLSID& id : Classes)
        if (const HRESULT restored = Restore(ServerKey(id)); FAILED(restored)) result = restored;
    return result;
}

}  // namespace tavrin::host
