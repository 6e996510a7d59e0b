#pragma once

#include <string_view>
#include <utility>

namespace tavrin::data {

/// Receives the component's log for programmers, one line at a time. There is one only while somebody
/// listens. No line contains a text that a user typed or a database returned.
class Diagnosis {
  public:
    virtual ~Diagnosis() = default;
    virtual void Tell(std::string_view line) noexcept = 0;
};

/// Logs a line if somebody listens; otherwise it is not even composed. If memory runs out the line is lost:
/// nothing that the component does depends on it.
template <class Compose>
void Tell(Diagnosis* listener, Compose&& compose) noexcept {
    if (listener == nullptr) return;
    try {
        listener->Tell(std::forward<Compose>(compose)());
    } catch (...) {
        return;
    }
}

}  // namespace tavrin::data
