#pragma once

#include <string>

#include "calculator/frm_calculator.h"
#include "rates/alege_moneda.h"
#include "support/rates_test.h"

namespace tavrin::tests {

/// The calculator and its currency chooser on a small database that has the currency "$", which the
/// calculator asks for first: 4 lei on 13 May 2003, 4.5 on the newest day.
class CalculatorTest : public RatesTest {
  protected:
    CalculatorTest() {
        Run("ALTER TABLE [Curs Valutar] ADD  [$] float");
        Run("UPDATE [Curs Valutar] SET [$] = 3.5");
        Run("UPDATE [Curs Valutar] SET [$] = 4 WHERE [Data] = '05-13-2003'");
        Run("UPDATE [Curs Valutar] SET [$] = 4.5 WHERE [Data] = '05-14-2003'");
    }

    calculator::FrmCalculator& Open() {
        auto& window = application.Default<calculator::FrmCalculator>();
        window.Load();
        window.Show();
        return window;
    }

    calculator::FrmCalculator* Calculator() { return application.Loaded<calculator::FrmCalculator>(); }
    rates::AlegeMoneda* Chooser() { return application.Loaded<rates::AlegeMoneda>(); }

    rates::AlegeMoneda& OpenChooser() {
        Calculator()->cmdVal.Click();
        return *Chooser();
    }

    /// "12,00 Lei | 2,67 $": both displays as they are read.
    std::string Shown() {
        const calculator::FrmCalculator& window = *Calculator();
        return window.ValLei.Accessible().value + " " + window.ValLei.UnitText() + " | " +
               window.ValValuta.Accessible().value + " " + window.ValValuta.UnitText();
    }

    void SpeakEnglish() {
        desktop.locale.decimalSeparator = ".";
        desktop.locale.thousandsSeparator = ",";
    }
};

}  // namespace tavrin::tests
