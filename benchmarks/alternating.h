#pragma once

#include <ctime>
#include <functional>
#include <vector>

#include "median.h"

namespace tavrin::bench {

/// Processor seconds of this thread: what else runs on the machine does not count.
inline double ProcessorTime() {
    std::timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

inline double SecondsOf(const std::function<void()>& work) {
    const double start = ProcessorTime();
    work();
    return ProcessorTime() - start;
}

struct Comparison {
    double bare = 0;  ///< seconds, the median
    double ours = 0;
    double ratio = 0;  ///< the median of the rounds' own ratios
};

/// Runs both by turns, so that what they meet is the same; one round before the first is not counted.
inline Comparison Compare(
    int rounds, const std::function<void()>& bare, const std::function<void()>& ours,
    const std::function<void()>& between = [] {}) {
    std::vector<double> bareTimes;
    std::vector<double> ourTimes;
    std::vector<double> ratios;
    for (int round = 0; round <= rounds; ++round) {
        const double bareTime = SecondsOf(bare);
        between();
        const double ourTime = SecondsOf(ours);
        between();
        if (round == 0) continue;
        bareTimes.push_back(bareTime);
        ourTimes.push_back(ourTime);
        ratios.push_back(ourTime / bareTime);
    }
    return {Median(bareTimes), Median(ourTimes), Median(ratios)};
}

}  // namespace tavrin::bench
