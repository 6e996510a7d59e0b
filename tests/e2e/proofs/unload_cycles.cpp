// Usage: unload_cycles [--cycles N] [--warm-up N]
//
// Loads the component, opens every window, closes them and unloads the component again, over and over in one
// process, and compares what the process holds afterwards with what it held before. The exit code is 0 when
// nothing was left behind.

#include <windows.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string_view>

#include "e2e/driver/input.h"
#include "e2e/driver/program_path.h"
#include "e2e/driver/tour.h"
#include "e2e/driver/wait.h"
#include "e2e/proofs/footprint.h"
#include "e2e/proofs/host_libraries.h"

namespace {

using namespace tavrin::e2e;

/// Private bytes come in pages, and the system's heaps grow in steps: a loss in each cycle would be far more.
constexpr Allowance Allowed{.privateBytes = std::size_t{1024} * 1024};

struct Options {
    int cycles = 1000;
    int warmUp = 10;  ///< what the system loads on first use stays
};

bool ReadOptions(int count, char** arguments, Options& options) {
    for (int i = 1; i + 1 < count; i += 2) {
        const std::string_view name = arguments[i];
        const int value = std::atoi(arguments[i + 1]);
        if (name == "--cycles") {
            options.cycles = value;
        } else if (name == "--warm-up") {
            options.warmUp = value;
        } else {
            return false;
        }
    }
    return count % 2 == 1;
}

void RunCycles(Host& host, int cycles) {
    for (int i = 0; i < cycles; ++i)
        LiveAndLeave(host);
}

int Run(const Options& options) {
    const HostLibraries libraries;
    MovePointer({640, 900});
    Host host;
    host.Release();
    host.Call([] { CoFreeUnusedLibrariesEx(0, 0); });
    RunCycles(host, options.warmUp);
    const Footprint before = Footprint::Take();
    const int eventsBefore = host.Iesire();
    const auto start = std::chrono::steady_clock::now();
    RunCycles(host, options.cycles);
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    const Footprint after = Footprint::Take();

    std::string complaint = Differences(before, after, Allowed);
    if (const int timers = KillThreadTimers(host.Ui()); timers != 0)
        complaint += std::to_string(timers) + " timers are alive; ";
    if (host.Iesire() - eventsBefore != options.cycles * EventsOfTour) complaint += "events have been lost; ";
    std::printf("unload cycles: %d cycles, %d windows opened, %s, %d failures, %.0f s\n", options.cycles,
                options.cycles * WindowsOfTour, Describe(before, after).c_str(), complaint.empty() ? 0 : 1,
                taken.count());
    if (complaint.empty()) return 0;
    std::printf("FAILED: %s\n", complaint.c_str());
    return 1;
}

}  // namespace

int main(int count, char** arguments) {
    Options options;
    if (!ReadOptions(count, arguments, options)) {
        std::fprintf(stderr, "Options: --cycles N --warm-up N\n");
        return 2;
    }
    try {
        Component::SetPath(BesideThisProgram(L"..\\..\\..\\Tavrin.dll"));
        if (Component().RegisterAsAllowed() != S_OK) throw DriverError("the component cannot be registered");
        const int result = Run(options);
        Component().Unregister();
        return result;
    } catch (const std::exception& failure) {
        std::printf("FAILED: %s\n", failure.what());
        return 1;
    }
}
