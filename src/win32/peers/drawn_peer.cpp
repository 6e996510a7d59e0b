#include "win32/peers/drawn_peer.h"

#include "forms/controls/decoration.h"
#include "forms/model/container.h"
#include "win32/window/mouse_message.h"
#include "win32/window/reflection.h"
#include "win32/window/window_painter.h"

namespace tavrin::win32 {

DrawnPeer::DrawnPeer(forms::Control& control, FormPeer& form)
    : ControlWindow(control, form), control_(control) {
    Create(WindowClasses::Control, WS_CLIPCHILDREN);
}

void DrawnPeer::Changed(forms::Aspect aspect) {
    drawFailed_ = false;
    ControlWindow::Changed(aspect);
}

LRESULT DrawnPeer::HandleMessage(const Message& message) {
    static constexpr Route<DrawnPeer> routes[] = {
        {WM_PAINT, &DrawnPeer::OnPaint},
        {WM_PRINTCLIENT, &DrawnPeer::OnPaint},
        {WM_ERASEBKGND, &DrawnPeer::OnEraseBackground},
        {WM_MOUSEMOVE, &DrawnPeer::OnMouseMove},
        {WM_MOUSELEAVE, &DrawnPeer::OnMouseLeave},
        {WM_CAPTURECHANGED, &DrawnPeer::OnCaptureChanged},
        {WM_LBUTTONDOWN, &DrawnPeer::OnMouseButton},
        {WM_RBUTTONDOWN, &DrawnPeer::OnMouseButton},
        {WM_MBUTTONDOWN, &DrawnPeer::OnMouseButton},
        {WM_LBUTTONUP, &DrawnPeer::OnMouseButton},
        {WM_RBUTTONUP, &DrawnPeer::OnMouseButton},
        {WM_MBUTTONUP, &DrawnPeer::OnMouseButton},
        {WM_LBUTTONDBLCLK, &DrawnPeer::OnMouseButton},
        {WM_RBUTTONDBLCLK, &DrawnPeer::OnMouseButton},
        {WM_MBUTTONDBLCLK, &DrawnPeer::OnMouseButton},
    };
    if (const auto answer = HandleBy<DrawnPeer>(routes, *this, message)) return *answer;
    if (const auto answer = Reflect(message)) return *answer;
    return ControlWindow::HandleMessage(message);
}

// Painting.

LRESULT DrawnPeer::OnPaint(const Message& message) {
    const forms::Rect& bounds = control_.Bounds();
    WindowPainter painter(Handle(), message, SharedResources(), PixelScale(), {bounds.left, bounds.top});
    painter.Surface().FillRectangle({0, 0, bounds.width, bounds.height}, control_.BackColor());
    if (!drawFailed_) Draw(painter.Surface());
    return 0;
}

void DrawnPeer::Draw(forms::Surface& surface) {
    drawFailed_ = true;
    control_.Draw(surface);
    if (const auto* container = dynamic_cast<const forms::Container*>(&control_))
        forms::DrawDecorations(*container, surface);
    drawFailed_ = false;
}

LRESULT DrawnPeer::OnEraseBackground(const Message&) {
    return 1;  // painting covers everything
}

// The mouse.

LRESULT DrawnPeer::OnMouseMove(const Message& message) {
    if (!isTracking_) {
        TRACKMOUSEEVENT tracking{sizeof tracking, TME_LEAVE, Handle(), 0};
        isTracking_ = TrackMouseEvent(&tracking) != FALSE;
    }
    control_.HandleMouseMove(ToMouseInput(message, PixelScale()));
    return 0;
}

LRESULT DrawnPeer::OnMouseLeave(const Message&) {
    isTracking_ = false;
    control_.HandleMouseLeave();
    return 0;
}

LRESULT DrawnPeer::OnCaptureChanged(const Message&) {
    if (!isReleasing_) control_.HandleCaptureLost();
    return 0;
}

LRESULT DrawnPeer::OnMouseButton(const Message& message) {
    const forms::MouseInput input = ToMouseInput(message, PixelScale());
    if (IsButtonUp(message.id)) {
        Release(message);
    } else if (IsDoubleClick(message.id) && control_.onDblClick) {
        control_.HandleDblClick(input);
    } else {
        // Without a handler of its own the second press of a double click is a press like any other.
        Press(input);
    }
    return 0;
}

void DrawnPeer::Press(const forms::MouseInput& input) {
    SetCapture(Handle());
    const bool goesOn = control_.HandleMouseDown(input);
    if (!goesOn && GetCapture() == Handle()) ReleaseCapture();
    // A window that becomes the active one on the way takes the mouse from all others.
    if (control_.IsPressed() && GetCapture() != Handle()) SetCapture(Handle());
}

void DrawnPeer::Release(const Message& message) {
    // Before the model acts: a click may well show a message. The left button's release ends the press in the
    // model itself; when the last button to go up is another one, the press ends with the mouse.
    if (!IsAnyButtonHeld(message) && GetCapture() == Handle()) {
        isReleasing_ = message.id == WM_LBUTTONUP;
        ReleaseCapture();
        isReleasing_ = false;
    }
    control_.HandleMouseUp(ToMouseInput(message, PixelScale()));
}

}  // namespace tavrin::win32
