#include "e2e/proofs/sent_events.h"

#include <windows.h>

#include <array>
#include <exception>

#include "e2e/proofs/other_users.h"

namespace tavrin::e2e {

namespace {

constexpr std::array<WORD, 26> SentKeys = {
    VK_RETURN, VK_RETURN, VK_ESCAPE, VK_TAB,  VK_TAB,    VK_UP,   VK_DOWN, VK_LEFT, VK_RIGHT,
    VK_HOME,   VK_END,    VK_PRIOR,  VK_NEXT, VK_DELETE, VK_F4,   VK_BACK, VK_F1,   VK_SPACE,
    VK_INSERT, '1',       'S',       'B',     VK_DOWN,   VK_MENU, 0,       255};

constexpr wchar_t Characters[] =
    L"0123456789,.+-*/%= \r\b\t\x1b"
    L"ABab']%_\x219\x103\x20ac\xd83d\xde00";

constexpr std::array<UINT, 10> MouseMessages = {
    WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_RBUTTONDOWN, WM_RBUTTONUP,
    WM_MBUTTONDOWN, WM_MBUTTONUP, WM_MOUSEMOVE,     WM_MOUSEMOVE,   WM_MOUSEWHEEL};

constexpr std::array<UINT, 11> SystemChanges = {WM_THEMECHANGED,    WM_SYSCOLORCHANGE, WM_SETTINGCHANGE,
                                                WM_DISPLAYCHANGE,   WM_FONTCHANGE,     WM_TIMECHANGE,
                                                WM_CANCELMODE,      WM_CAPTURECHANGED, WM_MOUSELEAVE,
                                                WM_QUERYENDSESSION, WM_INPUTLANGCHANGE};

constexpr std::array<const wchar_t*, 8> SentTexts = {L"",        L" ",   L"-5",  L"12345678901234567890",
                                                     L"1,234.5", L"EUR", L"a]b", L"O'Neil \xd83d\xde00"};

BOOL CALLBACK Collect(HWND handle, LPARAM handles) {
    reinterpret_cast<std::vector<HWND>*>(handles)->push_back(handle);
    return TRUE;
}

void SendPaint(HWND window) {
    RedrawWindow(window, nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
}

/// As screenshots and the system's own animations have a window paint itself.
void SendPrint(HWND window) {
    const HDC screen = GetDC(nullptr);
    const HDC memory = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, 200, 200);
    const HGDIOBJ before = SelectObject(memory, bitmap);
    SendMessageW(window, WM_PRINT, reinterpret_cast<WPARAM>(memory),
                 PRF_CLIENT | PRF_CHILDREN | PRF_ERASEBKGND);
    SelectObject(memory, before);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
}

void TellResolution(HWND window, int dpi) {
    RECT place{};
    GetWindowRect(window, &place);
    SendMessageW(window, WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&place));
}

}  // namespace

void SentEvents::Look() {
    targets_.clear();
    for (const Window& form : OpenForms()) {
        const bool takesInput = form.IsEnabled();
        targets_.push_back({form, form, takesInput});
        std::vector<HWND> children;
        EnumChildWindows(form.Handle(), Collect, reinterpret_cast<LPARAM>(&children));
        for (const HWND child : children) {
            targets_.push_back(
                {Window(child), form, takesInput && IsWindowVisible(child) && IsWindowEnabled(child)});
        }
    }
}

const SentEvents::Target* SentEvents::Pick() {
    if (targets_.empty()) return nullptr;
    const Target& target = targets_[random_.Below(static_cast<unsigned>(targets_.size()))];
    subject_ = " " + target.form.Name() + "." + target.window.Name();
    return &target;
}

std::string SentEvents::Trace() const {
    std::string text;
    for (const std::string& event : trace_)
        text += "\n  " + event;
    return text;
}

const SentEvents::Target* SentEvents::PickForInput() {
    constexpr int attempts = 8;
    for (int i = 0; i < attempts; ++i) {
        const Target* target = Pick();
        if (target != nullptr && target->takesInput && target->form.IsEnabled()) return target;
    }
    return nullptr;
}

LPARAM SentEvents::PlaceIn(const Window& window) {
    const auto part = [this](int length) {
        return length > 0 ? random_.Below(static_cast<unsigned>(length)) : 0;
    };
    if (random_.OnceIn(2)) return MAKELPARAM(window.Width() / 2, window.Height() / 2);
    return MAKELPARAM(part(window.Width()), part(window.Height()));
}

void SentEvents::Give(const Window& window, UINT message, WPARAM wParam, LPARAM lParam) {
    const bool isPosted = random_.OnceIn(2);
    subject_ += (isPosted ? " posted " : " sent ") + std::to_string(message) + "/" + std::to_string(wParam);
    if (isPosted) {
        PostMessageW(window.Handle(), message, wParam, lParam);
    } else {
        SendNotifyMessageW(window.Handle(), message, wParam, lParam);
    }
}

