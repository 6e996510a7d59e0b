#include "verify/test_output.h"

#include <charconv>

namespace tavrin::verify {

namespace {

constexpr std::string_view Picture = "Its picture: ";
constexpr std::size_t LongestSaying = 4000;

/// What follows a mark such as "[ RUN      ] ".
std::string_view After(std::string_view mark, std::string_view line) {
    return line.substr(mark.size());
}

std::string FileName(std::string_view path) {
    const std::size_t slash = path.find_last_of("\\/");
    return std::string(slash == std::string_view::npos ? path : path.substr(slash + 1));
}

}  // namespace

void TestOutput::Add(std::string_view line) {
    constexpr std::string_view Run = "[ RUN      ] ";
    constexpr std::string_view All = "[==========] Running ";
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    if (line.starts_with(All)) {
        const std::string_view count = After(All, line);
        std::from_chars(count.data(), count.data() + count.size(), announced_);
    } else if (line.starts_with(Run)) {
        results_.emplace_back();
        results_.back().name = After(Run, line);
        isRunning_ = true;
    } else if (isRunning_) {
        // The names come once more at the end, when no test runs.
        TestResult& test = results_.back();
        if (line.starts_with("[       OK ] ")) return End(Outcome::Passed);
        if (line.starts_with("[  FAILED  ] ")) return End(Outcome::Failed);
        if (line.starts_with("[  SKIPPED ] ")) return End(Outcome::Skipped);
        if (line.starts_with(Picture)) test.picture = FileName(After(Picture, line));
        if (test.said.size() < LongestSaying) test.said.append(line).append("\n");
    } else {
        lastWords_.append(line).append("\n");
        if (lastWords_.size() > LongestSaying) lastWords_.erase(0, lastWords_.size() - LongestSaying);
    }
}

void TestOutput::End(Outcome outcome) {
    TestResult& test = results_.back();
    test.outcome = outcome;
    if (outcome == Outcome::Passed) test.said.clear();
    isRunning_ = false;
}

}  // namespace tavrin::verify
