#include <gtest/gtest.h>

#include <random>

#include "proofs/random_user.h"
#include "proofs/shrinking.h"

namespace tavrin::tests {
namespace {

TEST(RandomUsers, BreakNothing) {
    constexpr std::size_t sessions = 50;
    constexpr std::size_t length = 1000;
    const std::uint64_t seed = std::random_device{}();
    UserSession session;
    RandomUser user(session);
    for (std::uint64_t i = 0; i < sessions; ++i) {
        SCOPED_TRACE("random_users --events 1000 --seed " + std::to_string(seed + i));
        ASSERT_EQ(user.Run(MakeEvents(seed + i, length)), "");
    }
    EXPECT_EQ(user.figures.events, sessions * length);
    EXPECT_GT(user.figures.faults, 0U);
    EXPECT_GT(user.figures.messages, 0U);
}

TEST(RandomUsers, TheSameSeedGivesTheSameEvents) {
    EXPECT_EQ(MakeEvents(7, 100), MakeEvents(7, 100));
    EXPECT_NE(MakeEvents(7, 100), MakeEvents(8, 100));
}

TEST(RandomUsers, AFailureShrinksToWhatItNeeds) {
    const RandomEvents events = MakeEvents(7, 200);
    const RandomEvents needed = {events[20], events[150], events[151]};
    const auto fails = [&](const RandomEvents& some) {
        std::size_t met = 0;
        for (const RandomEvent& event : some)
            if (met < needed.size() && event == needed[met]) ++met;
        return met == needed.size();
    };
    EXPECT_EQ(Shrink(events, fails), needed);
}

}  // namespace
}  // namespace tavrin::tests
