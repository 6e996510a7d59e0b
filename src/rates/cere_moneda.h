#pragma once

#include "forms/controls/combo_box.h"
#include "forms/controls/command_button.h"
#include "forms/controls/decoration.h"
#include "forms/controls/frame.h"
#include "forms/controls/label.h"
#include "forms/controls/text_box.h"
#include "forms/drawing/image_list.h"
#include "forms/model/control_array.h"
#include "forms/model/form.h"
#include "rates/rate_rules.h"
#include "rates/rate_store.h"
#include "shell/application.h"

namespace tavrin::rates {

/// Asks for the code of a new currency and adds it to the rate table. To remove one it shows the existing
/// currencies, and removes none.
class CereMoneda : public forms::Form {
  public:
    enum Action { Accept, Cancel };

    explicit CereMoneda(shell::Application& application);

    /// Set by the opener before the window is loaded.
    CurrencyMode Mode = CurrencyMode::Remove;

    forms::Frame Frame1;
    forms::ControlArray<forms::Label, 1> lblLabels;
    forms::Shape Shape14;
    forms::TextBox txtMoneda;
    forms::ComboBox cmbMoneda;
    forms::ControlArray<forms::CommandButton, 2> cmdAction;

  protected:
    void OnLoad() override;
    void OnActivate() override { KeepOnTop(); }
    void OnDeactivate() override { KeepOnTop(); }
    void OnUnload() override;

  private:
    void PlaceControls();
    void ConnectEvents();
    void FillCurrencies();
    bool AddCurrency();
    void ColorField(forms::Control& field, forms::Color color);
    void cmdAction_Click(int index);
    void txtMoneda_KeyDown(int& keyCode, forms::Modifiers modifiers);
    void cmbMoneda_KeyDown(int& keyCode);
    void CancelOnEscape(int keyCode);

    shell::Application& application_;
    RateStore store_;
    forms::ImageList lstImages_;
};

}  // namespace tavrin::rates
