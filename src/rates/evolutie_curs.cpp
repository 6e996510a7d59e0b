#include "rates/evolutie_curs.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <utility>

#include "data/error.h"
#include "rates/curs_valutar.h"
#include "rates/rate_text.h"
#include "shell/layout.h"

namespace tavrin::rates {

namespace {

namespace key = forms::key;
namespace layout = shell::layout;

constexpr std::array<const char*, 13> Periods = {
    "Ianuarie", "Februarie",  "Martie",    "Aprilie",   "Mai",       "Iunie",           "Iulie",
    "August",   "Septembrie", "Octombrie", "Noiembrie", "Decembrie", "Toate Perioadele"};
constexpr int WholeYear = 12;
constexpr int MonthsInYear = 12;
constexpr int RowsBeforeDrawing = 31;
/// No month has as many rows; a chart of more could not be read, nor perhaps be held.
constexpr int MostChartRows = 100000;

constexpr int NumberWidth = 500;
constexpr int RateWidth = 1800;
constexpr int GridWidth =
    layout::RoundedUp(NumberWidth + RateWidth + 2 * forms::GridViewport::Frame + forms::ScrollBar::Thickness);
constexpr int RowsInSight = 17;
constexpr int ChartWidth = 9000;
constexpr int ChoiceWidth = 1800;
constexpr int RedrawWidth = 2460;

/// The first entry is chosen, or the one that was before, where the new list has it too.
void Refill(forms::ComboBox& list, std::vector<std::string> entries) {
    const std::string chosen = list.Text();
    list.Clear();
    for (std::string& entry : entries)
        list.AddItem(std::move(entry));
    if (list.ListCount() > 0) list.SetListIndex(0);
    list.SetText(chosen);
}

}  // namespace

EvolutieCurs::EvolutieCurs(shell::Application& application)
    : Form(application.Desktop(), "EvolutieCurs", "Evolutie Curs", forms::BorderStyle::Sizable),
      Label1(*this, "Label1", "An"),
      cmbAn(*this, "cmbAn", forms::ComboStyle::DropDownList),
      Label2(*this, "Label2", "Luna"),
      cmbLuna(*this, "cmbLuna", forms::ComboStyle::DropDownList),
      Label5(*this, "Label5", "Moneda"),
      cmbMoneda(*this, "cmbMoneda", forms::ComboStyle::DropDownList),
      cmdAction(*this, "cmdAction", {Redraw, Close}),
      Line1(*this, "Line1"),
      Line2(*this, "Line2"),
      Line3(*this, "Line3"),
      fraMesaj(*this, "fraMesaj"),
      lblMesaj1(fraMesaj, "lblMesaj1",
                "ALEGETI ANUL - LUNA - MONEDA PENTRU CARE DORITI SA VIZUALIZATI EVOLUTIA CURSULUI"),
      lblMesaj2(fraMesaj, "lblMesaj2",
                "PENTRU ANUL SI LUNA ALESE NU S-AU GASIT VALORI ALE CURSULUI IN BAZA DE DATE ! ALEGETI ALTE "
                "VALORI !"),
      fraGrafic(*this, "fraGrafic"),
      MSChart1(fraGrafic, "MSChart1"),
      Grid(*this, "Grid"),
      application_(application),
      store_(application.context),
      lstImages_{forms::Icon::Exit, forms::Icon::Chart} {
    PlaceControls();
    ConnectEvents();
}

void EvolutieCurs::PlaceControls() {
    const int width = ChartWidth + GridWidth + 3 * layout::Margin;
    int left = layout::Margin;
    const int fieldTop = layout::Margin + layout::LabelHeight;
    const auto place = [&](forms::Label& label, forms::ComboBox& combo) {
        label.SetBounds({left, layout::Margin, ChoiceWidth, layout::LabelHeight});
        combo.SetBounds({left, fieldTop, ChoiceWidth, layout::FieldHeight});
        combo.SetAccessibleName(label.Caption());
        combo.SetBackColor(forms::Black);
        combo.SetForeColor(forms::scheme::Value);
        left += ChoiceWidth + layout::Gap;
    };
    place(Label1, cmbAn);
    place(Label2, cmbLuna);
    place(Label5, cmbMoneda);

    const int buttonTop = fieldTop + layout::FieldHeight - layout::ButtonHeight;
    cmdAction[Redraw].SetCaption("  Actualizare Grafic");
    cmdAction[Redraw].SetBounds({left + layout::Gap, buttonTop, RedrawWidth, layout::ButtonHeight});
    cmdAction[Close].SetCaption("Iesire");
    constexpr int CloseWidth = 1500;
    cmdAction[Close].SetBounds(
        {width - layout::Margin - CloseWidth, buttonTop, CloseWidth, layout::ButtonHeight});

    const int lineTop = fieldTop + layout::FieldHeight + layout::Gap;
    const int areaTop = lineTop + layout::Gap;
    const int height =
        forms::GridViewport::SizeFor(NumberWidth + RateWidth, RowsInSight, Grid.RowHeight()).height;
    const forms::Rect chartArea{layout::Margin, areaTop, ChartWidth, height};
    fraGrafic.SetBounds(chartArea);
    fraGrafic.SetBordered(false);
    MSChart1.SetBounds({0, 0, ChartWidth, height});
    MSChart1.SetAccessibleName(Caption());
    fraMesaj.SetBounds(chartArea);
    for (forms::Label* message : {&lblMesaj1, &lblMesaj2}) {
        message->SetBounds(forms::Rect{0, 0, ChartWidth, height}.Inset(8 * layout::Margin));
        message->SetWrap(true);
        message->SetAlign(forms::Align::Center);
        message->SetFont({.face = "Arial", .points = 12, .bold = true});
    }
    const int gridLeft = chartArea.Right() + layout::Margin;
    Grid.SetBounds({gridLeft, areaTop, GridWidth, height});
    Grid.SetAccessibleName(Caption());

    const int bottom = areaTop + height;
    // The first and the last are one line beneath the lists; the second one closes what is drawn.
    Line1.SetBounds({layout::Margin, lineTop, ChartWidth, 0});
    Line3.SetBounds({Line1.Bounds().Right(), lineTop, width - layout::Margin - Line1.Bounds().Right(), 0});
    Line2.SetBounds({layout::Margin, bottom + layout::Unit, width - 2 * layout::Margin, 0});
    SetClientSize({width, bottom + layout::Margin});
    AnchorControls();
}

/// The chart takes what the user adds; the table beside it grows downwards alone.
void EvolutieCurs::AnchorControls() {
    using forms::Anchors;
    for (forms::Control* control :
         std::initializer_list<forms::Control*>{&fraMesaj, &lblMesaj1, &lblMesaj2, &fraGrafic, &MSChart1})
        Anchor(*control, Anchors::All);
    Anchor(cmdAction[Close], Anchors::TopRight);
    Anchor(Grid, Anchors::Right);
    Anchor(Line1, Anchors::Top);
    Anchor(Line3, Anchors::TopRight);
    Anchor(Line2, Anchors::Bottom);
}

void EvolutieCurs::ConnectEvents() {
    for (forms::ComboBox* combo : {&cmbAn, &cmbLuna, &cmbMoneda}) {
        combo->onKeyDown = [this, combo](int& keyCode, forms::Modifiers) { Combo_KeyDown(*combo, keyCode); };
        combo->onGotFocus = [combo] {
            if (combo->Enabled()) combo->SetBackColor(forms::FocusGrey);
        };
        combo->onLostFocus = [combo] { combo->SetBackColor(forms::Black); };
    }
    cmdAction.OnEach(&forms::Control::onClick, [this](int index) { cmdAction_Click(index); });
    cmdAction.OnEach(&forms::Control::onKeyDown,
                     [this](int, int& keyCode, forms::Modifiers) { cmdAction_KeyDown(keyCode); });
    Grid.onKeyDown = [this](int& keyCode, forms::Modifiers) { CloseOnEscape(keyCode); };
    Grid.onChange = [this] { MarkCurrentRow(); };
}

// Life.

void EvolutieCurs::OnLoad() {
    application_.CreateMessageService();
    cmdAction[Close].SetPicture(lstImages_.Picture(1));
    cmdAction[Redraw].SetPicture(lstImages_.Picture(2));
    CenterOnScreen();
    KeepInWorkArea();
    SetHeader();
    MSChart1.SetVisible(false);
    Line2.SetVisible(false);
    fraMesaj.SetVisible(true);
    lblMesaj1.SetVisible(true);
    lblMesaj2.SetVisible(false);
    MSChart1.SetRowCount(RowsBeforeDrawing);
    IncarcaListe();
}

void EvolutieCurs::SetHeader() {
    Grid.SetFormatString(">Zi|>Curs valutar");
    Grid.SetColumnWidth(0, NumberWidth);
    Grid.SetColumnWidth(1, RateWidth);
    Grid.SetColumnAlignment(0, forms::Align::Right);
    Grid.SetColumnAlignment(1, forms::Align::Right);
    Grid.SetZerosApart(1);
}

void EvolutieCurs::OnUnload() {
    // The list went away when this window opened; what is enabled here is the one that opens next.
    application_.Default<CursValutar>().Reenable();
}

// The lists.

void EvolutieCurs::IncarcaListe() {
    for (const char* period : Periods)
        cmbLuna.AddItem(period);
    cmbLuna.SetListIndex(0);
    ReadLists();
}

void EvolutieCurs::ReadLists() {
    Refill(cmbMoneda, store_.ColumnsAfterSecond());
    Refill(cmbAn, store_.ReadYears());
    mark_.Set(application_.context);
}

EvolutionChoice EvolutieCurs::Choice() const {
    EvolutionChoice choice{cmbAn.Text(), std::nullopt, cmbMoneda.Text()};
    if (cmbLuna.ListIndex() != WholeYear) choice.month = cmbLuna.ListIndex() + 1;
    return choice;
}

// Drawing.

void EvolutieCurs::CalculeazaLimite() {
    const RateLimits limits = store_.ReadLimits(Choice());
    MSChart1.SetValueScale(limits.lowest, limits.highest);
}

bool EvolutieCurs::DeseneazaGrafic() {
    MSChart1.SetRowCount(0);
    MSChart1.SetTitle("");
    const data::TablePtr table = store_.ReadEvolution(Choice());
    if (!table) {
        MSChart1.SetRowCount(RowsBeforeDrawing);
        Grid.SetDataSource(nullptr);
        Grid.SetColumnAlignment(1, forms::Align::Right);
        return false;
    }
    Grid.SetDataSource(table);
    SetHeader();
    CalculeazaLimite();
    MSChart1.SetRowCount(CountChartRows());
    FillChart(*table);
    LabelRowsWithoutData(static_cast<int>(table->RowCount()) + 1);
    MSChart1.SetTitle(TitleOf(Choice()));
    // As the database writes them: averages come with commas, the rates of days without.
    MSChart1.SetGrouped(!Choice().month);
    MarkCurrentRow();
    return true;
}

int EvolutieCurs::CountChartRows() {
    const EvolutionChoice choice = Choice();
    if (!choice.month) return MonthsInYear;
    const std::int64_t days = store_.CountDays(choice);
    if (days > MostChartRows) throw data::RuntimeError(data::error_number::Overflow);
    return static_cast<int>(std::max<std::int64_t>(0, days));
}

void EvolutieCurs::FillChart(const data::Table& table) {
    for (std::size_t i = 0; i < table.RowCount(); ++i) {
        const int row = static_cast<int>(i) + 1;
        MSChart1.SetRowLabel(row, table.At(i, 0).ToText());
        if (const auto rate = RateOf(table.At(i, 1))) MSChart1.SetData(row, *rate);
    }
}

void EvolutieCurs::LabelRowsWithoutData(int firstRow) {
    // Rows that lack data are numbered only when there are more than two of them. The last one or two months
    // of a year in progress stay blank, as readers of this chart are used to.
    if (firstRow >= MSChart1.RowCount() - 1) return;
    for (int row = firstRow; row <= MSChart1.RowCount(); ++row)
        MSChart1.SetRowLabel(row, std::to_string(row));
}

std::string EvolutieCurs::TitleOf(const EvolutionChoice& choice) {
    const std::string time = choice.month
                                 ? Periods[static_cast<std::size_t>(*choice.month - 1)] + (" " + choice.year)
                                 : choice.year + ", medii lunare";
    return choice.currency + ", " + time + ", in lei pentru 1 " + choice.currency;
}

void EvolutieCurs::MarkCurrentRow() {
    MSChart1.SetMarkedRow(Grid.Row());
}

void EvolutieCurs::ShowChart() {
    fraMesaj.SetVisible(false);
    lblMesaj1.SetVisible(false);
    lblMesaj2.SetVisible(false);
    MSChart1.SetVisible(true);
    Line2.SetVisible(true);
    MSChart1.SetEnabled(false);
    Grid.SetFocus();
}

void EvolutieCurs::ShowNoData() {
    MSChart1.SetVisible(false);
    Line2.SetVisible(false);
    fraMesaj.SetVisible(true);
    lblMesaj1.SetVisible(false);
    lblMesaj2.SetVisible(true);
    cmbAn.SetFocus();
    lblMesaj2.Announce();
}

void EvolutieCurs::cmdAction_Click(int index) {
    if (index == Close) {
        Unload();
    } else {
        RedrawChart();
    }
}

void EvolutieCurs::RedrawChart() {
    // Lists that could not be read, or that are another database's, are read first.
    if (!mark_.IsCurrent(application_.context)) ReadLists();
    if (DeseneazaGrafic()) {
        ShowChart();
    } else {
        ShowNoData();
    }
}

// Keys.

std::optional<forms::Copied> EvolutieCurs::Copy() const {
    if (!MSChart1.IsEffectivelyVisible()) return std::nullopt;
    return forms::Copied{Grid.TextOfRows(1, Grid.Rows() - 1),
                         {MSChart1.Bounds().width, MSChart1.Bounds().height},
                         [this](forms::Surface& surface) { MSChart1.Draw(surface); }};
}

void EvolutieCurs::CloseOnEscape(int keyCode) {
    if (keyCode == key::Escape) cmdAction_Click(Close);
}

void EvolutieCurs::Ignore(int& keyCode) const {
    keyCode = key::Swallowed;
    OwnerDesktop().Beep();
}

void EvolutieCurs::Combo_KeyDown(forms::ComboBox& combo, int& keyCode) {
    switch (keyCode) {
        case key::Enter:
            FocusNext();
            break;
        case key::Escape:
            cmdAction_Click(Close);
            break;
        case key::Left:
            Ignore(keyCode);
            break;
        case key::Up:
            if (combo.ListIndex() == 0) Ignore(keyCode);
            break;
        case key::Down:
            if (combo.ListIndex() == combo.ListCount() - 1) Ignore(keyCode);
            break;
        default:
            break;
    }
}

void EvolutieCurs::cmdAction_KeyDown(int& keyCode) {
    CloseOnEscape(keyCode);
    if (keyCode == key::Right) Ignore(keyCode);
    if (keyCode == key::Down && MSChart1.Visible()) Grid.SetFocus();
}

}  // namespace tavrin::rates
