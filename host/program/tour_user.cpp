#include "host/program/tour_user.h"

#include "data/error.h"
#include "host/program/form_finder.h"
#include "host/program/screen_scale.h"
#include "win32/base/text.h"

namespace tavrin::host {
namespace {

constexpr ULONGLONG AppearancePatienceMilliseconds = 20000;

template <class Find>
HWND AwaitFound(const WindowThread& windows, const std::string& what, const Find& find) {
    const ULONGLONG end = GetTickCount64() + AppearancePatienceMilliseconds;
    while (GetTickCount64() < end) {
        windows.Settle();
        if (const HWND found = find(); found != nullptr) return found;
    }
    throw data::Error(E_FAIL, what + " does not appear");
}

void Send(const INPUT& input) {
    INPUT sent = input;
    SendInput(1, &sent, sizeof sent);
}

void SendMouse(DWORD flags, POINT place = {0, 0}) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    input.mi.dx = place.x;
    input.mi.dy = place.y;
    Send(input);
}

/// The middle of the pixel, in 65,536ths of the screen.
LONG OfScreen(LONG pixel, int metric) {
    return static_cast<LONG>((pixel * 65536LL + 32768) / GetSystemMetrics(metric));
}

BOOL CALLBACK TellThatPointerHasGone(HWND control, LPARAM /*parameter*/) {
    SendMessageW(control, WM_MOUSELEAVE, 0, 0);
    return TRUE;
}

BOOL CALLBACK TellControls(HWND form, LPARAM parameter) {
    DWORD process = 0;
    GetWindowThreadProcessId(form, &process);
    if (process == GetCurrentProcessId()) EnumChildWindows(form, TellThatPointerHasGone, parameter);
    return TRUE;
}

POINT MiddleOf(HWND window) {
    RECT place;
    GetWindowRect(window, &place);
    return {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
}

void PressKey(char key) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = static_cast<unsigned char>(key);
    Send(input);
    input.ki.dwFlags = KEYEVENTF_KEYUP;
    Send(input);
}

void TypeUnit(wchar_t unit) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wScan = unit;
    for (const DWORD stroke : {DWORD{0}, DWORD{KEYEVENTF_KEYUP}}) {
        input.ki.dwFlags = KEYEVENTF_UNICODE | stroke;
        Send(input);
    }
}

}  // namespace

HWND TourUser::Await(const std::string& name) const {
    return AwaitFound(windows_, name, [&] {
        const HWND form = FindForm(name);
        return form != nullptr ? form : FindPlatformWindow(name);
    });
}

HWND TourUser::AwaitControl(HWND form, const TourAction& action) const {
    return AwaitFound(windows_, std::string(action.form) + "." + action.control,
                      [&] { return FindControl(form, action.control); });
}

void TourUser::Activate(HWND form) const {
    if (GetForegroundWindow() == form) return;
    windows_.Call([form] { SetForegroundWindow(form); });
    windows_.Settle();
}

/// A button goes down where the windows' thread believes the pointer to be.
void TourUser::Point(POINT place) const {
    SendMouse(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE,
              {OfScreen(place.x, SM_CXSCREEN), OfScreen(place.y, SM_CYSCREEN)});
    windows_.Settle();
}

/// What the pointer was over hears that it has gone in the platform's own time, half a second perhaps.
void TourUser::Rest() const {
    Point({GetSystemMetrics(SM_CXSCREEN) - 1, GetSystemMetrics(SM_CYSCREEN) - 1});
    EnumWindows(TellControls, 0);
}

void TourUser::Click(const TourAction& action) const {
    const HWND form = Await(action.form);
    const HWND control = AwaitControl(form, action);
    Activate(form);
    const POINT place = MiddleOf(control);
    Point(place);
    SendMouse(MOUSEEVENTF_LEFTDOWN);
    if (action.drag.x != 0 || action.drag.y != 0) DragBy(place, {action.drag.x, action.drag.y});
    SendMouse(MOUSEEVENTF_LEFTUP);
    windows_.Settle();
}

/// The first move begins the drag, the window follows the next.
void TourUser::DragBy(POINT from, POINT distance) const {
    windows_.Settle();
    Point({from.x + 1, from.y + 1});
    Point({from.x + 1 + Scaled(distance.x), from.y + 1 + Scaled(distance.y)});
}

void TourUser::Perform(const TourAction& action) const {
    if (action.control != nullptr) Click(action);
    for (const char key : action.keys) {
        PressKey(key);
        windows_.Settle();
    }
    for (const wchar_t unit : win32::ToWide(action.text))
        unit == L'\r' ? PressKey(VK_RETURN) : TypeUnit(unit);
    windows_.Settle();
}

}  // namespace tavrin::host
