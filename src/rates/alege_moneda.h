#pragma once

#include <memory>
#include <optional>
#include <string>

#include "data/error.h"
#include "forms/controls/combo_box.h"
#include "forms/controls/command_button.h"
#include "forms/controls/grid.h"
#include "forms/controls/label.h"
#include "forms/drawing/image_list.h"
#include "forms/model/control_array.h"
#include "forms/model/form.h"
#include "rates/currency_target.h"
#include "rates/rate_store.h"
#include "shell/application.h"

namespace tavrin::rates {

/// Lets the user pick a currency and one of its daily rates, newest first, for a window that converts
/// amounts. That window is disabled while this one is open; it takes part only through CurrencyTarget, and
/// what is chosen goes to its default instance.
class AlegeMoneda : public forms::Form {
  public:
    enum Action { Accept, Cancel };

    explicit AlegeMoneda(shell::Application& application);

    /// `currency` is the code that stands in the list at first; the host's table need not have it.
    void ShowForm(CurrencyTarget& caller, const std::string& currency);

    forms::Label Label2;
    forms::ComboBox cmbMoneda;
    forms::Grid Grid;
    forms::ControlArray<forms::CommandButton, 2> cmdAction;

  protected:
    void OnLoad() override;
    void OnActivate() override;
    void OnDeactivate() override { KeepOnTop(); }
    void OnUnload() override;
    void OnKeyDown(int& keyCode, forms::Modifiers modifiers) override;

  private:
    void PlaceControls();
    void ConnectEvents();
    void cmbMoneda_Change();
    void Reincarca();
    void IncarcaMonede();
    void IncarcaCursuri();
    void ShowRates(data::TablePtr rates);
    void TakeRate();
    void cmdAction_Click(int index);
    void cmbMoneda_GotFocus();
    void cmbMoneda_LostFocus();
    void Grid_KeyDown(int& keyCode);

    shell::Application& application_;
    RateStore store_;
    forms::ImageList lstImages_;
    /// Keeps the caller's form alive, should it unload before this one.
    std::shared_ptr<CurrencyTarget> caller_;
    bool isOpening_ = false;
    /// What was reported while the window was opening.
    std::optional<data::Error> refusal_;
};

}  // namespace tavrin::rates
