#pragma once

#include <string>

#include "calculator/engine.h"
#include "calculator/key_button.h"
#include "forms/combo_box.h"
#include "forms/command_button.h"
#include "forms/control_array.h"
#include "forms/decoration.h"
#include "forms/form.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/numeric_display.h"
#include "rates/currency_target.h"
#include "shell/module.h"

namespace tavrin::calculator {

/// The calculator's window: runs the engine and shows every value twice, in lei and in a currency at one
/// rate. The user chooses in which of the two the numbers are typed; the other display follows.
class FrmCalculator : public forms::Form, public rates::CurrencyTarget, private EngineListener {
  public:
    explicit FrmCalculator(shell::Module& module);

    // For the currency chooser.
    Form& CallingWindow() override { return *this; }
    CurrencyTarget& DefaultInstance() override { return module_.Default<FrmCalculator>(); }
    double CursCurent() const override { return rate_; }
    void SetCursCurent(double rate) override { rate_ = rate; }
    double CurrencyAmount() const override { return ValValuta.Value(); }
    void SetCurrencyAmount(double amount) override;
    void SetCurrencyUnit(const std::string& currency) override { ValValuta.SetUnitText(currency); }
    void SetRateCaption(const std::string& caption) override;

    forms::Frame z;
    forms::Label lblCurs;
    forms::Label lblM;
    forms::Shape Shape1;
    forms::NumericDisplay ValLei;
    forms::Shape Shape2;
    forms::NumericDisplay ValValuta;
    forms::ControlArray<KeyButton, 10> Number;
    KeyButton Decimal;
    forms::ControlArray<KeyButton, 7> Operator;
    KeyButton Cancel;
    KeyButton CancelEntry;
    KeyButton cmdMC;
    KeyButton cmdMR;
    KeyButton cmdMPlus;
    KeyButton cmdMMinus;
    forms::ComboBox cmbUM;
    forms::ComboBox cmbPrecizie;
    forms::CommandButton cmdVal;
    forms::CommandButton cmdUnload;

  protected:
    void OnLoad() override;
    void OnActivate() override { KeepOnTop(); }
    void OnDeactivate() override { KeepOnTop(); }
    void OnKeyDown(int& keyCode, forms::Modifiers modifiers) override;
    void OnMouseDown(const forms::MouseInput& input) override;

  private:
    void PlaceDisplays();
    void PlaceLists();
    void PlaceKeys();
    void NameKeys();
    void ConnectEvents();
    void ConnectKeys();
    void ConnectTyping();
    void FillLists();

    // EngineListener.
    void ShowValues() override;
    double ShownValue() const override;
    void ReportDivisionByZero() override;
    void ShowMemoryMark(bool visible) override;

    bool IsInLei() const;
    forms::NumericDisplay& ActiveDisplay();  ///< of the unit that is typed in
    void cmbPrecizie_Click();
    void cmbUM_Click();
    void cmdVal_Click();
    void Operator_Click(int index);
    void Key_KeyDown(int& keyCode);
    void Key_KeyPress(char32_t& character);
    void Press(Command command);
    void PressAndFocus(Command command);
    KeyButton* KeyOf(Command command);

    shell::Module& module_;
    Engine engine_;
    double rate_ = 1;
    std::string currency_;  ///< the code that the chooser was last called with
};

}  // namespace tavrin::calculator
