#pragma once

#include <map>
#include <string>

#include "e2e/driver/host.h"
#include "e2e/driver/random.h"

namespace tavrin::e2e {

/// The user's second hand: answers the messages, ends the platform's dialogs, menus and drags that random
/// events leave open, and remembers what it was told.
class Attendant {
  public:
    Attendant(Host& host, Random& random) : host_(host), random_(random) {}

    /// Looks at what is open, and ends some of it.
    void Attend();
    /// Ends all of it, with the windows: waits until nothing is open. \throws DriverError when something
    /// stays
    void CloseEverything();
    /// Ends a menu and a drag that go on, whatever the system knows of them.
    void EndMenuAndDrag();

    /// How often each message was shown, by title and beginning of its prompt.
    const std::map<std::string, int>& Messages() const { return messages_; }
    int Dialogs() const { return dialogs_; }
    /// A message that no window has cause for; empty when there was none.
    const std::string& UnknownMessage() const { return unknown_; }

  private:
    enum class Urgency { Sometimes, AtOnce };

    bool EndModal(Urgency urgency);
    void EndMenu();
    void Answer(const Window& message);
    void EndDialog(const Window& dialog, Urgency urgency);
    void Press(const Window& modal, int button);
    void Remember(const Window& message);
    bool CloseOneWindow();

    Host& host_;
    Random& random_;
    std::map<std::string, int> messages_;
    HWND lastMessage_ = nullptr;
    HWND lastDialog_ = nullptr;
    int dialogs_ = 0;
    std::string unknown_;
};

}  // namespace tavrin::e2e
