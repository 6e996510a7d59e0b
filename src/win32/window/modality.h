#pragma once

#include <windows.h>

#include <vector>

#include "forms/model/desktop.h"

namespace tavrin::win32 {

/// The windows of the thread, the host's included, that wait for the answer to a message.
class HeldWindows {
  public:
    /// Disables every window that takes input but the active one, which what is shown before it disables.
    void Hold();
    /// Disables the active window too, where something is shown before another one.
    void HoldActiveBut(HWND owner);
    /// What a dialog of a form is to be shown before; the active window waits as well.
    HWND OwnerOfDialog(const forms::Form& form);
    /// Enables them again. Where the window before which the message stood has gone, the user goes on in the
    /// next one.
    void Release() noexcept;

  private:
    std::vector<HWND> windows_;  ///< the topmost first
};

/// What a message or a dialog is to be shown before: the window, or the form that a pop-up of ours belongs
/// to. It is disabled by what is shown and gets the keyboard back from it, for which the platform must find
/// it enabled; the model's own state comes back with the end of the message. Null for no window, and for one
/// of others that is disabled or out of sight.
HWND OwnerOfMessage(const forms::Desktop& desktop, HWND window);

/// The topmost window of this thread that takes input and is none of ours; null where there is none.
HWND FindHostWindow(const forms::Desktop& desktop);

}  // namespace tavrin::win32
