#pragma once

#include <windows.h>

#include <atomic>

namespace tavrin::win32 {

/// The pointer of a thread that is inside a long call and looks at no message: once that has taken a quarter
/// of a second, a timer on a thread of the system's pool makes it the one that says "wait". After End nothing
/// of this runs any more, and nothing is kept.
class WaitPointer {
  public:
    void Begin() noexcept;
    void End() noexcept;

  private:
    static void CALLBACK OnTimer(PTP_CALLBACK_INSTANCE instance, void* self, PTP_TIMER timer) noexcept;
    void Show();

    PTP_TIMER timer_ = nullptr;
    DWORD waiting_ = 0;  ///< the thread
    HCURSOR before_ = nullptr;
    std::atomic<bool> isShown_ = false;
};

}  // namespace tavrin::win32
