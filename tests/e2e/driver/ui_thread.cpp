#include "e2e/driver/ui_thread.h"

#include <ole2.h>

#include <atomic>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "e2e/driver/screen.h"
#include "e2e/driver/wait.h"

namespace tavrin::e2e {

namespace {

constexpr UINT RunNextTask = WM_APP;
constexpr DWORD Unanswered = 30000;
/// After so many milliseconds without an answer the thread is told once more that there is something to do:
/// Wine's dialogs drop the message they have just taken when another thread's sent message ended them.
constexpr DWORD KnockAgain = 500;

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
    void Set() const { SetEvent(handle_); }
    bool Wait(DWORD milliseconds = Unanswered) const {
        return WaitForSingleObject(handle_, milliseconds) == WAIT_OBJECT_0;
    }

  private:
    HANDLE handle_;
};

/// \param how far the thread has come with what it was to do
[[noreturn]] void GiveUp(const char* how) {
    std::fprintf(stderr, "The host's thread does not answer any more: %s.\n", how);
    const std::string picture = SaveScreenshot("hang-" + std::to_string(GetCurrentProcessId()));
    std::fprintf(stderr, "Its picture: %s\n", picture.c_str());
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

/// Hears of the focus before each key. A display tells in its own time where the keyboard has gone. Where
/// windows open and close faster than that, Wine takes old news for new, and no window has the keyboard any
/// more; keys that were all typed in advance are as fast as that.
class NewsOfDisplayFirst {
  public:
    NewsOfDisplayFirst()
        : hook_(SetWindowsHookExW(WH_GETMESSAGE, &NewsOfDisplayFirst::Hook, nullptr, GetCurrentThreadId())) {}
    ~NewsOfDisplayFirst() { UnhookWindowsHookEx(hook_); }
    NewsOfDisplayFirst(const NewsOfDisplayFirst&) = delete;
    NewsOfDisplayFirst& operator=(const NewsOfDisplayFirst&) = delete;

  private:
    static LRESULT CALLBACK Hook(int code, WPARAM wParam, LPARAM lParam) {
        const UINT message = reinterpret_cast<const MSG*>(lParam)->message;
        const bool isKey = message >= WM_KEYFIRST && message <= WM_KEYLAST;
        if (code == HC_ACTION && wParam == PM_REMOVE && isKey) AskDisplay();
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }

    HHOOK hook_;
};

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

}  // namespace

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
    SetWindowLongPtrW(gate_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    SetWindowLongPtrW(gate_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&UiThread::Gate));
    SetEvent(ready);

    const Accelerators accelerators;
    const NewsOfDisplayFirst newsOfDisplayFirst;
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
    if (message != RunNextTask) return DefWindowProcW(window, message, wParam, lParam);
    reinterpret_cast<UiThread*>(GetWindowLongPtrW(window, GWLP_USERDATA))->RunNext();
    return 0;
}

/// Has the loop take the next task. Posted, not sent: inside a sent message COM refuses calls to other
/// apartments.
void UiThread::Knock() {
    if (!PostMessageW(gate_, RunNextTask, 0, 0)) GiveUp("its window is gone");
}

void UiThread::RunNext() {
    std::function<void()> task;
    {
        const std::scoped_lock guard(lock_);
        if (tasks_.empty()) return;
        task = std::move(tasks_.front());
        tasks_.pop_front();
        // The task may open a modal window, and the others must not wait for its end.
        if (!tasks_.empty()) Knock();
    }
    task();
}

void UiThread::Execute(const std::function<void()>& function) {
    if (GetCurrentThreadId() == id_) return function();
    std::exception_ptr failure;
    const Event done;
    std::atomic<bool> isBegun = false;
    {
        const std::scoped_lock guard(lock_);
        tasks_.emplace_back([&] {
            isBegun = true;
            try {
                function();
            } catch (...) {
                failure = std::current_exception();
            }
            done.Set();
        });
    }
    const ULONGLONG start = GetTickCount64();
    do {
        if (!isBegun) Knock();
    } while (!done.Wait(KnockAgain) && GetTickCount64() - start < Unanswered);
    if (!done.Wait(0)) GiveUp(isBegun ? "it has not ended" : "it has not begun");
    if (failure) std::rethrow_exception(failure);
}

void UiThread::Post(std::function<void()> function) {
    {
        const std::scoped_lock guard(lock_);
        tasks_.emplace_back([function = std::move(function)] {
            try {
                function();
            } catch (...) {
                // Nobody waits for it.
            }
        });
    }
    Knock();
}

void UiThread::Settle() {
    const auto isIdle = [] { return HIWORD(GetQueueStatus(QS_INPUT | QS_POSTMESSAGE | QS_PAINT)) == 0; };
    Require("the host's thread to come to rest", [&] { return Call(isIdle); });
}

void UiThread::SettleAll() {
    for (UiThread* thread : Running())
        thread->Settle();
}

void UiThread::HoldAll(const std::function<void()>& function) {
    HoldFrom(0, function);
}

void UiThread::HoldFrom(std::size_t first, const std::function<void()>& function) {
    if (first == Running().size()) return function();
    Running()[first]->Execute([&] { HoldFrom(first + 1, function); });
}

}  // namespace tavrin::e2e
