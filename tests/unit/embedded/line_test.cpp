// The line between a program and its database server.

#include "host/embedded/line.h"

#include <gtest/gtest.h>

#include "host/embedded/embedded_connection.h"

namespace tavrin::host {
namespace {

using namespace std::chrono_literals;

struct LineTest : testing::Test {
    LineTest() { database->Run("CREATE TABLE T (Nume nvarchar(10), Suma float)"); }

    Traffic PassedBy(const std::function<void(EmbeddedConnection&)>& work) const {
        const auto line = std::make_shared<Line>();
        EmbeddedConnection connection(database);
        connection.UseLine(line);
        work(connection);
        return line->Passed();
    }

    std::shared_ptr<EmbeddedDatabase> database = std::make_shared<EmbeddedDatabase>(":memory:");
};

TEST_F(LineTest, AStatementIsARoundTripAndItsRowsComeWithIt) {
    const std::string query = "SELECT Nume, Suma FROM T";
    const Traffic empty = PassedBy([&](EmbeddedConnection& connection) { connection.Execute(query); });
    EXPECT_EQ(empty.statements, 1);
    EXPECT_EQ(empty.roundTrips, 1);

    database->Run(
        "INSERT INTO T VALUES ('\xC4\x83"
        "b', 1.5)");
    const Traffic one = PassedBy([&](EmbeddedConnection& connection) {
        const auto rows = connection.CreateRecordset();
        rows->Open(query);
        rows->ReadAll();
    });
    EXPECT_EQ(one.roundTrips, 1);
    EXPECT_EQ(one.bytes - empty.bytes, 1 + (2 + 2 * 2) + (2 + 8));
}

TEST_F(LineTest, ARequeryIsAskedAgainAndARefusalIsAsked) {
    const Traffic traffic = PassedBy([](EmbeddedConnection& connection) {
        const auto rows = connection.CreateRecordset();
        rows->Open("SELECT Nume FROM T");
        rows->Requery();
        EXPECT_ANY_THROW(connection.Execute("SELECT Nobody FROM T"));
    });
    EXPECT_EQ(traffic.statements, 3);
    EXPECT_EQ(traffic.roundTrips, 3);
}

TEST(Traffic, TakesItsDelaysAndItsBytes) {
    const Traffic traffic{.statements = 2, .roundTrips = 2, .bytes = 250'000};
    EXPECT_EQ(traffic.TimeOn(LocalNetwork), 2'400us);
    EXPECT_EQ(traffic.TimeOn(BranchOffice), 140ms);
}

TEST(LineWithASpeed, MakesItsCallersWait) {
    Line line({.delay = 30ms, .bitsPerSecond = 1'000'000});
    const auto begin = std::chrono::steady_clock::now();
    line.Ask();
    line.Ask();
    EXPECT_GE(std::chrono::steady_clock::now() - begin, 60ms);
}

}  // namespace
}  // namespace tavrin::host
