#include "e2e/driver/process.h"

#include <windows.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "e2e/driver/wait.h"
#include "win32/base/text.h"

namespace tavrin::e2e {

namespace {

constexpr DWORD LongestRun = 30000;

class OwnedHandle {
  public:
    ~OwnedHandle() { Close(); }
    OwnedHandle() = default;
    OwnedHandle(const OwnedHandle&) = delete;
    OwnedHandle& operator=(const OwnedHandle&) = delete;

    HANDLE Get() const { return handle_; }
    HANDLE* Receive() { return &handle_; }
    void Close() {
        if (handle_ != nullptr) CloseHandle(handle_);
        handle_ = nullptr;
    }

  private:
    HANDLE handle_ = nullptr;
};

void OpenOutput(const std::wstring& path, OwnedHandle& file) {
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    *file.Receive() =
        CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherited, CREATE_ALWAYS, 0, nullptr);
}

std::string ReadFile(const std::wstring& path) {
    std::ifstream file(std::filesystem::path(path), std::ios::binary);
    std::string text{std::istreambuf_iterator<char>(file), {}};
    std::erase(text, '\r');
    return text;
}

DWORD RunWithOutput(std::wstring command, HANDLE output) {
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = startup.hStdError = output;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup,
                        &process)) {
        throw DriverError("cannot start " + win32::ToUtf8(command));
    }
    OwnedHandle handle, thread;
    *handle.Receive() = process.hProcess;
    *thread.Receive() = process.hThread;
    if (WaitForSingleObject(process.hProcess, LongestRun) != WAIT_OBJECT_0) {
        TerminateProcess(process.hProcess, 1);
        throw DriverError(win32::ToUtf8(command) + " does not end");
    }
    DWORD code = 0;
    GetExitCodeProcess(process.hProcess, &code);
    return code;
}

}  // namespace

std::wstring TemporaryPath(const wchar_t* name) {
    std::array<wchar_t, MAX_PATH> folder{};
    GetTempPathW(static_cast<DWORD>(folder.size()), folder.data());
    return std::wstring(folder.data()) + name;
}

ProcessResult RunProcess(const std::wstring& command) {
    const std::wstring outputPath = TemporaryPath(L"tavrin_e2e.txt");
    OwnedHandle output;
    OpenOutput(outputPath, output);
    ProcessResult result;
    result.exitCode = RunWithOutput(command, output.Get());
    output.Close();
    result.output = ReadFile(outputPath);
    DeleteFileW(outputPath.c_str());
    return result;
}

}  // namespace tavrin::e2e
