#include "e2e/driver/ui_thread.h"

#include <ole2.h>

#include <cstdio>
#include <vector>

#include "e2e/driver/screen.h"
#include "e2e/driver/wait.h"

namespace tavrin::e2e {

namespace {

constexpr UINT RunTask = WM_APP;
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

[[noreturn]] void GiveUp() {
    std::fprintf(stderr, "The host's thread does not answer any more.\n");
    SaveScreenshot("hang");
    std::fflush(nullptr);
    TerminateProcess(GetCurrentProcess(), 3);
    std::terminate();
}

bool TakenByDialog(MSG& message) {
    const HWND active = GetActiveWindow();
    return active != nullptr && IsDialogMessageW(active, &message);
}

}  // namespace

struct UiThread::Task {
    const std::function<void()>& function;
    std::exception_ptr failure;
    Event done;
};

UiThread::UiThread(LoopKind kind) {
    const Event ready;
    thread_ = std::thread([this, kind, &ready] { Run(kind, ready.Get()); });
    if (!ready.Wait()) GiveUp();
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

    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (kind == LoopKind::Dialog && TakenByDialog(message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    DestroyWindow(gate_);
    OleUninitialize();
}

LRESULT CALLBACK UiThread::Gate(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != RunTask) return DefWindowProcW(window, message, wParam, lParam);
    auto& task = *reinterpret_cast<Task*>(lParam);
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
    Task task{function, nullptr, {}};
    // Posted, not sent: inside a sent message COM refuses calls to other apartments.
    PostMessageW(gate_, RunTask, 0, reinterpret_cast<LPARAM>(&task));
    if (!task.done.Wait()) GiveUp();
    if (task.failure) std::rethrow_exception(task.failure);
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
