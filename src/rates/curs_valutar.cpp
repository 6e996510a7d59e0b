#include "rates/curs_valutar.h"

#include <algorithm>
#include <array>
#include <utility>

#include "data/error.h"
#include "data/text/date.h"
#include "rates/cere_moneda.h"
#include "rates/curs_valutar_detaliu.h"
#include "rates/evolutie_curs.h"
#include "shell/layout.h"

namespace tavrin::rates {

namespace {

namespace key = forms::key;
namespace layout = shell::layout;
namespace message = shell::message;
using Answer = shell::Application::Answer;

constexpr std::string_view PickerFormat = "dd/MMM/yy";
constexpr int DayColumn = 0;
constexpr int RawDateColumn = 1;
constexpr int DayWidth = 1100;
constexpr int CurrencyWidth = 1400;
constexpr int DaysInSight = 20;
constexpr int SideWidth = 2220;
constexpr int Margins = 3 * layout::Margin;  ///< left, right, and between the grid and the buttons

struct ActionLook {
    CursValutar::Action action;
    const char* caption;
    forms::Icon picture;
};
constexpr std::array<ActionLook, 6> Actions = {{
    {CursValutar::AddDay, "Adauga Curs", forms::Icon::Add},
    {CursValutar::ModifyDay, "Modifica Curs", forms::Icon::Modify},
    {CursValutar::DeleteDay, "Sterge Curs", forms::Icon::Remove},
    {CursValutar::AddCurrency, "  Adauga Moneda", forms::Icon::AddCurrency},
    {CursValutar::ShowEvolution, "  Evolutie Curs", forms::Icon::Chart},
    {CursValutar::Close, "Iesire", forms::Icon::Exit},
}};

/// Of a list that shows so many currencies whole, beside a scroll bar.
forms::Size SizeOfGrid(int currencies, int rowHeight) {
    using forms::GridViewport;
    const forms::Size whole =
        GridViewport::SizeFor(DayWidth + currencies * CurrencyWidth, DaysInSight, rowHeight);
    return {layout::RoundedUp(whole.width + forms::ScrollBar::Thickness), whole.height};
}

constexpr auto ActionIndices() {
    std::array<int, Actions.size()> indices{};
    for (std::size_t i = 0; i < indices.size(); ++i)
        indices[i] = Actions[i].action;
    return indices;
}

}  // namespace

CursValutar::CursValutar(shell::Application& application)
    : Form(application.Desktop(), "CursValutar", "Curs Valutar", forms::BorderStyle::Sizable),
      fraGrid(*this, "fraGrid"),
      Grid(fraGrid, "Grid"),
      lblLabels(*this, "lblLabels"),
      dpDataIn(*this, "dpDataIn", std::string(PickerFormat)),
      dpDataFin(*this, "dpDataFin", std::string(PickerFormat)),
      cmdRefresh(*this, "cmdRefresh", "Filtreaza"),
      cmdAction(*this, "cmdAction", ActionIndices()),
      application_(application),
      store_(application.context) {
    PlaceControls();
    ConnectEvents();
}

void CursValutar::PlaceControls() {
    fraGrid.SetBordered(false);
    fraGrid.SetVisible(false);
    Grid.SetAccessibleName("Curs Valutar");
    lblLabels[0].SetCaption("De La Data");
    lblLabels[1].SetCaption("La Data");
    dpDataIn.SetAccessibleName("De La Data");
    dpDataFin.SetAccessibleName("La Data");
    cmdRefresh.SetPicture(forms::Icon::Filter);
    for (const ActionLook& look : Actions) {
        cmdAction[look.action].SetCaption(look.caption);
        cmdAction[look.action].SetPicture(look.picture);
    }
    const forms::Size grid = SizeOfGrid(1, Grid.RowHeight());
    Grid.SetBounds({0, 0, grid.width, grid.height});
    fraGrid.SetBounds({layout::Margin, layout::Margin, grid.width, grid.height});
    PlaceBesideGrid();
    SetClientSize(SizeAround(grid));
    AnchorControls();
    FitToCurrencies();
}

void CursValutar::AnchorControls() {
    using forms::Anchors;
    Anchor(fraGrid, Anchors::All);
    Anchor(Grid, Anchors::All);
    for (forms::Control* control : AllControls()) {
        if (control->Bounds().left > fraGrid.Bounds().Right())
            Anchor(*control, control == &cmdAction[Close] ? Anchors::BottomRight : Anchors::TopRight);
    }
}

forms::Size CursValutar::SizeAround(forms::Size grid) const {
    return {grid.width + SideWidth + Margins, grid.height + 2 * layout::Margin};
}

void CursValutar::FitToCurrencies() {
    const int currencies = std::max(1, currencyNames_.UpperBound() - CurrencyNames::FirstCurrency + 1);
    if (currencies == fittedCurrencies_) return;
    fittedCurrencies_ = currencies;
    const int frame = OwnerDesktop().FrameSize(Border()).width;
    const int room = layout::RoundedDown(OwnerDesktop().WorkArea().width - frame);
    forms::Size size = SizeAround(SizeOfGrid(currencies, Grid.RowHeight()));
    if (size.width > room) size = {room, size.height + forms::ScrollBar::Thickness};
    if (Visible())
        size = {std::max(size.width, ClientSize().width), std::max(size.height, ClientSize().height)};
    SetClientSize(size);
    if (!Visible()) CenterOnScreen();
    KeepInWorkArea();
}

void CursValutar::PlaceBesideGrid() {
    const int left = fraGrid.Bounds().Right() + layout::Margin;
    int top = layout::Margin;
    const auto place = [&](forms::Control& control, int height, int gap) {
        control.SetBounds({left, top, SideWidth, height});
        top += height + gap;
    };
    place(lblLabels[0], layout::LabelHeight, 0);
    place(dpDataIn, layout::FieldHeight, layout::Unit);
    place(lblLabels[1], layout::LabelHeight, 0);
    place(dpDataFin, layout::FieldHeight, layout::Gap);
    place(cmdRefresh, layout::ButtonHeight, 4 * layout::Gap);
    for (const ActionLook& look : Actions)
        place(cmdAction[look.action], layout::ButtonHeight, layout::Gap);
    // The way out stands apart from what changes data.
    cmdAction[Close].MoveTo(left, fraGrid.Bounds().Bottom() - layout::ButtonHeight);
}

void CursValutar::ConnectEvents() {
    cmdAction.OnEach(&forms::Control::onClick, [this](int index) { cmdAction_Click(index); });
    cmdAction.OnEach(&forms::Control::onKeyDown, [this](int index, int& keyCode, forms::Modifiers modifiers) {
        cmdAction_KeyDown(index, keyCode, modifiers);
    });
    Grid.onKeyDown = [this](int& keyCode, forms::Modifiers modifiers) { Grid_KeyDown(keyCode, modifiers); };
    dpDataIn.onKeyDown = [this](int& keyCode, forms::Modifiers) { dpDataIn_KeyDown(keyCode); };
    dpDataFin.onKeyDown = [this](int& keyCode, forms::Modifiers) { dpDataFin_KeyDown(keyCode); };
    cmdRefresh.onKeyDown = [this](int& keyCode, forms::Modifiers) { CloseOnEscape(keyCode); };
    cmdRefresh.onClick = [this] { cmdRefresh_Click(); };
}

// Life.

void CursValutar::ShowForm() {
    Load();
    Show();
    // One that was left open when an earlier list went away holds this one.
    BringHolderForward();
}

void CursValutar::OnLoad() {
    application_.CreateMessageService();
    const int year = application_.context.workYear;
    for (forms::DatePicker* picker : {&dpDataIn, &dpDataFin}) {
        picker->SetRange(data::ToOleDate({year, 1, 1}), data::ToOleDate({year + 1, 1, 31}));
    }
    const data::CalendarDay workDay = data::ToCalendarDay(application_.context.workDate);
    dpDataIn.SetDate(data::ToOleDate({workDay.year, workDay.month, 1}));
    dpDataFin.SetDate(application_.context.workDate);
    ApplyDateFilter();
}

void CursValutar::OnUnload() {
    application_.context.RaiseIesire();
}

// The list.

bool CursValutar::ApplyDateFilter() {
    range_ = {dpDataIn.Date(), dpDataFin.Date()};
    return Filtreaza(true);
}

bool CursValutar::Filtreaza(bool /*refresh*/) {
    // Nothing of the window changes before the database has answered, so a failure leaves the old list in
    // sight.
    CurrencyNames currencies = store_.DiscoverCurrencies();
    data::TablePtr table = store_.ReadDays(currencies, range_);
    mark_.Set(application_.context);
    currencyNames_ = std::move(currencies);
    FitToCurrencies();

    const std::string day = SelectedDayText();
    const bool hasRows = table != nullptr;
    fraGrid.SetVisible(hasRows);
    Grid.Clear();
    BindGrid(std::move(table));
    GoToRowOf(day);
    SetActionsEnabled(true);
    return hasRows;
}

void CursValutar::BindGrid(data::TablePtr table) {
    Grid.SetDataSource(std::move(table));
    if (!Grid.DataSource()) return;
    std::string format = "^Data|<D";
    for (int i = CurrencyNames::FirstCurrency; i <= currencyNames_.UpperBound(); ++i) {
        format += "|>" + currencyNames_[i];
    }
    Grid.SetFormatString(format);
    Grid.SetColumnWidth(DayColumn, DayWidth);
    Grid.SetColumnWidth(RawDateColumn, 0);
    for (int i = CurrencyNames::FirstCurrency; i <= currencyNames_.UpperBound(); ++i) {
        Grid.SetColumnWidth(i, CurrencyWidth);
        Grid.SetZerosApart(i);
    }
}

void CursValutar::SetActionsEnabled(bool enabled) {
    for (const Action action : {ModifyDay, DeleteDay, ShowEvolution})
        cmdAction[action].SetEnabled(enabled);
    dpDataIn.SetEnabled(enabled);
    dpDataFin.SetEnabled(enabled);
    fraGrid.SetEnabled(enabled);
}

void CursValutar::cmdRefresh_Click() {
    if (ApplyDateFilter()) {
        Grid.SetFocus();
    } else {
        dpDataFin.SetFocus();
    }
}

// The actions.

void CursValutar::cmdAction_Click(int index) {
    switch (index) {
        case AddDay:
            // A new day takes nothing from the list but its currencies.
            if (application_.context.connection != nullptr) ShowsCurrentRates();
            OpenEntry(EntryMode::Add);
            break;
        case ModifyDay:
            if (MayChangeSelectedDay()) OpenEntry(EntryMode::Modify);
            break;
        case DeleteDay:
            if (MayChangeSelectedDay()) DeleteSelectedDay();
            break;
        case AddCurrency:
            OpenCurrencyWindow(CurrencyMode::Add);
            break;
        case RemoveCurrency:
            if (MayRemoveCurrency(currencyNames_)) {
                OpenCurrencyWindow(CurrencyMode::Remove);
            } else {
                RefuseLastCurrency();
            }
            break;
        case ShowEvolution:
            OpenEvolution();
            break;
        case Close:
            Unload();
            break;
        default:
            break;
    }
}

bool CursValutar::ShowsCurrentRates() {
    if (mark_.IsCurrent(application_.context)) return true;
    ApplyDateFilter();
    return false;
}

bool CursValutar::MayChangeSelectedDay() {
    return Grid.IsEffectivelyVisible() && ShowsCurrentRates() && !RefusesFrozenDay();
}

std::string CursValutar::SelectedDayText() const {
    return Grid.TextMatrix(Grid.Row(), DayColumn);
}

data::OleDate CursValutar::SelectedDay() const {
    const auto day = data::ParseDayMonthYear(SelectedDayText());
    if (!day) throw data::RuntimeError(data::error_number::TypeMismatch);
    return *day;
}

bool CursValutar::RefusesFrozenDay() {
    const data::OleDate day = SelectedDay();
    if (!IsFrozen(day, store_.FrozenDate())) return false;
    // A frozen day can be neither changed nor deleted; one text serves for both.
    application_.ShowMessage("Acest curs a fost validat !\r\nNu puteti modifica un curs deja validat !",
                             message::Error, message::Ok, Caption());
    if (fraGrid.Enabled()) {
        Grid.SetColSel(currencyNames_.UpperBound());
        Grid.SetFocus();
    }
    return true;
}

void CursValutar::SelectWholeRow() {
    Grid.SetCol(DayColumn);
    Grid.SetColSel(currencyNames_.UpperBound());
}

void CursValutar::SelectDay(const std::string& dayMonthYear) {
    GoToRowOf(dayMonthYear);
    SelectWholeRow();
}

void CursValutar::GoToRowOf(const std::string& dayMonthYear) {
    for (int row = 1; row < Grid.Rows(); ++row) {
        if (Grid.TextMatrix(row, DayColumn) == dayMonthYear) return Grid.SetRow(row);
    }
}

// The windows that the list opens. It is disabled while one is up; each enables it again when it closes.

bool CursValutar::IsHeld() const {
    return application_.Loaded<CursValutarDetaliu>() != nullptr ||
           application_.Loaded<CereMoneda>() != nullptr;
}

void CursValutar::Reenable() {
    SetEnabled(!IsHeld());
}

/// A window that is open already comes forward as it is: what is typed in it stays what it was meant for.
bool CursValutar::BringHolderForward() {
    if (!IsHeld()) return false;
    SetEnabled(false);
    if (auto* entry = application_.Loaded<CursValutarDetaliu>()) entry->Show();
    if (auto* currency = application_.Loaded<CereMoneda>()) currency->Show();
    return true;
}

void CursValutar::OpenEntry(EntryMode mode) {
    if (BringHolderForward()) return;
    auto& window = application_.Default<CursValutarDetaliu>();
    SetEnabled(false);
    window.ShowForm(currencyNames_, mode);
}

void CursValutar::OpenCurrencyWindow(CurrencyMode mode) {
    if (BringHolderForward()) return;
    auto& window = application_.Default<CereMoneda>();
    SetEnabled(false);
    window.Mode = mode;
    window.Load();
    window.Show();
}

void CursValutar::OpenEvolution() {
    auto& window = application_.Default<EvolutieCurs>();
    SetEnabled(false);
    window.Show();
    Unload();
}

void CursValutar::DeleteSelectedDay() {
    Grid.SetCol(DayColumn);
    const std::string day = SelectedDayText();
    application_.lastQuestion = "Sunteti sigur ca doriti sa stergeti cursul valutar pentru data de " + day;
    const Answer answer = application_.Ask(*this, application_.lastQuestion, Caption());
    if (answer == Answer::No) Grid.SetFocus();
    // The day that the question named, in the data that it was about: a host may call while it is up.
    if (answer != Answer::Yes || SelectedDayText() != day || !ShowsCurrentRates()) return;
    store_.DeleteDay(SelectedDay());
    Filtreaza(true);
}

void CursValutar::RefuseLastCurrency() {
    application_.ShowMessage("Nu puteti sterge toate monedele !", message::Error, message::Ok, Caption());
    if (fraGrid.Enabled()) Grid.SetFocus();
}

// Keys.

void CursValutar::cmdAction_KeyDown(int index, int& keyCode, forms::Modifiers modifiers) {
    CloseOnEscape(keyCode);
    const bool forward = (keyCode == key::Tab && !modifiers.shift) || keyCode == key::Right;
    if (!forward) return;
    if (index == AddDay || index == ModifyDay) {
        dpDataIn.SetFocus();
    } else if ((index == DeleteDay || index == AddCurrency) && Grid.CanTakeFocus()) {
        keyCode = key::Swallowed;
        Grid.SetFocus();
    }
}

void CursValutar::CloseOnEscape(int keyCode) {
    if (keyCode == key::Escape) cmdAction_Click(Close);
}

void CursValutar::Grid_KeyDown(int keyCode, forms::Modifiers modifiers) {
    CloseOnEscape(keyCode);
    const bool forward = keyCode == key::Tab && !modifiers.shift;
    if (keyCode == key::Enter || forward) cmdAction[ModifyDay].SetFocus();
}

void CursValutar::dpDataIn_KeyDown(int keyCode) {
    CloseOnEscape(keyCode);
    if (keyCode == key::Enter) dpDataFin.SetFocus();
}

void CursValutar::dpDataFin_KeyDown(int keyCode) {
    CloseOnEscape(keyCode);
    if (keyCode == key::Enter) cmdRefresh.SetFocus();
    if (keyCode == key::Left) dpDataIn.SetFocus();
}

}  // namespace tavrin::rates
