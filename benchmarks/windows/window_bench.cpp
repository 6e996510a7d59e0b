// Usage: window_bench [CHAPTER...]
//
// What the windows of the built Tavrin.dll, which lies beside this program, cost on the screen: painting,
// keys, opening, memory, beside the same work done with the bare platform. Medians of nine rounds by turns.
// Chapters: palette, windows, memory, grid, persons, calculator, chart; all without one. Ends with an error
// where a ratio is worse than it may be.

#include <windows.h>

#include <objbase.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string>
#include <vector>

#include "e2e/driver/component.h"
#include "windows/costs.h"

namespace {

namespace bench = tavrin::bench;
using tavrin::e2e::Component;

std::wstring BesideThisProgram(const wchar_t* name) {
    wchar_t program[1024];
    GetModuleFileNameW(nullptr, program, 1024);
    std::wstring path(program);
    return path.substr(0, path.rfind(L'\\') + 1) + name;
}

/// A single-threaded apartment, as a host's thread is.
class Apartment {
  public:
    Apartment() { CoInitialize(nullptr); }
    ~Apartment() { CoUninitialize(); }
    Apartment(const Apartment&) = delete;
    Apartment& operator=(const Apartment&) = delete;
};

bool RunChapters(const std::vector<std::string>& chosen) {
    const auto wants = [&](const char* chapter) {
        return chosen.empty() || std::ranges::find(chosen, chapter) != chosen.end();
    };
    bench::Report report;
    if (wants("palette")) bench::ComparePalettes();
    if (wants("memory")) bench::WeighWindows();
    if (wants("windows")) bench::TimeWindows();
    if (wants("calculator")) bench::TimeCalculatorKeys();
    if (wants("chart")) bench::CompareCharts(report);
    for (const int rows : {1000, 10000, 100000}) {
        if (wants("grid")) bench::CompareGrids(report, rows);
    }
    if (wants("persons")) bench::TimePersonKeys(100000);
    return report.IsGood();
}

}  // namespace

int main(int count, char** arguments) try {
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    const Apartment apartment;
    if (count == 4 && std::string(arguments[1]) == "--first-window")
        return bench::TimeFirstWindow({std::atoi(arguments[2]), std::atoi(arguments[3])});
    if (count == 3 && std::string(arguments[1]) == "--opening")
        return bench::TimeFirstOpening(arguments[2], false);
    if (count == 3 && std::string(arguments[1]) == "--twin")
        return bench::TimeFirstOpening(arguments[2], true);
    Component::SetPath(BesideThisProgram(L"Tavrin.dll"));
    if (Component().Register() != S_OK) return 2;
    const bool isGood = RunChapters({arguments + 1, arguments + count});
    Component().Unregister();
    return isGood ? 0 : 1;
} catch (const std::exception& failure) {
    std::fprintf(stderr, "window_bench: %s\n", failure.what());
    return 2;
}
