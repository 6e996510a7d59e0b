// Usage: tavrin_holder DLL COMMAND LINE
//
// Has a DLL in use, as a host has, while a command runs. Ends with the command's exit code, or with 99 where
// the DLL cannot be loaded or the command cannot be run.

#include <windows.h>

#include <string>

namespace {

constexpr int Failed = 99;

int Run(std::wstring command) {
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                        &process))
        return Failed;
    WaitForSingleObject(process.hProcess, INFINITE);
    DWORD code = Failed;
    GetExitCodeProcess(process.hProcess, &code);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return static_cast<int>(code);
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    if (count < 3 || LoadLibraryW(arguments[1]) == nullptr) return Failed;
    std::wstring command;
    for (int index = 2; index < count; ++index)
        command += std::wstring(arguments[index]) + L" ";
    return Run(std::move(command));
}
