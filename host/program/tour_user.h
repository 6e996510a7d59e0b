#pragma once

#include <windows.h>

#include <string>

#include "host/program/window_thread.h"
#include "host/windows/catalogue.h"

namespace tavrin::host {

/// The hands and eyes of the tour: real clicks and keys, each acted upon before the next.
class TourUser {
  public:
    explicit TourUser(const WindowThread& windows) : windows_(windows) {}

    void Perform(const TourAction& action) const;

    /// Takes the pointer out of the way, to the corner of the screen.
    void Rest() const;

    /// The form of that name, or the platform's window of that class. \throws data::Error where none appears
    HWND Await(const std::string& name) const;

  private:
    void Click(const TourAction& action) const;
    HWND AwaitControl(HWND form, const TourAction& action) const;
    void Point(POINT place) const;
    void DragBy(POINT from, POINT distance) const;
    void Activate(HWND form) const;

    const WindowThread& windows_;
};

}  // namespace tavrin::host
