#include "forms/model/control.h"

#include <utility>

#include "forms/model/form.h"

namespace tavrin::forms {

Control::Control(Container& parent, std::string_view name, Rect bounds)
    : parent_(parent), name_(name), bounds_(bounds), tabIndex_(parent.OwnerForm().NextTabIndex()) {
    parent_.controls_.push_back(this);
}

Control::~Control() = default;

std::string Control::QualifiedName() const {
    return index_ < 0 ? name_ : name_ + "(" + std::to_string(index_) + ")";
}

void Control::SetBounds(const Rect& bounds) {
    if (bounds_ == bounds) return;
    bounds_ = bounds;
    Notify(Aspect::Bounds);
}

void Control::SetVisible(bool visible) {
    if (visible_ == visible) return;
    visible_ = visible;
    Notify(Aspect::Visible);
    OwnerForm().EndPressOfUnavailable();
    OwnerForm().LeaveUnfocusable();
}

void Control::SetEnabled(bool enabled) {
    if (enabled_ == enabled) return;
    enabled_ = enabled;
    Notify(Aspect::Enabled);
    OwnerForm().EndPressOfUnavailable();
    OwnerForm().LeaveUnfocusable();
}

void Control::SetBackColor(Color color) {
    if (backColor_ == color) return;
    backColor_ = color;
    Repaint();
}

void Control::SetForeColor(Color color) {
    if (foreColor_ == color) return;
    foreColor_ = color;
    Repaint();
}

void Control::SetFont(Font font) {
    if (font_ == font) return;
    font_ = std::move(font);
    Repaint();
}

void Control::SetToolTip(std::string_view toolTip) {
    toolTip_ = toolTip;
    Notify(Aspect::ToolTip);
}

void Control::SetAccessibleName(std::string_view name) {
    if (accessibleName_ == name) return;
    accessibleName_ = name;
    Repaint();
}

bool Control::HasFocus() const {
    return OwnerForm().IsActive() && OwnerForm().ActiveControl() == this;
}

void Control::SetFocus() {
    if (CanTakeFocus()) OwnerForm().Focus(*this);
}

bool Control::AcceptsInput() const {
    return IsEffectivelyEnabled() && OwnerForm().AcceptsInput();
}

bool Control::SetFocusByUser() {
    if (!CanTakeFocus()) return true;
    const std::size_t messages = OwnerForm().OwnerDesktop().MessageCount();
    SetFocus();
    return OwnerForm().ActiveControl() == this && GoesOnSince(messages);
}

bool Control::GoesOnSince(std::size_t messages) const {
    return AcceptsInput() && OwnerForm().IsLoaded() && OwnerForm().OwnerDesktop().MessageCount() == messages;
}

bool Control::HandleMouseDown(const MouseInput& input) {
    const Desktop::DispatchScope scope(OwnerForm().OwnerDesktop());
    if (!AcceptsInput()) return false;
    if (TakesFocusOnPress() && !SetFocusByUser()) return false;
    const std::size_t messages = OwnerForm().OwnerDesktop().MessageCount();
    if (input.button == MouseButton::Left) {
        pressed_ = true;
        Repaint();
    }
    Raise(event::MouseDown, onMouseDown, input);
    if (!GoesOnSince(messages)) return false;
    DefaultMouseDown(input);
    return GoesOnSince(messages);
}

void Control::HandleMouseMove(const MouseInput& input) {
    const Desktop::DispatchScope scope(OwnerForm().OwnerDesktop());
    if (!AcceptsInput()) return;
    TrackHot(Rect{0, 0, bounds_.width, bounds_.height}.Contains(input.at));
    Raise(event::MouseMove, onMouseMove, input);
    if (OwnerForm().IsLoaded()) DefaultMouseMove(input);
}

void Control::HandleMouseUp(const MouseInput& input) {
    const Desktop::DispatchScope scope(OwnerForm().OwnerDesktop());
    if (!AcceptsInput()) return;
    Raise(event::MouseUp, onMouseUp, input);
    if (OwnerForm().IsLoaded()) DefaultMouseUp(input);
}

void Control::DefaultMouseUp(const MouseInput& input) {
    if (input.button != MouseButton::Left || !pressed_) return;
    pressed_ = false;
    Repaint();
    const bool inside = Rect{0, 0, bounds_.width, bounds_.height}.Contains(input.at);
    if (inside && ClicksOnMouseUp()) Click();
}

void Control::HandleMouseLeave() {
    const Desktop::DispatchScope scope(OwnerForm().OwnerDesktop());
    TrackHot(false);
    Raise(event::MouseLeave, onMouseLeave);
}

void Control::HandleCaptureLost() {
    if (!pressed_) return;
    pressed_ = false;
    Repaint();
}

void Control::HandleDblClick(const MouseInput& input) {
    const Desktop::DispatchScope scope(OwnerForm().OwnerDesktop());
    if (AcceptsInput() && input.button == MouseButton::Left) Raise(event::DblClick, onDblClick);
}

void Control::Click() {
    const Desktop::DispatchScope scope(OwnerForm().OwnerDesktop());
    if (AcceptsInput() && OwnerForm().IsLoaded()) Raise(event::Click, onClick);
}

void Control::TrackHot(bool hot) {
    if (hot_ == hot) return;
    hot_ = hot;
    Repaint();
}

AccessibleNode Control::Accessible() const {
    AccessibleNode node;
    node.name = accessibleName_.empty() ? toolTip_ : accessibleName_;
    node.bounds = {0, 0, bounds_.width, bounds_.height};
    node.focusable = IsFocusable();
    node.focused = HasFocus();
    node.pressed = pressed_;
    node.invisible = !IsEffectivelyVisible();
    node.unavailable = !IsEffectivelyEnabled();
    return node;
}

KeyOutcome Control::DefaultKeyDown(int /*keyCode*/, Modifiers /*modifiers*/) {
    return KeyOutcome::Default;
}

KeyOutcome Control::DefaultKeyPress(char32_t character) {
    const bool isDrawn = Kind() == ControlKind::Drawn || Kind() == ControlKind::DatePicker;
    if (!isDrawn || character < U' ') return KeyOutcome::Default;
    OwnerForm().OwnerDesktop().Beep();
    return KeyOutcome::Done;
}

void Control::Notify(Aspect aspect) {
    if (peer_) peer_->Changed(aspect);
}

void Control::RaiseGotFocus() {
    Repaint();
    Raise(event::GotFocus, onGotFocus);
}

void Control::RaiseLostFocus() {
    pressed_ = false;
    CompleteInput(0);
    Repaint();
    Raise(event::LostFocus, onLostFocus);
}

}  // namespace tavrin::forms
