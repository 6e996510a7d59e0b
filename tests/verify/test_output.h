#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tavrin::verify {

enum class Outcome { Passed, Failed, Skipped, Unfinished };

struct TestResult {
    std::string name;
    Outcome outcome = Outcome::Unfinished;
    std::string picture = {};  ///< the file's name alone; empty where none was taken
    std::string said = {};     ///< what it printed, where it has not passed
};

/// Reads what a GoogleTest program prints, line by line. It is there up to the last word even where the
/// program crashes or hangs, unlike its report.
class TestOutput {
  public:
    void Add(std::string_view line);

    /// Those that have begun, in their order; the last one is unfinished where the program has ended inside
    /// it.
    const std::vector<TestResult>& Results() const { return results_; }
    /// How many tests the program said it would run; 0 before it has.
    int Announced() const { return announced_; }
    /// The last of what it said outside of tests: why it ended where no test tells.
    const std::string& LastWords() const { return lastWords_; }

  private:
    void End(Outcome outcome);

    std::vector<TestResult> results_;
    bool isRunning_ = false;
    int announced_ = 0;
    std::string lastWords_;
};

}  // namespace tavrin::verify
