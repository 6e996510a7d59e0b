#include "win32/peers/combo_peer.h"

#include <commctrl.h>

#include <algorithm>
#include <string>
#include <utility>

#include "forms/controls/look.h"
#include "win32/base/text.h"
#include "win32/peers/disagreement.h"
#include "win32/peers/edit_text.h"
#include "win32/peers/edit_window.h"
#include "win32/system/contrast.h"
#include "win32/window/mouse_message.h"
#include "win32/window/window_painter.h"

namespace tavrin::win32 {

namespace {

/// Sent to ourselves when the platform has finished with a choice; wParam is the index, lParam the Choice.
constexpr UINT ChosenMessage = WM_APP + 1;
static_assert(ChosenMessage < WM_CTLCOLOREDIT + Reflected, "apart from the reflected messages");

constexpr int ListBorders = 8;  ///< pixels; one too few brings a scroll bar to a list that would fit
constexpr int WholeField = -1;  ///< the item number of the closed field in CB_SETITEMHEIGHT

DWORD StyleOf(forms::ComboStyle style) {
    const DWORD common =
        CBS_HASSTRINGS | CBS_OWNERDRAWFIXED | CBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_CLIPCHILDREN;
    return style == forms::ComboStyle::DropDown ? common | CBS_DROPDOWN | CBS_AUTOHSCROLL
                                                : common | CBS_DROPDOWNLIST;
}

bool WalksList(WPARAM key) {
    switch (key) {
        case VK_UP:
        case VK_DOWN:
        case VK_PRIOR:
        case VK_NEXT:
        case VK_HOME:
        case VK_END:
            return true;
        default:
            return false;
    }
}

COMBOBOXINFO InfoOf(HWND combo) {
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    GetComboBoxInfo(combo, &info);
    return info;
}

HWND FieldOf(HWND combo) {
    const HWND field = InfoOf(combo).hwndItem;
    return field != combo ? field : nullptr;
}

}  // namespace

ComboPeer::ComboPeer(forms::ComboBox& control, FormPeer& form)
    : ControlWindow(control, form), control_(control), edit_(control.OwnerForm().OwnerDesktop(), *this) {
    Create(WC_COMBOBOXW, StyleOf(control.Style()));
    if (control.Style() == forms::ComboStyle::DropDown) edit_.Adopt(FieldOf(Handle()));
    SharedResources().DarkenScrollBar(InfoOf(Handle()).hwndList);
    ShowFont();
    ShowList();
}

ComboPeer::~ComboPeer() {
    edit_.Release();
}

// What the model asks for.

void ComboPeer::Changed(forms::Aspect aspect) {
    if (Handle() == nullptr) return;
    switch (aspect) {
        case forms::Aspect::List:
            ShowList();
            break;
        case forms::Aspect::Text:
            ShowText();
            break;
        case forms::Aspect::Selection:
            return ShowSelection();
        case forms::Aspect::Look:
            ShowFont();
            break;
        default:
            break;
    }
    ControlWindow::Changed(aspect);
    RedrawWindow(Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
}

void ComboPeer::DropDown() {
    if (IsOpen()) return CloseList();
    SendMessageW(Handle(), CB_SHOWDROPDOWN, TRUE, 0);
    // The platform hides the pointer until the mouse moves.
    SetCursor(LoadCursorW(nullptr, IDC_ARROW));
}

void ComboPeer::Rescale() {
    ShowFont();
    Place();
}

void ComboPeer::ShowList() {
    isShowing_ = true;
    const int shown = static_cast<int>(SendMessageW(Handle(), CB_GETCOUNT, 0, 0));
    int same = 0;
    while (same < std::min(shown, control_.ListCount()) && EntryText(same) == control_.Item(same))
        ++same;
    if (same < shown) {
        SendMessageW(Handle(), CB_RESETCONTENT, 0, 0);
        same = 0;
    }
    // Lists are filled entry by entry: what is there stays.
    for (int i = same; i < control_.ListCount(); ++i) {
        const std::wstring text = ToWide(control_.Item(i));
        SendMessageW(Handle(), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
    }
    if (SelectedIndex() != control_.ListIndex())
        SendMessageW(Handle(), CB_SETCURSEL, static_cast<WPARAM>(control_.ListIndex()), 0);
    isShowing_ = false;
    ShowText();
}

void ComboPeer::ShowText() {
    const HWND field = edit_.Handle();
    if (field == nullptr || ReadText(field) == control_.Text()) return;
    isShowing_ = true;
    WriteText(field, control_.Text());
    isShowing_ = false;
    ShowSelection();
}

void ComboPeer::ShowSelection() {
    if (edit_.Handle() != nullptr)
        WriteSelection(edit_.Handle(), {control_.SelStart(), control_.SelLength()});
}

LRESULT ComboPeer::Disagreement() const {
    LRESULT differs = ControlWindow::Disagreement();
    // While the list is open the platform's choice is the user's on the way to one.
    if (IsOpen()) return differs;
    // Beside a field that is typed into, the platform keeps the entry that was chosen last; the text counts
    // there.
    const bool isTyped = control_.Style() == forms::ComboStyle::DropDown;
    if (!isTyped && SelectedIndex() != control_.ListIndex()) differs |= disagreement::Selection;
    if (edit_.Handle() != nullptr && ReadText(edit_.Handle()) != control_.Text())
        differs |= disagreement::Text;
    return differs;
}

void ComboPeer::ShowFont() {
    const HFONT font = PlatformFont();
    if (reinterpret_cast<HFONT>(SendMessageW(Handle(), WM_GETFONT, 0, 0)) == font) return;
    SendMessageW(Handle(), WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    Place();
}

std::string ComboPeer::EntryText(int index) const {
    const LRESULT length = SendMessageW(Handle(), CB_GETLBTEXTLEN, static_cast<WPARAM>(index), 0);
    if (length == CB_ERR) return {};
    std::wstring text(static_cast<std::size_t>(length), L'\0');
    SendMessageW(Handle(), CB_GETLBTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.data()));
    return ToUtf8(text);
}

int ComboPeer::SelectedIndex() const {
    return static_cast<int>(SendMessageW(Handle(), CB_GETCURSEL, 0, 0));
}

void ComboPeer::Place() {
    const RECT place = PixelBounds();
    const int entryHeight =
        PixelScale().ToPixels(control_.TextFont().points * forms::TwipsPerInch / 72 * 1.5);
    SendMessageW(Handle(), CB_SETITEMHEIGHT, 0, entryHeight);
    const int height = Height(place) + entryHeight * forms::ComboBox::EntriesInSight + ListBorders;
    SetWindowPos(Handle(), nullptr, place.left, place.top, Width(place), height,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    FitClosedHeight(Height(place));
    PlaceField();
}

void ComboPeer::FitClosedHeight(int height) {
    // The platform adds borders of its own to the height that it is given; how much shows only afterwards.
    constexpr int UsualBorders = 6;
    int field = std::max(1, height - UsualBorders);
    SendMessageW(Handle(), CB_SETITEMHEIGHT, static_cast<WPARAM>(WholeField), field);
    RECT closed{};
    GetWindowRect(Handle(), &closed);
    if (Height(closed) == height) return;
    field = std::max(1, field + height - Height(closed));
    SendMessageW(Handle(), CB_SETITEMHEIGHT, static_cast<WPARAM>(WholeField), field);
}

void ComboPeer::PlaceField() {
    const HWND field = edit_.Handle();
    if (field == nullptr) return;
    const RECT area = PixelScale().ToPixels(control_.TextArea());
    const int closedHeight = Height(PixelBounds());
    const int height = std::min(LineHeight(), closedHeight - 2 * FrameThickness(PixelScale()));
    SendMessageW(field, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, 0);
    SetWindowPos(field, nullptr, area.left, (closedHeight - height) / 2, Width(area), height,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

// What the platform tells.

LRESULT ComboPeer::HandleMessage(const Message& message) {
    static constexpr Route<ComboPeer> routes[] = {
        {WM_PAINT, &ComboPeer::OnPaint},
        {WM_PRINTCLIENT, &ComboPeer::OnPaint},
        {WM_ERASEBKGND, &ComboPeer::OnEraseBackground},
        {WM_CTLCOLOREDIT, &ComboPeer::OnColors},
        {WM_CTLCOLORSTATIC, &ComboPeer::OnColors},
        {WM_CTLCOLORLISTBOX, &ComboPeer::OnListColors},
        {WM_COMMAND + Reflected, &ComboPeer::OnCommand},
        {WM_DRAWITEM + Reflected, &ComboPeer::OnDrawItem},
        {ChosenMessage, &ComboPeer::OnChosen},
        {CB_SETCURSEL, &ComboPeer::OnSetSelection},
        {WM_MOUSEMOVE, &ComboPeer::OnMouse},
        {WM_LBUTTONDOWN, &ComboPeer::OnMouse},
        {WM_LBUTTONUP, &ComboPeer::OnMouse},
        {WM_MOUSEWHEEL, &ComboPeer::OnWheel},
    };
    if (const auto answer = HandleBy<ComboPeer>(routes, *this, message)) return *answer;
    return ControlWindow::HandleMessage(message);
}

LRESULT ComboPeer::OnPaint(const Message& message) {
    const forms::Rect& bounds = control_.Bounds();
    WindowPainter painter(Handle(), message, SharedResources(), PixelScale(), {bounds.left, bounds.top});
    control_.Draw(painter.Surface());
    return 0;
}

LRESULT ComboPeer::OnEraseBackground(const Message&) {
    return 1;
}

LRESULT ComboPeer::OnColors(const Message& message) {
    return ApplyColors(reinterpret_cast<HDC>(message.wParam));
}

/// The list stays as dark as a grid while its field is grey, so that its current entry stands out.
LRESULT ComboPeer::OnListColors(const Message& message) {
    ApplyColors(reinterpret_cast<HDC>(message.wParam));
    SetDCBrushColor(reinterpret_cast<HDC>(message.wParam), forms::scheme::Field);
    return reinterpret_cast<LRESULT>(GetStockObject(DC_BRUSH));
}

LRESULT ComboPeer::OnDrawItem(const Message& message) {
    const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(message.lParam);
    if (item.itemState & ODS_COMBOBOXEDIT) return TRUE;  // the closed field is painted as a whole
    const bool selected = (item.itemState & ODS_SELECTED) != 0;
    SetDCBrushColor(item.hDC, OnScreen(forms::ColorUse::Area,
                                       selected ? forms::scheme::CurrentRow : forms::scheme::Field));
    FillRect(item.hDC, &item.rcItem, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    const int index = static_cast<int>(item.itemID);
    if (index < 0 || index >= control_.ListCount()) return TRUE;
    SetTextColor(item.hDC, OnScreen(selected ? forms::ColorUse::SelectedText : forms::ColorUse::Text,
                                    control_.ForeColor()));
    SetBkMode(item.hDC, TRANSPARENT);
    RECT place = item.rcItem;
    place.left += PixelScale().ToPixels(forms::look::Padding);
    const std::wstring text = ToWide(control_.Item(index));
    DrawTextW(item.hDC, text.c_str(), static_cast<int>(text.size()), &place,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    return TRUE;
}

LRESULT ComboPeer::OnCommand(const Message& message) {
    if (isShowing_ || SharedResources().Keys().IsInsideCharacter()) return 0;
    switch (HIWORD(message.wParam)) {
        case CBN_EDITCHANGE:
            control_.HandleTyped(ReadText(edit_.Handle()));
            break;
        case CBN_DROPDOWN:
            control_.HandleDropped(true);
            break;
        case CBN_SELENDOK:
            // Of a list that is not open the platform says so as well, and closes nothing then.
            if (IsOpen()) settled_ = SelectedIndex();
            break;
        case CBN_SELENDCANCEL:
            settled_ = -1;
            break;
        case CBN_SELCHANGE:
            if (settled_ >= 0) {
                settled_ = SelectedIndex();
            } else if (!IsOpen()) {
                PostChoice(SelectedIndex(), Choice::Reported);
            }
            break;
        case CBN_CLOSEUP:
            control_.HandleDropped(false);
            PostChoice(std::exchange(settled_, -1), Choice::Settled);
            break;
        default:
            break;
    }
    InvalidateRect(Handle(), nullptr, FALSE);
    return 0;
}

/// Other programs choose so, and need not tell of it as the platform does.
LRESULT ComboPeer::OnSetSelection(const Message& message) {
    const LRESULT answer = CallDefault(message);
    if (!isShowing_ && !IsOpen()) PostChoice(SelectedIndex(), Choice::Reported);
    return answer;
}

void ComboPeer::PostChoice(int index, Choice choice) {
    PostMessageW(Handle(), ChosenMessage, static_cast<WPARAM>(index), static_cast<LPARAM>(choice));
}

LRESULT ComboPeer::OnChosen(const Message& message) {
    Choose(static_cast<int>(message.wParam), static_cast<Choice>(message.lParam));
    return 0;
}

void ComboPeer::Choose(int index, Choice choice) {
    // Who settles on the entry that is chosen already chooses it once more; the platform's report of a change
    // may be that of a choice that was dealt with.
    if (choice == Choice::Settled || index != control_.ListIndex()) control_.HandleChosen(index);
    ShowList();
    InvalidateRect(Handle(), nullptr, FALSE);
}

// The mouse: a press on the closed box opens the list, which is the platform's business.

LRESULT ComboPeer::OnMouse(const Message& message) {
    const forms::MouseInput input = ToMouseInput(message, PixelScale());
    if (message.id == WM_MOUSEMOVE) control_.HandleMouseMove(input);
    if (message.id == WM_LBUTTONDOWN && !control_.SetFocusByUser()) return 0;
    if (!OwnerForm().IsLoaded()) return 0;
    const LRESULT answer = CallDefault(message);
    InvalidateRect(Handle(), nullptr, FALSE);
    return answer;
}

LRESULT ComboPeer::OnWheel(const Message& message) {
    return IsOpen() ? CallDefault(message) : ControlWindow::HandleMessage(message);
}

LRESULT ComboPeer::OnSetFocus(const Message& message) {
    if (edit_.Handle() == nullptr) return ControlWindow::OnSetFocus(message);
    return CallDefault(message);  // passes the focus to the field inside, which reports it
}

void ComboPeer::HandleInnerFocus() {
    if (!HoldsFocus()) return;  // somebody sent it who is not the platform
    OwnerForm().HandleFocus(control_);
    if (OwnerForm().ActiveControl() != &control_) return OwnerPeer().RestoreFocus();
    ShowSelection();
    InvalidateRect(Handle(), nullptr, FALSE);
}

// Keys.

LRESULT ComboPeer::OnKey(const Message& message) {
    return RouteKey(message) == KeyRoute::Dealt ? 0 : CallDefault(message);
}

LRESULT ComboPeer::HandleInnerKey(const Message& message) {
    if (RouteKey(message) == KeyRoute::Dealt || OnlyBeeps(message)) return 0;
    return SharedResources().Keys().PassOn(message,
                                           [this](const Message& each) { return edit_.PassOn(each); });
}

KeyRoute ComboPeer::RouteKey(const Message& message) {
    if (message.id == WM_KEYDOWN && IsOpen()) {
        if (WalksList(message.wParam)) return KeyRoute::Native;
        if (HandleOpenListKey(message)) return KeyRoute::Dealt;
    }
    return SharedResources().Keys().Handle(OwnerForm(), message);
}

bool ComboPeer::HandleOpenListKey(const Message& message) {
    switch (message.wParam) {
        case VK_RETURN:
            Accept();
            break;
        case VK_ESCAPE:
            CloseList();
            break;
        case VK_TAB:
            Accept();
            return false;  // and on to the next control
        default:
            return false;
    }
    SharedResources().Keys().DropCharacter();
    return true;
}

void ComboPeer::Accept() {
    const int index = SelectedIndex();
    CloseList();
    Choose(index, Choice::Settled);
}

void ComboPeer::CloseList() {
    SendMessageW(Handle(), CB_SHOWDROPDOWN, FALSE, 0);
    settled_ = -1;
}

bool ComboPeer::IsOpen() const {
    return SendMessageW(Handle(), CB_GETDROPPEDSTATE, 0, 0) != FALSE;
}

}  // namespace tavrin::win32
