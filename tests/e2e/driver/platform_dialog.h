#pragma once

#include <windows.h>

#include <string>
#include <string_view>

#include "e2e/driver/window.h"

namespace tavrin::e2e {

/// A dialog of the platform that a window has opened for a file, a font or a colour.
class PlatformDialog {
  public:
    /// Waits for one that has the keyboard and belongs to that window. \throws DriverError when none appears
    static PlatformDialog AwaitOf(const Window& owner);

    std::string Title() const { return window_.Text(); }
    /// Whether no window of this process stands above it.
    bool IsInFront() const { return TopLevelWindows().front() == window_; }
    Window Item(int id) const { return Window(GetDlgItem(window_.Handle(), id)); }
    bool IsChecked(int id) const { return IsDlgButtonChecked(window_.Handle(), id) == BST_CHECKED; }

    /// Writes into a field of the dialog by mouse and keyboard, in place of what stands in it.
    void Fill(int id, std::wstring_view text) const;

    // Both wait until the dialog has gone.
    void Confirm() const;  ///< Enter
    void Cancel() const;   ///< Escape

  private:
    explicit PlatformDialog(Window window) : window_(window) {}
    void AwaitGone() const;

    Window window_;
};

}  // namespace tavrin::e2e
