#include "verify/child_process.h"

#include <windows.h>

#include <array>
#include <memory>
#include <stdexcept>

#include "win32/base/text.h"

namespace tavrin::verify {

namespace {

constexpr ULONGLONG LongestSilence = 180000;
constexpr DWORD PauseMilliseconds = 20;

struct CloseOwned {
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using OwnedHandle = std::unique_ptr<void, CloseOwned>;

/// Has its variables in this process's environment as long as it lives, for a child to inherit.
class VariablesScope {
  public:
    explicit VariablesScope(const Variables& variables) : variables_(variables) {
        for (const auto& [name, value] : variables_)
            SetEnvironmentVariableW(name.c_str(), value.c_str());
    }
    ~VariablesScope() {
        for (const auto& [name, value] : variables_)
            SetEnvironmentVariableW(name.c_str(), nullptr);
    }
    VariablesScope(const VariablesScope&) = delete;
    VariablesScope& operator=(const VariablesScope&) = delete;

  private:
    const Variables& variables_;
};

struct Pipe {
    OwnedHandle reading;
    OwnedHandle writing;
};

Pipe MakePipe() {
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    HANDLE reading = nullptr;
    HANDLE writing = nullptr;
    if (CreatePipe(&reading, &writing, &inherited, 0) == FALSE)
        throw std::runtime_error("no pipe for a child's output");
    SetHandleInformation(reading, HANDLE_FLAG_INHERIT, 0);
    return {OwnedHandle(reading), OwnedHandle(writing)};
}

OwnedHandle Start(std::wstring command, const Variables& variables, HANDLE output) {
    const VariablesScope scope(variables);
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = startup.hStdError = output;
    PROCESS_INFORMATION process{};
    if (CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup,
                       &process) == FALSE) {
        throw std::runtime_error("cannot start " + win32::ToUtf8(command) + ": " +
                                 win32::SystemMessage(HRESULT_FROM_WIN32(GetLastError())));
    }
    CloseHandle(process.hThread);
    return OwnedHandle(process.hProcess);
}

/// Cuts what comes in pieces into lines.
class Lines {
  public:
    explicit Lines(const std::function<void(std::string_view)>& hear) : hear_(hear) {}
    ~Lines() = default;
    Lines(const Lines&) = delete;
    Lines& operator=(const Lines&) = delete;

    void Add(std::string_view piece) {
        rest_ += piece;
        for (std::size_t end = rest_.find('\n'); end != std::string::npos; end = rest_.find('\n')) {
            hear_(std::string_view(rest_).substr(0, end));
            rest_.erase(0, end + 1);
        }
    }
    void End() {
        if (!rest_.empty()) hear_(rest_);
    }

  private:
    const std::function<void(std::string_view)>& hear_;
    std::string rest_;
};

/// \return whether there was something
bool ReadWhatIsThere(HANDLE pipe, Lines& lines) {
    std::array<char, 4096> piece{};
    DWORD count = 0;
    if (PeekNamedPipe(pipe, nullptr, 0, nullptr, &count, nullptr) == FALSE || count == 0) return false;
    if (ReadFile(pipe, piece.data(), static_cast<DWORD>(piece.size()), &count, nullptr) == FALSE)
        return false;
    lines.Add({piece.data(), count});
    return count > 0;
}

}  // namespace

ChildEnd RunChild(const std::wstring& command, const Variables& variables,
                  const std::function<void(std::string_view line)>& hear) {
    Pipe pipe = MakePipe();
    const OwnedHandle process = Start(command, variables, pipe.writing.get());
    pipe.writing.reset();
    Lines lines(hear);
    ChildEnd end;
    ULONGLONG heard = GetTickCount64();
    for (bool hasEnded = false; !hasEnded;) {
        // Asked before the last look, so that no last words are lost.
        hasEnded = WaitForSingleObject(process.get(), PauseMilliseconds) == WAIT_OBJECT_0;
        while (ReadWhatIsThere(pipe.reading.get(), lines))
            heard = GetTickCount64();
        if (hasEnded || GetTickCount64() - heard < LongestSilence) continue;
        end.wasEnded = true;
        TerminateProcess(process.get(), 1);
        WaitForSingleObject(process.get(), INFINITE);
    }
    lines.End();
    GetExitCodeProcess(process.get(), &end.exitCode);
    return end;
}

}  // namespace tavrin::verify
