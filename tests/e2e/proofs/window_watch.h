#pragma once

#include <set>
#include <string>

#include "e2e/driver/host.h"

namespace tavrin::e2e {

/// Looks at the component's windows between events: what must hold of them at any time.
class WindowWatch {
  public:
    explicit WindowWatch(Host& host) : host_(host) {}

    /// Whether the events were the system's own. Messages that others send tell of a focus that the system
    /// has elsewhere.
    enum class Events { Sent, Typed };

    /// Has the host's thread answer, and looks.
    /// \return what is wrong; empty when nothing is
    std::string Complaint(Events events);

    /// How many windows have been opened as far as was seen.
    int Openings() const { return openings_; }

  private:
    Host& host_;
    std::set<HWND> open_;
    int openings_ = 0;
};

}  // namespace tavrin::e2e
