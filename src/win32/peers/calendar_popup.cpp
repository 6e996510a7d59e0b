#include "win32/peers/calendar_popup.h"

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>
#include <utility>

#include "data/error.h"
#include "forms/drawing/color.h"
#include "win32/base/library.h"
#include "win32/system/contrast.h"

namespace tavrin::win32 {

namespace {

SYSTEMTIME ToSystemTime(data::OleDate date) {
    const data::CalendarDay day = data::ToCalendarDay(date);
    SYSTEMTIME time{};
    time.wYear = static_cast<WORD>(day.year);
    time.wMonth = static_cast<WORD>(day.month);
    time.wDay = static_cast<WORD>(day.day);
    return time;
}

data::CalendarDay ToCalendarDay(const SYSTEMTIME& time) {
    return {time.wYear, time.wMonth, time.wDay};
}

/// A month away, on the same day or the last one that there is.
data::CalendarDay MonthsAway(data::CalendarDay day, int months) {
    const int month = day.month + months;
    return {day.year, month, std::min(day.day, data::DaysInMonth(day.year, month))};
}

/// Where a key leads from a day; the same day where it leads nowhere.
data::CalendarDay DayAfterKey(data::CalendarDay day, WPARAM key) {
    switch (key) {
        case VK_LEFT:
            return {day.year, day.month, day.day - 1};
        case VK_RIGHT:
            return {day.year, day.month, day.day + 1};
        case VK_UP:
            return {day.year, day.month, day.day - 7};
        case VK_DOWN:
            return {day.year, day.month, day.day + 7};
        case VK_PRIOR:
            return MonthsAway(day, -1);
        case VK_NEXT:
            return MonthsAway(day, 1);
        case VK_HOME:
            return {day.year, day.month, 1};
        case VK_END:
            return {day.year, day.month, data::DaysInMonth(day.year, day.month)};
        default:
            return day;
    }
}

/// A calendar that does not do as it is told would offer a day that nobody asked for.
void Require(bool isAsWanted) {
    if (!isAsWanted) throw data::RuntimeError(data::error_number::InternalError, "calendarul");
}

/// The system's theme would paint over the dark colours.
void RemoveTheme(HWND window) {
    using SetTheme = HRESULT WINAPI(HWND, const wchar_t*, const wchar_t*);
    const SystemFunction<SetTheme> set(L"uxtheme.dll", "SetWindowTheme");
    if (set) set(window, L" ", L" ");
}

void Darken(HWND calendar) {
    namespace scheme = forms::scheme;
    // The title's background is also the colour of the weekdays' names and of the chosen day.
    const std::pair<int, forms::Color> colors[] = {
        {MCSC_BACKGROUND, scheme::Window}, {MCSC_MONTHBK, scheme::Field},
        {MCSC_TEXT, scheme::Value},        {MCSC_TITLEBK, scheme::Dimmed},
        {MCSC_TITLETEXT, scheme::Field},   {MCSC_TRAILINGTEXT, scheme::TextDisabled},
    };
    RemoveTheme(calendar);
    for (const auto& [part, color] : colors)
        SendMessageW(calendar, MCM_SETCOLOR, static_cast<WPARAM>(part), static_cast<LPARAM>(color));
}

/// Below the field, or above it where the screen ends; never off its sides.
POINT PlaceBeside(const RECT& field, SIZE size) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoW(MonitorFromRect(&field, MONITOR_DEFAULTTONEAREST), &monitor);
    const RECT& work = monitor.rcWork;
    const bool fitsBelow = field.bottom + size.cy <= work.bottom;
    const LONG left = std::max(work.left, std::min(field.left, work.right - size.cx));
    return {left, fitsBelow ? field.bottom : std::max(work.top, field.top - size.cy)};
}

}  // namespace

CalendarPopup::CalendarPopup(forms::Desktop& desktop, const WindowResources& resources,
                             const Settings& settings, std::function<void(data::OleDate)> whenChosen,
                             std::function<void()> whenClosed)
    : Window(desktop),
      scope_(desktop),
      calendar_(desktop, *this),
      days_(settings.days),
      whenChosen_(std::move(whenChosen)),
      whenClosed_(std::move(whenClosed)) {
    Attach(resources.CreateWindowWith({.text = {},
                                       .style = WS_POPUP | WS_BORDER,
                                       .extendedStyle = WS_EX_TOPMOST | WS_EX_TOOLWINDOW,
                                       .parent = settings.form}),
           "Calendar");
    CreateCalendar(resources, settings.font);
    ShowBeside(settings.field);
}

CalendarPopup::~CalendarPopup() {
    isClosing_ = true;
    whenClosed_ = nullptr;
    calendar_.Destroy();
    Destroy();
}

