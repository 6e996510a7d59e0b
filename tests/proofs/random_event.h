#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tavrin::tests {

/// What may happen to the component from outside.
enum class EventKind : std::uint8_t {
    Key,
    Character,
    Click,
    MousePart,  ///< half a click, a move, a wheel: what a click is made of, in no order
    DoubleClick,
    Choose,  ///< an entry of a list, a day of a calendar
    Paste,
    Accelerator,
    Activate,
    Close,
    Apel,
    Fault,
    EndFaults,
    Answer,
    Dialog,  ///< what the next dialogs are answered
    Nest,    ///< the next message or report stays up while some events pass
    Paint,
    Database,  ///< another user changes it
    Operation,
    Count,
};

/// One event: its kind, and two numbers that choose what it is about among what is there at the time.
struct RandomEvent {
    EventKind kind = EventKind::Key;
    std::uint8_t choice = 0;
    std::uint16_t detail = 0;
    bool operator==(const RandomEvent&) const = default;
};

using RandomEvents = std::vector<RandomEvent>;

/// The events of one session; the same seed gives the same events everywhere.
RandomEvents MakeEvents(std::uint64_t seed, std::size_t count);

std::string Describe(const RandomEvent& event);

}  // namespace tavrin::tests
