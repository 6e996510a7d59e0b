#pragma once

#include <windows.h>

#include <atomic>
#include <mutex>
#include <string>
#include <vector>

namespace tavrin::e2e {

/// One call of the message operation.
struct MessageArguments {
    std::string prompt;
    long icon = 0;
    long buttons = 0;
    std::string title;
    long fifth = 0;
    long sixth = 0;

    bool operator==(const MessageArguments&) const = default;
};

/// The external class through which a host's system shows messages, registered in this process as long as
/// this object lives: it shows nothing, notes what it is asked to show, and answers at once. Lives on the
/// host's thread; the counts may be read from any.
class MessageClass {
  public:
    MessageClass();
    ~MessageClass();
    MessageClass(const MessageClass&) = delete;
    MessageClass& operator=(const MessageClass&) = delete;

    std::atomic<int> answer = IDOK;
    /// Whether the operation goes by its name; else it is found in the type information alone.
    std::atomic<bool> knowsName = true;
    std::atomic<int> created = 0;

    std::vector<MessageArguments> Messages() const;
    void Note(MessageArguments arguments);

  private:
    mutable std::mutex mutex_;
    std::vector<MessageArguments> messages_;
    DWORD cookie_ = 0;
};

}  // namespace tavrin::e2e
