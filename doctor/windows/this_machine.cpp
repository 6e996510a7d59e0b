#include "doctor/windows/this_machine.h"

#include <windows.h>

#include <array>
#include <cstdio>

#include "doctor/windows/file_facts.h"
#include "doctor/windows/registrations.h"
#include "win32/base/library.h"
#include "win32/base/text.h"
#include "win32/program/elevation.h"

namespace tavrin::doctor {
namespace {

/// Windows' own version; GetVersionEx tells programs without a manifest an old one.
std::string SystemVersion() {
    const win32::SystemFunction<LONG WINAPI(OSVERSIONINFOW*)> ask(L"ntdll.dll", "RtlGetVersion");
    OSVERSIONINFOW version{};
    version.dwOSVersionInfoSize = sizeof version;
    if (!ask || ask(&version) != 0) return "Windows";
    return "Windows " + std::to_string(version.dwMajorVersion) + "." +
           std::to_string(version.dwMinorVersion) + "." + std::to_string(version.dwBuildNumber);
}

int SystemBits() {
    SYSTEM_INFO system{};
    GetNativeSystemInfo(&system);
    return system.wProcessorArchitecture == PROCESSOR_ARCHITECTURE_INTEL ? 32 : 64;
}

Provider FindProvider(const wchar_t* programId) {
    const std::wstring path = FileOfClass(programId);
    return {win32::ToUtf8(programId), win32::ToUtf8(path), FileVersion(path)};
}

}  // namespace

Origin ThisOrigin() {
    SYSTEMTIME now{};
    GetLocalTime(&now);
    std::array<char, 32> time{};
    std::snprintf(time.data(), time.size(), "%04u-%02u-%02u %02u:%02u:%02u", now.wYear, now.wMonth, now.wDay,
                  now.wHour, now.wMinute, now.wSecond);
    std::array<wchar_t, MAX_COMPUTERNAME_LENGTH + 1> name{};
    DWORD size = static_cast<DWORD>(name.size());
    GetComputerNameW(name.data(), &size);
    return {time.data(), win32::ToUtf8(name.data())};
}

Machine ThisMachine() {
    constexpr int Bits = static_cast<int>(sizeof(void*) * 8);
    Machine machine{SystemVersion(),
                    SystemBits(),
                    Bits,
                    win32::IsElevated(),
                    FindRegistrations(),
                    TryToCreate(),
                    FindProvider(L"ADODB.Connection"),
                    {}};
    for (const wchar_t* const name :
         {L"SQLOLEDB", L"SQLNCLI10", L"SQLNCLI11", L"MSOLEDBSQL", L"MSOLEDBSQL19"})
        machine.providers.push_back(FindProvider(name));
    return machine;
}

}  // namespace tavrin::doctor
