#include "win32/peers/control_window.h"

#include <oleacc.h>

#include "win32/base/text.h"
#include "win32/peers/disagreement.h"
#include "win32/system/contrast.h"

namespace tavrin::win32 {

ControlWindow::ControlWindow(forms::Control& control, FormPeer& form)
    : Window(control.OwnerForm().OwnerDesktop()), control_(control), form_(form) {}

ControlWindow::~ControlWindow() {
    if (accessible_) accessible_->Disconnect();
    if (Handle() != nullptr) form_.Tips().Remove(Handle());
    Destroy();
}

void ControlWindow::Create(const wchar_t* className, DWORD style, std::string_view text) {
    DWORD state = WS_CHILD | WS_CLIPSIBLINGS;
    if (control_.Visible()) state |= WS_VISIBLE;
    if (!control_.IsEffectivelyEnabled()) state |= WS_DISABLED;
    Attach(SharedResources().CreateWindowWith({.className = className,
                                               .text = text,
                                               .style = state | style,
                                               .place = PixelBounds(),
                                               .parent = form_.WindowOf(control_.Parent())}),
           control_.QualifiedName());
    form_.Tips().Set(Handle(), control_.ToolTip());
}

RECT ControlWindow::PixelBounds() const {
    return PixelScale().ToPixels(control_.Bounds());
}

HFONT ControlWindow::PlatformFont() const {
    return SharedResources().Fonts().Find(control_.TextFont(), PixelScale().Dpi());
}

int ControlWindow::LineHeight() const {
    const HDC dc = SharedResources().Canvas().Dc();
    const SelectScope font(dc, PlatformFont());
    TEXTMETRICW metrics{};
    GetTextMetricsW(dc, &metrics);
    return metrics.tmHeight;
}

LRESULT ControlWindow::ApplyColors(HDC dc) const {
    const bool enabled = control_.IsEffectivelyEnabled();
    const forms::Color ground = OnScreen(forms::ColorUse::Area, control_.BackColor());
    SetTextColor(
        dc, OnScreen(forms::ColorUse::Text, enabled ? control_.ForeColor() : forms::scheme::TextDisabled));
    SetBkColor(dc, ground);
    SetDCBrushColor(dc, ground);
    return reinterpret_cast<LRESULT>(GetStockObject(DC_BRUSH));
}

bool ControlWindow::HoldsFocus() const {
    const HWND focus = GetFocus();
    return focus != nullptr && (focus == Handle() || IsChild(Handle(), focus));
}

// What the model asks for.

void ControlWindow::Changed(forms::Aspect aspect) {
    if (Handle() == nullptr) return;
    switch (aspect) {
        case forms::Aspect::Bounds:
            return Place();
        case forms::Aspect::Visible:
            return ShowOrHide();
        case forms::Aspect::Enabled:
            return EnableOrDisable();
        case forms::Aspect::ToolTip:
            return form_.Tips().Set(Handle(), control_.ToolTip());
        case forms::Aspect::Announcement:
            return Announce();
        default:
            InvalidateRect(Handle(), nullptr, FALSE);
            NotifyAssistiveTools();
    }
}

void ControlWindow::TakeFocus() {
    if (Handle() != nullptr && !HoldsFocus()) SetFocus(Handle());
}

void ControlWindow::Reconcile() {
    if (Handle() == nullptr) return;
    const LRESULT differs = Disagreement();
    if (differs & disagreement::Enabled) EnableOrDisable();
    if (differs & disagreement::Visible) ShowOrHide();
}

LRESULT ControlWindow::Disagreement() const {
    const bool isShown = (GetWindowLongPtrW(Handle(), GWL_STYLE) & WS_VISIBLE) != 0;
    const bool isEnabled = IsWindowEnabled(Handle()) != FALSE;
    // Elsewhere than in front a window need not have the focus that it will have there.
    const bool isActive =
        OwnerForm().IsActive() && OwnerForm().AcceptsInput() && GetForegroundWindow() == form_.Handle();
    LRESULT differs = disagreement::None;
    if (isEnabled != control_.IsEffectivelyEnabled()) differs |= disagreement::Enabled;
    if (isShown != control_.Visible()) differs |= disagreement::Visible;
    if (isActive && HoldsFocus() != control_.HasFocus() &&
        dynamic_cast<const forms::Container*>(&control_) == nullptr)
        differs |= disagreement::Focus;
    if (control_.IsPressed() && GetCapture() != Handle()) differs |= disagreement::Pressed;
    return differs;
}

void ControlWindow::Rescale() {
    Place();
}

void ControlWindow::Place() {
    const RECT place = PixelBounds();
    SetWindowPos(Handle(), nullptr, place.left, place.top, Width(place), Height(place),
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
}

void ControlWindow::ShowOrHide() {
    // A window that goes while it has the focus leaves the keyboard to the form, until the model has chosen.
    const bool hadFocus = HoldsFocus();
    ShowWindow(Handle(), control_.Visible() ? SW_SHOWNA : SW_HIDE);
    if (hadFocus && !control_.IsEffectivelyVisible()) form_.RestoreFocus();
}

void ControlWindow::EnableOrDisable() {
    const bool hadFocus = HoldsFocus();
    EnableWindow(Handle(), control_.IsEffectivelyEnabled());
    InvalidateRect(Handle(), nullptr, FALSE);
    if (const auto* container = dynamic_cast<const forms::Container*>(&control_)) {
        for (forms::Control* inner : container->Controls()) {
            if (inner->Peer() != nullptr) inner->Peer()->Changed(forms::Aspect::Enabled);
        }
    }
    if (hadFocus && !control_.IsEffectivelyEnabled()) form_.RestoreFocus();
}

void ControlWindow::NotifyAssistiveTools() {
    if (accessible_) accessible_->NotifyChanges();
}

void ControlWindow::Announce() {
    constexpr DWORD LiveRegionChanged = 0x8019;  // EVENT_OBJECT_LIVEREGIONCHANGED, of newer headers
    NotifyAssistiveTools();
    NotifyWinEvent(LiveRegionChanged, Handle(), OBJID_CLIENT, CHILDID_SELF);
}

// What the platform tells.

LRESULT ControlWindow::HandleMessage(const Message& message) {
    static constexpr Route<ControlWindow> routes[] = {
        {WM_SETFOCUS, &ControlWindow::OnSetFocus},
        {WM_KILLFOCUS, &ControlWindow::OnKillFocus},
        {WM_GETDLGCODE, &ControlWindow::OnGetDialogCode},
        {WM_GETOBJECT, &ControlWindow::OnGetObject},
        {WM_MOUSEWHEEL, &ControlWindow::OnMouseWheel},
        {DisagreementQuestion, &ControlWindow::OnDisagreementQuestion},
    };
    if (KeyInput::IsKeyMessage(message.id)) return OnKey(message);
    if (const auto answer = HandleBy<ControlWindow>(routes, *this, message)) return *answer;
    return CallDefault(message);
}

LRESULT ControlWindow::OnKey(const Message& message) {
    const KeyRoute route = SharedResources().Keys().Handle(OwnerForm(), message);
    return route == KeyRoute::Dealt ? 0 : CallDefault(message);
}

LRESULT ControlWindow::OnSetFocus(const Message& message) {
    const LRESULT answer = CallDefault(message);
    if (!HoldsFocus()) return answer;  // somebody sent it who is not the platform
    OwnerForm().HandleFocus(control_);
    if (OwnerForm().ActiveControl() != &control_) {
        form_.RestoreFocus();
        return answer;
    }
    InvalidateRect(Handle(), nullptr, FALSE);
    return answer;
}

LRESULT ControlWindow::OnKillFocus(const Message& message) {
    InvalidateRect(Handle(), nullptr, FALSE);
    return CallDefault(message);
}

LRESULT ControlWindow::OnGetDialogCode(const Message&) {
    return DLGC_WANTALLKEYS | DLGC_WANTARROWS | DLGC_WANTTAB | DLGC_WANTCHARS;
}

LRESULT ControlWindow::OnGetObject(const Message& message) {
    if (static_cast<LONG>(message.lParam) != OBJID_CLIENT) return CallDefault(message);
    if (!accessible_)
        accessible_ = MakeObject<AccessibleControl>(control_, Handle(), SharedResources().InUse());
    return LresultFromObject(__uuidof(IAccessible), message.wParam, accessible_.Get());
}

LRESULT ControlWindow::OnMouseWheel(const Message& message) {
    wheelRest_ += GET_WHEEL_DELTA_WPARAM(message.wParam);
    const int notches = wheelRest_ / WHEEL_DELTA;
    wheelRest_ -= notches * WHEEL_DELTA;
    if (notches != 0 && control_.AcceptsInput()) control_.HandleWheel(notches);
    return 0;
}

}  // namespace tavrin::win32
