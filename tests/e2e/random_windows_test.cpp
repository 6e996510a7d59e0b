// Random users at the real windows, for a short while. tests/e2e/proofs/random_windows.cpp has them there for
// long.

#include "e2e/driver/tour.h"
#include "e2e/host_test.h"
#include "e2e/proofs/window_session.h"

namespace tavrin::e2e {
namespace {

class RandomWindowsTest : public HostTest {
  protected:
    void SetUp() override { PrepareForTour(*host); }
};

TEST_F(RandomWindowsTest, SentAndTypedEventsLeaveEverythingInOrder) {
    constexpr unsigned Seed = 16062003;
    WindowSession session(*host, Seed);
    EXPECT_EQ(session.Send(1500), "");
    EXPECT_EQ(session.Type(150), "");
    EXPECT_EQ(session.Leave(), "");
    EXPECT_GT(session.Watch().Openings(), 10);
}

}  // namespace
}  // namespace tavrin::e2e
