// What it costs to open the address book against reading its rows, and to find a person again by name, at
// 1,000, 10,000 and 100,000 persons. Times are those of the processor alone. Ends with an error where opening
// 100,000 costs more than 1.2 times the bare read, or where the search grows faster than looking at every row
// once does: caches make even that grow faster than the number of rows.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "addressbook/addressbook_statements.h"
#include "addressbook/agenda.h"
#include "addressbook/person_store.h"
#include "host/embedded/embedded_connection.h"
#include "support/headless_desktop.h"
#include "support/recording_messages.h"

namespace {

using tavrin::addressbook::Agenda;
using tavrin::addressbook::Columns;
using tavrin::addressbook::ListStatement;
namespace data = tavrin::data;
namespace host = tavrin::host;

constexpr std::int64_t Small = 1000;
constexpr std::int64_t Medium = 10000;
constexpr std::int64_t Large = 100000;
constexpr double WorstOpening = 1.2;
constexpr double WorstGrowth = 1.5;

std::string Numbered(const char* text, std::int64_t number) {
    std::string digits = std::to_string(number);
    return text + std::string(7 - digits.size(), '0') + digits;
}

/// A book of that many persons, made once.
std::shared_ptr<host::EmbeddedConnection> Book(std::int64_t persons) {
    static std::map<std::int64_t, std::shared_ptr<host::EmbeddedConnection>> books;
    auto& book = books[persons];
    if (book) return book;
    auto database = std::make_shared<host::EmbeddedDatabase>(":memory:");
    book = std::make_shared<host::EmbeddedConnection>(database);
    std::string columns;
    for (const std::string_view column : Columns)
        columns.append(std::string(column) + " nvarchar(60), ");
    book->Execute("CREATE TABLE Agenda (" + columns + "UNIQUE (Nume, Prenume))");
    host::EmbeddedDatabase::Transaction transaction(*database);
    for (std::int64_t i = 0; i < persons; ++i) {
        tavrin::addressbook::Person person;
        person.fill(Numbered("a detail of person ", i));
        person[0] = Numbered("Nume ", i);
        person[1] = Numbered("Prenume ", i);
        database->Run(tavrin::addressbook::InsertStatement(person));
    }
    transaction.Commit();
    return book;
}

/// Processor seconds of this thread: what else runs on the machine does not count.
double ProcessorTime() {
    std::timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

void ReadRows(benchmark::State& state) {
    const auto book = Book(state.range(0));
    for (auto each : state) {
        (void)each;
        const double start = ProcessorTime();
        const auto list = book->CreateRecordset();
        list->Open(ListStatement("%", "%"));
        benchmark::DoNotOptimize(list->ReadAll());
        state.SetIterationTime(ProcessorTime() - start);
    }
}

void OpenWindow(benchmark::State& state) {
    tavrin::tests::HeadlessDesktop desktop;
    tavrin::tests::RecordingMessages messages;
    tavrin::shell::Application application(desktop, [&] { return messages.CreateService(); });
    application.context.connection = Book(state.range(0));
    for (auto each : state) {
        (void)each;
        const double start = ProcessorTime();
        auto& window = application.Default<Agenda>();
        window.ShowForm();
        state.SetIterationTime(ProcessorTime() - start);
        window.Unload();
    }
}

data::TablePtr PersonsOf(std::int64_t persons) {
    const auto list = Book(persons)->CreateRecordset();
    list->Open(ListStatement("%", "%"));
    return list->ReadAll();
}

void LookAtRows(benchmark::State& state) {
    const data::TablePtr table = PersonsOf(state.range(0));
    for (auto each : state) {
        (void)each;
        const double start = ProcessorTime();
        for (std::size_t row = 0; row < table->RowCount(); ++row)
            benchmark::DoNotOptimize(table->At(row, 0));
        state.SetIterationTime(ProcessorTime() - start);
    }
}

/// The worst case: the last person of the list.
void FindByName(benchmark::State& state) {
    const std::int64_t persons = state.range(0);
    const data::TablePtr table = PersonsOf(persons);
    const std::string nume = Numbered("Nume ", persons - 1);
    const std::string prenume = Numbered("Prenume ", persons - 1);
    for (auto each : state) {
        (void)each;
        const double start = ProcessorTime();
        const int row = tavrin::addressbook::FindPerson(*table, nume, prenume);
        state.SetIterationTime(ProcessorTime() - start);
        if (row != persons) state.SkipWithError("the person was not found");
    }
}

void Sizes(benchmark::internal::Benchmark* bench) {
    bench->Arg(Small)
        ->Arg(Medium)
        ->Arg(Large)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->Repetitions(9);
}
BENCHMARK(ReadRows)->Apply(Sizes);
BENCHMARK(OpenWindow)->Apply(Sizes);
BENCHMARK(LookAtRows)->Apply(Sizes);
BENCHMARK(FindByName)->Apply(Sizes);

/// Prints as usual and keeps the best repetition of each benchmark: what the machine did meanwhile only ever
/// adds.
class BestTimes : public benchmark::ConsoleReporter {
  public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.run_type != Run::RT_Iteration || run.error_occurred) continue;
            const std::string name = run.run_name.function_name + "/" + run.run_name.args;
            const double time = run.GetAdjustedRealTime();
            const auto [best, isNew] = times_.try_emplace(name, time);
            if (!isNew) best->second = std::min(best->second, time);
        }
    }

    /// 0 where one of the two was not measured.
    double Ratio(const std::string& name, const std::string& base) const {
        const auto time = times_.find(name);
        const auto bare = times_.find(base);
        return time != times_.end() && bare != times_.end() ? time->second / bare->second : 0;
    }

  private:
    std::map<std::string, double> times_;
};

bool IsWithin(const char* what, double ratio, double worst) {
    const bool within = ratio > 0 && ratio <= worst;
    std::printf("%-58s %6.2f (at most %.2f) %s\n", what, ratio, worst, within ? "ok" : "TOO MUCH");
    return within;
}

}  // namespace

int main(int argc, char** argv) {
    // Taken in turns, what is compared meets the same disturbances.
    std::vector<char*> arguments(argv, argv + argc);
    char inTurns[] = "--benchmark_enable_random_interleaving=true";
    char summaries[] = "--benchmark_display_aggregates_only=true";
    arguments.insert(arguments.begin() + 1, {inTurns, summaries});
    argc = static_cast<int>(arguments.size());
    argv = arguments.data();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
    BestTimes times;
    benchmark::RunSpecifiedBenchmarks(&times);
    bool right = IsWithin("opening 100,000 persons / reading them",
                          times.Ratio("OpenWindow/100000", "ReadRows/100000"), WorstOpening);
    for (const auto& [from, to] : {std::pair{"/1000", "/10000"}, std::pair{"/10000", "/100000"}}) {
        const auto growth = [&](const std::string& name) { return times.Ratio(name + to, name + from); };
        std::printf("from %s to %s persons, finding the last takes %.1f times as long\n", from + 1, to + 1,
                    growth("FindByName"));
        right &= IsWithin("its growth / the growth of looking at each",
                          growth("FindByName") / growth("LookAtRows"), WorstGrowth);
    }
    return right ? 0 : 1;
}
