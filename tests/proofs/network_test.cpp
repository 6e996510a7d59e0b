// What the windows ask of a database server, and the table of docs/proofs.md that says so.

#include "proofs/network.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

namespace tavrin::tests {
namespace {

using testing::ElementsAreArray;
using testing::IsEmpty;

const std::vector<NetworkCost>& Costs() {
    static const std::vector<NetworkCost> costs = MeasureNetworkCosts();
    return costs;
}

TEST(Network, EachStatementIsOneRoundTripAndNothingElseIs) {
    for (const NetworkCost& cost : Costs())
        EXPECT_EQ(cost.traffic.roundTrips, cost.traffic.statements) << cost.action;
}

TEST(Network, NoMoreThanOneBulkReadForAStatement) {
    for (const NetworkCost& cost : Costs())
        EXPECT_LE(cost.asked.bulkReads, cost.traffic.statements) << cost.action;
}

TEST(Network, NothingIsAskedTwice) {
    for (const NetworkCost& cost : Costs())
        EXPECT_THAT(cost.asked.twice, IsEmpty()) << cost.action;
}

/// The rows of the table below that title.
std::vector<std::string> DocumentedRows() {
    std::ifstream file(TAVRIN_SOURCE_FOLDER "/docs/proofs.md");
    std::vector<std::string> rows;
    bool isBelow = false;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("#")) isBelow = line == "### Over a network";
        const bool isRow = line.starts_with("| ") && line.find(": ") != std::string::npos;
        if (isBelow && isRow) rows.push_back(line);
    }
    return rows;
}

TEST(Network, TheDocumentSaysWhatEachActionCosts) {
    EXPECT_THAT(DocumentedRows(), ElementsAreArray(NetworkTable(Costs())));
}

}  // namespace
}  // namespace tavrin::tests
