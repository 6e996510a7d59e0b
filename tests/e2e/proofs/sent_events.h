#pragma once

#include <deque>
#include <string>
#include <vector>

#include "e2e/driver/host.h"
#include "e2e/driver/random.h"

namespace tavrin::e2e {

/// Random messages to the component's windows and controls, sent and posted as the system, other programs and
/// assistive tools do, among them what the host and other users of its database do. Messages that carry
/// addresses carry right ones; keys and the mouse go to windows that take input, as the system sees to.
/// Nothing waits for what it has set off.
class SentEvents {
  public:
    SentEvents(Host& host, Random& random) : host_(host), random_(random) {}

    /// Looks anew at what windows there are.
    void Look();
    /// Does one thing.
    void Do();

    /// The last things that were done, for those who look for the cause of a failure.
    std::string Trace() const;

  private:
    struct Target {
        Window window;
        Window form;  ///< the window itself or the one that it lies in
        bool takesInput;
    };

    void Key();
    void Character();
    void Mouse();
    void ClickIt();
    void Command();
    void Close();
    void Activation();
    void Focus();
    void Placement();
    void SystemChange();
    void Paint();
    void Scroll();
    void Content();
    void Apel();
    void Database();
    void LeaveAndReturn();

    const Target* Pick();
    const Target* PickForInput();
    LPARAM PlaceIn(const Window& window);
    /// Sends or posts.
    void Give(const Window& window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

    Host& host_;
    Random& random_;
    std::vector<Target> targets_;
    std::string subject_;  ///< the window and the control that the event under way is about
    std::deque<std::string> trace_;
};

}  // namespace tavrin::e2e
