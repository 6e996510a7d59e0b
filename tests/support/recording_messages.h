#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "shell/message_service.h"

namespace tavrin::tests {

struct ShownMessage {
    std::string prompt;
    int icon;
    int buttons;
    std::string title;
    bool operator==(const ShownMessage&) const = default;
};

std::ostream& operator<<(std::ostream& stream, const ShownMessage& message);

/// Keeps every message that a window showed and answers as the test laid down: No (or OK) unless told
/// otherwise.
class RecordingMessages {
  public:
    /// A service object of the kind that each window makes for itself; all of them record here.
    std::unique_ptr<shell::MessageService> CreateService();

    std::vector<ShownMessage> shown;
    std::deque<int> answers;  ///< of the next messages, in order
    int created = 0;          ///< service objects made so far
    /// What happens while a message is up.
    std::function<void()> whileShowing;
};

}  // namespace tavrin::tests
