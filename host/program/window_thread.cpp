#include "host/program/window_thread.h"

#include "data/error.h"
#include "host/pictures/screen_picture.h"

namespace tavrin::host {
namespace {

constexpr UINT RunMessage = WM_APP;
constexpr ULONGLONG IdlenessPatienceMilliseconds = 20000;
constexpr DWORD PauseMilliseconds = 5;
/// What the display has to tell may come between two looks, and may lead to more than one message.
constexpr int IdleLooks = 3;

}  // namespace

WindowThread::WindowThread()
    : gate_(CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr)) {
    if (gate_ == nullptr) throw data::Error(HRESULT_FROM_WIN32(GetLastError()), "the way into the windows");
    SetWindowLongPtrW(gate_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&WindowThread::Gate));
}

WindowThread::~WindowThread() {
    DestroyWindow(gate_);
}

LRESULT CALLBACK WindowThread::Gate(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    if (message != RunMessage) return DefWindowProcW(window, message, wParam, lParam);
    (*reinterpret_cast<const std::function<void()>*>(lParam))();
    return 0;
}

void WindowThread::Call(const std::function<void()>& function) const {
    SendMessageW(gate_, RunMessage, 0, reinterpret_cast<LPARAM>(&function));
}

bool WindowThread::IsIdle() const {
    bool isIdle = false;
    Call([&] {
        CaptureScreen({0, 0, 1, 1});  // with the display's answer comes whatever it had to tell before
        isIdle = HIWORD(GetQueueStatus(QS_INPUT | QS_POSTMESSAGE | QS_PAINT)) == 0;
    });
    return isIdle;
}

void WindowThread::Settle() const {
    const ULONGLONG end = GetTickCount64() + IdlenessPatienceMilliseconds;
    for (int idle = 0; idle < IdleLooks; Sleep(PauseMilliseconds)) {
        idle = IsIdle() ? idle + 1 : 0;
        if (GetTickCount64() > end) throw data::Error(E_FAIL, "the windows do not come to rest");
    }
}

void WindowThread::Quit() const {
    PostThreadMessageW(id_, WM_QUIT, 0, 0);
}

}  // namespace tavrin::host
