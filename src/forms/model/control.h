#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "forms/drawing/color.h"
#include "forms/drawing/font.h"
#include "forms/drawing/geometry.h"
#include "forms/drawing/surface.h"
#include "forms/model/accessible.h"
#include "forms/model/container.h"
#include "forms/model/copied.h"
#include "forms/model/keys.h"
#include "forms/model/origin.h"
#include "forms/model/peer.h"

namespace tavrin::forms {

/// Tells peers what to make of a control. Edit fields and lists are the platform's own; the rest draws
/// itself.
enum class ControlKind { Drawn, TextBox, ComboBox, DatePicker, RichText, Decoration };

/// Whether somebody after the control still has to act on a key.
enum class KeyOutcome {
    Done,     ///< swallowed, or acted upon by the model
    Default,  ///< what the platform's own control does with the key follows
};

/// A control's properties and events: the only truth about it. Peers show it; real input, tests and assistive
/// tools reach it through the same entry points. A handler that throws ends there and is reported once.
class Control {
  public:
    Control(Container& parent, std::string_view name, Rect bounds = {});
    virtual ~Control();
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    /// Names an element of a control array: "cmdAction" with index 2 is "cmdAction(2)".
    void SetIndex(int index) { index_ = index; }
    const std::string& Name() const { return name_; }
    int Index() const { return index_; }
    std::string QualifiedName() const;

    Container& Parent() const { return parent_; }
    Form& OwnerForm() const { return parent_.OwnerForm(); }
    virtual ControlKind Kind() const { return ControlKind::Drawn; }
    /// The letter that clicks the control together with Alt, 0 for none.
    virtual char32_t Accelerator() const { return 0; }

    // Properties.
    const Rect& Bounds() const { return bounds_; }  ///< from the parent's top left corner
    void SetBounds(const Rect& bounds);
    void MoveTo(int left, int top) { SetBounds({left, top, bounds_.width, bounds_.height}); }
    bool Visible() const { return visible_; }
    void SetVisible(bool visible);
    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);
    Color BackColor() const { return backColor_; }
    void SetBackColor(Color color);
    Color ForeColor() const { return foreColor_; }
    void SetForeColor(Color color);
    const Font& TextFont() const { return font_; }
    void SetFont(Font font);
    const std::string& ToolTip() const { return toolTip_; }
    void SetToolTip(std::string_view toolTip);
    int TabIndex() const { return tabIndex_; }  ///< declaration order unless set
    void SetTabIndex(int tabIndex) { tabIndex_ = tabIndex; }
    /// The name that assistive tools speak where no caption gives one.
    void SetAccessibleName(std::string_view name);
    const std::string& AccessibleName() const { return accessibleName_; }

    /// Has assistive tools say what the control shows, wherever the focus is.
    void Announce() { Notify(Aspect::Announcement); }

    bool IsEffectivelyVisible() const { return visible_ && parent_.IsEffectivelyVisible(); }
    bool IsEffectivelyEnabled() const { return enabled_ && parent_.IsEffectivelyEnabled(); }
    bool AcceptsInput() const;
    /// The left button went down over the control and has not come up.
    bool IsPressed() const { return pressed_; }

    // Focus.
    virtual bool IsFocusable() const { return false; }
    /// Whether a press of the mouse gives the control the focus.
    virtual bool TakesFocusOnPress() const { return true; }
    /// Whether Tab alone is the control's own. Shift or Ctrl with Tab moves the focus then.
    virtual bool KeepsTab() const { return false; }
    bool CanTakeFocus() const { return IsFocusable() && IsEffectivelyVisible() && IsEffectivelyEnabled(); }
    bool HasFocus() const;
    /// Makes this the form's active control and its window the active one; nothing happens while the control
    /// cannot take the focus.
    void SetFocus();
    /// The same for a key or a press of the mouse that goes on to do something with the control. False where
    /// it must not: the control that was to be left has kept the focus, or a message came in between.
    bool SetFocusByUser();

