#pragma once

#include <windows.h>

#include <optional>
#include <string_view>

#include "forms/model/control.h"
#include "win32/assist/accessible_control.h"
#include "win32/base/com_ptr.h"
#include "win32/peers/form_peer.h"
#include "win32/system/scale.h"
#include "win32/window/window.h"

namespace tavrin::win32 {

/// The window of one control: what drawn and native controls have in common. Place, state, tool tip,
/// keyboard, focus and what assistive tools are told; the look is the derived classes' business.
class ControlWindow : public forms::ControlPeer, public Window {
  public:
    ~ControlWindow() override;

    void Changed(forms::Aspect aspect) override;
    void TakeFocus() override;

    /// The platform has had its own way: what of the control is enabled and in sight becomes what the model
    /// says.
    void Reconcile();

    /// The form has moved to a screen of another resolution.
    virtual void Rescale();

  protected:
    ControlWindow(forms::Control& control, FormPeer& form);

    /// Makes the window in its container's, at its place and in its state.
    /// \param text what a control of the platform's begins with: it costs nothing then, and much afterwards
    void Create(const wchar_t* className, DWORD style, std::string_view text = {});

    LRESULT HandleMessage(const Message& message) override;
    /// Routes a key to the form, and to the platform's control only what the form leaves to it.
    virtual LRESULT OnKey(const Message& message);
    virtual LRESULT OnSetFocus(const Message& message);
    virtual LRESULT OnKillFocus(const Message& message);
    /// The answer to the question of that name.
    virtual LRESULT Disagreement() const;

    /// Puts the window where the control is.
    virtual void Place();
    /// Pixels of the parent's client area.
    RECT PixelBounds() const;

    forms::Control& OwnControl() const { return control_; }
    forms::Form& OwnerForm() const { return form_.Form(); }
    FormPeer& OwnerPeer() const { return form_; }
    WindowResources& SharedResources() const { return form_.SharedResources(); }
    Scale PixelScale() const { return form_.PixelScale(); }
    HFONT PlatformFont() const;
    /// Pixels from line to line in that font.
    int LineHeight() const;
    /// Brush and colours of the platform's edit field in a device context.
    LRESULT ApplyColors(HDC dc) const;
    /// Whether the platform's focus is on this window or on one inside it.
    bool HoldsFocus() const;

  private:
    LRESULT OnGetDialogCode(const Message& message);
    LRESULT OnGetObject(const Message& message);
    LRESULT OnMouseWheel(const Message& message);
    LRESULT OnDisagreementQuestion(const Message&) { return Disagreement(); }

    void ShowOrHide();
    void EnableOrDisable();
    void NotifyAssistiveTools();
    void Announce();

    forms::Control& control_;
    FormPeer& form_;
    ComPtr<AccessibleControl> accessible_;
    int wheelRest_ = 0;
};

}  // namespace tavrin::win32
