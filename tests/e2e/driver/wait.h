#pragma once

#include <functional>
#include <stdexcept>
#include <string>

namespace tavrin::e2e {

/// The program under test did not do what the driver needs to go on. Ends the test as failed.
class DriverError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// How long a condition may take, in milliseconds. Long, because it is used up only by a failure.
inline constexpr unsigned long Patience = 8000;

/// Asks again and again until the condition holds. \return whether it did in time.
bool WaitUntil(const std::function<bool()>& condition, unsigned long milliseconds = Patience);

/// \throws DriverError when the condition does not come true in time; `what` says what was waited for.
void Require(const std::string& what, const std::function<bool()>& condition);

}  // namespace tavrin::e2e
