#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

#include "e2e/driver/window.h"

namespace tavrin::e2e {

enum class MessageIcon { None, Error, Question, Exclamation, Information };

/// A message that the program under test shows and waits for.
class ShownMessage {
  public:
    /// Waits for one that has the keyboard. \throws DriverError when none appears.
    static ShownMessage Await();
    /// The foremost one that is open now.
    static std::optional<ShownMessage> Find();

    std::string Title() const { return window_.Text(); }
    std::string Prompt() const;
    MessageIcon Icon() const;
    std::vector<int> Buttons() const;  ///< IDOK, IDYES, ... in the order of their places
    /// Whether no window of this process stands above it.
    bool IsInFront() const { return TopLevelWindows().front() == window_; }
    /// Waits for that.
    bool ComesToFront() const;

    /// Clicks a button with the mouse and waits until the message has gone.
    void Press(int button) const;

    /// Ends it without mouse or keyboard, whatever the answer then is. Does not wait.
    void Dismiss() const;

  private:
    explicit ShownMessage(Window window) : window_(window) {}

    Window window_;
};

}  // namespace tavrin::e2e
