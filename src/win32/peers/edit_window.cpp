#include "win32/peers/edit_window.h"

#include <algorithm>
#include <utility>

#include "forms/controls/look.h"
#include "win32/system/contrast.h"
#include "win32/window/mouse_message.h"

namespace tavrin::win32 {

bool OnlyBeeps(const Message& message) {
    return message.id == WM_CHAR &&
           (message.wParam == VK_RETURN || message.wParam == VK_ESCAPE || message.wParam == VK_TAB);
}

void EditWindow::Changed(forms::Aspect aspect) {
    ControlWindow::Changed(aspect);
    if (Handle() != nullptr) RedrawFrame(Handle());
}

LRESULT EditWindow::HandleMessage(const Message& message) {
    static constexpr Route<EditWindow> routes[] = {
        {WM_CAPTURECHANGED, &EditWindow::OnCaptureChanged},
        {WM_MOUSEMOVE, &EditWindow::OnMouse},
        {WM_LBUTTONDOWN, &EditWindow::OnMouse},
        {WM_LBUTTONUP, &EditWindow::OnMouse},
        {WM_RBUTTONDOWN, &EditWindow::OnMouse},
        {WM_RBUTTONUP, &EditWindow::OnMouse},
        {WM_LBUTTONDBLCLK, &EditWindow::OnMouse},
    };
    if (const auto answer = HandleBy<EditWindow>(routes, *this, message)) return *answer;
    return ControlWindow::HandleMessage(message);
}

LRESULT EditWindow::OnKey(const Message& message) {
    if (SharedResources().Keys().Handle(OwnerForm(), message) == KeyRoute::Dealt) return 0;
    const LRESULT answer = PassOn(message);
    ReportSelection();
    return answer;
}

LRESULT EditWindow::PassOn(const Message& message) const {
    return SharedResources().Keys().PassOn(message,
                                           [this](const Message& each) { return CallDefault(each); });
}

LRESULT EditWindow::OnSetFocus(const Message& message) {
    const LRESULT answer = ControlWindow::OnSetFocus(message);
    RedrawFrame(Handle());
    return answer;
}

LRESULT EditWindow::OnKillFocus(const Message& message) {
    const LRESULT answer = ControlWindow::OnKillFocus(message);
    RedrawFrame(Handle());
    return answer;
}

// The mouse: the model hears of it, the platform's control acts on it.

LRESULT EditWindow::OnMouse(const Message& message) {
    if (IsButtonUp(message.id)) return OnRelease(message);
    const bool goesOn = ReportMouse(message);
    if (message.id != WM_MOUSEMOVE) holdsPress_ = goesOn;
    if (!goesOn) return 0;
    const LRESULT answer = CallDefault(message);
    if (message.id != WM_MOUSEMOVE || FollowsDrag()) ReportSelection();
    return answer;
}

LRESULT EditWindow::OnRelease(const Message& message) {
    // The model ends the press itself when the left button goes up. A menu that another button opens takes
    // the mouse.
    isReleasing_ = message.id == WM_LBUTTONUP;
    // A press that came to nothing, as the editor was not to have the focus, opens no menu either.
    const LRESULT answer = std::exchange(holdsPress_, false) ? CallDefault(message) : 0;
    isReleasing_ = false;
    ReportSelection();
    ReportMouse(message);
    return answer;
}

LRESULT EditWindow::OnCaptureChanged(const Message& message) {
    const LRESULT answer = CallDefault(message);
    holdsPress_ = false;
    if (!isReleasing_) OwnControl().HandleCaptureLost();
    return answer;
}

bool EditWindow::ReportMouse(const Message& message) {
    const forms::MouseInput input = ToMouseInput(message, PixelScale());
    if (IsButtonDown(message.id)) return OwnControl().HandleMouseDown(input);
    if (message.id == WM_MOUSEMOVE) OwnControl().HandleMouseMove(input);
    if (IsButtonUp(message.id)) OwnControl().HandleMouseUp(input);
    if (IsDoubleClick(message.id)) OwnControl().HandleDblClick(input);
    return OwnerForm().AcceptsInput() && OwnerForm().IsLoaded();
}

// The frame.

EditFrame EditWindow::FocusFrame() const {
    const forms::look::Edge edge = forms::look::EdgeOf(OwnControl(), HoldsFocus());
    return {OnScreen(forms::ColorUse::Line, edge.color), std::max(1, PixelScale().ToPixels(edge.width)),
            edge.isLine};
}

}  // namespace tavrin::win32
