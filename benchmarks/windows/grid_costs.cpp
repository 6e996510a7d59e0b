// The rate list's grid against the platform's virtual list view.

#include <cstdio>
#include <memory>
#include <string>

#include "data/memory_table.h"
#include "data/text/number_text.h"
#include "data/value.h"
#include "forms/controls/grid.h"
#include "forms/model/form.h"
#include "win32/base/text.h"
#include "win32/desktop/desktop.h"
#include "windows/accounting_host.h"
#include "windows/bare_windows.h"
#include "windows/costs.h"
#include "windows/message_loop.h"

namespace tavrin::bench {

namespace {

constexpr double NotSlower = 1;
constexpr int TwipsPerPixel = 15;
constexpr SIZE GridPixels{656, 424};

/// The grid alone in a window, as the rate list has it.
class GridForm : public forms::Form {
  public:
    explicit GridForm(forms::Desktop& desktop)
        : Form(desktop, "Bench", "Bench", forms::BorderStyle::Borderless), grid(*this, "Grid") {
        SetClientSize({GridPixels.cx * TwipsPerPixel, GridPixels.cy * TwipsPerPixel});
        grid.SetBounds({0, 0, GridPixels.cx * TwipsPerPixel, GridPixels.cy * TwipsPerPixel});
    }
    forms::Grid grid;
};

/// So many rates in the first half of one month, one every few seconds.
void FillRates(host::EmbeddedDatabase& database, int rows) {
    constexpr int Days = 15;
    const std::size_t currencies = database.FindTable("Curs Valutar")->columns.size() - 2;
    database.Run("DELETE FROM [Curs Valutar]");
    host::EmbeddedDatabase::Transaction transaction(database);
    const int perDay = (rows + Days - 1) / Days;
    for (int row = 0; row < rows; ++row) {
        const int second = row % perDay;
        char text[32];
        std::snprintf(text, sizeof text, "2003-06-%02d %02d:%02d:%02d", row / perDay + 1, second / 3600,
                      second / 60 % 60, second % 60);
        std::string statement = "INSERT INTO [Curs Valutar] VALUES('" + std::string(text) + "',0";
        for (std::size_t i = 0; i < currencies; ++i)
            statement += "," + data::NumberText(30000 + row % 977 + static_cast<double>(i) / 4);
        database.Run(statement + ")");
    }
    transaction.Commit();
}

std::shared_ptr<data::MemoryTable> ReadRates(host::EmbeddedDatabase& database) {
    std::string columns = "CONVERT(nvarchar,[Data],103) AS Data";
    const auto schema = database.FindTable("Curs Valutar");
    for (const auto& column : schema->columns) {
        if (column.name != "Data" && column.name != "Validat") columns += ",[" + column.name + "]";
    }
    return database.Run("SELECT " + columns + " FROM [Curs Valutar] ORDER BY [Data]").rows;
}

Texts TextsOf(const data::Table& table) {
    Texts texts(table.RowCount() + 1);
    for (std::size_t field = 0; field < table.FieldCount(); ++field) {
        texts[0].push_back(win32::ToWide(table.FieldName(field)));
        for (std::size_t row = 0; row < table.RowCount(); ++row)
            texts[row + 1].push_back(win32::ToWide(table.At(row, field).ToText()));
    }
    return texts;
}

BareList::Layout LayoutOf(const GridForm& form) {
    BareList::Layout layout{GridPixels, {}, form.grid.RowHeight() / TwipsPerPixel, L"Arial", 12};
    for (int column = 0; column < form.grid.Columns(); ++column)
        layout.columnWidths.push_back(form.grid.ColumnWidth(column) / TwipsPerPixel);
    return layout;
}

void SetColumns(GridForm& form) {
    for (int column = 0; column < form.grid.Columns(); ++column)
        form.grid.SetColumnWidth(column, column == 0 ? 1100 : 1400);
}

/// From nothing to a window with the rows, painted.
void CompareFirstPaint(Report& report, const data::TablePtr& table, const Texts& texts) {
    win32::Desktop desktop(GetModuleHandleW(nullptr));
    BareList::Layout layout;
    const auto ours = [&] {
        const auto form = std::make_shared<GridForm>(desktop);
        const double time = MillisecondsOf([&] {
            form->grid.SetDataSource(table);
            SetColumns(*form);
            form->Show();
            RunUntilPainted();
        });
        layout = LayoutOf(*form);
        form->Unload();
        RunUntilPainted();
        return time;
    };
    ours();
    const auto bare = [&] {
        std::unique_ptr<BareList> list;
        const double time = MillisecondsOf([&] { list = std::make_unique<BareList>(layout, texts); });
        list.reset();
        RunUntilPainted();
        return time;
    };
    report.Ratio("first paint", TakeTurns(bare, ours), NotSlower);
}

void CompareKey(Report& report, const char* what, WPARAM key, const e2e::Window& grid,
                const e2e::Window& list, WPARAM before) {
    const auto press = [&](const e2e::Window& window) {
        PressKey(window, VK_HOME);
        PressKey(window, before);
        RunUntilPainted();
        return TimeOfKey(window, key);
    };
    report.Ratio(what, TakeTurns([&] { return press(list); }, [&] { return press(grid); }), NotSlower);
}

/// The window of the built component with the same rows.
void CompareJumps(Report& report, AccountingHost& host, const Texts& texts, const BareList::Layout& layout) {
    const e2e::Window palette = host.OpenPalette();
    const e2e::Window window = AccountingHost::Open(palette, "cmdAction(3)", "CursValutar");
    const e2e::Window grid = window.Control("Grid");
    const BareList bare(layout, texts);
    const e2e::Window list(bare.Handle());
    report.Ratio("repainting",
                 TakeTurns([&] { return TimeOfRepainting(list.Handle()); },
                           [&] { return TimeOfRepainting(grid.Handle()); }),
                 NotSlower);
    CompareKey(report, "End", VK_END, grid, list, VK_HOME);
    CompareKey(report, "Home", VK_HOME, grid, list, VK_END);
    // The first only goes to the last row in sight.
    CompareKey(report, "Page Down", VK_NEXT, grid, list, VK_NEXT);
}

}  // namespace

void CompareGrids(Report& report, int rows) {
    char heading[80];
    std::snprintf(heading, sizeof heading, "Rate list, %d rows: the grid against the virtual list view",
                  rows);
    Report::Heading(heading);
    AccountingHost host;
    FillRates(host.Data(), rows);
    const auto table = ReadRates(host.Data());
    const Texts texts = TextsOf(*table);
    CompareFirstPaint(report, table, texts);
    win32::Desktop desktop(GetModuleHandleW(nullptr));
    const auto form = std::make_shared<GridForm>(desktop);
    form->grid.SetDataSource(table);
    SetColumns(*form);
    CompareJumps(report, host, texts, LayoutOf(*form));
}

}  // namespace tavrin::bench
