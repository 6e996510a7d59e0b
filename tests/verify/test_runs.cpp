#include "verify/test_runs.h"

#include <windows.h>

#include <algorithm>
#include <cstdio>

#include "win32/base/text.h"

namespace tavrin::verify {

namespace {

/// One process is not given more: under Wine some sixty apartments are too many for one.
constexpr int TestsPerProcess = 50;

std::wstring Quoted(const std::string& text) {
    return L"\"" + win32::ToWide(text) + L"\"";
}

int CountTests(const std::string& filter, const Variables& variables) {
    int count = 0;
    RunChild(L"tavrin_e2e.exe --gtest_list_tests --gtest_filter=" + Quoted(filter), variables,
             [&](std::string_view line) { count += line.starts_with("  ") ? 1 : 0; });
    return count;
}

void ShowProgress(const std::string& title, std::size_t count, int all) {
    std::printf("\r%s: %u of %d ", title.c_str(), static_cast<unsigned>(count), all);
    std::fflush(stdout);
}

std::string EndingOf(const ChildEnd& end) {
    if (end.wasEnded) return "a process said nothing for three minutes and was ended";
    return "a process ended with " + win32::HexText(end.exitCode);
}

/// One of the processes to which the tests are dealt.
void RunShard(TestRun& run, const std::string& filter, const Variables& variables, int all) {
    TestOutput output;
    const std::size_t before = run.tests.size();
    const ChildEnd end = RunChild(L"tavrin_e2e.exe --screenshots pictures --gtest_filter=" + Quoted(filter),
                                  variables, [&](std::string_view line) {
                                      const std::size_t known = output.Results().size();
                                      output.Add(line);
                                      if (output.Results().size() != known)
                                          ShowProgress(run.title, before + output.Results().size(), all);
                                  });
    const auto& results = output.Results();
    run.tests.insert(run.tests.end(), results.begin(), results.end());
    const bool isExplained = std::ranges::any_of(results, [](const TestResult& test) {
        return test.outcome == Outcome::Failed || test.outcome == Outcome::Unfinished;
    });
    if (end.wasEnded || (end.exitCode != 0 && !isExplained))
        run.problems.push_back(EndingOf(end) + "; its last words:\n" + output.LastWords());
}

}  // namespace

TestRun RunTests(const std::string& title, const std::string& filter, const std::wstring& kitFolder,
                 const Variables& variables) {
    TestRun run{title, {}, {}};
    const int all = CountTests(filter, variables);
    const int shards = (all + TestsPerProcess - 1) / TestsPerProcess;
    for (int shard = 0; shard < shards; ++shard) {
        Variables own = variables;
        own.emplace_back(L"TAVRIN_DLL", kitFolder + L"Tavrin.dll");
        own.emplace_back(L"GTEST_TOTAL_SHARDS", std::to_wstring(shards));
        own.emplace_back(L"GTEST_SHARD_INDEX", std::to_wstring(shard));
        RunShard(run, filter, own, all);
    }
    if (all == 0) run.problems.emplace_back("no test has such a name");
    if (static_cast<int>(run.tests.size()) < all)
        run.problems.emplace_back("tests were announced that did not begin");
    std::printf("\n");
    return run;
}

TestRun RunTour() {
    TestRun run{"Tour of the stand-in host", {TestResult()}, {}};
    TestResult& tour = run.tests.front();
    tour.name = "tavrin_host --tour";
    CreateDirectoryW(L"tour", nullptr);
    const ChildEnd end =
        RunChild(L"tavrin_host.exe --dll Tavrin.dll --database tour\\tour.db --tour tour", {},
                 [&](std::string_view line) {
                     tour.said.append(line).append("\n");
                     std::printf("\rTour: %.*s ", static_cast<int>(line.size()), line.data());
                 });
    std::printf("\n");
    DeleteFileW(L"tour\\tour.db");
    tour.outcome = end.exitCode == 0 && !end.wasEnded ? Outcome::Passed : Outcome::Failed;
    if (tour.outcome == Outcome::Failed) run.problems.push_back(EndingOf(end));
    return run;
}

}  // namespace tavrin::verify
