#include "e2e/driver/process_settings.h"

#include <windows.h>

#include <cfloat>
#include <clocale>

#include <array>

#include "win32/base/library.h"
#include "win32/base/text.h"

namespace tavrin::e2e {

namespace {

/// A function of user32 that gives one number; -1 where the system lacks it.
template <class Result = INT_PTR>
std::string UserNumber(const char* name) {
    const win32::SystemFunction<Result WINAPI()> ask(L"user32.dll", name);
    return ask ? std::to_string(ask()) : "-1";
}

std::string ActivationContextNumber() {
    HANDLE context = nullptr;
    if (GetCurrentActCtx(&context) == FALSE) return "none";
    std::string number = std::to_string(reinterpret_cast<ULONG_PTR>(context));
    if (context != nullptr) ReleaseActCtx(context);
    return number;
}

std::string CurrentDirectory() {
    std::array<wchar_t, 1024> path{};
    GetCurrentDirectoryW(static_cast<DWORD>(path.size()), path.data());
    return win32::ToUtf8(path.data());
}

std::string DllDirectory() {
    std::array<wchar_t, 1024> path{};
    GetDllDirectoryW(static_cast<DWORD>(path.size()), path.data());
    return win32::ToUtf8(path.data());
}

std::string Environment() {
    wchar_t* const block = GetEnvironmentStringsW();
    std::string all;
    for (const wchar_t* entry = block; *entry != L'\0'; entry += lstrlenW(entry) + 1)
        all += win32::ToUtf8(entry) + "\n";
    FreeEnvironmentStringsW(block);
    return all;
}

/// Setting one is the only way to ask for it.
std::string ExceptionFilter() {
    const auto filter = SetUnhandledExceptionFilter(nullptr);
    SetUnhandledExceptionFilter(filter);
    return std::to_string(reinterpret_cast<ULONG_PTR>(filter));
}

}  // namespace

ProcessSettings ReadProcessSettings() {
    return {
        {"activation context", ActivationContextNumber()},
        {"C locale", std::setlocale(LC_ALL, nullptr)},
        {"current directory", CurrentDirectory()},
        {"DLL directory", DllDirectory()},
        {"environment", Environment()},
        {"error mode", std::to_string(GetErrorMode())},
        {"exception filter", ExceptionFilter()},
        {"floating-point control", std::to_string(_controlfp(0, 0))},
        {"is DPI aware", UserNumber<BOOL>("IsProcessDPIAware")},
        {"priority", std::to_string(GetPriorityClass(GetCurrentProcess()))},
        {"thread DPI awareness", UserNumber("GetThreadDpiAwarenessContext")},
        {"thread locale", std::to_string(GetThreadLocale())},
        {"thread priority", std::to_string(GetThreadPriority(GetCurrentThread()))},
    };
}

}  // namespace tavrin::e2e
