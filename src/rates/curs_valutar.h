#pragma once

#include <string>

#include "data/value.h"
#include "forms/controls/command_button.h"
#include "forms/controls/date_picker.h"
#include "forms/controls/frame.h"
#include "forms/controls/grid.h"
#include "forms/controls/label.h"
#include "forms/model/control_array.h"
#include "forms/model/form.h"
#include "rates/currency_names.h"
#include "rates/rate_rules.h"
#include "rates/rate_store.h"
#include "rates/rate_values.h"
#include "shell/application.h"

namespace tavrin::rates {

/// The rate list: one row a day of the chosen range, one column a currency, and the actions on them.
class CursValutar : public forms::Form {
  public:
    /// The indices of cmdAction. No button carries RemoveCurrency; the action is there for code alone.
    enum Action { AddDay, ModifyDay, DeleteDay, AddCurrency, RemoveCurrency, ShowEvolution, Close };

    explicit CursValutar(shell::Application& application);

    void ShowForm();

    /// Reads the currencies and the days of the current filter anew. True when there are any. The current day
    /// stays the current one where it is still listed. The argument is part of the window's interface; every
    /// caller passes true.
    bool Filtreaza(bool refresh);
    /// Takes the range from the two pickers and reads the list.
    bool ApplyDateFilter();

    void cmdAction_Click(int index);

    /// Enables the window again, unless another window that was opened from it still keeps it disabled.
    void Reenable();

    const CurrencyNames& Currencies() const { return currencyNames_; }
    /// The day of the grid's current row, "dd/mm/yyyy".
    std::string SelectedDayText() const;
    /// Makes the row of a day the current one, marked as a whole; without such a row the current one stays.
    void SelectDay(const std::string& dayMonthYear);
    /// Extends the selection over the whole current row.
    void SelectWholeRow();

    forms::Frame fraGrid;
    forms::Grid Grid;
    forms::ControlArray<forms::Label, 2> lblLabels;
    forms::DatePicker dpDataIn;
    forms::DatePicker dpDataFin;
    forms::CommandButton cmdRefresh;
    forms::ControlArray<forms::CommandButton, 6> cmdAction;

  protected:
    void OnLoad() override;
    void OnActivate() override { KeepOnTop(); }
    void OnDeactivate() override { KeepOnTop(); }
    void OnUnload() override;

  private:
    void PlaceControls();
    /// Gives the grid the width of all currencies, as far as the screen reaches, and the window with it. As
    /// long as there are as many, the window has the size that the user has given it.
    void FitToCurrencies();
    forms::Size SizeAround(forms::Size grid) const;
    void PlaceBesideGrid();
    void AnchorControls();
    void ConnectEvents();

    void SetActionsEnabled(bool enabled);
    /// Whether the days in sight are those of the host's database of this moment. Where they are not, they
    /// are read there, and the day that was to be changed is to be looked at again first.
    bool ShowsCurrentRates();
    void BindGrid(data::TablePtr table);
    void GoToRowOf(const std::string& dayMonthYear);
    /// \throws data::Error 13 (type mismatch) where the row does not begin with a day
    data::OleDate SelectedDay() const;
    bool RefusesFrozenDay();
    bool MayChangeSelectedDay();
    bool IsHeld() const;
    bool BringHolderForward();
    void OpenEntry(EntryMode mode);
    void OpenCurrencyWindow(CurrencyMode mode);
    void OpenEvolution();
    void DeleteSelectedDay();
    void RefuseLastCurrency();

    void cmdAction_KeyDown(int index, int& keyCode, forms::Modifiers modifiers);
    void CloseOnEscape(int keyCode);
    void Grid_KeyDown(int keyCode, forms::Modifiers modifiers);
    void dpDataIn_KeyDown(int keyCode);
    void dpDataFin_KeyDown(int keyCode);
    void cmdRefresh_Click();

    shell::Application& application_;
    RateStore store_;
    shell::ConnectionMark mark_;  ///< of the connection that the list was read on
    CurrencyNames currencyNames_;
    int fittedCurrencies_ = 0;
    DateRange range_;  ///< of the days in sight
};

}  // namespace tavrin::rates
