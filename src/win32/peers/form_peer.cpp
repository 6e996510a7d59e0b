#include "win32/peers/form_peer.h"

#include <algorithm>
#include <utility>

#include "forms/controls/decoration.h"
#include "win32/base/text.h"
#include "win32/peers/control_window.h"
#include "win32/peers/disagreement.h"
#include "win32/peers/form_style.h"
#include "win32/peers/peer_factory.h"
#include "win32/system/dpi.h"
#include "win32/system/monitors.h"
#include "win32/window/mouse_message.h"
#include "win32/window/reflection.h"
#include "win32/window/window_painter.h"

namespace tavrin::win32 {

namespace {

void CreateControlsOf(forms::Container& container, FormPeer& form) {
    for (forms::Control* control : container.Controls()) {
        control->SetPeer(CreateControlPeer(*control, form));
        if (auto* inner = dynamic_cast<forms::Container*>(control)) CreateControlsOf(*inner, form);
    }
}

}  // namespace

FormPeer::FormPeer(forms::Desktop& desktop, forms::Form& form, std::shared_ptr<WindowResources> resources)
    : Window(desktop),
      desktop_(desktop),
      form_(form),
      resources_(std::move(resources)),
      scale_(SystemScale()) {
    const FormStyle kind = FormStyle::Of(form.Border());
    Attach(resources_->CreateWindowWith({.className = WindowClasses::Form,
                                         .text = form.Caption(),
                                         .style = kind.style,
                                         .extendedStyle = kind.extendedStyle}),
           form.Name());
    scale_ = ScaleOf(Handle());
    tips_.emplace(*resources_, Handle());
    if ((kind.style & WS_CAPTION) != 0) resources_->DarkenTitleBar(Handle());
    EnableOrDisable();
    Place();
}

FormPeer::~FormPeer() {
    // The window before the resources, which may take the window's class along.
    tips_.reset();
    Destroy();
}

void FormPeer::CreateControls() {
    try {
        CreateControlsOf(form_, *this);
    } catch (...) {
        for (forms::Control* control : form_.AllControls())
            control->SetPeer(nullptr);
        throw;
    }
}

// What the model asks for.

void FormPeer::Changed(forms::FormAspect aspect) {
    if (Handle() == nullptr) return;
    switch (aspect) {
        case forms::FormAspect::Bounds:
            return Place();
        case forms::FormAspect::Visible:
            return ShowOrHide();
        case forms::FormAspect::Enabled:
            return EnableOrDisable();
        case forms::FormAspect::Caption:
            return void(SetWindowTextW(Handle(), ToWide(form_.Caption()).c_str()));
        case forms::FormAspect::Look:
            RedrawWindow(Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
            return;
    }
}

void FormPeer::ShowOrHide() {
    ShowWindow(Handle(), form_.Visible() && !isClosed_ ? SW_SHOWNA : SW_HIDE);
}

void FormPeer::EnableOrDisable() {
    EnableWindow(Handle(), form_.AcceptsInput());
}

void FormPeer::Reconcile() noexcept {
    desktop_.Guard([this] {
        if (Handle() == nullptr || isClosed_) return;
        EnableOrDisable();
        // Showing what is in sight would also put it above the others.
        if ((IsWindowVisible(Handle()) != FALSE) != form_.Visible()) ShowOrHide();
        for (forms::Control* control : form_.AllControls()) {
            if (auto* peer = dynamic_cast<ControlWindow*>(control->Peer())) peer->Reconcile();
        }
        if (GetActiveWindow() == Handle()) RestoreFocus();
    });
}

void FormPeer::Place() {
    const Scale screen = SystemScale();
    const RECT outer = OuterOf(form_.ClientSize());
    isPlacing_ = true;
    SetWindowPos(Handle(), nullptr, screen.ToPixels(form_.Bounds().left), screen.ToPixels(form_.Bounds().top),
                 Width(outer), Height(outer), SWP_NOZORDER | SWP_NOACTIVATE);
    isPlacing_ = false;
}

RECT FormPeer::OuterOf(forms::Size client) const {
    const FormStyle kind = FormStyle::Of(form_.Border());
    return WindowAround({0, 0, scale_.ToPixels(client.width), scale_.ToPixels(client.height)}, kind.style,
                        kind.extendedStyle, scale_.ScreenDpi());
}

void FormPeer::Activate() {
    if (Handle() == nullptr || isClosed_) return;
    SetForegroundWindow(Handle());
    // A host in the background may not take the foreground; its own thread can still make the window active.
    if (GetActiveWindow() != Handle()) SetActiveWindow(Handle());
    if (GetActiveWindow() == Handle()) form_.HandleActivate();
}

void FormPeer::KeepOnTop() {
    SetWindowPos(Handle(), HWND_TOPMOST, 0, 0, 0, 0,
                 SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_SHOWWINDOW | SWP_NOOWNERZORDER);
}

void FormPeer::DragByCaption() {
    ReleaseCapture();
    SendMessageA(Handle(), WM_NCLBUTTONDOWN, HTCAPTION, 0);
}

void FormPeer::Close() {
    isClosed_ = true;
    if (Handle() != nullptr) ShowWindow(Handle(), SW_HIDE);
}

HWND FormPeer::WindowOf(forms::Container& container) const {
    const forms::Control* control = container.AsControl();
    const auto* peer = control != nullptr ? dynamic_cast<const ControlWindow*>(control->Peer()) : nullptr;
    return peer != nullptr ? peer->Handle() : Handle();
}

void FormPeer::RestoreFocus() {
    const forms::Control* control = form_.ActiveControl();
    if (control != nullptr && control->CanTakeFocus() && control->Peer() != nullptr) {
        control->Peer()->TakeFocus();
    } else if (GetFocus() != Handle()) {
        SetFocus(Handle());
    }
}

// What the platform tells.

LRESULT FormPeer::HandleMessage(const Message& message) {
    static constexpr Route<FormPeer> routes[] = {
        {WM_ACTIVATE, &FormPeer::OnActivate},
        {WM_SETFOCUS, &FormPeer::OnSetFocus},
        {WM_CLOSE, &FormPeer::OnClose},
        {WM_DESTROY, &FormPeer::OnDestroy},
        {WM_MOVE, &FormPeer::OnMove},
        {WM_SIZE, &FormPeer::OnSize},
        {WM_SIZING, &FormPeer::OnSizing},
        {WM_GETMINMAXINFO, &FormPeer::OnSizeLimits},
        {WM_DPICHANGED, &FormPeer::OnDpiChanged},
        {WM_DISPLAYCHANGE, &FormPeer::OnDisplayChange},
        {WM_SYSCOLORCHANGE, &FormPeer::OnColorsChanged},
        {WM_SETTINGCHANGE, &FormPeer::OnSettingChanged},
        {WM_PAINT, &FormPeer::OnPaint},
        {WM_PRINTCLIENT, &FormPeer::OnPaint},
        {WM_ERASEBKGND, &FormPeer::OnEraseBackground},
        {WM_LBUTTONDOWN, &FormPeer::OnMouseButton},
        {WM_RBUTTONDOWN, &FormPeer::OnMouseButton},
        {WM_MBUTTONDOWN, &FormPeer::OnMouseButton},
        {WM_MOUSEMOVE, &FormPeer::OnMouseMove},
        {DisagreementQuestion, &FormPeer::OnDisagreementQuestion},
    };
    if (isClosed_) return CallDefault(message);
    if (KeyInput::IsKeyMessage(message.id)) return OnKey(message);
    if (const auto answer = HandleBy<FormPeer>(routes, *this, message)) return *answer;
    if (const auto answer = Reflect(message)) return *answer;
    return CallDefault(message);
}

LRESULT FormPeer::OnActivate(const Message& message) {
    if (LOWORD(message.wParam) == WA_INACTIVE) {
        form_.HandleDeactivate();
        return 0;
    }
    if (HIWORD(message.wParam) != 0) return 0;  // minimized
    form_.HandleActivate();
    // The platform's own answer would be to focus the form itself.
    if (!isClosed_ && GetActiveWindow() == Handle() && !IsChild(Handle(), GetFocus())) RestoreFocus();
    return 0;
}

LRESULT FormPeer::OnSetFocus(const Message&) {
    RestoreFocus();
    return 0;
}

LRESULT FormPeer::OnClose(const Message&) {
    form_.HandleClose();
    return 0;
}

LRESULT FormPeer::OnDestroy(const Message& message) {
    // Somebody else destroys the window: the form goes with it.
    form_.Unload();
    return CallDefault(message);
}

LRESULT FormPeer::OnMove(const Message& message) {
    if (isPlacing_ || IsIconic(Handle())) return 0;
    const Scale screen = SystemScale();
    RECT outer{};
    GetWindowRect(Handle(), &outer);
    form_.HandleMoved({screen.ToTwips(outer.left), screen.ToTwips(outer.top)});
    return CallDefault(message);
}

LRESULT FormPeer::OnSize(const Message& message) {
    const bool isByUser = !isPlacing_ && message.wParam == SIZE_RESTORED;
    if (isByUser && form_.Border() == forms::BorderStyle::Sizable)
        form_.HandleSized({scale_.ToTwips(LOWORD(message.lParam)), scale_.ToTwips(HIWORD(message.lParam))});
    return CallDefault(message);
}

LRESULT FormPeer::OnSizing(const Message& message) {
    RECT outer{};
    GetWindowRect(Handle(), &outer);
    StopAtEdge(*reinterpret_cast<RECT*>(message.lParam), message.wParam, WorkAreaOf(outer));
    return TRUE;
}

LRESULT FormPeer::OnSizeLimits(const Message& message) {
    const LRESULT answer = CallDefault(message);
    if (form_.Border() != forms::BorderStyle::Sizable) return answer;
    auto& limits = *reinterpret_cast<MINMAXINFO*>(message.lParam);
    if (isPlacing_) {  // the form knows what it wants
        limits.ptMaxTrackSize = {SHRT_MAX, SHRT_MAX};
        limits.ptMinTrackSize = {};
        return 0;
    }
    RECT outer{};
    GetWindowRect(Handle(), &outer);
    const RECT area = WorkAreaOf(outer);
    const RECT smallest = OuterOf(form_.SmallestClientSize());
    limits.ptMaxTrackSize = {Width(area), Height(area)};
    limits.ptMinTrackSize = {std::min(Width(smallest), Width(area)),
                             std::min(Height(smallest), Height(area))};
    return 0;
}

LRESULT FormPeer::OnDpiChanged(const Message& message) {
    const auto& suggested = *reinterpret_cast<const RECT*>(message.lParam);
    Rescale(Scale(HIWORD(message.wParam), TextPercent()), {suggested.left, suggested.top});
    return 0;
}

void FormPeer::Rescale(Scale scale, POINT topLeft) {
    const Scale screen = SystemScale();
    scale_ = scale;
    form_.HandleMoved({screen.ToTwips(topLeft.x), screen.ToTwips(topLeft.y)});
    Place();
    for (forms::Control* control : form_.AllControls()) {
        if (auto* peer = dynamic_cast<ControlWindow*>(control->Peer())) peer->Rescale();
    }
    Changed(forms::FormAspect::Look);
}

/// The user may want texts of another size.
LRESULT FormPeer::OnSettingChanged(const Message& message) {
    const Scale scale(scale_.ScreenDpi(), TextPercent());
    if (scale != scale_) {
        RECT outer{};
        RECT client{};
        GetWindowRect(Handle(), &outer);
        GetClientRect(Handle(), &client);
        // The frame, which does not grow along, is another one in twips.
        form_.HandleSized({scale_.ToTwips(client.right), scale_.ToTwips(client.bottom)});
        Rescale(scale, {outer.left, outer.top});
        form_.KeepInWorkArea();
    }
    return OnColorsChanged(message);
}

/// A monitor may have gone, and this window with it.
LRESULT FormPeer::OnDisplayChange(const Message& message) {
    RECT outer{};
    GetWindowRect(Handle(), &outer);
    const POINT place = ReachablePlace(outer);
    if (place.x != outer.left || place.y != outer.top)
        SetWindowPos(Handle(), nullptr, place.x, place.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    return CallDefault(message);
}

/// High contrast may be on or off now.
LRESULT FormPeer::OnColorsChanged(const Message& message) {
    if (tips_) tips_->ShowColors();
    RedrawWindow(Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_ALLCHILDREN);
    return CallDefault(message);
}

LRESULT FormPeer::OnPaint(const Message& message) {
    WindowPainter painter(Handle(), message, *resources_, scale_, {0, 0});
    const forms::Size client = form_.ClientSize();
    painter.Surface().FillRectangle({0, 0, client.width, client.height}, form_.BackColor());
    forms::DrawDecorations(form_, painter.Surface());
    return 0;
}

LRESULT FormPeer::OnEraseBackground(const Message&) {
    return 1;  // painting covers everything
}

LRESULT FormPeer::OnMouseButton(const Message& message) {
    form_.HandleMouseDown(ToMouseInput(message, scale_));
    return 0;
}

LRESULT FormPeer::OnMouseMove(const Message& message) {
    form_.HandleMouseMove(ToMouseInput(message, scale_));
    return 0;
}

LRESULT FormPeer::OnDisagreementQuestion(const Message&) {
    LRESULT differs = disagreement::None;
    if ((IsWindowEnabled(Handle()) != FALSE) != form_.AcceptsInput()) differs |= disagreement::Enabled;
    if ((IsWindowVisible(Handle()) != FALSE) != form_.Visible()) differs |= disagreement::Visible;
    return differs;
}

LRESULT FormPeer::OnKey(const Message& message) {
    return resources_->Keys().Handle(form_, message) == KeyRoute::Dealt ? 0 : CallDefault(message);
}

}  // namespace tavrin::win32