    // Events.
    std::function<void()> onClick;
    std::function<void()> onDblClick;
    std::function<void()> onChange;
    std::function<void()> onGotFocus;
    std::function<void()> onLostFocus;
    std::function<void(int& keyCode, Modifiers)> onKeyDown;
    std::function<void(char32_t& character)> onKeyPress;
    std::function<void(const MouseInput&)> onMouseDown;
    std::function<void(const MouseInput&)> onMouseMove;
    std::function<void(const MouseInput&)> onMouseUp;
    std::function<void()> onMouseLeave;

    // Entry points for input. Keys enter through the form (Form::HandleKeyDown). A control that is disabled,
    // or whose form takes no input, acts on none.
    /// False where the press has come to its end already: nothing more happens to it, and no click follows.
    bool HandleMouseDown(const MouseInput& input);
    void HandleMouseMove(const MouseInput& input);
    void HandleMouseUp(const MouseInput& input);
    void HandleMouseLeave();
    /// The mouse was taken away while a button was held (a drag of the window, a message): no click follows.
    void HandleCaptureLost();
    virtual void HandleDblClick(const MouseInput& input);
    /// One notch away from the user is +1.
    virtual void HandleWheel(int notches) { (void)notches; }
    void Click();

    // What a drawn control does and how it looks.
    virtual void Draw(Surface& surface) const { (void)surface; }
    /// What Ctrl+C takes along; nothing where the platform's own field copies, or there is nothing to copy.
    virtual std::optional<Copied> Copy() const { return std::nullopt; }
    virtual AccessibleNode Accessible() const;
    virtual int AccessibleChildCount() const { return 0; }
    virtual AccessibleNode AccessibleChild(int child) const {
        (void)child;
        return {};
    }
    /// The part that is the current one, -1 for a control without any.
    virtual int AccessibleSelectedChild() const { return -1; }
    /// The part at a place within the control, -1 where there is none.
    virtual int AccessibleChildAt(Point place) const {
        (void)place;
        return -1;
    }

    // The peer, present while the form's window exists.
    void SetPeer(std::unique_ptr<ControlPeer> peer) { peer_ = std::move(peer); }
    ControlPeer* Peer() const { return peer_.get(); }

  protected:
    /// What the control itself does with a key after its handler let it pass.
    virtual KeyOutcome DefaultKeyDown(int keyCode, Modifiers modifiers);
    /// A character that a drawn control has no use for sounds, so that nobody takes it for typed.
    virtual KeyOutcome DefaultKeyPress(char32_t character);
    /// Takes over what was typed into the control but is not finished. Called before a key reaches any
    /// handler, and with code 0 when the focus leaves, so that handlers see the value that the user sees.
    virtual void CompleteInput(int keyCode) { (void)keyCode; }
    virtual void DefaultMouseDown(const MouseInput& input) { (void)input; }
    virtual void DefaultMouseMove(const MouseInput& input) { (void)input; }
    virtual void DefaultMouseUp(const MouseInput& input);
    /// A press of the left button inside the control that ends inside it is a click.
    virtual bool ClicksOnMouseUp() const { return true; }

    bool IsHot() const { return hot_; }

    virtual void Notify(Aspect aspect);
    void Repaint() { Notify(Aspect::Look); }

    /// Runs the handler of an event; what it throws is reported and stays here.
    template <class Handler, class... Arguments>
    void Raise(const Event& event, const Handler& handler, Arguments&&... arguments);

  private:
    friend class Form;
    void RaiseGotFocus();
    void RaiseLostFocus();
    void TrackHot(bool hot);
    /// Whether an action that was under way at that count of messages still is.
    bool GoesOnSince(std::size_t messages) const;

    Container& parent_;
    std::string name_;
    int index_ = -1;
    Rect bounds_;
    bool visible_ = true;
    bool enabled_ = true;
    Color backColor_ = scheme::Window;
    Color foreColor_ = scheme::Text;
    Font font_;
    std::string toolTip_;
    std::string accessibleName_;
    int tabIndex_;
    bool hot_ = false;
    bool pressed_ = false;
    std::unique_ptr<ControlPeer> peer_;
};

}  // namespace tavrin::forms
