#include "rates/curs_valutar_detaliu.h"

#include <algorithm>

#include "data/text/date.h"
#include "data/text/digits.h"
#include "data/text/number_text.h"
#include "rates/curs_valutar.h"
#include "shell/layout.h"
#include "shell/window_helpers.h"

namespace tavrin::rates {

namespace {

namespace key = forms::key;
namespace layout = shell::layout;
namespace message = shell::message;

constexpr int CodeColumn = 0;
constexpr int ValueColumn = 1;
constexpr int CodeWidth = 2000;
constexpr int ValueWidth = 1500;
constexpr int CurrenciesInSight = 11;
constexpr int LabelWidth = 1740;
constexpr int ThousandsGrouping = 3;

const char* ReasonOf(ValueRefusal refusal) {
    switch (refusal) {
        case ValueRefusal::Missing:
            return "Valoare obligatorie !";
        case ValueRefusal::NoRate:
            return "Valoarea cursului trebuie sa fie >= 0  !";
        default:
            return "Valoarea poate avea cel mult 15 cifre !";
    }
}

}  // namespace

CursValutarDetaliu::CursValutarDetaliu(shell::Application& application)
    : Form(application.Desktop(), "CursValutarDetaliu", "Curs Valutar", forms::BorderStyle::FixedDialog),
      lblDescriere(*this, "lblDescriere", "Data Curs Valutar"),
      DataCurs(*this, "DataCurs", "dd/MM/yyyy"),
      txtCursValutar(*this, "txtCursValutar"),
      Grid(*this, "Grid"),
      cmdAction(*this, "cmdAction"),
      application_(application),
      store_(application.context) {
    PlaceControls();
    ConnectEvents();
}

void CursValutarDetaliu::PlaceControls() {
    DataCurs.SetAccessibleName(lblDescriere.Caption());
    Grid.SetAccessibleName("Valoare Curs");
    cmdAction[Accept].SetCaption("Accepta");
    cmdAction[Accept].SetPicture(forms::Icon::Accept);
    cmdAction[Cancel].SetCaption("Renunta");
    cmdAction[Cancel].SetPicture(forms::Icon::Cancel);
    txtCursValutar.SetVisible(false);
    txtCursValutar.SetAlignment(forms::Align::Right);
    txtCursValutar.SetFont(Grid.TextFont());
    txtCursValutar.SetBackColor(forms::FocusGrey);
    txtCursValutar.SetForeColor(forms::scheme::Value);
    txtCursValutar.SetAccessibleName("Valoare Curs");
}

/// The columns fill the grid, whether it needs a scroll bar or not.
void CursValutarDetaliu::FitToCurrencies() {
    const forms::Size grid =
        forms::GridViewport::SizeFor(CodeWidth + ValueWidth, CurrenciesInSight, Grid.RowHeight());
    const int barWidth = Grid.Rows() - 1 > CurrenciesInSight ? forms::ScrollBar::Thickness : 0;
    const int width = layout::RoundedUp(grid.width + barWidth);
    int top = layout::Margin;
    lblDescriere.SetBounds({layout::Margin, top, LabelWidth, layout::FieldHeight});
    const int pickerLeft = layout::Margin + LabelWidth + layout::Unit;
    DataCurs.SetBounds({pickerLeft, top, width + layout::Margin - pickerLeft, layout::FieldHeight});
    top += layout::FieldHeight + layout::Gap;
    Grid.SetBounds({layout::Margin, top, width, grid.height});
    top += grid.height + layout::Gap;
    shell::PlaceAnswers(cmdAction[Accept], cmdAction[Cancel], {layout::Margin, top}, width);
    SetClientSize({width + 2 * layout::Margin, top + layout::ButtonHeight + layout::Margin});
}

void CursValutarDetaliu::ConnectEvents() {
    DataCurs.onKeyDown = [this](int& keyCode, forms::Modifiers) { DataCurs_KeyDown(keyCode); };
    txtCursValutar.onGotFocus = [this] { txtCursValutar.SelectAll(); };
    txtCursValutar.onLostFocus = [this] { txtCursValutar_LostFocus(); };
    txtCursValutar.onKeyDown = [this](int& keyCode, forms::Modifiers) { txtCursValutar_KeyDown(keyCode); };
    txtCursValutar.onKeyPress = [this](char32_t& character) { txtCursValutar_KeyPress(character); };
    Grid.onKeyDown = [this](int& keyCode, forms::Modifiers) { Grid_KeyDown(keyCode); };
    Grid.onKeyPress = [this](char32_t& character) { Grid_KeyPress(character); };
    Grid.onClick = [this] { Grid_Click(); };
    cmdAction.OnEach(&forms::Control::onClick, [this](int index) { cmdAction_Click(index); });
    cmdAction.OnEach(&forms::Control::onKeyDown,
                     [this](int, int& keyCode, forms::Modifiers) { CancelOnEscape(keyCode); });
}

// Life.

void CursValutarDetaliu::ShowForm(const CurrencyNames& names, EntryMode mode) {
    currencyNames_ = names;
    mode_ = mode;
    SetCaption(RulesOf(mode_).title);
    Load();
    Show();
    if (DataCurs.Enabled()) DataCurs.SetFocus();
}

void CursValutarDetaliu::OnLoad() {
    application_.CreateMessageService();
    mark_.Set(application_.context);
    FillGrid();
    FitToCurrencies();
    CenterOnScreen();
    DataCurs.SetDate(application_.context.workDate);
    const auto* list = application_.Loaded<CursValutar>();
    if (RulesOf(mode_).beginsFromList && list != nullptr) {
        if (const auto day = data::ParseDayMonthYear(list->SelectedDayText())) DataCurs.SetDate(*day);
    }
    DataCurs.SetEnabled(RulesOf(mode_).choosesDay);
}

void CursValutarDetaliu::FillGrid() {
    Grid.SetSize(currencyNames_.UpperBound(), 2);
    Grid.SetTextMatrix(0, CodeColumn, "Moneda");
    Grid.SetTextMatrix(0, ValueColumn, "Valoare Curs");
    Grid.SetColumnWidth(CodeColumn, CodeWidth);
    Grid.SetColumnWidth(ValueColumn, ValueWidth);
    Grid.SetColumnAlignment(ValueColumn, forms::Align::Right);
    Grid.SetZerosApart(ValueColumn);
    const auto* list = application_.Loaded<CursValutar>();
    for (int i = CurrencyNames::FirstCurrency; i <= currencyNames_.UpperBound(); ++i) {
        const int row = i - CurrencyNames::FirstCurrency + 1;
        Grid.SetTextMatrix(row, CodeColumn, currencyNames_[i]);
        const bool shown = RulesOf(mode_).beginsFromList && list != nullptr;
        Grid.SetTextMatrix(row, ValueColumn, shown ? list->Grid.TextMatrix(list->Grid.Row(), i) : "0");
    }
}

void CursValutarDetaliu::OnUnload() {
    auto* list = application_.Loaded<CursValutar>();
    if (list == nullptr) return;
    list->Reenable();
    list->SelectWholeRow();
    list->Grid.SetFocus();
}

// Editing a cell.

std::string CursValutarDetaliu::FormatRate(const std::string& text, int decimals, int grouping) const {
    const std::string formatted =
        OwnerDesktop().FormatNumber(text, {.decimals = decimals, .grouping = grouping});
    // Without a leading zero the platform may have nothing left to show of a zero.
    return formatted.empty() ? "0" : formatted;
}

void CursValutarDetaliu::BeginCellEdit() {
    editor_.Open(Grid.Row(), ValueColumn);
}

void CursValutarDetaliu::BeginEditAtFirstRow() {
    editor_.Open(1, ValueColumn);
}

bool CursValutarDetaliu::ValidateRateCell() {
    const auto refusal = RefusalOf({txtCursValutar.Text(), editor_.IsEdited()});
    if (refusal) Refuse(*refusal);
    return !refusal;
}

void CursValutarDetaliu::Refuse(ValueRefusal refusal) {
    application_.ShowMessage(ReasonOf(refusal), message::Information, message::Ok, Caption());
}

void CursValutarDetaliu::CommitCell() {
    if (!editor_.IsEdited()) return editor_.Close();
    const double number = TypedRate(txtCursValutar.Text()).value_or(0);
    editor_.Commit(FormatRate(data::NumberText(number), 0, ThousandsGrouping));
}

void CursValutarDetaliu::LeaveCell(Step step) {
    if (!ValidateRateCell()) {
        txtCursValutar.SelectAll();
        return;
    }
    const int row = editor_.Row() + (step == Step::Up ? -1 : 1);
    CommitCell();
    if (row < Grid.Rows()) {
        editor_.Open(std::max(1, row), ValueColumn);
    } else {
        cmdAction[Accept].SetFocus();
    }
}

void CursValutarDetaliu::txtCursValutar_KeyDown(int& keyCode) {
    editor_.ReturnToCell();  // the wheel may have taken it out of sight
    const bool caretAlone = txtCursValutar.SelLength() == 0;
    const bool atEnd = caretAlone && txtCursValutar.SelStart() == txtCursValutar.TextLength();
    const bool atStart = caretAlone && txtCursValutar.SelStart() == 0;
    switch (keyCode) {
        case key::Escape:
            cmdAction_Click(Cancel);
            break;
        case key::Up:
            LeaveCell(Step::Up);
            break;
        case key::Down:
        case key::Enter:
            LeaveCell(Step::Down);
            break;
        case key::Left:
            if (!atStart) return;
            LeaveCell(Step::Up);
            break;
        case key::Right:
            if (!atEnd) return;
            LeaveCell(Step::Down);
            break;
        default:
            return;
    }
    keyCode = key::Swallowed;
}

void CursValutarDetaliu::txtCursValutar_KeyPress(char32_t& character) {
    // Backspace, and what the platform's field makes of Ctrl and a letter: copying, pasting, taking back.
    // None of them is a character of the text.
    if (character < U' ') return;
    if (data::IsDigit(character) && HasRoomForDigit(txtCursValutar.Text(), txtCursValutar.SelText())) return;
    // Who types a comma must not take 95 for 9,5.
    OwnerDesktop().Beep();
    character = 0;
}

void CursValutarDetaliu::txtCursValutar_LostFocus() {
    if (!IsEditing()) return;
    if (ValidateRateCell()) {
        CommitCell();
    } else {
        editor_.ReturnToCell();
        txtCursValutar.SetFocus();
        txtCursValutar.SelectAll();
    }
}

void CursValutarDetaliu::Grid_Click() {
    // The press of a click may have been refused by the cell that it was to leave.
    if (!IsEditing()) BeginCellEdit();
}

void CursValutarDetaliu::Grid_KeyDown(int& keyCode) {
    CancelOnEscape(keyCode);
    if (keyCode != key::Enter) return;
    BeginCellEdit();
    keyCode = key::Swallowed;
}

void CursValutarDetaliu::Grid_KeyPress(char32_t& character) {
    if (!data::IsDigit(character) || Grid.Row() < 1) return;
    BeginCellEdit();
    txtCursValutar.ReplaceSelection(std::string(1, static_cast<char>(character)));
    character = 0;
}

// The day.

bool CursValutarDetaliu::DayExists(data::OleDate day) const {
    return RulesOf(mode_).choosesDay && store_.DayExists(day);
}

void CursValutarDetaliu::DataCurs_KeyDown(int keyCode) {
    CancelOnEscape(keyCode);
    if (keyCode != key::Enter) return;
    if (DayExists(DataCurs.Date())) {
        FocusNext();
    } else {
        BeginEditAtFirstRow();
    }
}

// Saving.

std::string CursValutarDetaliu::DayText() const {
    return data::FormatDayMonthYear(DataCurs.Date());
}

std::vector<RateEntry> CursValutarDetaliu::Entries() const {
    std::vector<RateEntry> entries;
    for (int row = 1; row < Grid.Rows(); ++row) {
        entries.push_back({Grid.TextMatrix(row, CodeColumn), Grid.TextMatrix(row, ValueColumn)});
    }
    return entries;
}

bool CursValutarDetaliu::SaveRates() {
    mark_.RequireCurrent(application_.context);
    if (mode_ == EntryMode::Add) return InsertDay();
    // The rate list has refused frozen days before it opened this window.
    store_.UpdateDay(DataCurs.Date(), Entries());
    return true;
}

bool CursValutarDetaliu::InsertDay() {
    const data::OleDate frozen = store_.FrozenDate();
    if (IsFrozen(DataCurs.Date(), frozen)) {
        application_.ShowMessage(
            "Data documentului introdus nu poate fi mai mica decit data ultimei validari \r\n"
            "Data ultimei validari : " +
                data::FormatDayMonthYear(frozen) + "\r\nData document introdus : " + DayText() +
                "\r\nAlegeti alta data !",
            message::Information, message::Ok, "DATA GRESITA");
        return false;
    }
    if (store_.CountDay(DataCurs.Date()) != 0) {
        application_.ShowMessage("Exista curs valutar la aceasta data!", message::Information, message::Ok,
                                 Caption());
        return false;
    }
    store_.InsertDay(DataCurs.Date(), Entries());
    return true;
}

void CursValutarDetaliu::cmdAction_Click(int index) {
    if (index == Cancel) {
        Unload();
        return;
    }
    if (IsEditing()) {
        if (!ValidateRateCell()) return;
        CommitCell();
    }
    if (!SaveRates()) return DataCurs.SetFocus();  // it is the day that was refused
    const std::string day = DayText();
    Unload();
    if (auto* list = application_.Loaded<CursValutar>()) {
        list->ApplyDateFilter();
        list->SelectDay(day);
        list->Grid.SetFocus();  // before its first day it was hidden and could not take it
    }
}

void CursValutarDetaliu::CancelOnEscape(int keyCode) {
    if (keyCode == key::Escape) cmdAction_Click(Cancel);
}

}  // namespace tavrin::rates
