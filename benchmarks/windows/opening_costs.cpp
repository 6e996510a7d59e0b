// Opening windows: the palette from nothing, the others from the click.

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

#include "e2e/driver/component.h"
#include "e2e/driver/wait.h"
#include "windows/accounting_host.h"
#include "windows/bare_windows.h"
#include "windows/costs.h"
#include "windows/message_loop.h"
#include "windows/twin_window.h"

namespace tavrin::bench {

namespace {

constexpr double PaletteGoal = 30;
constexpr double TwinGoal = 8;
constexpr int FirstRounds = 5;

/// A window, and what opens it.
struct Way {
    const char* window;
    const char* opener;
    const char* control;
};

constexpr Way Ways[] = {{"Notes", "Utilitati", "cmdAction(0)"},
                        {"Agenda", "Utilitati", "cmdAction(1)"},
                        {"frmCalculator", "Utilitati", "cmdAction(2)"},
                        {"CursValutar", "Utilitati", "cmdAction(3)"},
                        {"CursValutarDetaliu", "CursValutar", "cmdAction(0)"},
                        {"CereMoneda", "CursValutar", "cmdAction(3)"},
                        {"EvolutieCurs", "CursValutar", "cmdAction(5)"},
                        {"AlegeMoneda", "frmCalculator", "cmdVal"}};

e2e::Window OpenBy(const Way& way) {
    return AccountingHost::Open(e2e::AwaitForm(way.opener), way.control, way.window);
}

void Open(const char* window) {
    if (e2e::FindForm(window)) return;
    OpenBy(*std::ranges::find(Ways, std::string_view(window), &Way::window));
}

SIZE SizeOf(const e2e::Window& window) {
    return {window.Width(), window.Height()};
}

/// This program once more, for one figure, which is its exit code.
int RunAlone(const std::wstring& arguments) {
    wchar_t program[1024];
    GetModuleFileNameW(nullptr, program, 1024);
    std::wstring command = L"\"" + std::wstring(program) + L"\" " + arguments;
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                        &process)) {
        throw e2e::DriverError("cannot start this program again");
    }
    WaitForSingleObject(process.hProcess, INFINITE);
    DWORD microseconds = 0;
    GetExitCodeProcess(process.hProcess, &microseconds);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    if (microseconds == 0 || microseconds > 60'000'000)
        throw e2e::DriverError("a process of one window failed");
    return static_cast<int>(microseconds);
}

std::wstring FirstWindow(SIZE size) {
    return L"--first-window " + std::to_wstring(size.cx) + L" " + std::to_wstring(size.cy);
}

/// Closes it again.
double TimeOpening(const Way& way) {
    Open(way.opener);  // one of them closes it
    const e2e::Window control = e2e::AwaitForm(way.opener).Control(way.control);
    Settle();
    const double time = MillisecondsOf([&] {
        Click(control);
        RunUntilPainted();
    });
    AccountingHost::Close(e2e::AwaitForm(way.window));
    return time;
}

double TimeTwin(const TwinPlan& plan) {
    Settle();
    std::unique_ptr<TwinWindow> twin;
    return MillisecondsOf([&] { twin = std::make_unique<TwinWindow>(plan); });
}

TwinPlan PlanFor(const Way& way) {
    Open(way.opener);
    TwinPlan plan = TwinPlan::Of(OpenBy(way).Handle());
    AccountingHost::Close(e2e::AwaitForm(way.window));
    return plan;
}

std::wstring PlanFile() {
    wchar_t folder[MAX_PATH];
    GetTempPathW(MAX_PATH, folder);
    return std::wstring(folder) + L"tavrin_twin.txt";
}

