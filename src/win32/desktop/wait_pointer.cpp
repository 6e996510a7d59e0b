#include "win32/desktop/wait_pointer.h"

#include <algorithm>
#include <array>

#include "win32/base/translation.h"

namespace tavrin::win32 {

namespace {

constexpr LONGLONG TicksPerMillisecond = 10'000;
constexpr LONGLONG DelayMilliseconds = 250;
constexpr DWORD RetryMilliseconds = 100;

FILETIME After(LONGLONG milliseconds) {
    // Negative: counted from now.
    const ULARGE_INTEGER ticks{.QuadPart = static_cast<ULONGLONG>(-milliseconds * TicksPerMillisecond)};
    return {ticks.LowPart, ticks.HighPart};
}

bool IsModifierHeld() {
    constexpr std::array modifiers = {VK_SHIFT, VK_CONTROL, VK_MENU};
    return std::ranges::any_of(modifiers, [](int key) { return GetAsyncKeyState(key) < 0; });
}

/// While it lasts, two threads have the pointer and the keyboard in common.
class SharedInput {
  public:
    explicit SharedInput(DWORD other) : other_(other) {
        MSG none;
        PeekMessageW(&none, nullptr, WM_USER, WM_USER, PM_NOREMOVE);  // gives this thread a queue to share
        isShared_ = AttachThreadInput(GetCurrentThreadId(), other_, TRUE) != FALSE;
    }
    ~SharedInput() {
        if (isShared_) AttachThreadInput(GetCurrentThreadId(), other_, FALSE);
    }
    SharedInput(const SharedInput&) = delete;
    SharedInput& operator=(const SharedInput&) = delete;

    bool IsShared() const { return isShared_; }

  private:
    DWORD other_;
    bool isShared_;
};

}  // namespace

void WaitPointer::Begin() noexcept {
    timer_ = CreateThreadpoolTimer(&WaitPointer::OnTimer, this, nullptr);
    if (timer_ == nullptr) return;
    waiting_ = GetCurrentThreadId();
    before_ = GetCursor();
    isShown_ = false;
    FILETIME due = After(DelayMilliseconds);
    SetThreadpoolTimer(timer_, &due, RetryMilliseconds, 0);
}

void WaitPointer::End() noexcept {
    if (timer_ == nullptr) return;
    SetThreadpoolTimer(timer_, nullptr, 0, 0);
    WaitForThreadpoolTimerCallbacks(timer_, TRUE);
    CloseThreadpoolTimer(timer_);
    timer_ = nullptr;
    if (isShown_) SetCursor(before_);
}

void CALLBACK WaitPointer::OnTimer(PTP_CALLBACK_INSTANCE, void* self, PTP_TIMER) noexcept {
    Translated([self] {
        static_cast<WaitPointer*>(self)->Show();
        return S_OK;
    });
}

void WaitPointer::Show() {
    // To share the input sets the keys of the waiting thread to how they are now. What was typed ahead with
    // one that is held would be read otherwise: the pointer can wait until it is let go.
    if (isShown_ || IsModifierHeld()) return;
    const SharedInput input(waiting_);
    if (!input.IsShared()) return;
    SetCursor(LoadCursorW(nullptr, IDC_WAIT));
    isShown_ = true;
}

}  // namespace tavrin::win32
