#pragma once

#include <string>

#include "e2e/driver/host.h"
#include "e2e/driver/random.h"

namespace tavrin::e2e {

/// Random keys and mouse actions put into the system's input queue, aimed at the component's windows: what a
/// user can do and nothing else. Each waits until the host's thread has dealt with it.
class TypedEvents {
  public:
    TypedEvents(Host& host, Random& random) : host_(host), random_(random) {}

    void Do();
    const std::string& Last() const { return last_; }

  private:
    bool ComeToFront();
    void Key();
    void Text();
    void ClickOnControl();
    void ClickAnywhere();
    void DragSomewhere();

    Host& host_;
    Random& random_;
    std::string last_;
};

}  // namespace tavrin::e2e
