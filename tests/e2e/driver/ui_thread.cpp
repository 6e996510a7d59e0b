#include "e2e/driver/ui_thread.h"

#include <ole2.h>

#include <atomic>
#include <cstdio>
#include <memory>
#include <utility>
#include <vector>

#include "e2e/driver/screen.h"
#include "e2e/driver/wait.h"

namespace tavrin::e2e {

namespace {

constexpr UINT RunTask = WM_APP;
constexpr UINT RunPosted = WM_APP + 1;
constexpr DWORD Unanswered = 30000;

/// The threads that run now. Only the test's own thread starts and ends them.
std::vector<UiThread*>& Running() {
    static std::vector<UiThread*> threads;
    return threads;
}

class Event {
  public:
    Event() : handle_(CreateEventW(nullptr, TRUE, FALSE, nullptr)) {}
    ~Event() { CloseHandle(handle_); }
    Event(const Event&) = delete;
    Event& operator=(const Event&) = delete;

    HANDLE Get() const { return handle_; }
    void Set() { SetEvent(handle_); }
    bool Wait() const { return WaitForSingleObject(handle_, Unanswered) == WAIT_OBJECT_0; }

  private:
    HANDLE handle_;
};

/// \param how far the thread has come with what it was to do
[[noreturn]] void GiveUp(const char* how) {
    std::fprintf(stderr, "The host's thread does not answer any more: %s.\n", how);
    SaveScreenshot("hang");
    std::fflush(nullptr);
    TerminateProcess(GetCurrentProcess(), 3);
    std::terminate();
}

bool TakenByDialog(MSG& message) {
    const HWND active = GetActiveWindow();
    return active != nullptr && IsDialogMessageW(active, &message);
}

/// Messages by their kinds instead of in their order. \return false at the end
bool TakeInputFirst(MSG& message) {
    for (;;) {
        const bool taken = PeekMessageW(&message, nullptr, WM_KEYFIRST, WM_KEYLAST, PM_REMOVE) ||
                           PeekMessageW(&message, nullptr, WM_MOUSEFIRST, WM_MOUSELAST, PM_REMOVE) ||
                           PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);
        if (taken) return message.message != WM_QUIT;
        WaitMessage();
    }
}

/// A host's own shortcuts, for its own windows alone.
class Accelerators {
  public:
    Accelerators() {
        ACCEL help{FVIRTKEY, VK_F12, 1};
        table_ = CreateAcceleratorTableW(&help, 1);
    }
    ~Accelerators() { DestroyAcceleratorTable(table_); }
    Accelerators(const Accelerators&) = delete;
    Accelerators& operator=(const Accelerators&) = delete;

    bool Take(MSG& message) const {
        constexpr int hooksOfHost = 1;
        const HWND active = GetActiveWindow();
        return CallMsgFilterW(&message, hooksOfHost) ||
               (active != nullptr && TranslateAcceleratorW(active, table_, &message));
    }

  private:
    HACCEL table_;
};

/// Takes the function over.
LRESULT RunAndForget(std::function<void()>& function) {
    const std::unique_ptr<std::function<void()>> owner(&function);
    try {
        function();
    } catch (...) {
        // Nobody waits for it.
    }
    return 0;
}

}  // namespace

struct UiThread::Task {
    const std::function<void()>& function;
    std::exception_ptr failure;
    Event done;
    std::atomic<bool> isBegun = false;
};

UiThread::UiThread(LoopKind kind) {
    const Event ready;
    thread_ = std::thread([this, kind, &ready] { Run(kind, ready.Get()); });
    if (!ready.Wait()) GiveUp("it does not start");
    Running().push_back(this);
}

UiThread::~UiThread() {
    std::erase(Running(), this);
    PostThreadMessageW(id_, WM_QUIT, 0, 0);
    thread_.join();
}

void UiThread::Run(LoopKind kind, HANDLE ready) {
    OleInitialize(nullptr);
    id_ = GetCurrentThreadId();
    gate_ = CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    SetWindowLongPtrW(gate_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&UiThread::Gate));
    SetEvent(ready);

    const Accelerators accelerators;
    MSG message{};
    while (kind == LoopKind::Filtering ? TakeInputFirst(message) : GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (kind == LoopKind::Dialog && TakenByDialog(message)) continue;
        if (kind == LoopKind::Filtering && accelerators.Take(message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    DestroyWindow(gate_);
    OleUninitialize();
}

LRESULT CALLBACK UiThread::Gate(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == RunPosted) return RunAndForget(*reinterpret_cast<std::function<void()>*>(lParam));
    if (message != RunTask) return DefWindowProcW(window, message, wParam, lParam);
    auto& task = *reinterpret_cast<Task*>(lParam);
    task.isBegun = true;
    try {
        task.function();
    } catch (...) {
        task.failure = std::current_exception();
    }
    task.done.Set();
    return 0;
}

void UiThread::Execute(const std::function<void()>& function) {
    if (GetCurrentThreadId() == id_) return function();
    Task task{function, nullptr, {}, {}};
    // Posted, not sent: inside a sent message COM refuses calls to other apartments.
    if (!PostMessageW(gate_, RunTask, 0, reinterpret_cast<LPARAM>(&task))) GiveUp("its window is gone");
    if (!task.done.Wait()) GiveUp(task.isBegun ? "it has not ended" : "it has not begun");
    if (task.failure) std::rethrow_exception(task.failure);
}

void UiThread::Post(std::function<void()> function) {
    auto owner = std::make_unique<std::function<void()>>(std::move(function));
    if (PostMessageW(gate_, RunPosted, 0, reinterpret_cast<LPARAM>(owner.get())))
        static_cast<void>(owner.release());  // the loop's now
}

void UiThread::Settle() {
    const auto isIdle = [] { return HIWORD(GetQueueStatus(QS_INPUT | QS_POSTMESSAGE | QS_PAINT)) == 0; };
    Require("the host's thread to come to rest", [&] { return Call(isIdle); });
}

void UiThread::SettleAll() {
    for (UiThread* thread : Running())
        thread->Settle();
}

}  // namespace tavrin::e2e