void CalendarPopup::CreateCalendar(const WindowResources& resources, HFONT font) {
    calendar_.Attach(
        resources.CreateWindowWith({.className = MONTHCAL_CLASSW,
                                    .text = {},
                                    .style = WS_CHILD | WS_VISIBLE | MCS_NOTODAY | MCS_NOTODAYCIRCLE,
                                    .parent = Handle()}),
        {});
    const HWND calendar = calendar_.Handle();
    // Left alone it has the system's colours.
    if (!HighContrast()) Darken(calendar);
    SendMessageW(calendar, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    SYSTEMTIME range[] = {ToSystemTime(days_.minimum), ToSystemTime(days_.maximum)};
    Require(SendMessageW(calendar, MCM_SETRANGE, GDTR_MIN | GDTR_MAX, reinterpret_cast<LPARAM>(range)) != 0);
    Select(days_.value);
}

void CalendarPopup::ShowBeside(const RECT& field) {
    RECT needed{};
    SendMessageW(calendar_.Handle(), MCM_GETMINREQRECT, 0, reinterpret_cast<LPARAM>(&needed));
    SetWindowPos(calendar_.Handle(), nullptr, 0, 0, Width(needed), Height(needed),
                 SWP_NOZORDER | SWP_NOACTIVATE);
    RECT outer = needed;
    AdjustWindowRectEx(&outer, WS_POPUP | WS_BORDER, FALSE, WS_EX_TOOLWINDOW);
    const POINT place = PlaceBeside(field, {Width(outer), Height(outer)});
    SetWindowPos(Handle(), HWND_TOPMOST, place.x, place.y, Width(outer), Height(outer), SWP_SHOWWINDOW);
    SetFocus(calendar_.Handle());
}

void CalendarPopup::Close() {
    if (isClosing_) return;
    isClosing_ = true;
    ShowWindow(Handle(), SW_HIDE);
    PostMessageW(Handle(), WM_CLOSE, 0, 0);
}

data::CalendarDay CalendarPopup::Selected() const {
    SYSTEMTIME time{};
    Require(SendMessageW(calendar_.Handle(), MCM_GETCURSEL, 0, reinterpret_cast<LPARAM>(&time)) != 0);
    return ToCalendarDay(time);
}

void CalendarPopup::Select(data::OleDate date) {
    const data::OleDate day{std::clamp(date.days, days_.minimum.days, days_.maximum.days)};
    SYSTEMTIME time = ToSystemTime(day);
    Require(SendMessageW(calendar_.Handle(), MCM_SETCURSEL, 0, reinterpret_cast<LPARAM>(&time)) != 0);
    Require(Selected() == data::ToCalendarDay(day));
}

void CalendarPopup::Choose() {
    const data::OleDate chosen = data::ToOleDate(Selected());
    Close();
    whenChosen_(chosen);
}

// What the platform tells.

LRESULT CalendarPopup::HandleMessage(const Message& message) {
    switch (message.id) {
        case WM_NOTIFY:
            return OnNotify(message);
        case WM_ACTIVATE:
            return OnActivate(message);
        case WM_CLOSE:
            if (whenClosed_) whenClosed_();
            return 0;
        default:
            return CallDefault(message);
    }
}

LRESULT CalendarPopup::OnNotify(const Message& message) {
    const auto& header = *reinterpret_cast<const NMHDR*>(message.lParam);
    if (header.code == MCN_SELECT && !isClosing_) Choose();
    return 0;
}

LRESULT CalendarPopup::OnActivate(const Message& message) {
    if (LOWORD(message.wParam) == WA_INACTIVE) Close();
    return CallDefault(message);
}

LRESULT CalendarPopup::Calendar::HandleMessage(const Message& message) {
    switch (message.id) {
        case WM_GETDLGCODE:
            return DLGC_WANTALLKEYS;
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
            return popup_.HandleKey(message.wParam) ? 0 : CallDefault(message);
        case WM_RBUTTONDOWN:
        case WM_RBUTTONUP:
        case WM_CONTEXTMENU:
            return 0;  // the platform's menu goes to today, be it in the range or not
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            return IsToday({GET_X_LPARAM(message.lParam), GET_Y_LPARAM(message.lParam)})
                       ? 0
                       : CallDefault(message);
        default:
            return CallDefault(message);
    }
}

/// Wine knows a way to today even where none is shown.
bool CalendarPopup::Calendar::IsToday(POINT place) const {
    MCHITTESTINFO hit{};
    hit.cbSize = sizeof hit;
    hit.pt = place;
    SendMessageW(Handle(), MCM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    return hit.uHit == MCHT_TODAYLINK;
}

bool CalendarPopup::HandleKey(WPARAM key) {
    if (key == VK_ESCAPE || key == VK_F4 || key == VK_TAB) return Close(), true;
    if (key == VK_RETURN) return Choose(), true;
    const data::CalendarDay day = Selected();
    const data::CalendarDay next = DayAfterKey(day, key);
    if (next == day) return false;
    Select(data::ToOleDate(next));
    return true;
}

}  // namespace tavrin::win32
