#pragma once

#include <windows.h>

#include <optional>

#include "data/text/date.h"
#include "e2e/driver/ui_thread.h"
#include "e2e/driver/window.h"

namespace tavrin::e2e {

/// The month that a date field drops down, as the user sees it. Places are found by asking the calendar what
/// lies where, so they are right at every resolution.
class Calendar {
  public:
    /// Waits until one is open. \throws DriverError when none comes
    explicit Calendar(UiThread& thread);

    static bool IsOpen() { return FindForm("Calendar").has_value(); }

    data::CalendarDay Selected() const;
    /// The arrows beside the year while it is being changed.
    Window YearArrows() const;

    /// The middle of what the calendar says is that part (MCHT_...), nothing where it has none.
    std::optional<POINT> FindPart(UINT part) const;
    POINT PlaceOf(UINT part) const { return FindPart(part).value(); }
    /// The middle of a day of the month in sight.
    POINT PlaceOf(data::CalendarDay day) const;

  private:
    template <class Wanted>
    std::optional<POINT> Find(Wanted&& wanted) const;

    UiThread& thread_;
    HWND month_;
};

}  // namespace tavrin::e2e
