#include "forms/model/keys.h"
#include "host/windows/catalogue.h"

namespace tavrin::host {

Utility DescribeCalculator() {
    const std::string enter = Key(forms::key::Enter);
    return {"src/calculator",
            {{"frmCalculator",
              {{"Calculator", "Calculator", {{"Utilitati", "cmdAction(2)"}}}},
              {"Impartire la 0 !!",
               "Eroare 6\n",      // a result is too large for a number
               "Eroare 11\n"}}},  // a rate is 0, which may be entered
            {
                {"calculator",
                 {{"Utilitati", "imgRollup(1)"},
                  {"Utilitati", "cmdAction(2)"},
                  {"frmCalculator", "Number(1)", "25000"}},
                 {"frmCalculator"}},
                {"currency-chooser", {{"frmCalculator", "cmdVal"}}, {"AlegeMoneda"}},
                {"error-report", {{"AlegeMoneda", "cmbMoneda", "", "?"}}, {"AlegeMoneda", MessageClass}},
                {"calculator-with-rate",
                 {Press(enter),
                  {"AlegeMoneda", "cmdAction(1)"},
                  {"frmCalculator", "cmdVal"},
                  {"AlegeMoneda", "cmdAction(0)"}},
                 {"frmCalculator"}},
                {"calculator-memory",
                 {{"frmCalculator", "cmdMPlus"}, {"frmCalculator", "cmdMR"}},
                 {"frmCalculator"}},
            }};
}

}  // namespace tavrin::host
