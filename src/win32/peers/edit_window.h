#pragma once

#include "win32/peers/control_window.h"
#include "win32/peers/edit_frame.h"

namespace tavrin::win32 {

/// Whether a character edits nothing in a single line and would only make the platform's field beep.
bool OnlyBeeps(const Message& message);

/// What the windows of all editors have in common: the platform's control edits, in a frame of ours; the
/// model hears of the mouse and the selection, and each character goes in whole.
class EditWindow : public ControlWindow {
  public:
    void Changed(forms::Aspect aspect) override;

  protected:
    using ControlWindow::ControlWindow;

    LRESULT HandleMessage(const Message& message) override;
    LRESULT OnKey(const Message& message) override;
    LRESULT OnSetFocus(const Message& message) override;
    LRESULT OnKillFocus(const Message& message) override;

    /// Tells the model where the caret is and what is selected.
    virtual void ReportSelection() = 0;
    /// Whether it wants to know while the mouse still drags, too.
    virtual bool FollowsDrag() const { return true; }

    /// What the platform makes of a character, both halves of one in two units after one another.
    LRESULT PassOn(const Message& message) const;
    EditFrame FocusFrame() const;

  private:
    LRESULT OnMouse(const Message& message);
    LRESULT OnRelease(const Message& message);
    LRESULT OnCaptureChanged(const Message& message);
    /// False where the platform's control is not to act on it any more.
    bool ReportMouse(const Message& message);

    bool holdsPress_ = false;   ///< a button of the mouse went down here and is the platform's to act on
    bool isReleasing_ = false;  ///< the left button goes up: the mouse is given back, not taken away
};

}  // namespace tavrin::win32
