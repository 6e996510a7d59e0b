#pragma once

#include <windows.h>

#include <cstddef>
#include <deque>
#include <exception>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>
#include <type_traits>

namespace tavrin::e2e {

/// How a host's loop treats messages.
enum class LoopKind {
    Plain,      ///< GetMessage, TranslateMessage, DispatchMessage
    Dialog,     ///< as many hosts do: IsDialogMessage on the active window first
    Filtering,  ///< keys and the mouse before all else, and hooks and accelerators are asked first
};

/// The host's user-interface thread: a single-threaded apartment with the host's message loop. The test's own
/// thread stays outside, where it can watch and use windows like a user even while a modal one is open.
class UiThread {
  public:
    explicit UiThread(LoopKind kind = LoopKind::Plain);
    ~UiThread();
    UiThread(const UiThread&) = delete;
    UiThread& operator=(const UiThread&) = delete;

    DWORD Id() const { return id_; }

    /// Runs a function in the loop (also in that of a modal window) and gives back what it gives or throws.
    /// When the thread does not answer within half a minute the program ends: nothing after that could be
    /// trusted.
    template <class Function>
    auto Call(Function&& function) {
        using Result = std::invoke_result_t<Function>;
        if constexpr (std::is_void_v<Result>) {
            Execute([&] { function(); });
        } else {
            std::optional<Result> result;
            Execute([&] { result.emplace(function()); });
            return std::move(*result);
        }
    }

    /// Has the function run in the loop and does not wait for it: what it opens may stay open. Nobody hears
    /// of what it throws.
    void Post(std::function<void()> function);

    /// Waits until the thread has dealt with all input and messages that it has been sent, and has painted.
    void Settle();
    /// Waits so for every thread there is.
    static void SettleAll();

    /// Runs a function while every thread there is stands still.
    static void HoldAll(const std::function<void()>& function);

  private:
    void Run(LoopKind kind, HANDLE ready);
    static void HoldFrom(std::size_t first, const std::function<void()>& function);
    void Execute(const std::function<void()>& function);
    void Knock();
    void RunNext();
    static LRESULT CALLBACK Gate(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HWND gate_ = nullptr;
    DWORD id_ = 0;
    std::mutex lock_;
    std::deque<std::function<void()>> tasks_;
    std::thread thread_;
};

}  // namespace tavrin::e2e