void SentEvents::Do() {
    struct Kind {
        const char* name;
        unsigned weight;
        void (SentEvents::*action)();
    };
    static constexpr Kind kinds[] = {
        {"key", 22, &SentEvents::Key},
        {"character", 12, &SentEvents::Character},
        {"mouse", 12, &SentEvents::Mouse},
        {"click", 16, &SentEvents::ClickIt},
        {"command", 5, &SentEvents::Command},
        {"close", 1, &SentEvents::Close},
        {"activation", 5, &SentEvents::Activation},
        {"focus", 4, &SentEvents::Focus},
        {"placement", 3, &SentEvents::Placement},
        {"system change", 4, &SentEvents::SystemChange},
        {"paint", 4, &SentEvents::Paint},
        {"scroll", 4, &SentEvents::Scroll},
        {"content", 5, &SentEvents::Content},
        {"Apel", 1, &SentEvents::Apel},
        {"database", 1, &SentEvents::Database},
        {"leave and return", 1, &SentEvents::LeaveAndReturn},
    };
    constexpr unsigned all = 100;
    constexpr std::size_t longestTrace = 24;
    unsigned number = random_.Below(all);
    for (const Kind& kind : kinds) {
        if (number < kind.weight) {
            subject_.clear();
            (this->*kind.action)();
            trace_.push_back(kind.name + subject_);
            if (trace_.size() > longestTrace) trace_.pop_front();
            return;
        }
        number -= kind.weight;
    }
}

// Input.

void SentEvents::Key() {
    const Target* target = PickForInput();
    if (target == nullptr) return;
    const WORD key = random_.Pick(SentKeys);
    const bool withAlt = random_.OnceIn(20) && key != VK_MENU;
    const auto scanCode = static_cast<LPARAM>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC)) << 16;
    constexpr LPARAM altHeld = LPARAM{1} << 29;
    Give(target->window, withAlt ? WM_SYSKEYDOWN : WM_KEYDOWN, key, 1 | scanCode | (withAlt ? altHeld : 0));
    if (random_.OnceIn(2)) Give(target->window, withAlt ? WM_SYSKEYUP : WM_KEYUP, key, 1 | scanCode);
}

void SentEvents::Character() {
    const Target* target = PickForInput();
    if (target == nullptr) return;
    const wchar_t character = Characters[random_.Below(static_cast<unsigned>(std::size(Characters) - 1))];
    Give(target->window, random_.OnceIn(30) ? WM_SYSCHAR : WM_CHAR, character, 1);
}

void SentEvents::Mouse() {
    const Target* target = PickForInput();
    if (target == nullptr) return;
    const UINT message = random_.Pick(MouseMessages);
    if (message == WM_MOUSEWHEEL) {
        const auto notches = static_cast<short>((static_cast<int>(random_.Below(7)) - 3) * WHEEL_DELTA / 2);
        Give(target->window, message, MAKEWPARAM(0, static_cast<WORD>(notches)), 0);
        return;
    }
    Give(target->window, message, random_.OnceIn(2) ? MK_LBUTTON : 0, PlaceIn(target->window));
}

void SentEvents::ClickIt() {
    const Target* target = PickForInput();
    if (target == nullptr) return;
    const LPARAM place = PlaceIn(target->window);
    PostMessageW(target->window.Handle(), WM_LBUTTONDOWN, MK_LBUTTON, place);
    PostMessageW(target->window.Handle(), WM_LBUTTONUP, 0, place);
}

void SentEvents::Command() {
    const Target* target = Pick();
    if (target == nullptr) return;
    const Target* subject = Pick();
    const LPARAM control = random_.OnceIn(2) ? 0 : reinterpret_cast<LPARAM>(subject->window.Handle());
    Give(target->window, WM_COMMAND,
         MAKEWPARAM(random_.Below(12), random_.OnceIn(3) ? random_.Below(0x800) : 0), control);
}

void SentEvents::Close() {
    const Target* target = PickForInput();
    if (target == nullptr) return;
    constexpr std::array<WPARAM, 3> commands = {SC_CLOSE, SC_MINIMIZE, SC_RESTORE};
    if (random_.OnceIn(2)) {
        Give(target->form, WM_SYSCOMMAND, random_.Pick(commands), 0);
    } else {
        Give(random_.OnceIn(20) ? target->window : target->form, WM_CLOSE);
    }
}

// The system.

