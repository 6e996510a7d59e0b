#pragma once

#include "win32/window/window.h"

namespace tavrin::win32 {

class ComboPeer;

/// The edit field inside a combo box whose text may be typed: it has the platform's focus, so keys arrive
/// here.
class InnerEdit final : public Window {
  public:
    InnerEdit(forms::Desktop& desktop, ComboPeer& combo) : Window(desktop), combo_(combo) {}

    /// \param edit null for a combo box without a field
    void Adopt(HWND edit);
    /// What the platform makes of a key.
    LRESULT PassOn(const Message& message) const { return CallDefault(message); }
    /// Leaves the window to the combo box, which destroys it.
    void Release() noexcept;

  private:
    LRESULT HandleMessage(const Message& message) override;

    ComboPeer& combo_;
};

}  // namespace tavrin::win32
