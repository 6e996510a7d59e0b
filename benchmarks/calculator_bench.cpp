// What one key of the calculator costs, to the values of both displays and to their texts: typing a number, a
// running sum, a percent, a conversion, and the same sum typed into the whole window. Ends with an error
// where a key of the engine costs more than printing the two displays' numbers with the C library.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "calculator/frm_calculator.h"
#include "calculator_keys.h"
#include "support/headless_desktop.h"
#include "support/headless_keyboard.h"
#include "support/recording_messages.h"

namespace {

using namespace tavrin::bench;
using tavrin::calculator::Command;
namespace tests = tavrin::tests;

template <class Displays>
void PressKeys(benchmark::State& state, std::string_view keys) {
    Displays shown;
    shown.conversion.SetRate(Rate);
    std::vector<Command> commands;
    for (const char key : keys)
        commands.push_back(tests::TwoDisplays::CommandOf(key));
    for (auto _ : state) {
        for (const Command command : commands)
            shown.engine.Press(command);
        benchmark::DoNotOptimize(&shown);
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(keys.size()));
}

void TypeIntoTheWindow(benchmark::State& state, std::string_view keys) {
    tests::HeadlessDesktop desktop;
    tests::RecordingMessages messages;
    tavrin::shell::Application application(desktop, [&] { return messages.CreateService(); });
    auto& window = application.Default<tavrin::calculator::FrmCalculator>();
    window.Load();
    window.SetCursCurent(Rate);
    tests::HeadlessKeyboard keyboard(desktop);
    for (auto _ : state)
        keyboard.Type(keys);
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(keys.size()));
}

/// What two displays would cost with the C library alone, without groups.
void PrintTwoNumbers(benchmark::State& state) {
    std::array<char, 64> text{};
    double number = 1234.56;
    for (auto _ : state) {
        benchmark::DoNotOptimize(number);
        std::snprintf(text.data(), text.size(), "%.2f", number);
        benchmark::DoNotOptimize(text.data());
        std::snprintf(text.data(), text.size(), "%.2f", number / Rate);
        benchmark::DoNotOptimize(text.data());
    }
    state.SetItemsProcessed(state.iterations());
}

/// Prints the costs and keeps the best of each benchmark, in nanoseconds of the processor per key.
class BestCosts : public benchmark::ConsoleReporter {
  public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            const auto rate = run.counters.find("items_per_second");
            if (rate == run.counters.end() || run.run_type != Run::RT_Iteration) continue;
            const auto [best, isNew] = costs.try_emplace(run.run_name.function_name, 1e9 / rate->second);
            if (!isNew) best->second = std::min(best->second, 1e9 / rate->second);
        }
    }

    std::map<std::string, double> costs;
};

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    const auto engine = [](const std::string& name, std::string_view keys) {
        benchmark::RegisterBenchmark(name.c_str(), PressKeys<tests::TwoDisplays>, keys)->Repetitions(3);
        benchmark::RegisterBenchmark((name + "Texts").c_str(), PressKeys<TextDisplays>, keys)->Repetitions(3);
    };
    engine("Number", Number);
    engine("RunningSum", RunningSum);
    engine("Percent", Percent);
    engine("Conversion", Conversion);
    benchmark::RegisterBenchmark("Window", TypeIntoTheWindow, std::string_view("1+22+333+4.44+55.5+6+"))
        ->Repetitions(3);
    benchmark::RegisterBenchmark("PrintTwoNumbers", PrintTwoNumbers)->Repetitions(3);

    BestCosts reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    bool fast = true;
    const double limit = reporter.costs["PrintTwoNumbers"];
    for (const auto& [name, cost] : reporter.costs) {
        std::printf("%-16s %6.1f ns a key\n", name.c_str(), cost);
        if (name != "PrintTwoNumbers" && name != "Window" && limit > 0) fast = fast && cost < limit;
    }
    if (!fast) std::puts("too slow: a key costs more than printing its two numbers");
    return fast ? 0 : 1;
}
