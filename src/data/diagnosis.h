#pragma once

#include <string_view>
#include <utility>

namespace tavrin::data {

/// Takes what the component tells programmers of its doing, a line at a time. There is one only while
/// somebody listens. No line holds a text that a user has typed or a database has given.
class Diagnosis {
  public:
    virtual ~Diagnosis() = default;
    virtual void Tell(std::string_view line) noexcept = 0;
};

/// Tells a line where somebody listens. It is composed for nobody else, and lost where there is no memory for
/// it: nothing that the component does depends on it.
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
