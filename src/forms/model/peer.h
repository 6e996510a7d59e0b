#pragma once

namespace tavrin::forms {

/// What of a control has changed, so that its peer shows it anew.
enum class Aspect {
    Bounds,
    Visible,
    Enabled,
    Look,       ///< colours, font, caption, picture, content: repaint
    Text,       ///< the text of an edit field
    Selection,  ///< the caret and the selected text of an edit field
    List,       ///< the entries or the chosen entry of a list
    Locked,
    ToolTip,
    Announcement,  ///< nothing: assistive tools say what the control shows
};

/// Shows one control on the platform. It holds nothing that could not be rebuilt from the control, and it is
/// destroyed before or with the control.
class ControlPeer {
  public:
    virtual ~ControlPeer() = default;
    virtual void Changed(Aspect aspect) = 0;
    virtual void TakeFocus() = 0;

    /// Opens the list or the calendar of a control that has one, or closes it when it is open.
    virtual void DropDown() {}
};

enum class FormAspect { Bounds, Visible, Enabled, Caption, Look };

/// Shows one form and hosts the peers of its controls.
class FormPeer {
  public:
    virtual ~FormPeer() = default;
    virtual void Changed(FormAspect aspect) = 0;

    /// Takes everything anew from the model that the platform may have changed by itself: what of the form
    /// and its controls is enabled, in sight and focused.
    virtual void Reconcile() noexcept = 0;

    /// Makes the form's window the active one. The platform answers through Form::HandleActivate.
    virtual void Activate() = 0;

    /// Puts the window above all others without activating it, size and position kept.
    virtual void KeepOnTop() = 0;

    /// Starts a move of the window by the platform, as if its title bar had been pressed.
    virtual void DragByCaption() = 0;

    /// Takes the window off the screen for good. Called while its messages may still be on the stack: the
    /// object itself lives on until the outermost dispatch has ended.
    virtual void Close() = 0;
};

}  // namespace tavrin::forms
