#pragma once

#include <array>
#include <string>

#include "calculator/conversion.h"
#include "calculator/engine.h"
#include "calculator/key_button.h"
#include "forms/controls/combo_box.h"
#include "forms/controls/command_button.h"
#include "forms/controls/decoration.h"
#include "forms/controls/frame.h"
#include "forms/controls/label.h"
#include "forms/controls/numeric_display.h"
#include "forms/model/control_array.h"
#include "forms/model/form.h"
#include "rates/currency_target.h"
#include "shell/application.h"

namespace tavrin::calculator {

/// The calculator's window: runs the engine and shows what the conversion holds, every value twice, in lei
/// and in a currency at one rate. The user chooses in which of the two the numbers are typed.
class FrmCalculator : public forms::Form, public rates::CurrencyTarget, private EngineListener {
  public:
    explicit FrmCalculator(shell::Application& application);

    /// Lei for one unit of the currency. Setting it converts nothing by itself.
    double CursCurent() const { return conversion_.Rate(); }
    void SetCursCurent(double rate) { conversion_.SetRate(rate); }

    // For the currency chooser.
    Form& CallingWindow() override { return *this; }
    CurrencyTarget& DefaultInstance() override { return application_.Default<FrmCalculator>(); }
    double AmountInLei() const override { return conversion_.WorthInLei(); }
    void TakeChoice(const rates::CurrencyChoice& choice) override;

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
    void OnDeactivate() override;
    void OnKeyDown(int& keyCode, forms::Modifiers modifiers) override;
    /// The number of the lit display, as it is shown.
    std::optional<forms::Copied> Copy() const override;
    void OnKeyUp() override { ReleaseKeys(); }
    void OnMouseDown(const forms::MouseInput& input) override;

  private:
    void PlaceDisplays();
    void PlaceLists();
    void PlaceKeys();
    void NameKeys();
    void ConnectEvents();
    void ConnectKeys();
    void AssignKeys();
    void ConnectTyping();
    void FillLists();

    // EngineListener.
    void ShowValues() override;
    void ReportDivisionByZero() override;
    void ShowMemoryMark(bool visible) override;

    forms::NumericDisplay& ActiveDisplay();  ///< of the unit that is typed in
    void cmbPrecizie_Click();
    void cmbUM_Click();
    void cmdVal_Click();
    void Key_KeyDown(int& keyCode);
    void Key_KeyPress(char32_t& character);
    void Press(Command command);
    void PressAndFocus(Command command);
    KeyButton*& KeyOf(Command command) { return keys_[static_cast<std::size_t>(command)]; }
    /// Releases the keys that the keyboard holds down.
    void ReleaseKeys();

    shell::Application& application_;
    std::array<KeyButton*, CommandCount> keys_{};  ///< by command; Backspace has a character but no key
    Conversion conversion_;
    Engine engine_;
    std::string currency_;  ///< the code that the chooser was last called with
};

}  // namespace tavrin::calculator
