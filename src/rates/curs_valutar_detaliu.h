#pragma once

#include <string>
#include <vector>

#include "data/value.h"
#include "forms/controls/cell_editor.h"
#include "forms/controls/command_button.h"
#include "forms/controls/date_picker.h"
#include "forms/controls/grid.h"
#include "forms/controls/label.h"
#include "forms/controls/text_box.h"
#include "forms/model/control_array.h"
#include "forms/model/form.h"
#include "rates/currency_names.h"
#include "rates/rate_rules.h"
#include "rates/rate_store.h"
#include "rates/rate_values.h"
#include "shell/application.h"

namespace tavrin::rates {

/// The entry of one day's rates: the day, and a grid with one line a currency whose values are typed in a
/// field that lies over the current cell. Opened by the rate list alone.
class CursValutarDetaliu : public forms::Form {
  public:
    enum Action { Accept, Cancel };

    explicit CursValutarDetaliu(shell::Application& application);

    /// Adds a day, or corrects the one that is selected in the rate list.
    void ShowForm(const CurrencyNames& names, EntryMode mode);

    forms::Label lblDescriere;
    forms::DatePicker DataCurs;
    forms::TextBox txtCursValutar;
    forms::Grid Grid;
    forms::ControlArray<forms::CommandButton, 2> cmdAction;

  protected:
    void OnLoad() override;
    void OnActivate() override { KeepOnTop(); }
    void OnDeactivate() override { KeepOnTop(); }
    void OnUnload() override;

  private:
    enum class Step { Up, Down };

    void PlaceControls();
    void FitToCurrencies();
    void ConnectEvents();
    void FillGrid();

    std::string FormatRate(const std::string& text, int decimals, int grouping) const;
    void BeginCellEdit();
    void BeginEditAtFirstRow();
    bool IsEditing() const { return editor_.IsOpen(); }
    bool ValidateRateCell();
    void Refuse(ValueRefusal refusal);
    void CommitCell();
    void LeaveCell(Step step);

    bool DayExists(data::OleDate day) const;
    bool SaveRates();
    bool InsertDay();
    std::string DayText() const;
    std::vector<RateEntry> Entries() const;

    void DataCurs_KeyDown(int keyCode);
    void txtCursValutar_KeyDown(int& keyCode);
    void txtCursValutar_KeyPress(char32_t& character);
    void txtCursValutar_LostFocus();
    void Grid_Click();
    void Grid_KeyDown(int& keyCode);
    void Grid_KeyPress(char32_t& character);
    void cmdAction_Click(int index);
    void CancelOnEscape(int keyCode);

    shell::Application& application_;
    RateStore store_;
    shell::ConnectionMark mark_;  ///< of the connection that the entry was begun on
    forms::CellEditor editor_{Grid, txtCursValutar};
    CurrencyNames currencyNames_;
    EntryMode mode_ = EntryMode::Modify;
};

}  // namespace tavrin::rates
