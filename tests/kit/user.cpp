// Usage: tavrin_user COMMAND LINE
//
// Starts a program that opens the utilities, and does what its user would: sees the palette, closes it, and
// presses OK in the message that the program may show. Ends with the program's exit code, or with 99 where
// something does not appear or does not end.

#include <windows.h>

#include <array>
#include <cstdio>
#include <string>

namespace {

constexpr DWORD PatienceMilliseconds = 30000;
constexpr DWORD PauseMilliseconds = 50;
constexpr int Failed = 99;

bool IsNamed(HWND window, const wchar_t* name) {
    const HANDLE property = GetPropW(window, L"Tavrin.Name");
    std::array<wchar_t, 256> text{};
    return property != nullptr &&
           GlobalGetAtomNameW(static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(property)), text.data(),
                              static_cast<int>(text.size())) != 0 &&
           std::wstring(text.data()) == name;
}

bool IsMessage(HWND window) {
    std::array<wchar_t, 16> text{};
    GetClassNameW(window, text.data(), static_cast<int>(text.size()));
    return std::wstring(text.data()) == L"#32770";
}

struct Search {
    DWORD process;
    bool (*matches)(HWND);
    HWND found = nullptr;
};

BOOL CALLBACK Compare(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<Search*>(parameter);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process != search.process || !IsWindowVisible(window) || !search.matches(window)) return TRUE;
    search.found = window;
    return FALSE;
}

HWND Find(DWORD process, bool (*matches)(HWND)) {
    Search search{process, matches};
    EnumWindows(Compare, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

HWND FindPalette(DWORD process) {
    return Find(process, [](HWND window) { return IsNamed(window, L"Utilitati"); });
}

template <class Condition>
bool Wait(const PROCESS_INFORMATION& program, const Condition& condition) {
    for (DWORD waited = 0; waited < PatienceMilliseconds; waited += PauseMilliseconds) {
        if (condition()) return true;
        if (WaitForSingleObject(program.hProcess, PauseMilliseconds) == WAIT_OBJECT_0) return condition();
    }
    return false;
}

bool HasEnded(const PROCESS_INFORMATION& program) {
    if (const HWND message = Find(program.dwProcessId, IsMessage)) PostMessageW(message, WM_CLOSE, 0, 0);
    return WaitForSingleObject(program.hProcess, 0) == WAIT_OBJECT_0;
}

int Fail(const PROCESS_INFORMATION& program, const char* what) {
    std::printf("user: %s\n", what);
    TerminateProcess(program.hProcess, Failed);
    return Failed;
}

int Use(const PROCESS_INFORMATION& program) {
    const DWORD id = program.dwProcessId;
    if (!Wait(program, [&] { return FindPalette(id) != nullptr; })) return Fail(program, "sees no palette");
    RECT place{};
    GetWindowRect(FindPalette(id), &place);
    std::printf("user: sees the palette, %ld by %ld\n", place.right - place.left, place.bottom - place.top);
    PostMessageW(FindPalette(id), WM_CLOSE, 0, 0);
    if (!Wait(program, [&] { return FindPalette(id) == nullptr; })) return Fail(program, "cannot close it");
    if (!Wait(program, [&] { return HasEnded(program); })) return Fail(program, "waits for its end");
    DWORD code = Failed;
    GetExitCodeProcess(program.hProcess, &code);
    return static_cast<int>(code);
}

/// The command line without this program's own name.
std::wstring CommandToRun() {
    const std::wstring line = GetCommandLineW();
    const std::size_t end = line.front() == L'"' ? line.find(L'"', 1) + 1 : line.find(L' ');
    return line.substr(line.find_first_not_of(L' ', end));
}

}  // namespace

int wmain(int count, wchar_t**) {
    if (count < 2) return Failed;
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    std::wstring command = CommandToRun();
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION program{};
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup,
                        &program)) {
        std::printf("user: cannot start it (%lu)\n", GetLastError());
        return Failed;
    }
    const int code = Use(program);
    CloseHandle(program.hThread);
    CloseHandle(program.hProcess);
    return code;
}