/// Each by turns with its twin: the first opening in processes of their own, those after it in this one.
void CompareWindow(const Way& way) {
    const TwinPlan plan = PlanFor(way);
    plan.Save(PlanFile());
    const std::string name = way.window;
    const std::wstring wide(name.begin(), name.end());
    const Turns first = TakeTurns([&] { return RunAlone(L"--twin " + wide) / 1000.0; },
                                  [&] { return RunAlone(L"--opening " + wide) / 1000.0; }, FirstRounds);
    DeleteFileW(PlanFile().c_str());
    Report::Difference((name + ", first").c_str(), first, TwinGoal);
    const Turns again = TakeTurns([&] { return TimeTwin(plan); }, [&] { return TimeOpening(way); });
    Report::Difference((name + ", again").c_str(), again, TwinGoal);
}

/// Memory of this process that no file backs and nobody shares. (The process's own counters say 0 under
/// Wine.)
SIZE_T PrivateBytes() {
    SIZE_T bytes = 0;
    MEMORY_BASIC_INFORMATION region{};
    const char* at = nullptr;
    while (VirtualQuery(at, &region, sizeof region) != 0) {
        if (region.State == MEM_COMMIT && region.Type == MEM_PRIVATE) bytes += region.RegionSize;
        at = static_cast<const char*>(region.BaseAddress) + region.RegionSize;
        if (at < region.BaseAddress) break;  // the address space's end
    }
    return bytes;
}

}  // namespace

int TimeFirstWindow(SIZE bareSize) {
    AccountingHost host;
    std::unique_ptr<BareWindow> bare;
    const double time = MillisecondsOf([&] {
        if (bareSize.cx == 0) {
            host.OpenPalette();
        } else {
            bare = std::make_unique<BareWindow>(bareSize);
        }
    });
    return static_cast<int>(time * 1000);
}

void ComparePalettes() {
    Report::Heading("Palette: from CoCreateInstance to the paint, against the barest window of its size");
    SIZE size{};
    {
        AccountingHost host;
        size = SizeOf(host.OpenPalette());
    }
    const Turns alone = TakeTurns([&] { return RunAlone(FirstWindow(size)) / 1000.0; },
                                  [] { return RunAlone(FirstWindow({})) / 1000.0; });
    Report::Difference("in a process of its own", alone, PaletteGoal);

    AccountingHost host;
    const auto bare = [&] {
        Settle();
        std::unique_ptr<BareWindow> window;
        return MillisecondsOf([&] { window = std::make_unique<BareWindow>(size); });
    };
    const auto ours = [&] {
        Settle();
        const double time = MillisecondsOf([&] { host.OpenPalette(); });
        host.Leave();
        if (e2e::Component::IsLoaded()) throw e2e::DriverError("the DLL stays loaded");
        return time;
    };
    Report::Difference("again, the DLL loaded anew", TakeTurns(bare, ours), PaletteGoal);
}

int TimeFirstOpening(const std::string& window, bool asTwin) {
    AccountingHost host;
    host.OpenPalette();
    const Way& way = *std::ranges::find(Ways, std::string_view(window), &Way::window);
    Open(way.opener);
    const double time = asTwin ? TimeTwin(TwinPlan::Load(PlanFile())) : TimeOpening(way);
    return static_cast<int>(time * 1000);
}

void TimeWindows() {
    Report::Heading("Windows: from the click to the paint, against a twin of the platform's own controls");
    AccountingHost host;
    host.OpenPalette();
    for (const Way& way : Ways)
        CompareWindow(way);
}

void WeighWindows() {
    Report::Heading("Private bytes");
    AccountingHost host;
    const SIZE_T before = PrivateBytes();
    host.OpenPalette();
    const SIZE_T palette = PrivateBytes();
    for (const char* window :
         {"CursValutar", "EvolutieCurs", "CursValutar", "Notes", "Agenda", "frmCalculator", "AlegeMoneda"}) {
        Open(window);
    }
    const SIZE_T all = PrivateBytes();
    constexpr SIZE_T Kilobyte = 1024;
    std::printf("  with the palette %llu KB, with seven windows open %llu KB more than the host alone\n",
                static_cast<unsigned long long>((palette - before) / Kilobyte),
                static_cast<unsigned long long>((all - before) / Kilobyte));
}

}  // namespace tavrin::bench
