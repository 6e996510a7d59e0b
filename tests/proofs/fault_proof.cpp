// Runs every user flow with every fault at every place, and prints the figures. Options: --jobs N processes,
// --no-interruptions, --flow NUMBER alone, --from NUMBER --to NUMBER flows from one to before another. The
// exit code is 0 when nothing failed.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "proofs/fault_runner.h"
#include "proofs/shared_figures.h"

namespace {

using tavrin::tests::AllFlows;
using tavrin::tests::FaultFigures;
using tavrin::tests::FaultRunner;

struct Options {
    int jobs = 2;
    bool interruptions = true;
    std::size_t from = 0;
    std::size_t to = AllFlows().size();
};

const FaultRunner* running = nullptr;

void TellWhatRuns() {
    if (running != nullptr) std::fprintf(stderr, "Crashed in %s\n", running->Current().c_str());
}

void TellFailure(const std::string& what) {
    std::fprintf(stderr, "FAILED %s\n", what.c_str());
}

int RunShare(const Options& options, int job, FaultFigures& figures) {
    FaultRunner runner(TellFailure);
    running = &runner;
    tavrin::tests::WhenDying(TellWhatRuns);
    for (std::size_t flow = options.from + static_cast<std::size_t>(job); flow < options.to;
         flow += static_cast<std::size_t>(options.jobs)) {
        runner.RunEveryFault(flow);
        if (options.interruptions) {
            runner.RunEveryInterruption(flow);
            runner.RunEveryClosing(flow);
        }
        figures = runner.Figures();
    }
    running = nullptr;
    return runner.Figures().failures == 0 ? 0 : 1;
}

std::size_t NumberOf(const char* text) {
    return std::strtoul(text, nullptr, 10);
}

}  // namespace

int main(int argc, char** argv) {
    Options options;
    for (int i = 1; i < argc; ++i) {
        const std::string_view option = argv[i];
        if (option == "--no-interruptions") {
            options.interruptions = false;
        } else if (option == "--jobs" && i + 1 < argc) {
            options.jobs = std::max(1, std::atoi(argv[++i]));
        } else if (option == "--from" && i + 1 < argc) {
            options.from = NumberOf(argv[++i]);
        } else if (option == "--to" && i + 1 < argc) {
            options.to = std::min(NumberOf(argv[++i]), AllFlows().size());
        } else if (option == "--flow" && i + 1 < argc) {
            options.from = NumberOf(argv[++i]);
            options.to = std::min(options.from + 1, AllFlows().size());
            options.jobs = 1;
        } else {
            std::fprintf(stderr, "Unknown option %s\n", argv[i]);
            return 2;
        }
    }
    struct Shares {
        FaultFigures each[64];
    };
    auto& shares = tavrin::tests::ShareFigures<Shares>();
    const bool fine = tavrin::tests::RunInProcesses(
        options.jobs, [&](int job) { return RunShare(options, job, shares.each[job]); });
    FaultFigures sum;
    for (const FaultFigures& share : shares.each)
        sum += share;
    const std::size_t flows = options.to - std::min(options.from, options.to);
    std::printf(
        "faults: %zu flows, %zu touches, %zu runs, %zu injected faults, %zu interruptions, %zu failures%s\n",
        flows, sum.touches, sum.runs, sum.faults, sum.interruptions, sum.failures,
        fine ? "" : " (or a crash)");
    return fine && sum.failures == 0 ? 0 : 1;
}
