#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>

#include "proofs/random_event.h"
#include "proofs/user_session.h"

namespace tavrin::tests {

/// Lets events happen to a session, whatever is open at the time, and checks after each that nothing is
/// broken.
class RandomUser {
  public:
    explicit RandomUser(UserSession& session) : session_(session) {}

    /// Opens the palette, lets the events happen, and leaves. Answers what was wrong, or an empty text.
    std::string Run(std::span<const RandomEvent> events);

    struct Figures {
        std::size_t events = 0;
        std::size_t openings = 0;  ///< of windows
        std::size_t statements = 0;
        std::size_t faults = 0;
        std::size_t reports = 0;
        std::size_t messages = 0;
    };
    Figures figures;

    /// Prints each event before it happens.
    bool verbose = false;

  private:
    std::string Step();
    void Do(const RandomEvent& event);
    void DoClose(const RandomEvent& event);
    void DoKey(const RandomEvent& event);
    void DoMousePart(const RandomEvent& event);
    void DoClick(const RandomEvent& event);
    void DoChoose(const RandomEvent& event);
    void DoFault(const RandomEvent& event);
    void DoApel(const RandomEvent& event);
    void DoDatabase(const RandomEvent& event);
    void DoDialog(const RandomEvent& event);
    void Paint(const RandomEvent& event);
    void Nested();
    void RestartPlan(std::optional<PlannedFault> fault = std::nullopt);

    forms::Form* PickWindow(unsigned number) const;
    /// Often one of those that `wanted` likes, else any that is in sight.
    forms::Control* PickControl(const RandomEvent& event, bool (*wanted)(const forms::Control&)) const;

    UserSession& session_;
    std::span<const RandomEvent> events_;
    std::size_t next_ = 0;
    unsigned nested_ = 0;  ///< events that pass while the next message is up
    int depth_ = 0;        ///< messages that are up
};

}  // namespace tavrin::tests
