// The chart of a whole year against the same drawn with GDI+.

#include <cmath>
#include <memory>

#include "forms/controls/chart.h"
#include "forms/model/form.h"
#include "win32/desktop/desktop.h"
#include "windows/costs.h"
#include "windows/gdiplus_chart.h"
#include "windows/message_loop.h"

namespace tavrin::bench {

namespace {

constexpr double AFifth = 0.2;
constexpr int Points = 366;
constexpr forms::Size Area{900 * 15, 500 * 15};

class ChartForm : public forms::Form {
  public:
    explicit ChartForm(forms::Desktop& desktop)
        : Form(desktop, "Bench", "Bench", forms::BorderStyle::Borderless), chart(*this, "Chart") {
        SetClientSize(Area);
        chart.SetBounds({0, 0, Area.width, Area.height});
        chart.SetRowCount(Points);
        chart.SetValueScale(2.5, 4.5);
        for (int row = 1; row <= Points; ++row) {
            chart.SetRowLabel(row, std::to_string(row));
            chart.SetData(row, 3.5 + 0.7 * std::sin(row / 20.0) + 0.25 * std::sin(row * 1.7));
        }
    }
    forms::Chart chart;
};

}  // namespace

void CompareCharts(Report& report) {
    Report::Heading("Chart, 366 points at 900 by 500 pixels: painting it, against GDI+");
    win32::Desktop desktop(GetModuleHandleW(nullptr));
    const auto form = std::make_shared<ChartForm>(desktop);
    form->Show();
    RunUntilPainted();
    const HWND ours = e2e::FindForm("Bench")->Control("Chart").Handle();
    const GdiplusChart bare(form->chart);
    report.Ratio(
        "the whole chart",
        TakeTurns([&] { return TimeOfRepainting(bare.Handle()); }, [&] { return TimeOfRepainting(ours); }),
        AFifth);
    form->Unload();
}

}  // namespace tavrin::bench
