#pragma once

#include <functional>

namespace tavrin::bench {

/// One piece of work that measures itself, in milliseconds: what it prepares and clears away does not count.
using Measurement = std::function<double()>;

/// Milliseconds, medians of the rounds; the ratio is the median of the rounds' own ratios.
struct Turns {
    double bare = 0;
    double ours = 0;
    double ratio = 0;
};

inline constexpr int Rounds = 9;

/// Milliseconds of the clock on the wall: a window is painted by several processes.
double MillisecondsOf(const std::function<void()>& work);

/// Rounds by turns; one before them is not counted.
Turns TakeTurns(const Measurement& bare, const Measurement& ours, int rounds = Rounds);

/// The median of nine; one before them is not counted.
double MedianOf(const Measurement& work);

/// Prints figures, one a line, and keeps whether every ratio was good enough. Milliseconds are judged where
/// there is a goal in them, but other work on the machine decides them too: they never make a run fail.
class Report {
  public:
    static void Heading(const char* text);
    void Ratio(const char* what, const Turns& turns, double most);
    static void Difference(const char* what, const Turns& turns, double most);
    static void Milliseconds(const char* what, double value, double most);

    bool IsGood() const { return isGood_; }

  private:
    bool isGood_ = true;
};

}  // namespace tavrin::bench
