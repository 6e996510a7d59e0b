#pragma once

#include "forms/text_box.h"
#include "win32/peers/control_window.h"
#include "win32/peers/edit_frame.h"

namespace tavrin::win32 {

/// The platform's single-line edit field in a frame of ours. It edits; the model is told of every change and
/// of the selection before each key.
class EditPeer final : public ControlWindow {
  public:
    EditPeer(forms::TextBox& control, FormPeer& form);

    void Changed(forms::Aspect aspect) override;
    void TakeFocus() override;
    void Rescale() override;

  protected:
    LRESULT HandleMessage(const Message& message) override;
    LRESULT OnKey(const Message& message) override;
    LRESULT OnSetFocus(const Message& message) override;
    LRESULT OnKillFocus(const Message& message) override;
    LRESULT Disagreement() const override;

  private:
    LRESULT OnCalculateClientArea(const Message& message);
    LRESULT OnPaintFrame(const Message& message);
    LRESULT OnHitTest(const Message& message);
    LRESULT OnColors(const Message& message);
    LRESULT OnPaint(const Message& message);
    void PaintBrowsed(HDC dc) const;
    LRESULT OnCommand(const Message& message);
    LRESULT OnEditing(const Message& message);
    LRESULT OnMouse(const Message& message);
    LRESULT OnRelease(const Message& message);
    LRESULT OnCaptureChanged(const Message& message);

    LRESULT PassCharacter(const Message& message);
    void ShowText();
    void ShowSelection();
    void ShowFont();
    void ReportSelection();
    EditFrame Frame() const;
    /// False where the platform's field is not to act on it any more.
    bool TellModelOfMouse(const Message& message);

    forms::TextBox& control_;
    /// Set while the model's state is written into the field, whose notifications are no news then.
    bool isShowing_ = false;
    bool holdsPress_ = false;   ///< a button of the mouse went down here and is the field's to act on
    bool isReleasing_ = false;  ///< the left button goes up: the mouse is given back, not taken away
};

}  // namespace tavrin::win32
