#pragma once

#include <string>
#include <vector>

#include "verify/test_output.h"

namespace tavrin::verify {

/// How a whole verification ended; verify.cmd ends with the number.
enum class Verdict {
    Passed = 0,          ///< something ran, and all of it passed
    Failed = 1,          ///< a test failed, or ended before its end
    NotRun = 2,          ///< nothing could be run here, or it was called with words it does not know
    DatabaseFailed = 3,  ///< the scratch database could not be made, or not removed again
};

struct Fact {
    std::string name;
    std::string value;
};

/// The tests of one selection, which took one process or several.
struct TestRun {
    std::string title;
    std::vector<TestResult> tests = {};
    std::vector<std::string> problems = {};  ///< such as a process that crashed after its tests
};

struct Report {
    std::vector<Fact> system;
    std::vector<std::string> warnings;   ///< circumstances in which a failure may not be the component's
    std::vector<std::string> obstacles;  ///< why nothing, or not all, was run
    std::vector<TestRun> runs;
    std::vector<Fact> server;
    std::vector<std::string> databaseProblems;
};

Verdict VerdictOf(const Report& report);

/// "12 passed, 0 failed, 1 skipped"
std::string SummaryOf(const Report& report);

/// The report as a text for people, UTF-8, lines ending as Windows wants them.
std::string ReportText(const Report& report);

}  // namespace tavrin::verify
