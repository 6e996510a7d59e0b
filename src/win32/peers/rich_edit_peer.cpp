#include "win32/peers/rich_edit_peer.h"

#include <utility>

#include "data/error.h"
#include "win32/base/library.h"
#include "win32/base/system_error.h"
#include "win32/base/text.h"
#include "win32/peers/edit_frame.h"
#include "win32/peers/rich_edit_format.h"
#include "win32/peers/rich_edit_stream.h"
#include "win32/window/mouse_message.h"

namespace tavrin::win32 {

namespace {

constexpr wchar_t ClassName[] = L"RICHEDIT50W";

constexpr WPARAM UndoLimit = 10000;
constexpr LPARAM TextLimit = 0x7FFFFFFE;

/// The selection stays in sight while a dialog asks what to make of it.
constexpr DWORD Style = ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN | ES_NOHIDESEL | WS_VSCROLL;

const wchar_t* LoadedClass() {
    Library(L"msftedit.dll").Keep();
    return ClassName;
}

/// A control that nobody sees, for questions to the platform.
class HiddenEdit {
  public:
    HiddenEdit()
        : window_(CreateWindowExW(0, ClassName, L"", ES_MULTILINE, 0, 0, 1, 1, HWND_MESSAGE, nullptr, nullptr,
                                  nullptr)) {
        if (window_ == nullptr) ThrowLastError();
    }
    ~HiddenEdit() { DestroyWindow(window_); }
    HiddenEdit(const HiddenEdit&) = delete;
    HiddenEdit& operator=(const HiddenEdit&) = delete;

    HWND Handle() const { return window_; }

  private:
    HWND window_;
};

}  // namespace

RichEditPeer::RichEditPeer(forms::RichTextBox& control, FormPeer& form)
    : ControlWindow(control, form), control_(control) {
    Create(LoadedClass(), Style);
    // The frame is ours only now.
    SetWindowPos(Handle(), nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    SendMessageW(Handle(), EM_EXLIMITTEXT, 0, TextLimit);
    SendMessageW(Handle(), EM_SETUNDOLIMIT, UndoLimit, 0);
    SendMessageW(Handle(), EM_SETBKGNDCOLOR, TRUE, 0);
    UseStandardFormat();
}

void RichEditPeer::UseStandardFormat() {
    const forms::Font& font = control_.TextFont();
    CHARFORMAT2W format = ToPlatformFormat({.face = font.face,
                                            .points = font.points,
                                            .bold = font.bold,
                                            .italic = font.italic,
                                            .underline = font.underline,
                                            .strikeThru = false,
                                            .color = forms::Black});
    format.dwEffects |= CFE_AUTOCOLOR;
    SendMessageW(Handle(), EM_SETCHARFORMAT, SCF_DEFAULT, reinterpret_cast<LPARAM>(&format));
    SendMessageW(Handle(), EM_SETCHARFORMAT, SCF_ALL, reinterpret_cast<LPARAM>(&format));
}

// What the model asks for.

void RichEditPeer::Changed(forms::Aspect aspect) {
    ControlWindow::Changed(aspect);
    if (Handle() != nullptr) RedrawFrame(Handle());
}

std::string RichEditPeer::Text() const {
    return ToUtf8(ReadRichText(Handle()));
}

void RichEditPeer::SetText(const std::string& text) {
    StreamTextIn(Handle(), ToWide(text));
    UseStandardFormat();
}

forms::CharacterFormat RichEditPeer::SelectionFormat() const {
    CHARFORMAT2W format{};
    format.cbSize = sizeof format;
    SendMessageW(Handle(), EM_GETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&format));
    return ToCharacterFormat(format);
}

void RichEditPeer::FormatSelection(const forms::CharacterFormat& format) {
    const CHARFORMAT2W change = ToPlatformFormat(format);
    SendMessageW(Handle(), EM_SETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&change));
}

void RichEditPeer::Load(std::string_view rtf) {
    if (!StreamRtfIn(Handle(), rtf)) throw data::RuntimeError(data::error_number::InvalidFile);
}

std::string RichEditPeer::Save() const {
    return StreamRtfOut(Handle(), WritesEveryLetter() ? RtfEncoding::Native : RtfEncoding::Utf8);
}

/// Some versions of the control write a look-alike for a letter that the font's character set lacks.
bool RichEditPeer::WritesEveryLetter() const {
    if (!writesEveryLetter_) {
        const HiddenEdit probe;
        StreamTextIn(probe.Handle(), L"\x103");
        writesEveryLetter_ =
            StreamRtfOut(probe.Handle(), RtfEncoding::Native).find("\\u259") != std::string::npos;
    }
    return *writesEveryLetter_;
}

