#pragma once

#include <functional>
#include <span>

#include "proofs/user_session.h"

namespace tavrin::tests {

/// One thing that a user does from beginning to end. The palette is open before; faults strike in `act`
/// alone. A new window adds its flows to the table in flows.cpp.
struct Flow {
    const char* name;
    std::function<void(UserSession&)> prepare;
    std::function<void(UserSession&)> act;
};

std::span<const Flow> AllFlows();

}  // namespace tavrin::tests
