#include "windows/by_turns.h"

#include <windows.h>

#include <cstdio>
#include <vector>

#include "median.h"

namespace tavrin::bench {

namespace {

const char* Judged(double value, double most) {
    return value <= most ? "ok" : "TOO MUCH";
}

}  // namespace

double MillisecondsOf(const std::function<void()>& work) {
    LARGE_INTEGER frequency{};
    LARGE_INTEGER start{};
    LARGE_INTEGER end{};
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&start);
    work();
    QueryPerformanceCounter(&end);
    return 1000.0 * static_cast<double>(end.QuadPart - start.QuadPart) /
           static_cast<double>(frequency.QuadPart);
}

Turns TakeTurns(const Measurement& bare, const Measurement& ours, int rounds) {
    std::vector<double> bareTimes;
    std::vector<double> ourTimes;
    std::vector<double> ratios;
    for (int round = 0; round <= rounds; ++round) {
        const double bareTime = bare();
        const double ourTime = ours();
        if (round == 0) continue;
        bareTimes.push_back(bareTime);
        ourTimes.push_back(ourTime);
        ratios.push_back(ourTime / bareTime);
    }
    return {Median(bareTimes), Median(ourTimes), Median(ratios)};
}

double MedianOf(const Measurement& work) {
    std::vector<double> times;
    for (int round = 0; round <= Rounds; ++round) {
        const double time = work();
        if (round > 0) times.push_back(time);
    }
    return Median(times);
}

void Report::Heading(const char* text) {
    std::printf("%s\n", text);
}

void Report::Ratio(const char* what, const Turns& turns, double most) {
    std::printf("  %-28s %8.2f ms, bare %8.2f ms, ratio %6.3f (at most %.2f) %s\n", what, turns.ours,
                turns.bare, turns.ratio, most, Judged(turns.ratio, most));
    isGood_ = isGood_ && turns.ratio <= most;
}

void Report::Difference(const char* what, const Turns& turns, double most) {
    const double difference = turns.ours - turns.bare;
    std::printf("  %-28s %8.2f ms, bare %8.2f ms, %6.2f ms more (at most %.0f) %s\n", what, turns.ours,
                turns.bare, difference, most, Judged(difference, most));
}

void Report::Milliseconds(const char* what, double value, double most) {
    std::printf("  %-28s %8.2f ms (at most %.0f) %s\n", what, value, most, Judged(value, most));
}

}  // namespace tavrin::bench
