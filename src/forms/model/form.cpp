#include "forms/model/form.h"

#include <algorithm>
#include <cwctype>

namespace tavrin::forms {

namespace {

void CollectControls(const Container& container, std::vector<Control*>& found) {
    for (Control* control : container.Controls()) {
        found.push_back(control);
        if (const auto* inner = dynamic_cast<const Container*>(control)) CollectControls(*inner, found);
    }
}

/// Whether Tab goes to the next control rather than to this one.
bool TabLeaves(const Control* control, Modifiers modifiers) {
    if (modifiers.alt) return false;
    if (control != nullptr && control->KeepsTab()) return modifiers.shift || modifiers.control;
    return !modifiers.control;
}

bool SameLetter(char32_t left, char32_t right) {
    return std::towlower(static_cast<std::wint_t>(left)) == std::towlower(static_cast<std::wint_t>(right));
}

}  // namespace

Form::Form(Desktop& desktop, std::string_view name, std::string_view caption, BorderStyle border)
    : desktop_(desktop), name_(name), caption_(caption), border_(border) {}

Form::~Form() {
    if (loaded_) desktop_.Remove(*this);
}

// Properties.

void Form::SetCaption(std::string_view caption) {
    caption_ = caption;
    if (peer_) peer_->Changed(FormAspect::Caption);
}

void Form::SetBounds(const Rect& bounds) {
    if (bounds_ == bounds) return;
    bounds_ = bounds;
    if (peer_) peer_->Changed(FormAspect::Bounds);
    layout_.Apply();
}

void Form::CenterOnScreen() {
    const Size screen = desktop_.ScreenSize();
    MoveTo((screen.width - bounds_.width) / 2, (screen.height - bounds_.height) / 2);
}

void Form::KeepInWorkArea() {
    const Rect area = desktop_.WorkArea();
    const bool isThere = bounds_.left < area.Right() && bounds_.top < area.Bottom() &&
                         bounds_.Right() > area.left && bounds_.Bottom() > area.top;
    if (!isThere) return;
    Rect kept = bounds_;
    if (border_ == BorderStyle::Sizable) {
        kept.width = std::min(kept.width, area.width);
        kept.height = std::min(kept.height, area.height);
    }
    kept.left = std::min(kept.left, std::max(area.left, area.Right() - kept.width));
    kept.top = std::min(kept.top, std::max(area.top, area.Bottom() - kept.height));
    SetBounds(kept);
}

Size Form::ClientSize() const {
    const Size frame = desktop_.FrameSize(border_);
    return {bounds_.width - frame.width, bounds_.height - frame.height};
}

void Form::SetClientSize(Size size) {
    const Size frame = desktop_.FrameSize(border_);
    SetBounds({bounds_.left, bounds_.top, size.width + frame.width, size.height + frame.height});
}

void Form::Anchor(Control& control, Anchors anchors) {
    smallest_ = ClientSize();
    layout_.Add(control, anchors);
}

void Form::SetBackColor(Color color) {
    backColor_ = color;
    Refresh();
}

void Form::SetEnabled(bool enabled) {
    if (enabled_ == enabled) return;
    enabled_ = enabled;
    if (!enabled) EndPress();
    if (peer_) peer_->Changed(FormAspect::Enabled);
}

// Life.

void Form::Load() {
    if (loaded_ || isOver_) return;
    locale_ = desktop_.UserLocale();
    loaded_ = true;
    desktop_.Add(*this);
    desktop_.Guard({this, nullptr, event::Load}, [this] { OnLoad(); });
}

void Form::Show() {
    const Desktop::DispatchScope scope(desktop_);
    Load();
    if (!loaded_ || unloading_) return;
    if (!peer_) MakeWindow();
    visible_ = true;
    peer_->Changed(FormAspect::Visible);
    if (AcceptsInput()) peer_->Activate();
}

void Form::MakeWindow() {
    try {
        peer_ = desktop_.CreatePeer(*this);
    } catch (...) {
        // Loaded and out of sight it could never be closed, nor let its opener in again.
        Unload();
        throw;
    }
}

void Form::Unload() {
    if (!loaded_ || unloading_) return;
    unloading_ = true;
    desktop_.Guard({this, nullptr, event::Unload}, [this] { OnUnload(); });
    loaded_ = false;
    isOver_ = true;
    visible_ = false;
    active_ = false;
    activeControl_ = nullptr;
    desktop_.Remove(*this);
    if (peer_) peer_->Close();
    unloading_ = false;
    if (whenUnloaded) whenUnloaded(*this);
}

void Form::KeepOnTop() {
    if (peer_ && visible_) peer_->KeepOnTop();
}

void Form::DragByCaption() {
    if (!peer_) return;
    EndPress();
    peer_->DragByCaption();
    Reconcile();
}

void Form::Reconcile() noexcept {
    if (peer_) peer_->Reconcile();
}

void Form::EndPress() {
    for (Control* control : AllControls())
        control->HandleCaptureLost();
}

void Form::Refresh() {
    if (peer_) peer_->Changed(FormAspect::Look);
}

// Focus.

void Form::Focus(Control& control) {
    const bool usable = visible_ && AcceptsInput() && !unloading_;
    // Activating first: what the window does then must not take back the focus that is given now.
    if (usable && !active_ && peer_) peer_->Activate();
    if (!control.CanTakeFocus()) return;
    MoveFocus(control);
    if (usable && active_ && activeControl_ == &control && control.Peer() != nullptr)
        control.Peer()->TakeFocus();
}

void Form::MoveFocus(Control& control) {
    if (activeControl_ == &control) return;
    Control* previous = activeControl_;
    activeControl_ = &control;
    if (previous != nullptr) previous->RaiseLostFocus();
    // The handler of the control that was left may have sent the focus elsewhere, or have closed the window.
    if (activeControl_ == &control) control.RaiseGotFocus();
}

void Form::FocusFirst() {
    for (Control* control : AllControls()) {
        if (control->CanTakeFocus()) {
            Focus(*control);
            return;
        }
    }
}

void Form::FocusNext() {
    FocusNeighbour(1);
}

void Form::FocusPrevious() {
    FocusNeighbour(-1);
}

void Form::FocusNeighbour(int step) {
    if (Control* next = Neighbour(step)) Focus(*next);
}

Control* Form::Neighbour(int step) const {
    const std::vector<Control*> controls = AllControls();
    const auto count = static_cast<std::ptrdiff_t>(controls.size());
    auto index = std::find(controls.begin(), controls.end(), activeControl_) - controls.begin();
    if (index == count) index = step > 0 ? -1 : 0;
    for (std::ptrdiff_t tried = 0; tried < count; ++tried) {
        index = (index + step + count) % count;
        Control* candidate = controls[static_cast<std::size_t>(index)];
        if (candidate->CanTakeFocus()) return candidate;
    }
    return nullptr;
}

void Form::EndPressOfUnavailable() {
    for (Control* control : AllControls()) {
        if (!control->IsEffectivelyEnabled() || !control->IsEffectivelyVisible())
            control->HandleCaptureLost();
    }
}

void Form::LeaveUnfocusable() {
    if (activeControl_ == nullptr || unloading_ || activeControl_->CanTakeFocus()) return;
    Control* left = activeControl_;
    // A window that is not in use stays in the background.
    if (Control* next = Neighbour(1)) active_ ? Focus(*next) : MoveFocus(*next);
    if (activeControl_ != left) return;
    activeControl_ = nullptr;
    left->RaiseLostFocus();
}

// Input.

std::optional<Copied> Form::Copy() const {
    return activeControl_ != nullptr ? activeControl_->Copy() : std::nullopt;
}

/// What every window does with a key that none of its handlers wants.
bool Form::HandleCommonKey(int keyCode, Modifiers modifiers) {
    if (modifiers.alt) return false;
    if (keyCode == key::F6 && !modifiers.control) {
        desktop_.ActivateNeighbour(*this, modifiers.shift ? -1 : 1);
        return true;
    }
    const bool copies =
        modifiers.control && !modifiers.shift && (keyCode == key::C || keyCode == key::Insert);
    const std::optional<Copied> copied = copies ? Copy() : std::nullopt;
    if (!copied) return false;
    desktop_.Guard({this, activeControl_, event::KeyDown}, [&] { desktop_.CopyToClipboard(*copied); });
    return true;
}

KeyOutcome Form::HandleKeyDown(int keyCode, Modifiers modifiers) {
    const Desktop::DispatchScope scope(desktop_);
    if (!AcceptsInput()) return KeyOutcome::Done;
    Control* const target = activeControl_;
    if (target != nullptr) target->CompleteInput(keyCode);
    desktop_.Guard({this, nullptr, event::KeyDown}, [&] { OnKeyDown(keyCode, modifiers); });
    // A key that the preview let pass reaches its control even when the preview has closed the window.
    if (keyCode != key::Swallowed && target != nullptr && target->onKeyDown) {
        desktop_.Guard({this, target, event::KeyDown}, [&] { target->onKeyDown(keyCode, modifiers); });
    }
    if (keyCode == key::Swallowed || !loaded_ || activeControl_ != target) return KeyOutcome::Done;
    if (HandleCommonKey(keyCode, modifiers)) return KeyOutcome::Done;
    if (keyCode == key::Tab && TabLeaves(target, modifiers)) {
        FocusNeighbour(modifiers.shift ? -1 : 1);
        return KeyOutcome::Done;
    }
    return target != nullptr ? target->DefaultKeyDown(keyCode, modifiers) : KeyOutcome::Default;
}

KeyOutcome Form::HandleKeyPress(char32_t character) {
    const Desktop::DispatchScope scope(desktop_);
    if (!AcceptsInput()) return KeyOutcome::Done;
    Control* const target = activeControl_;
    if (target == nullptr) return KeyOutcome::Default;
    if (target->onKeyPress)
        desktop_.Guard({this, target, event::KeyPress}, [&] { target->onKeyPress(character); });
    if (character == 0 || !loaded_ || activeControl_ != target) return KeyOutcome::Done;
    return target->DefaultKeyPress(character);
}

bool Form::HandleAccelerator(char32_t letter) {
    const Desktop::DispatchScope scope(desktop_);
    if (!AcceptsInput()) return false;
    for (Control* control : AllControls()) {
        if (control->Accelerator() == 0 || !control->CanTakeFocus()) continue;
        if (!SameLetter(control->Accelerator(), letter)) continue;
        if (control->SetFocusByUser()) control->Click();
        return true;
    }
    return false;
}

void Form::HandleActivate() {
    const Desktop::DispatchScope scope(desktop_);
    if (!loaded_ || unloading_ || active_) return;
    active_ = true;
    desktop_.activeForm_ = this;
    if (!desktop_.IsCovered()) desktop_.Guard({this, nullptr, event::Activate}, [this] { OnActivate(); });
    if (!loaded_ || !active_) return;
    if (activeControl_ == nullptr) {
        FocusFirst();
    } else if (activeControl_->Peer() != nullptr) {
        activeControl_->Peer()->TakeFocus();
    }
}

void Form::HandleKeyUp() {
    if (!isOver_) desktop_.Guard({this, nullptr, event::KeyUp}, [this] { OnKeyUp(); });
}

void Form::HandleDeactivate() {
    const Desktop::DispatchScope scope(desktop_);
    if (!active_) return;
    active_ = false;
    if (desktop_.activeForm_ == this) desktop_.activeForm_ = nullptr;
    if (activeControl_ != nullptr) activeControl_->Repaint();
    if (!unloading_ && !desktop_.IsCovered())
        desktop_.Guard({this, nullptr, event::Deactivate}, [this] { OnDeactivate(); });
}

void Form::HandleFocus(Control& control) {
    const Desktop::DispatchScope scope(desktop_);
    if (loaded_ && AcceptsInput() && control.CanTakeFocus()) MoveFocus(control);
}

void Form::HandleMouseDown(const MouseInput& input) {
    if (AcceptsInput()) desktop_.Guard({this, nullptr, event::MouseDown}, [&] { OnMouseDown(input); });
}

void Form::HandleMouseMove(const MouseInput& input) {
    if (AcceptsInput()) desktop_.Guard({this, nullptr, event::MouseMove}, [&] { OnMouseMove(input); });
}

void Form::HandleMoved(Point topLeft) {
    bounds_.left = topLeft.x;
    bounds_.top = topLeft.y;
}

void Form::HandleSized(Size client) {
    const Size frame = desktop_.FrameSize(border_);
    bounds_.width = client.width + frame.width;
    bounds_.height = client.height + frame.height;
    layout_.Apply();
}

// Controls.

std::vector<Control*> Form::AllControls() const {
    std::vector<Control*> controls;
    CollectControls(*this, controls);
    std::ranges::stable_sort(controls, {}, &Control::TabIndex);
    return controls;
}

Control* Form::FindControl(std::string_view qualifiedName) const {
    for (Control* control : AllControls()) {
        if (control->QualifiedName() == qualifiedName) return control;
    }
    return nullptr;
}

}  // namespace tavrin::forms
