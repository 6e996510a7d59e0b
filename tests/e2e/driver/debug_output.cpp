#include "e2e/driver/debug_output.h"

#include <algorithm>
#include <array>
#include <mutex>
#include <string_view>
#include <thread>

#include "e2e/driver/wait.h"
#include "win32/base/text.h"

namespace tavrin::e2e {
namespace {

constexpr std::string_view Prefix = "Tavrin: ";
constexpr DWORD LongestSilence = 30000;

/// Other parts of the process write there as well.
void AddLine(std::vector<std::string>& lines, std::string_view text) {
    if (text.starts_with(Prefix)) lines.emplace_back(text.substr(0, text.find('\n')));
}

/// What the system lays out for one line.
struct SharedLine {
    DWORD process;
    std::array<char, 4096 - sizeof(DWORD)> text;
};

}  // namespace

struct DebugViewer::Reader {
    Reader() {
        mapping = CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, sizeof(SharedLine),
                                     L"DBWIN_BUFFER");
        if (mapping == nullptr || GetLastError() == ERROR_ALREADY_EXISTS) {
            CloseHandle(mapping);
            throw DriverError("there is another viewer of debug output");
        }
        line = static_cast<const SharedLine*>(MapViewOfFile(mapping, FILE_MAP_READ, 0, 0, 0));
        isReady = CreateEventW(nullptr, FALSE, FALSE, L"DBWIN_BUFFER_READY");
        isWritten = CreateEventW(nullptr, FALSE, FALSE, L"DBWIN_DATA_READY");
        isOver = CreateEventW(nullptr, TRUE, FALSE, nullptr);
        thread = std::thread([this] { Read(); });
    }
    ~Reader() {
        SetEvent(isOver);
        thread.join();
        UnmapViewOfFile(line);
        for (const HANDLE handle : {isOver, isWritten, isReady, mapping})
            CloseHandle(handle);
    }
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    void Read() {
        const std::array<HANDLE, 2> either{isOver, isWritten};
        SetEvent(isReady);
        while (WaitForMultipleObjects(2, either.data(), FALSE, INFINITE) != WAIT_OBJECT_0) {
            if (line->process == GetCurrentProcessId()) {
                const std::lock_guard lock(mutex);
                AddLine(lines, line->text.data());
            }
            SetEvent(isReady);
        }
    }

    HANDLE mapping = nullptr;
    HANDLE isReady = nullptr;
    HANDLE isWritten = nullptr;
    HANDLE isOver = nullptr;
    const SharedLine* line = nullptr;
    mutable std::mutex mutex;
    std::vector<std::string> lines;
    std::thread thread;
};

DebugViewer::DebugViewer() : reader_(std::make_unique<Reader>()) {}

DebugViewer::~DebugViewer() = default;

std::vector<std::string> DebugViewer::Lines() const {
    const std::lock_guard lock(reader_->mutex);
    return reader_->lines;
}

std::string DebugViewer::LineWith(const std::string& text) const {
    const std::vector<std::string> lines = Lines();
    const auto found =
        std::ranges::find_if(lines, [&](const auto& line) { return line.find(text) != std::string::npos; });
    return found != lines.end() ? *found : std::string();
}

namespace {

std::string TextOf(HANDLE process, const OUTPUT_DEBUG_STRING_INFO& output) {
    std::string text(output.nDebugStringLength, '\0');
    if (output.fUnicode != 0) {
        std::wstring wide(output.nDebugStringLength, L'\0');
        ReadProcessMemory(process, output.lpDebugStringData, wide.data(), wide.size() * sizeof(wchar_t),
                          nullptr);
        return win32::ToUtf8(wide);
    }
    ReadProcessMemory(process, output.lpDebugStringData, text.data(), text.size(), nullptr);
    return text;
}

/// \return how the process is to go on
DWORD AnswerTo(const DEBUG_EVENT& event) {
    if (event.dwDebugEventCode != EXCEPTION_DEBUG_EVENT) return DBG_CONTINUE;
    const bool isStop = event.u.Exception.ExceptionRecord.ExceptionCode == EXCEPTION_BREAKPOINT;
    return isStop ? DBG_CONTINUE : DBG_EXCEPTION_NOT_HANDLED;
}

std::vector<std::string> ReadToTheEnd(HANDLE process) {
    std::vector<std::string> lines;
    DEBUG_EVENT event{};
    while (WaitForDebugEvent(&event, LongestSilence)) {
        if (event.dwDebugEventCode == OUTPUT_DEBUG_STRING_EVENT)
            AddLine(lines, TextOf(process, event.u.DebugString));
        ContinueDebugEvent(event.dwProcessId, event.dwThreadId, AnswerTo(event));
        if (event.dwDebugEventCode == EXIT_PROCESS_DEBUG_EVENT) return lines;
    }
    TerminateProcess(process, 1);
    throw DriverError("the process under the debugger does not end");
}

}  // namespace

std::vector<std::string> DebugOutputOf(std::wstring command) {
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, DEBUG_ONLY_THIS_PROCESS, nullptr,
                        nullptr, &startup, &process)) {
        throw DriverError("cannot start " + win32::ToUtf8(command));
    }
    const std::unique_ptr<void, decltype(&CloseHandle)> handle(process.hProcess, &CloseHandle);
    const std::unique_ptr<void, decltype(&CloseHandle)> thread(process.hThread, &CloseHandle);
    return ReadToTheEnd(process.hProcess);
}

}  // namespace tavrin::e2e
