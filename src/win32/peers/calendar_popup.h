#pragma once

#include <windows.h>

#include <functional>

#include "data/text/date.h"
#include "data/value.h"
#include "win32/system/scale.h"
#include "win32/window/window.h"
#include "win32/window/window_resources.h"

namespace tavrin::win32 {

/// Shows a month to choose a day from, and nothing else: keys and clicks elsewhere close it.
class CalendarPopup final : public Window {
  public:
    struct Days {
        data::OleDate value;
        data::OleDate minimum;
        data::OleDate maximum;
        bool operator==(const Days&) const = default;
    };
    struct Settings {
        Days days;
        HWND form = nullptr;
        RECT field{};          ///< the field that the calendar belongs to, in pixels of the screen
        HFONT font = nullptr;  ///< the field's, which lives longer
    };

    /// Appears at once, on the value. `whenClosed` may destroy the popup; neither callback runs after that.
    /// \throws data::Error where the platform's calendar does not take these days
    CalendarPopup(forms::Desktop& desktop, const WindowResources& resources, const Settings& settings,
                  std::function<void(data::OleDate)> whenChosen, std::function<void()> whenClosed);
    ~CalendarPopup() override;

    /// Takes the popup off the screen; `whenClosed` follows once its messages have ended.
    void Close();

  private:
    /// The platform's month calendar, which fills the popup.
    class Calendar final : public Window {
      public:
        Calendar(forms::Desktop& desktop, CalendarPopup& popup) : Window(desktop), popup_(popup) {}
        using Window::Attach;
        using Window::Destroy;

      private:
        LRESULT HandleMessage(const Message& message) override;
        bool IsToday(POINT place) const;

        CalendarPopup& popup_;
    };

    LRESULT HandleMessage(const Message& message) override;
    LRESULT OnNotify(const Message& message);
    LRESULT OnActivate(const Message& message);
    bool HandleKey(WPARAM key);

    void CreateCalendar(const WindowResources& resources, HFONT font);
    void ShowBeside(const RECT& field);
    data::CalendarDay Selected() const;
    /// The nearest day of the range. \throws data::Error where the calendar then stands on another
    void Select(data::OleDate date);
    void Choose();

    forms::Desktop::PopupScope scope_;
    Calendar calendar_;
    Days days_;
    std::function<void(data::OleDate)> whenChosen_;
    std::function<void()> whenClosed_;
    bool isClosing_ = false;
};

}  // namespace tavrin::win32
