#include "win32/peers/edit_peer.h"

#include <commctrl.h>

#include <algorithm>
#include <string>

#include "win32/base/text.h"
#include "win32/peers/disagreement.h"
#include "win32/peers/edit_text.h"
#include "win32/system/contrast.h"

namespace tavrin::win32 {

namespace {

DWORD StyleOf(const forms::TextBox& control) {
    DWORD style = ES_AUTOHSCROLL;
    if (control.Alignment() == forms::Align::Right) style |= ES_RIGHT;
    if (control.Alignment() == forms::Align::Center) style |= ES_CENTER;
    if (control.Locked()) style |= ES_READONLY;
    return style;
}

UINT PlatformAlign(forms::Align align) {
    if (align == forms::Align::Right) return TA_RIGHT;
    return align == forms::Align::Center ? TA_CENTER : TA_LEFT;
}

/// Where a line of that alignment is drawn from.
LONG StartOf(forms::Align align, const RECT& line) {
    if (align == forms::Align::Right) return line.right;
    return align == forms::Align::Center ? (line.left + line.right) / 2 : line.left;
}

}  // namespace

EditPeer::EditPeer(forms::TextBox& control, FormPeer& form) : EditWindow(control, form), control_(control) {
    Create(WC_EDITW, StyleOf(control), control.Text());
    ShowFont();
    ShowText();
    ShowSelection();
}

// What the model asks for.

void EditPeer::Changed(forms::Aspect aspect) {
    if (Handle() == nullptr) return;
    switch (aspect) {
        case forms::Aspect::Text:
            ShowText();
            break;
        case forms::Aspect::Selection:
            return ShowSelection();
        case forms::Aspect::Locked:
            SendMessageW(Handle(), EM_SETREADONLY, control_.Locked(), 0);
            break;
        case forms::Aspect::Look:
            ShowFont();
            break;
        default:
            break;
    }
    EditWindow::Changed(aspect);
}

void EditPeer::TakeFocus() {
    // An editor that lies over a grid comes to the front.
    SetWindowPos(Handle(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    ControlWindow::TakeFocus();
}

void EditPeer::Rescale() {
    ControlWindow::Rescale();
    ShowFont();
}

void EditPeer::ShowText() {
    if (ReadText(Handle()) == control_.Text()) return;  // what the user typed stays undoable
    isShowing_ = true;
    WriteText(Handle(), control_.Text());
    isShowing_ = false;
    ShowSelection();
}

void EditPeer::ShowSelection() {
    const TextRange wanted{control_.SelStart(), control_.SelLength()};
    if (ReadSelection(Handle()) != wanted) WriteSelection(Handle(), wanted);
}

LRESULT EditPeer::Disagreement() const {
    LRESULT differs = ControlWindow::Disagreement();
    if (ReadText(Handle()) != control_.Text()) differs |= disagreement::Text;
    if (ReadSelection(Handle()) != TextRange{control_.SelStart(), control_.SelLength()})
        differs |= disagreement::Selection;
    return differs;
}

void EditPeer::ShowFont() {
    const HFONT font = PlatformFont();
    if (reinterpret_cast<HFONT>(SendMessageW(Handle(), WM_GETFONT, 0, 0)) == font) return;
    SendMessageW(Handle(), WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    // The margins above and below follow the font.
    SetWindowPos(Handle(), nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

// What the platform tells.

LRESULT EditPeer::HandleMessage(const Message& message) {
    static constexpr Route<EditPeer> routes[] = {
        {WM_NCCALCSIZE, &EditPeer::OnCalculateClientArea},
        {WM_NCPAINT, &EditPeer::OnPaintFrame},
        {WM_NCHITTEST, &EditPeer::OnHitTest},
        {WM_CTLCOLOREDIT + Reflected, &EditPeer::OnColors},
        {WM_CTLCOLORSTATIC + Reflected, &EditPeer::OnColors},
        {WM_COMMAND + Reflected, &EditPeer::OnCommand},
        {WM_PAINT, &EditPeer::OnPaint},
        {WM_PRINTCLIENT, &EditPeer::OnPaint},
        {EM_SETSEL, &EditPeer::OnEditing},
        {EM_REPLACESEL, &EditPeer::OnEditing},
        {EM_UNDO, &EditPeer::OnEditing},
        {WM_UNDO, &EditPeer::OnEditing},
        {WM_CUT, &EditPeer::OnEditing},
        {WM_CLEAR, &EditPeer::OnEditing},
        {WM_PASTE, &EditPeer::OnEditing},
        {WM_SETTEXT, &EditPeer::OnEditing},
        {WM_CONTEXTMENU, &EditPeer::OnEditing},
    };
    if (const auto answer = HandleBy<EditPeer>(routes, *this, message)) return *answer;
    return EditWindow::HandleMessage(message);
}

LRESULT EditPeer::OnKey(const Message& message) {
    ReportSelection();
    if (SharedResources().Keys().Handle(OwnerForm(), message) == KeyRoute::Dealt) return 0;
    const LRESULT answer = message.id == WM_CHAR ? PassCharacter(message) : CallDefault(message);
    ReportSelection();
    return answer;
}

LRESULT EditPeer::PassCharacter(const Message& message) {
    constexpr WPARAM ControlA = 1;
    if (message.wParam == ControlA) return SendMessageW(Handle(), EM_SETSEL, 0, -1);
    return OnlyBeeps(message) ? 0 : PassOn(message);
}

LRESULT EditPeer::OnColors(const Message& message) {
    return ApplyColors(reinterpret_cast<HDC>(message.wParam));
}

// The platform greys the text of every field that takes no input. One that only rests, because the frame
// around it does, is there to be read: it is painted here in its own colours.
LRESULT EditPeer::OnPaint(const Message& message) {
    const bool onlyRests = control_.Enabled() && !control_.IsEffectivelyEnabled();
    if (!onlyRests) return CallDefault(message);
    if (const auto given = reinterpret_cast<HDC>(message.wParam)) {
        PaintBrowsed(given);
        return 0;
    }
    PAINTSTRUCT paint{};
    PaintBrowsed(BeginPaint(Handle(), &paint));
    EndPaint(Handle(), &paint);
    return 0;
}

void EditPeer::PaintBrowsed(HDC dc) const {
    const SelectScope font(dc, PlatformFont());
    RECT area{};
    GetClientRect(Handle(), &area);
    RECT line = area;
    SendMessageW(Handle(), EM_GETRECT, 0, reinterpret_cast<LPARAM>(&line));
    SetTextColor(dc, OnScreen(forms::ColorUse::Text, control_.ForeColor()));
    SetBkColor(dc, BackgroundColor());
    const LONG x = StartOf(control_.Alignment(), line);
    SetTextAlign(dc, PlatformAlign(control_.Alignment()));
    const std::wstring text = ToWide(control_.Text());
    // Ground and text at once: nothing flickers.
    ExtTextOutW(dc, x, line.top, ETO_OPAQUE | ETO_CLIPPED, &area, text.c_str(),
                static_cast<UINT>(text.size()), nullptr);
}

LRESULT EditPeer::OnCommand(const Message& message) {
    const bool isNews = !isShowing_ && !SharedResources().Keys().IsInsideCharacter();
    if (HIWORD(message.wParam) != EN_CHANGE || !isNews) return 0;
    const TextRange selection = ReadSelection(Handle());
    control_.HandleEdited(ReadText(Handle()), selection.start, selection.length);
    return 0;
}

/// Commands and other programs move the caret, of which the platform tells nobody.
LRESULT EditPeer::OnEditing(const Message& message) {
    const LRESULT answer = CallDefault(message);
    if (!isShowing_ && Handle() != nullptr) ReportSelection();
    return answer;
}

void EditPeer::ReportSelection() {
    const TextRange selection = ReadSelection(Handle());
    if (selection != TextRange{control_.SelStart(), control_.SelLength()})
        control_.HandleSelection(selection.start, selection.length);
}

// The frame.

LRESULT EditPeer::OnCalculateClientArea(const Message& message) {
    RECT& area = *reinterpret_cast<RECT*>(message.lParam);
    const int margin = std::max(FrameThickness(PixelScale()), (Height(area) - LineHeight()) / 2);
    // The field of a cell that is all but out of sight has less room than its margins want.
    InflateRect(&area, -std::min(SideMargin(PixelScale()), Width(area) / 2),
                -std::min(margin, Height(area) / 2));
    return 0;
}

LRESULT EditPeer::OnPaintFrame(const Message&) {
    PaintEditFrame(Handle(), BackgroundColor(), Frame());
    return 0;
}

forms::Color EditPeer::BackgroundColor() const {
    return OnScreen(forms::ColorUse::Area, control_.BackColor());
}

EditFrame EditPeer::Frame() const {
    return control_.Bordered() ? FocusFrame() : EditFrame{BackgroundColor(), 0};
}

LRESULT EditPeer::OnHitTest(const Message&) {
    return HTCLIENT;  // the margins belong to the field
}

}  // namespace tavrin::win32
