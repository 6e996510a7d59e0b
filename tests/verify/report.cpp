#include "verify/report.h"

#include <algorithm>

namespace tavrin::verify {

namespace {

std::size_t Count(const TestRun& run, Outcome outcome) {
    return static_cast<std::size_t>(std::ranges::count(run.tests, outcome, &TestResult::outcome));
}

std::size_t Count(const Report& report, Outcome outcome) {
    std::size_t count = 0;
    for (const TestRun& run : report.runs)
        count += Count(run, outcome);
    return count;
}

bool HasFailed(const TestRun& run) {
    const std::size_t bad = Count(run, Outcome::Failed) + Count(run, Outcome::Unfinished);
    return bad > 0 || !run.problems.empty() || Count(run, Outcome::Passed) == 0;
}

const char* VerdictText(Verdict verdict) {
    switch (verdict) {
        case Verdict::Passed:
            return "PASSED";
        case Verdict::Failed:
            return "FAILED";
        case Verdict::NotRun:
            return "NOT RUN";
        case Verdict::DatabaseFailed:
            return "FAILED, the scratch database";
    }
    return "";
}

void AddFacts(std::string& text, const char* title, const std::vector<Fact>& facts) {
    if (facts.empty()) return;
    text += std::string("\n") + title + "\n";
    for (const Fact& fact : facts)
        text += "  " + fact.name + ": " + fact.value + "\n";
}

void AddLines(std::string& text, const char* title, const std::vector<std::string>& lines) {
    if (lines.empty()) return;
    text += std::string("\n") + title + "\n";
    for (const std::string& line : lines)
        text += "  " + line + "\n";
}

std::string Indented(const std::string& said) {
    std::string text = "      ";
    for (const char each : said)
        each == '\n' ? text += "\n      " : text += each;
    return text.substr(0, text.find_last_not_of(" \n") + 1) + "\n";
}

void AddTest(std::string& text, const TestResult& test) {
    const char* const word = test.outcome == Outcome::Failed    ? "FAILED"
                             : test.outcome == Outcome::Skipped ? "skipped"
                                                                : "DID NOT END";
    text += std::string("  ") + word + " " + test.name + "\n";
    if (!test.picture.empty()) text += "    picture: pictures\\" + test.picture + "\n";
    if (!test.said.empty()) text += Indented(test.said);
}

void AddRun(std::string& text, const TestRun& run) {
    text += "\n" + run.title + ": " + std::to_string(Count(run, Outcome::Passed)) + " of " +
            std::to_string(run.tests.size()) + " passed\n";
    for (const TestResult& test : run.tests)
        if (test.outcome != Outcome::Passed) AddTest(text, test);
    for (const std::string& problem : run.problems)
        text += Indented(problem);
    text += "  Passed:\n";
    for (const TestResult& test : run.tests)
        if (test.outcome == Outcome::Passed) text += "    " + test.name + "\n";
}

std::string WithLineEnds(const std::string& text) {
    std::string lines;
    for (const char each : text) {
        if (each == '\n') lines += '\r';
        lines += each;
    }
    return lines;
}

}  // namespace

Verdict VerdictOf(const Report& report) {
    if (!report.databaseProblems.empty()) return Verdict::DatabaseFailed;
    if (!report.obstacles.empty() || report.runs.empty()) return Verdict::NotRun;
    return std::ranges::any_of(report.runs, HasFailed) ? Verdict::Failed : Verdict::Passed;
}

std::string SummaryOf(const Report& report) {
    std::size_t problems = 0;
    for (const TestRun& run : report.runs)
        problems += run.problems.size();
    const std::size_t bad = Count(report, Outcome::Failed) + Count(report, Outcome::Unfinished) + problems;
    return std::to_string(Count(report, Outcome::Passed)) + " passed, " + std::to_string(bad) + " failed, " +
           std::to_string(Count(report, Outcome::Skipped)) + " skipped";
}

std::string ReportText(const Report& report) {
    std::string text = "Verification of Tavrin\n\nResult: ";
    text += VerdictText(VerdictOf(report));
    text += " (" + SummaryOf(report) + ")\n";
    AddLines(text, "Why it could not be run", report.obstacles);
    AddLines(text, "The scratch database", report.databaseProblems);
    AddLines(text, "What may disturb the tests here", report.warnings);
    AddFacts(text, "System", report.system);
    AddFacts(text, "Database server", report.server);
    for (const TestRun& run : report.runs)
        AddRun(text, run);
    return WithLineEnds(text);
}

}  // namespace tavrin::verify
