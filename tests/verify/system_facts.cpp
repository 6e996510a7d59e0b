#include "verify/system_facts.h"

#include <windows.h>

#include <winternl.h>

#include <array>

#include "verify/kit_files.h"
#include "win32/base/library.h"
#include "win32/base/text.h"
#include "win32/program/elevation.h"

namespace tavrin::verify {

namespace {

std::string RegistryText(const wchar_t* name) {
    std::array<wchar_t, 128> value{};
    auto size = static_cast<DWORD>(sizeof value);
    const LSTATUS read = RegGetValueW(HKEY_LOCAL_MACHINE, L"Software\\Microsoft\\Windows NT\\CurrentVersion",
                                      name, RRF_RT_REG_SZ, nullptr, value.data(), &size);
    return read == ERROR_SUCCESS ? win32::ToUtf8(value.data()) : "";
}

/// What the kernel says, whatever the program's manifest claims to know.
std::string WindowsVersion() {
    RTL_OSVERSIONINFOW version{};
    version.dwOSVersionInfoSize = sizeof version;
    const win32::SystemFunction<LONG WINAPI(RTL_OSVERSIONINFOW*)> ask(L"ntdll.dll", "RtlGetVersion");
    if (ask) ask(&version);
    return RegistryText(L"ProductName") + " " + RegistryText(L"DisplayVersion") + ", " +
           std::to_string(version.dwMajorVersion) + "." + std::to_string(version.dwMinorVersion) + "." +
           std::to_string(version.dwBuildNumber);
}

std::string WineVersion() {
    const win32::SystemFunction<const char * CDECL()> ask(L"ntdll.dll", "wine_get_version");
    return ask ? ask() : "no";
}

std::string Bitness() {
    SYSTEM_INFO info{};
    GetNativeSystemInfo(&info);
    const bool is32 = info.wProcessorArchitecture == PROCESSOR_ARCHITECTURE_INTEL;
    const bool isArm = info.wProcessorArchitecture == PROCESSOR_ARCHITECTURE_ARM64;
    return std::string(is32 ? "32-bit" : "64-bit") + (isArm ? " (ARM)" : "") + " system, " +
           std::to_string(8 * sizeof(void*)) + "-bit programs";
}

/// This program knows nothing of resolutions, so the system may tell it smaller sizes than there are.
std::string Display() {
    const HDC screen = GetDC(nullptr);
    const int told = GetDeviceCaps(screen, HORZRES);
    const int real = GetDeviceCaps(screen, DESKTOPHORZRES);
    const std::string sizes = std::to_string(real) + " by " +
                              std::to_string(GetDeviceCaps(screen, DESKTOPVERTRES)) + " pixels, told " +
                              std::to_string(told) + " by " + std::to_string(GetDeviceCaps(screen, VERTRES)) +
                              " at " + std::to_string(GetDeviceCaps(screen, LOGPIXELSX)) + " DPI, " +
                              std::to_string(GetDeviceCaps(screen, BITSPIXEL)) +
                              " bits; displays: " + std::to_string(GetSystemMetrics(SM_CMONITORS));
    ReleaseDC(nullptr, screen);
    return sizes + (GetSystemMetrics(SM_REMOTESESSION) != 0 ? "; a remote session" : "");
}

std::string Locale() {
    std::array<wchar_t, LOCALE_NAME_MAX_LENGTH> name{};
    GetUserDefaultLocaleName(name.data(), static_cast<int>(name.size()));
    std::array<wchar_t, KL_NAMELENGTH> keyboard{};
    GetKeyboardLayoutNameW(keyboard.data());
    std::array<wchar_t, 8> decimal{};
    GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_SDECIMAL, decimal.data(),
                    static_cast<int>(decimal.size()));
    return win32::ToUtf8(name.data()) + ", decimal sign " + win32::ToUtf8(decimal.data()) + ", code pages " +
           std::to_string(GetACP()) + " and " + std::to_string(GetOEMCP()) + ", keyboard " +
           win32::ToUtf8(keyboard.data()) + ", Windows in language " +
           std::to_string(GetUserDefaultUILanguage());
}

std::string Now() {
    SYSTEMTIME now{};
    GetSystemTime(&now);
    char text[32];
    std::snprintf(text, sizeof text, "%04u-%02u-%02u %02u:%02u UTC", now.wYear, now.wMonth, now.wDay,
                  now.wHour, now.wMinute);
    return text;
}

}  // namespace

bool IsWine() {
    return WineVersion() != "no";
}

std::vector<Fact> ReadSystemFacts() {
    return {{"Time", Now()},
            {"Windows", WindowsVersion()},
            {"Wine", WineVersion()},
            {"Bitness", Bitness()},
            {"Display", Display()},
            {"Locale", Locale()},
            {"Administrator", win32::IsElevated() ? "yes" : "no"},
            {"Tavrin.dll", FileVersion(L"Tavrin.dll")}};
}

}  // namespace tavrin::verify
