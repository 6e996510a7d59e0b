#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "data/text/locale.h"
#include "forms/drawing/geometry.h"
#include "forms/model/anchors.h"
#include "forms/model/container.h"
#include "forms/model/control.h"
#include "forms/model/desktop.h"
#include "forms/model/keys.h"
#include "forms/model/peer.h"

namespace tavrin::forms {

enum class BorderStyle { Borderless, FixedDialog, Sizable };

/// A window: its controls, which of them has the focus, and its life from load to unload. A derived class
/// declares the controls as members and overrides the handlers it needs.
///
/// Load raises OnLoad once; Show makes the window and activates it; Unload raises OnUnload and ends it. All
/// calls come on the one user-interface thread.
class Form : public Container, public std::enable_shared_from_this<Form> {
  public:
    Form(Desktop& desktop, std::string_view name, std::string_view caption, BorderStyle border);
    ~Form() override;

    const std::string& Name() const { return name_; }
    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string_view caption);
    BorderStyle Border() const { return border_; }

    /// The outer window on the screen, its frame included.
    const Rect& Bounds() const { return bounds_; }
    void SetBounds(const Rect& bounds);
    void MoveTo(int left, int top) { SetBounds({left, top, bounds_.width, bounds_.height}); }
    void CenterOnScreen();
    /// A window that reaches beyond the right or the lower edge of the work area moves in; one that can be
    /// sized and is larger than the work area gets its size.
    void KeepInWorkArea();
    /// The area that the controls stand in.
    Size ClientSize() const;
    void SetClientSize(Size size);
    /// That the user can make of a sizable window.
    Size SmallestClientSize() const { return smallest_; }

    Color BackColor() const { return backColor_; }
    void SetBackColor(Color color);

    bool Visible() const { return visible_; }
    /// A disabled window takes no input; its controls keep their own state.
    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);
    /// Enabled, still there, and not waiting for the answer to a message.
    bool AcceptsInput() const { return enabled_ && !isOver_ && !desktop_.IsShowingMessage(); }

    // Life: a form is loaded once. After it has unloaded nothing of it runs any more.
    bool IsLoaded() const { return loaded_; }
    bool IsUnloading() const { return unloading_; }
    bool IsOver() const { return isOver_; }
    bool IsActive() const { return active_; }
    void Load();
    /// Loads if need be, then shows and activates the window. Modeless, without an owner. A form whose window
    /// cannot be made is unloaded again. \throws what the platform reports then
    void Show();
    void Unload();
    /// The user's settings as they were when the window was loaded: one that is open goes on in them.
    const data::Locale& UserLocale() const { return locale_; }
    /// Called once the window has unloaded, before it is let go.
    std::function<void(Form&)> whenUnloaded;

    // Window behaviour that only the platform has.
    /// Puts the window above all others without activating it. Every window calls it when it is activated and
    /// again when it is left, so that it stays in sight above the host to which the focus went.
    void KeepOnTop();
    void DragByCaption();
    void Refresh();
    /// The platform has had its own way for a while: the window becomes what the form says.
    void Reconcile() noexcept;
    /// A button of the mouse that is down over a control clicks nothing when it comes up.
    void EndPress();

    // Focus.
    Control* ActiveControl() const { return activeControl_; }
    /// The next (or previous) control that can take the focus, by tab index, around the end.
    void FocusNext();
    void FocusPrevious();

    // Entry points for input.
    /// A key goes to the form's own preview first, then to the active control. A handler that moves the focus
    /// elsewhere has dealt with the key: nothing more happens to it then.
    KeyOutcome HandleKeyDown(int keyCode, Modifiers modifiers);
    KeyOutcome HandleKeyPress(char32_t character);
    /// A key came up.
    void HandleKeyUp();
    /// Alt and a letter: focuses and clicks the button of that accelerator. False where there is none.
    bool HandleAccelerator(char32_t letter);
    void HandleActivate();
    void HandleDeactivate();
    /// The platform gave a control the focus (a click, an assistive tool).
    void HandleFocus(Control& control);
    void HandleMouseDown(const MouseInput& input);
    void HandleMouseMove(const MouseInput& input);
    /// The user asked the platform to close the window.
    void HandleClose() { Unload(); }
    /// The platform moved the window.
    void HandleMoved(Point topLeft);
    /// The platform gave the controls an area of another size.
    void HandleSized(Size client);

    // Container.
    Form& OwnerForm() override { return *this; }
    const Form& OwnerForm() const override { return *this; }
    bool IsEffectivelyVisible() const override { return loaded_; }
    bool IsEffectivelyEnabled() const override { return true; }

    Desktop& OwnerDesktop() const { return desktop_; }
    FormPeer* Peer() const { return peer_.get(); }

    /// Every control of the form, frames' contents included, in tab order.
    std::vector<Control*> AllControls() const;
    /// The control of that qualified name ("cmdAction(2)"), else null.
    Control* FindControl(std::string_view qualifiedName) const;

  protected:
    /// From now on a control follows the window's size, of which that of this moment is the smallest. A frame
    /// is anchored before what is in it.
    void Anchor(Control& control, Anchors anchors);

    virtual void OnLoad() {}
    virtual void OnActivate() {}
    virtual void OnDeactivate() {}
    virtual void OnUnload() {}
    /// Sees every key before the active control does; setting the code to 0 swallows it.
    /// What Ctrl+C takes along: by default what the active control has.
    virtual std::optional<Copied> Copy() const;
    virtual void OnKeyDown(int& keyCode, Modifiers modifiers) { (void)keyCode, (void)modifiers; }
    virtual void OnKeyUp() {}
    virtual void OnMouseDown(const MouseInput& input) { (void)input; }
    virtual void OnMouseMove(const MouseInput& input) { (void)input; }

  private:
    friend class Control;
    friend class Desktop;
    void MakeWindow();
    void Focus(Control& control);
    void MoveFocus(Control& control);
    void FocusFirst();
    bool HandleCommonKey(int keyCode, Modifiers modifiers);
    void FocusNeighbour(int step);
    Control* Neighbour(int step) const;  ///< null when none takes the focus
    /// What was hidden or disabled, itself or with what it stands in, is not pressed any more.
    void EndPressOfUnavailable();
    /// Moves the focus on when its control was hidden or disabled.
    void LeaveUnfocusable();
    int NextTabIndex() { return nextTabIndex_++; }

    Desktop& desktop_;
    std::string name_;
    std::string caption_;
    BorderStyle border_;
    Rect bounds_;
    Size smallest_;
    AnchorLayout layout_;
    Color backColor_ = scheme::Window;
    data::Locale locale_;
    bool visible_ = false;
    bool enabled_ = true;
    bool loaded_ = false;
    bool unloading_ = false;
    bool isOver_ = false;
    bool active_ = false;
    int nextTabIndex_ = 0;
    Control* activeControl_ = nullptr;
    std::unique_ptr<FormPeer> peer_;
};

template <class Handler, class... Arguments>
void Control::Raise(const Event& event, const Handler& handler, Arguments&&... arguments) {
    if (!handler || OwnerForm().IsOver()) return;
    OwnerForm().OwnerDesktop().Guard({&OwnerForm(), this, event},
                                     [&] { handler(std::forward<Arguments>(arguments)...); });
}

}  // namespace tavrin::forms
