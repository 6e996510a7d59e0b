#pragma once

#include <string>
#include <vector>

#include "host/embedded/line.h"
#include "support/asking_connection.h"

namespace tavrin::tests {

/// What an action costs on the way to a database server.
struct NetworkCost {
    std::string action;
    host::Traffic traffic;
    Asked asked;
};

/// Of every flow of a user in a company of ten years of rates and a thousand persons; the windows that the
/// flow begins with are open before.
std::vector<NetworkCost> MeasureNetworkCosts();

/// The lines of the table in docs/proofs.md, of those that send a statement at all.
std::vector<std::string> NetworkTable(const std::vector<NetworkCost>& costs);

}  // namespace tavrin::tests
