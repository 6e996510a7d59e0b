#pragma once

#include <string>

#include "e2e/driver/host.h"
#include "e2e/driver/random.h"
#include "e2e/proofs/attendant.h"
#include "e2e/proofs/sent_events.h"
#include "e2e/proofs/typed_events.h"
#include "e2e/proofs/window_watch.h"

namespace tavrin::e2e {

/// A host whose windows random users use. What must hold of them is looked at between the events.
class WindowSession {
  public:
    WindowSession(Host& host, unsigned seed);

    // \return what went wrong, after which events; empty when nothing did.
    std::string Send(int events);
    std::string Type(int events);

    /// Ends whatever is open, has the host let go, and looks for what has stayed.
    std::string Leave();
    /// Opens each of the platform's dialogs once, so that what the system loads for them is loaded.
    void OpenDialogs();

    const WindowWatch& Watch() const { return watch_; }
    const Attendant& Messages() const { return attendant_; }

  private:
    std::string LookAround(WindowWatch::Events events);
    void OpenIfClosed();

    Host& host_;
    Random random_;
    Attendant attendant_{host_, random_};
    WindowWatch watch_{host_};
    SentEvents sent_{host_, random_};
    TypedEvents typed_{host_, random_};
};

}  // namespace tavrin::e2e
