#pragma once

#include <windows.h>

#include <functional>
#include <string>

namespace tavrin::host {

/// The accounting program's main window: what it works on, and a button that opens the utilities.
class HostWindow {
  public:
    /// \param summary one line that says what the program works on, UTF-8
    HostWindow(const std::string& summary, std::function<void()> openUtilities);
    ~HostWindow();
    HostWindow(const HostWindow&) = delete;
    HostWindow& operator=(const HostWindow&) = delete;

    /// The user has left the utilities. Called from inside the component, so the window acts on it later.
    void TellLeft() const;

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
    void OnCommand(int control);
    void OnLeft();
    void OnClose();
    HWND AddChild(const wchar_t* kind, const wchar_t* text, RECT place, int id);

    HWND window_ = nullptr;
    std::function<void()> openUtilities_;
};

/// The loop of a host that knows nothing of dialogs. Ends when the main window has gone.
void RunMessageLoop();

}  // namespace tavrin::host