void SentEvents::Activation() {
    const Target* target = Pick();
    if (target == nullptr) return;
    const Window form = target->form;
    switch (random_.Below(5)) {
        case 0:
            return Give(form, WM_ACTIVATE, random_.Below(3), 0);
        case 1:
            return Give(form, WM_ACTIVATEAPP, random_.Below(2), 0);
        case 2:
            return Give(form, WM_NCACTIVATE, random_.Below(2), 0);
        case 3:
            return host_.Ui().Post([main = host_.MainWindow()] { SetForegroundWindow(main.Handle()); });
        default:
            if (form.IsEnabled()) host_.Ui().Post([form] { SetForegroundWindow(form.Handle()); });
            return;
    }
}

void SentEvents::Focus() {
    const Target* target = Pick();
    if (target == nullptr) return;
    const Window window = target->window;
    switch (random_.Below(3)) {
        case 0:
            return Give(window, WM_SETFOCUS);
        case 1:
            return Give(window, WM_KILLFOCUS);
        default:
            if (target->takesInput) host_.Ui().Post([window] { SetFocus(window.Handle()); });
            return;
    }
}

void SentEvents::Placement() {
    const Target* target = Pick();
    if (target == nullptr) return;
    const Window form = target->form;
    switch (random_.Below(4)) {
        case 0:
            return Give(target->window, WM_SIZE, random_.Below(5),
                        static_cast<LPARAM>(random_.Below(0x01000100)));
        case 1:
            return Give(target->window, WM_MOVE, 0, static_cast<LPARAM>(random_.Below(0x01000100)));
        case 2:
            return Give(target->window, WM_SHOWWINDOW, random_.Below(2), SW_PARENTOPENING);
        default:
            return host_.Ui().Post([form, left = static_cast<int>(random_.Below(1000)),
                                    top = static_cast<int>(random_.Below(800))] {
                SetWindowPos(form.Handle(), nullptr, left, top, 0, 0,
                             SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
            });
    }
}

void SentEvents::SystemChange() {
    const Target* target = Pick();
    if (target == nullptr) return;
    constexpr std::array<int, 5> resolutions = {96, 96, 120, 144, 192};
    if (random_.OnceIn(8)) {
        host_.Ui().Post(
            [form = target->form, dpi = random_.Pick(resolutions)] { TellResolution(form.Handle(), dpi); });
        return;
    }
    Give(target->window, random_.Pick(SystemChanges));
}

void SentEvents::Paint() {
    const Target* target = Pick();
    if (target == nullptr) return;
    const Window window = target->window;
    switch (random_.Below(4)) {
        case 0:
            return host_.Ui().Post([window] { SendPrint(window.Handle()); });
        case 1:
            return Give(window, WM_PAINT);
        case 2:
            return Give(window, WM_NCPAINT, 1);
        default:
            return host_.Ui().Post([window] { SendPaint(window.Handle()); });
    }
}

// Controls.

void SentEvents::Scroll() {
    const Target* target = Pick();
    if (target == nullptr) return;
    Give(target->window, random_.OnceIn(2) ? WM_VSCROLL : WM_HSCROLL,
         MAKEWPARAM(random_.Below(9), random_.Below(200)));
}

void SentEvents::Content() {
    const Target* target = PickForInput();
    if (target == nullptr) return;
    const Window window = target->window;
    switch (random_.Below(8)) {
        case 0:
            return host_.Ui().Post([window, text = random_.Pick(SentTexts)] {
                SendMessageW(window.Handle(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text));
            });
        case 1:
            return Give(window, EM_SETSEL, random_.Below(5), static_cast<LPARAM>(random_.Below(9)) - 1);
        case 2:
            return Give(window, CB_SHOWDROPDOWN, random_.Below(2));
        case 3:
            Give(window, CB_SETCURSEL, random_.Below(8));
            return Give(Window(GetParent(window.Handle())), WM_COMMAND, MAKEWPARAM(0, CBN_SELCHANGE),
                        reinterpret_cast<LPARAM>(window.Handle()));
        case 4:
            return Give(window, random_.OnceIn(2) ? WM_CUT : WM_COPY);
        case 5:
            return Give(window, WM_PASTE);
        case 6:
            return Give(window, random_.OnceIn(2) ? WM_CLEAR : WM_UNDO);
        default:
            return Give(window, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(window.Handle()), -1);
    }
}

// The host and others.

void SentEvents::Apel() {
    host_.Ui().Post([this, values = AnyHostValues(random_), connected = !random_.OnceIn(16)] {
        if (!host_.Object()) host_.CreateObject();
        host_.ApelWith(connected ? &host_.Data().Connection() : nullptr, values);
    });
}

void SentEvents::Database() {
    host_.Ui().Post([this, statement = AnyWrite(random_)] { host_.Run(statement); });
}

/// Lets go of the component's object, with windows open or not, and makes another one.
void SentEvents::LeaveAndReturn() {
    host_.Ui().Post([this] {
        host_.Release();
        CoFreeUnusedLibrariesEx(0, 0);
        host_.CreateObject();
    });
}

}  // namespace tavrin::e2e
