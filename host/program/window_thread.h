#pragma once

#include <windows.h>

#include <functional>

namespace tavrin::host {

/// The thread that the windows live on, as another one sees it. What it is asked to do it does inside
/// whichever message loop it is in, a message's own too.
class WindowThread {
  public:
    /// To be made, and ended, on the windows' own thread.
    WindowThread();
    ~WindowThread();
    WindowThread(const WindowThread&) = delete;
    WindowThread& operator=(const WindowThread&) = delete;

    /// Runs a function, which must not throw, on the windows' thread, and waits for its end.
    void Call(const std::function<void()>& function) const;

    /// Waits until nothing is left to do: no input, no message, nothing to paint. A caret may go on blinking.
    /// \throws data::Error where that takes too long
    void Settle() const;

    /// Ends the thread's message loops.
    void Quit() const;

  private:
    static LRESULT CALLBACK Gate(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    bool IsIdle() const;

    DWORD id_ = GetCurrentThreadId();
    HWND gate_;
};

}  // namespace tavrin::host
