#include "e2e/driver/calendar.h"

#include <commctrl.h>

#include <algorithm>

#include "e2e/driver/wait.h"

namespace tavrin::e2e {

namespace {

data::CalendarDay DayOf(const SYSTEMTIME& time) {
    return {time.wYear, time.wMonth, time.wDay};
}

}  // namespace

Calendar::Calendar(UiThread& thread)
    : thread_(thread),
      month_(FindWindowExW(AwaitForm("Calendar").Handle(), nullptr, MONTHCAL_CLASSW, nullptr)) {
    if (month_ == nullptr) throw DriverError("the calendar shows no month");
    thread_.Settle();
}

data::CalendarDay Calendar::Selected() const {
    SYSTEMTIME time{};
    const auto answer = SendMessageW(month_, MCM_GETCURSEL, 0, reinterpret_cast<LPARAM>(&time));
    if (answer == 0) throw DriverError("the calendar has no day selected");
    return DayOf(time);
}

Window Calendar::YearArrows() const {
    return Window(FindWindowExW(month_, nullptr, UPDOWN_CLASSW, nullptr));
}

/// The middle of the smallest area around all places that are wanted.
template <class Wanted>
std::optional<POINT> Calendar::Find(Wanted&& wanted) const {
    constexpr int Step = 3;
    RECT area{};
    GetClientRect(month_, &area);
    RECT found{area.right, area.bottom, -1, -1};
    thread_.Call([&] {
        for (POINT place{0, 0}; place.y < area.bottom; place.y += Step) {
            for (place.x = 0; place.x < area.right; place.x += Step) {
                MCHITTESTINFO hit{};
                hit.cbSize = sizeof hit;
                hit.pt = place;
                SendMessageW(month_, MCM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
                if (!wanted(hit)) continue;
                found = {std::min(found.left, place.x), std::min(found.top, place.y),
                         std::max(found.right, place.x), std::max(found.bottom, place.y)};
            }
        }
    });
    if (found.right < 0) return std::nullopt;
    POINT middle{(found.left + found.right) / 2, (found.top + found.bottom) / 2};
    ClientToScreen(month_, &middle);
    return middle;
}

std::optional<POINT> Calendar::FindPart(UINT part) const {
    return Find([part](const MCHITTESTINFO& hit) { return hit.uHit == part; });
}

POINT Calendar::PlaceOf(data::CalendarDay day) const {
    const auto isDay = [&](const MCHITTESTINFO& hit) {
        return hit.uHit == MCHT_CALENDARDATE && DayOf(hit.st) == day;
    };
    return Find(isDay).value();
}

}  // namespace tavrin::e2e
