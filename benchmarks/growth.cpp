#include "growth.h"

#include <algorithm>
#include <cstdio>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "addressbook/person_store.h"
#include "alternating.h"
#include "data/memory_table.h"
#include "forms/controls/chart.h"
#include "forms/controls/grid.h"
#include "forms/model/form.h"
#include "median.h"
#include "notes/rtf_reader.h"
#include "notes/rtf_writer.h"
#include "sample_note.h"
#include "support/headless_desktop.h"
#include "support/recording_surface.h"

namespace tavrin::bench {

namespace {

/// Caches make even a walk over memory dearer where it is longer.
constexpr double MostGrowth = 1.5;
constexpr int Sizes[] = {1, 10, 100};

/// One size of a piece of work.
struct Work {
    std::function<void()> run;
    double units = 1;
};

/// Small works are repeated until they are as much as the large one, so that the clock sees all alike.
double CostOfUnit(const Work& work, double mostUnits) {
    const int times = std::max(1, static_cast<int>(mostUnits / work.units));
    const double seconds = SecondsOf([&] {
        for (int i = 0; i < times; ++i)
            work.run();
    });
    return seconds / times / work.units;
}

/// \param make the work at 1, 10 or 100 times the smallest size
bool Grow(const char* what, const char* unit, int rounds, const std::function<Work(int)>& make) {
    std::vector<Work> works;
    double mostUnits = 0;
    for (const int size : Sizes) {
        works.push_back(make(size));
        mostUnits = std::max(mostUnits, works.back().units);
    }
    std::vector<std::vector<double>> growth(works.size());
    std::vector<double> smallest;
    for (int round = 0; round <= rounds; ++round) {
        const double one = CostOfUnit(works[0], mostUnits);
        for (std::size_t i = 1; i < works.size(); ++i) {
            const double cost = CostOfUnit(works[i], mostUnits);
            if (round > 0) growth[i].push_back(cost / one);
        }
        if (round > 0) smallest.push_back(one);
    }
    const double ten = Median(growth[1]);
    const double hundred = Median(growth[2]);
    const bool isGood = std::max({ten, hundred, hundred / ten}) <= MostGrowth;
    std::printf("  %-26s %9.1f ns a %-9s x10 %5.2f  x100 %5.2f%s\n", what, Median(smallest) * 1e9, unit, ten,
                hundred, isGood ? "" : "  over the goal");
    return isGood;
}

// Notes.

constexpr std::size_t SmallNote = std::size_t{1} << 13;

Work ReadingOfNote(int size) {
    auto file = std::make_shared<std::string>(SampleNote(SmallNote * static_cast<std::size_t>(size)));
    return {[file] { notes::ReadRtf(*file); }, static_cast<double>(file->size())};
}

Work WritingOfNote(int size) {
    const std::string file = SampleNote(SmallNote * static_cast<std::size_t>(size));
    auto note = std::make_shared<notes::Note>(notes::ReadRtf(file).note);
    return {[note] { notes::WriteRtf(*note); }, static_cast<double>(file.size())};
}

// Lists.

std::shared_ptr<data::MemoryTable> People(int count) {
    auto table = std::make_shared<data::MemoryTable>(std::vector<std::string>{"Nume", "Prenume"});
    for (int i = 0; i < count; ++i)
        table->AddRow({std::string("Popescu ") + std::to_string(1'000'000 + i), std::string("Ana")});
    return table;
}

constexpr int SmallList = 10'000;

Work SearchInList(int size) {
    const int rows = SmallList * size;
    auto people = People(rows);
    return {[people, rows] {
                const std::string last = "Popescu " + std::to_string(1'000'000 + rows - 1);
                if (addressbook::FindPerson(*people, last, "Ana") != rows) std::puts("  NOT FOUND");
            },
            static_cast<double>(rows)};
}

struct BareForm : forms::Form {
    explicit BareForm(forms::Desktop& desktop)
        : Form(desktop, "Form", "Form", forms::BorderStyle::FixedDialog) {}
};

/// A window with one control.
template <class Kind>
struct OneControl {
    tests::HeadlessDesktop desktop;
    BareForm form{desktop};
    Kind control{form, "Control", {0, 0, 9000, 6000}};
};

/// One hit, wherever in the list: its cost is that of a unit whatever the size.
Work HitInList(int size) {
    auto window = std::make_shared<OneControl<forms::Grid>>();
    window->control.SetDataSource(People(SmallList * size));
    window->control.SetTopRow(SmallList * size / 2);
    constexpr int hits = 1000;
    return {[window] {
                for (int i = 0; i < hits; ++i)
                    static_cast<void>(window->control.AccessibleChildAt({500, 1000 + i * 4}));
            },
            hits};
}

// Charts.

constexpr int SmallChart = 25;  // ten years of working days at a hundred times

std::shared_ptr<OneControl<forms::Chart>> ChartOf(int rows) {
    auto window = std::make_shared<OneControl<forms::Chart>>();
    window->control.SetRowCount(rows);
    window->control.SetValueScale(0, 100);
    for (int row = 1; row <= rows; ++row) {
        window->control.SetRowLabel(row, std::to_string(row));
        window->control.SetData(row, row % 100);
    }
    return window;
}

Work FillingOfChart(int size) {
    auto window = ChartOf(SmallChart * size);
    return {[window] {
                forms::Chart& chart = window->control;
                const int rows = chart.RowCount();
                chart.SetRowCount(0);
                chart.SetRowCount(rows);
                for (int row = 1; row <= rows; ++row)
                    chart.SetData(row, row % 100);
            },
            static_cast<double>(SmallChart * size)};
}

Work PaintingOfChart(int size) {
    auto window = ChartOf(SmallChart * size);
    return {[window] {
                tests::RecordingSurface surface;
                window->control.Draw(surface);
            },
            static_cast<double>(SmallChart * size)};
}

/// As assistive tools go through it.
Work PointsOfChart(int size) {
    auto window = ChartOf(SmallChart * size);
    return {[window] {
                const forms::Chart& chart = window->control;
                const int count = chart.AccessibleChildCount();
                for (int i = 0; i < count; ++i)
                    static_cast<void>(chart.AccessibleChildAt({chart.AccessibleChild(i).bounds.left, 0}));
            },
            static_cast<double>(SmallChart * size)};
}

}  // namespace

bool PrintGrowth(int rounds) {
    bool isGood = Grow("a note read", "byte", rounds, ReadingOfNote);
    isGood &= Grow("a note written", "byte", rounds, WritingOfNote);
    isGood &= Grow("a list searched", "row", rounds, SearchInList);
    isGood &= Grow("a place looked up in it", "place", rounds, HitInList);
    isGood &= Grow("a chart filled", "point", rounds, FillingOfChart);
    isGood &= Grow("a chart painted", "point", rounds, PaintingOfChart);
    isGood &= Grow("a chart's points asked for", "point", rounds, PointsOfChart);
    return isGood;
}

}  // namespace tavrin::bench
