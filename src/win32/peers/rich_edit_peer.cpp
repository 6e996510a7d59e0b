#include "win32/peers/rich_edit_peer.h"

#include <utility>

#include "data/error.h"
#include "win32/base/handles.h"
#include "win32/base/library.h"
#include "win32/base/system_error.h"
#include "win32/base/text.h"
#include "win32/peers/rich_edit_format.h"
#include "win32/peers/rich_edit_stream.h"

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
OwnedWindow MakeHiddenEdit() {
    OwnedWindow window(CreateWindowExW(0, ClassName, L"", ES_MULTILINE, 0, 0, 1, 1, HWND_MESSAGE, nullptr,
                                       nullptr, nullptr));
    if (!window) ThrowLastError();
    return window;
}

}  // namespace

RichEditPeer::RichEditPeer(forms::RichTextBox& control, FormPeer& form)
    : EditWindow(control, form), control_(control) {
    Create(LoadedClass(), Style);
    // The frame is ours only now.
    SetWindowPos(Handle(), nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    SendMessageW(Handle(), EM_EXLIMITTEXT, 0, TextLimit);
    SendMessageW(Handle(), EM_SETUNDOLIMIT, UndoLimit, 0);
    SendMessageW(Handle(), EM_SETBKGNDCOLOR, TRUE, 0);
    UseStandardFormat();
    ShowZoom();
}

void RichEditPeer::Rescale() {
    EditWindow::Rescale();
    ShowZoom();
}

/// The control knows the screen's resolution by itself, but not how much larger the user wants texts.
void RichEditPeer::ShowZoom() {
    const int percent = PixelScale().TextPercent();
    if (std::exchange(zoom_, percent) == percent) return;  // the user may have zoomed by himself
    SendMessageW(Handle(), EM_SETZOOM, static_cast<WPARAM>(percent), 100);
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
        const OwnedWindow probe = MakeHiddenEdit();
        StreamTextIn(probe.get(), L"\x103");
        writesEveryLetter_ =
            StreamRtfOut(probe.get(), RtfEncoding::Native).find("\\u259") != std::string::npos;
    }
    return *writesEveryLetter_;
}

/// Some versions of the control do not write of a paragraph what they have read.
bool RichEditPeer::ExchangesIndents() const {
    if (!exchangesIndents_) {
        const OwnedWindow probe = MakeHiddenEdit();
        StreamRtfIn(probe.get(), R"({\rtf1\pard\fi400\li700 a\par})");
        const std::string written = StreamRtfOut(probe.get(), RtfEncoding::Native);
        exchangesIndents_ = written.find("\\fi1100") != std::string::npos;
    }
    return *exchangesIndents_;
}

// What the platform tells.

LRESULT RichEditPeer::HandleMessage(const Message& message) {
    static constexpr Route<RichEditPeer> routes[] = {
        {WM_NCCALCSIZE, &RichEditPeer::OnCalculateClientArea},
        {WM_NCPAINT, &RichEditPeer::OnPaintFrame},
        {WM_MOUSEWHEEL, &RichEditPeer::OnMouseWheel},
    };
    if (const auto answer = HandleBy<RichEditPeer>(routes, *this, message)) return *answer;
    return EditWindow::HandleMessage(message);
}

void RichEditPeer::ReportSelection() {
    if (OwnerForm().IsLoaded()) control_.HandleSelectionChange();
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
    EditFrame frame = FocusFrame();
    if (HoldsFocus()) frame.color = forms::scheme::FocusOnPage;
    PaintEditFrame(Handle(), GetSysColor(COLOR_WINDOW), frame);
    return CallDefault(message);  // the scroll bar
}

}  // namespace tavrin::win32
