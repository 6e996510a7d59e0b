#pragma once

#include <windows.h>

#include <functional>

#include "data/value.h"
#include "win32/scale.h"
#include "win32/toolkit.h"
#include "win32/window.h"

namespace tavrin::win32 {

/// Shows a month to choose a day from, and nothing else: keys and clicks elsewhere close it.
class CalendarPopup final : public Window {
  public:
    struct Settings {
        data::OleDate value;
        data::OleDate minimum;
        data::OleDate maximum;
        HWND form = nullptr;
        RECT field{};  ///< the field that the calendar belongs to, in pixels of the screen
    };

    /// Appears at once. `whenClosed` may destroy the popup; neither callback runs after that.
    CalendarPopup(forms::Desktop& desktop, const Toolkit& toolkit, const Settings& settings,
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
        CalendarPopup& popup_;
    };

    LRESULT HandleMessage(const Message& message) override;
    LRESULT OnNotify(const Message& message);
    LRESULT OnActivate(const Message& message);
    bool HandleKey(WPARAM key);

    void CreateCalendar(const Toolkit& toolkit, const Settings& settings);
    void ShowBeside(const RECT& field);
    SYSTEMTIME Selected() const;
    void Select(data::OleDate date);
    void Choose();

    forms::Desktop::PopupScope scope_;
    Calendar calendar_;
    data::OleDate minimum_;
    data::OleDate maximum_;
    std::function<void(data::OleDate)> whenChosen_;
    std::function<void()> whenClosed_;
    bool isClosing_ = false;
};

}  // namespace tavrin::win32
