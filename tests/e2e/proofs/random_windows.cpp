// Usage: random_windows [--sent N] [--typed N] [--seed S] [--warm-up N]
//
// Random users at the real windows in a real host: N messages sent and posted (100,000), N keys and mouse
// actions put into the system's input (10,000). Between the events the host must answer, no window may be
// disabled for good, and no message may come that nothing gives cause for; at the end everything closes, and
// what the process holds is what it held before. The exit code is 0 when nothing failed. The same seed gives
// the same numbers; when an event meets which window is the system's affair.

#include <windows.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <random>
#include <string_view>

#include "e2e/driver/process.h"
#include "e2e/driver/program_path.h"
#include "e2e/driver/screen.h"
#include "e2e/driver/wait.h"
#include "e2e/proofs/footprint.h"
#include "e2e/proofs/host_libraries.h"
#include "e2e/proofs/window_session.h"

namespace {

using namespace tavrin::e2e;

/// Private bytes come in pages, and the system's heaps grow in steps. The system also keeps a few objects
/// from their first use on, which may come late: the pictures of its visual style, a brush of its colours, a
/// font. A loss of the component's would grow with the thousands of windows that are opened.
constexpr Allowance Allowed{.privateBytes = std::size_t{4} * 1024 * 1024, .gdiObjects = 12};

struct Options {
    int sent = 100000;
    int typed = 10000;
    int warmUp = 5000;
    unsigned seed = std::random_device{}();
};

bool ReadOptions(int count, char** arguments, Options& options) {
    for (int i = 1; i + 1 < count; i += 2) {
        const std::string_view name = arguments[i];
        const unsigned long value = std::strtoul(arguments[i + 1], nullptr, 10);
        if (name == "--sent") {
            options.sent = static_cast<int>(value);
        } else if (name == "--typed") {
            options.typed = static_cast<int>(value);
        } else if (name == "--warm-up") {
            options.warmUp = static_cast<int>(value);
        } else if (name == "--seed") {
            options.seed = static_cast<unsigned>(value);
        } else {
            return false;
        }
    }
    return count % 2 == 1;
}

/// A process has its first dialogs, menus and messages behind it when resources are counted.
std::string WarmUp(Host& host, const Options& options) {
    WindowSession session(host, options.seed + 1);
    session.OpenDialogs();
    std::string complaint = session.Send(options.warmUp);
    if (complaint.empty()) complaint = session.Type(options.warmUp / 10);
    const std::string left = session.Leave();
    return complaint.empty() ? left : complaint;
}

void PrintMessages(const Attendant& attendant) {
    for (const auto& [message, count] : attendant.Messages())
        std::printf("  %6d times %s\n", count, message.c_str());
}

int Report(const std::string& complaint) {
    if (complaint.empty()) return 0;
    std::printf("Its picture: %s\n", SaveScreenshot("random_windows").c_str());
    std::printf("FAILED: %s\n", complaint.c_str());
    return 1;
}

int Run(const Options& options) {
    const HostLibraries libraries;
    Host host;
    if (const std::string complaint = WarmUp(host, options); !complaint.empty())
        return Report("in the warm-up, " + complaint);
    const Footprint before = Footprint::Take();
    const auto start = std::chrono::steady_clock::now();
    WindowSession session(host, options.seed);
    std::string complaint = session.Send(options.sent);
    if (complaint.empty()) complaint = session.Type(options.typed);
    if (complaint.empty()) complaint = session.Leave();
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    PrintMessages(session.Messages());
    if (!complaint.empty()) return Report(complaint);
    const Footprint after = Footprint::Take();
    complaint = Differences(before, after, Allowed);
    if (const int timers = KillThreadTimers(host.Ui()); timers != 0)
        complaint += std::to_string(timers) + " timers are alive; ";
    std::printf(
        "random windows: %d events sent, %d typed, %d windows and %d dialogs opened, %s, %d failures, %.0f "
        "s\n",
        options.sent, options.typed, session.Watch().Openings(), session.Messages().Dialogs(),
        Describe(before, after).c_str(), complaint.empty() ? 0 : 1, taken.count());
    return Report(complaint);
}

}  // namespace

int main(int count, char** arguments) {
    Options options;
    if (!ReadOptions(count, arguments, options)) {
        std::fprintf(stderr, "Options: --sent N --typed N --seed S --warm-up N\n");
        return 2;
    }
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    std::printf("random windows: seed %u\n", options.seed);
    try {
        Component::SetPath(BesideThisProgram(L"..\\..\\..\\Tavrin.dll"));
        SetScreenshotFolder(BesideThisProgram(L"."));
        // Notes that are typed into being are to lie there and nowhere else.
        SetCurrentDirectoryW(TemporaryPath(L"").c_str());
        if (Component().RegisterAsAllowed() != S_OK) throw DriverError("the component cannot be registered");
        const int result = Run(options);
        Component().Unregister();
        return result;
    } catch (const std::exception& failure) {
        return Report(failure.what());
    }
}
