// Random users at the whole component: --events N in all (5,000,000), in sessions of --length N (1,000), from
// --seed S, in --jobs N processes. A session that fails is run again with fewer and fewer events, and the
// fewest that still fail are printed. --show S prints the events of that session while it runs. The exit code
// is 0 when nothing failed.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <string_view>

#include <fcntl.h>
#include <unistd.h>

#include "proofs/random_user.h"
#include "proofs/shared_figures.h"
#include "proofs/shrinking.h"

namespace {

using namespace tavrin::tests;

constexpr int MostJobs = 64;

struct Options {
    std::size_t events = 5'000'000;
    std::size_t length = 1000;
    std::uint64_t seed = 0;
    int jobs = 2;
    bool show = false;

    std::size_t Sessions() const { return (events + length - 1) / length; }
};

struct Progress {
    std::size_t session = 0;  ///< that is running
    RandomUser::Figures figures;
};
struct Shared {
    Progress jobs[MostJobs];
};

std::uint64_t SeedOf(const Options& options, std::size_t session) {
    return options.seed + session;
}

/// 0 where the events passed. Says why not.
int RunOnce(UserSession& session, RandomUser& user, const RandomEvents& events) {
    const std::string complaint = user.Run(events);
    if (complaint.empty()) return 0;
    std::fprintf(stderr, "After %zu events: %s\n", user.figures.events, complaint.c_str());
    session.Restart();
    return 1;
}

int RunShare(const Options& options, int job, Progress& progress) {
    UserSession session;
    RandomUser user(session);
    for (std::size_t i = static_cast<std::size_t>(job); i < options.Sessions();
         i += static_cast<std::size_t>(options.jobs)) {
        progress.session = i;
        if (RunOnce(session, user, MakeEvents(SeedOf(options, i), options.length)) != 0) return 1;
        progress.figures = user.figures;
    }
    progress.session = options.Sessions();
    return 0;
}

/// Whether the events alone fail a process of their own.
bool Fails(const RandomEvents& events, bool quietly) {
    return !RunInProcesses(1, [&](int) {
        if (quietly) dup2(open("/dev/null", O_WRONLY), STDERR_FILENO);
        UserSession session;
        RandomUser user(session);
        user.verbose = !quietly;
        return RunOnce(session, user, events);
    });
}

void ReportFailure(const Options& options, std::size_t session) {
    const std::uint64_t seed = SeedOf(options, session);
    std::printf("FAILED the session of seed %llu\n", static_cast<unsigned long long>(seed));
    const RandomEvents events = MakeEvents(seed, options.length);
    if (!Fails(events, true)) {
        std::printf("It passes alone: it needs what the sessions before it left behind.\n");
        return;
    }
    const RandomEvents fewest = Shrink(events, [](const RandomEvents& fewer) { return Fails(fewer, true); });
    std::printf("The fewest events that fail, %zu of %zu:\n", fewest.size(), events.size());
    std::fflush(stdout);
    Fails(fewest, false);
}

int ShowSession(const Options& options) {
    return Fails(MakeEvents(options.seed, options.length), false) ? 1 : 0;
}

bool ReadOptions(int argc, char** argv, Options& options) {
    for (int i = 1; i + 1 < argc; i += 2) {
        const std::string_view name = argv[i];
        const std::uint64_t value = std::strtoull(argv[i + 1], nullptr, 10);
        if (name == "--events") {
            options.events = value;
        } else if (name == "--length") {
            options.length = std::max<std::uint64_t>(1, value);
        } else if (name == "--seed" || name == "--show") {
            options.seed = value;
            options.show = name == "--show";
        } else if (name == "--jobs") {
            options.jobs = static_cast<int>(std::clamp<std::uint64_t>(value, 1, MostJobs));
        } else {
            return false;
        }
    }
    return argc % 2 == 1;
}

}  // namespace

int main(int argc, char** argv) {
    Options options;
    options.seed = std::random_device{}();
    if (!ReadOptions(argc, argv, options)) {
        std::fprintf(stderr, "Options: --events N --length N --seed S --jobs N --show S\n");
        return 2;
    }
    if (options.show) return ShowSession(options);
    std::printf("random users: seed %llu\n", static_cast<unsigned long long>(options.seed));
    auto& shared = ShareFigures<Shared>();
    const auto start = std::chrono::steady_clock::now();
    const bool fine =
        RunInProcesses(options.jobs, [&](int job) { return RunShare(options, job, shared.jobs[job]); });
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    RandomUser::Figures sum;
    int failures = 0;
    for (int job = 0; job < options.jobs; ++job) {
        const Progress& progress = shared.jobs[job];
        sum.events += progress.figures.events;
        sum.openings += progress.figures.openings;
        sum.statements += progress.figures.statements;
        sum.faults += progress.figures.faults;
        sum.reports += progress.figures.reports;
        sum.messages += progress.figures.messages;
        if (progress.session >= options.Sessions()) continue;
        ++failures;
        ReportFailure(options, progress.session);
    }
    if (!fine && failures == 0) failures = 1;  // at the end, when leaks are looked for
    std::printf(
        "random users: %zu events, %zu windows opened, %zu statements, %zu faults, %zu reports, "
        "%zu messages, %d failures, %.0f s\n",
        sum.events, sum.openings, sum.statements, sum.faults, sum.reports, sum.messages, failures,
        taken.count());
    return failures == 0 ? 0 : 1;
}
