#pragma once

#include "win32/peers/control_window.h"

namespace tavrin::win32 {

/// The window of a control that draws itself and acts on the mouse itself; also of a frame, whose contents
/// stand in its window.
class DrawnPeer : public ControlWindow {
  public:
    DrawnPeer(forms::Control& control, FormPeer& form);

    void Changed(forms::Aspect aspect) override;

  protected:
    LRESULT HandleMessage(const Message& message) override;

  private:
    LRESULT OnPaint(const Message& message);
    LRESULT OnEraseBackground(const Message& message);
    LRESULT OnMouseMove(const Message& message);
    LRESULT OnMouseLeave(const Message& message);
    LRESULT OnCaptureChanged(const Message& message);
    LRESULT OnMouseButton(const Message& message);

    void Press(const forms::MouseInput& input);
    void Release(const Message& message);
    void Draw(forms::Surface& surface);

    forms::Control& control_;
    bool isTracking_ = false;
    bool isReleasing_ = false;
    /// After a failure nothing is drawn until the control changes, else each report would bring the next.
    bool drawFailed_ = false;
};

}  // namespace tavrin::win32
