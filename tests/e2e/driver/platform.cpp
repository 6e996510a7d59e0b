#include "e2e/driver/platform.h"

#include <windows.h>

#include <array>

namespace tavrin::e2e {

namespace {

DWORD IntegrityLevel() {
    HANDLE token = nullptr;
    if (OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token) == FALSE) return 0;
    alignas(TOKEN_MANDATORY_LABEL) std::array<char, 256> label{};
    DWORD size = 0;
    const BOOL isRead = GetTokenInformation(token, TokenIntegrityLevel, label.data(),
                                            static_cast<DWORD>(label.size()), &size);
    CloseHandle(token);
    if (isRead == FALSE) return 0;
    PSID level = reinterpret_cast<const TOKEN_MANDATORY_LABEL*>(label.data())->Label.Sid;
    return *GetSidSubAuthority(level, *GetSidSubAuthorityCount(level) - 1U);
}

}  // namespace

bool IsWine() {
    return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

bool MayRegisterForMachine() {
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, L"Software\\Classes\\CLSID", 0, KEY_WRITE, &key) != ERROR_SUCCESS)
        return false;
    RegCloseKey(key);
    return true;
}

bool FindsClassesOfOneUser() {
    return !IsWine() && IntegrityLevel() <= SECURITY_MANDATORY_MEDIUM_RID;
}

}  // namespace tavrin::e2e