/// Some versions of the control do not write of a paragraph what they have read.
bool RichEditPeer::ExchangesIndents() const {
    if (!exchangesIndents_) {
        const HiddenEdit probe;
        StreamRtfIn(probe.Handle(), R"({\rtf1\pard\fi400\li700 a\par})");
        const std::string written = StreamRtfOut(probe.Handle(), RtfEncoding::Native);
        exchangesIndents_ = written.find("\\fi1100") != std::string::npos;
    }
    return *exchangesIndents_;
}

// What the platform tells.

LRESULT RichEditPeer::HandleMessage(const Message& message) {
    static constexpr Route<RichEditPeer> routes[] = {
        {WM_NCCALCSIZE, &RichEditPeer::OnCalculateClientArea},
        {WM_NCPAINT, &RichEditPeer::OnPaintFrame},
        {WM_CAPTURECHANGED, &RichEditPeer::OnCaptureChanged},
        {WM_MOUSEMOVE, &RichEditPeer::OnMouse},
        {WM_LBUTTONDOWN, &RichEditPeer::OnMouse},
        {WM_LBUTTONUP, &RichEditPeer::OnMouse},
        {WM_RBUTTONDOWN, &RichEditPeer::OnMouse},
        {WM_RBUTTONUP, &RichEditPeer::OnMouse},
        {WM_LBUTTONDBLCLK, &RichEditPeer::OnMouse},
        {WM_MOUSEWHEEL, &RichEditPeer::OnMouseWheel},
    };
    if (const auto answer = Follow<RichEditPeer>(routes, *this, message)) return *answer;
    return ControlWindow::HandleMessage(message);
}

LRESULT RichEditPeer::OnKey(const Message& message) {
    if (SharedToolkit().Keys().Handle(OwnerForm(), message) == KeyRoute::Dealt) return 0;
    const LRESULT answer =
        SharedToolkit().Keys().PassOn(message, [this](const Message& each) { return CallDefault(each); });
    ReportSelection();
    return answer;
}

LRESULT RichEditPeer::OnSetFocus(const Message& message) {
    const LRESULT answer = ControlWindow::OnSetFocus(message);
    RedrawFrame(Handle());
    return answer;
}

LRESULT RichEditPeer::OnKillFocus(const Message& message) {
    const LRESULT answer = ControlWindow::OnKillFocus(message);
    RedrawFrame(Handle());
    return answer;
}

void RichEditPeer::ReportSelection() {
    if (OwnerForm().IsLoaded()) control_.HandleSelectionChange();
}

LRESULT RichEditPeer::OnMouse(const Message& message) {
    if (IsButtonUp(message.id)) return OnRelease(message);
    const bool goesOn = TellModelOfMouse(message);
    if (message.id != WM_MOUSEMOVE) holdsPress_ = goesOn;
    if (!goesOn) return 0;
    const LRESULT answer = CallDefault(message);
    if (message.id != WM_MOUSEMOVE) ReportSelection();
    return answer;
}

LRESULT RichEditPeer::OnRelease(const Message& message) {
    // The model ends the press itself when the left button goes up. A menu that another button opens takes
    // the mouse.
    isReleasing_ = message.id == WM_LBUTTONUP;
    // A press that came to nothing, as the editor was not to have the focus, opens no menu either.
    const LRESULT answer = std::exchange(holdsPress_, false) ? CallDefault(message) : 0;
    isReleasing_ = false;
    TellModelOfMouse(message);
    ReportSelection();
    return answer;
}

LRESULT RichEditPeer::OnCaptureChanged(const Message& message) {
    const LRESULT answer = CallDefault(message);
    holdsPress_ = false;
    if (!isReleasing_) control_.HandleCaptureLost();
    return answer;
}

bool RichEditPeer::TellModelOfMouse(const Message& message) {
    const forms::MouseInput input = ToMouseInput(message, PixelScale());
    if (IsButtonDown(message.id)) return control_.HandleMouseDown(input);
    if (message.id == WM_MOUSEMOVE) control_.HandleMouseMove(input);
    if (IsButtonUp(message.id)) control_.HandleMouseUp(input);
    if (IsDoubleClick(message.id)) control_.HandleDblClick(input);
    return OwnerForm().AcceptsInput() && OwnerForm().IsLoaded();
}

LRESULT RichEditPeer::OnMouseWheel(const Message& message) {
    return CallDefault(message);  // the control scrolls by itself
}

// The frame.

LRESULT RichEditPeer::OnCalculateClientArea(const Message& message) {
    RECT& area = *reinterpret_cast<RECT*>(message.lParam);
    const int margin = SideMargin(PixelScale());
    InflateRect(&area, -margin, -margin);
    return CallDefault(message);
}

LRESULT RichEditPeer::OnPaintFrame(const Message& message) {
    const bool focused = HoldsFocus();
    PaintEditFrame(Handle(), GetSysColor(COLOR_WINDOW),
                   {focused ? forms::scheme::Focus : forms::scheme::Border,
                    focused ? FrameThickness(PixelScale()) : PlainFrameThickness(PixelScale())});
    return CallDefault(message);  // the scroll bar
}

}  // namespace tavrin::win32
