#include "com/registry.h"

#include "win32/base/handles.h"

namespace tavrin::com {
namespace {

constexpr wchar_t Classes[] = L"Software\\Classes";
constexpr REGSAM OtherView = sizeof(void*) == 8 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;

bool IsGone(LSTATUS removed) {
    return removed == ERROR_SUCCESS || removed == ERROR_FILE_NOT_FOUND;
}

/// Null where there is no such key, or none for us.
win32::OwnedKey Open(HKEY root, const std::wstring& path, REGSAM access) {
    HKEY key = nullptr;
    RegOpenKeyExW(root, path.c_str(), 0, access, &key);
    return win32::OwnedKey(key);
}

bool IsEmpty(HKEY root, const std::wstring& path) {
    const win32::OwnedKey key = Open(root, path, KEY_READ);
    if (!key) return false;
    DWORD keys = 0;
    DWORD values = 0;
    const LSTATUS read = RegQueryInfoKeyW(key.get(), nullptr, nullptr, nullptr, &keys, nullptr, nullptr,
                                          &values, nullptr, nullptr, nullptr, nullptr);
    return read == ERROR_SUCCESS && keys == 0 && values == 0;
}

}  // namespace

bool Registry::Write(const RegistryEntry& entry) const {
    const auto size = static_cast<DWORD>((entry.value.size() + 1) * sizeof(wchar_t));
    return RegSetKeyValueW(Root(), PathOf(entry.key).c_str(), entry.name.c_str(), REG_SZ, entry.value.c_str(),
                           size) == ERROR_SUCCESS;
}

std::optional<std::wstring> Registry::Read(const std::wstring& key) const {
    const std::wstring path = PathOf(key);
    DWORD size = 0;
    if (RegGetValueW(Root(), path.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, nullptr, &size) != ERROR_SUCCESS)
        return std::nullopt;
    std::wstring value(size / sizeof(wchar_t), L'\0');
    if (RegGetValueW(Root(), path.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, value.data(), &size) !=
        ERROR_SUCCESS)
        return std::nullopt;
    value.resize(size / sizeof(wchar_t) - 1);  // without the end
    return value;
}

bool Registry::IsInOtherView(const std::wstring& key) const {
    return Open(Root(), PathOf(key), KEY_READ | OtherView) != nullptr;
}

bool Registry::Remove(const std::wstring& key) const {
    return IsGone(RegDeleteKeyW(Root(), PathOf(key).c_str()));
}

bool Registry::RemoveTree(const std::wstring& key) const {
    return IsGone(RegDeleteTreeW(Root(), PathOf(key).c_str()));
}

void Registry::RemoveIfEmpty(const std::wstring& key) const {
    const std::wstring path = PathOf(key);
    if (IsEmpty(Root(), path)) RegDeleteKeyW(Root(), path.c_str());
}

HKEY Registry::Root() const {
    return scope_ == Scope::User ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE;
}

std::wstring Registry::PathOf(const std::wstring& key) const {
    return key.empty() ? Classes : std::wstring(Classes) + L"\\" + key;
}

}  // namespace tavrin::com
