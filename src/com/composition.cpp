#include "com/composition.h"

#include "addressbook/agenda.h"
#include "calculator/frm_calculator.h"
#include "notes/notes.h"
#include "rates/curs_valutar.h"
#include "shell/utilitati.h"

namespace tavrin::com {
namespace {

constexpr int CalculatorButton = 2;

void OpenCalculator(shell::Module& module) {
    auto& window = module.Default<calculator::FrmCalculator>();
    window.Load();
    window.Show();
}

}  // namespace

void AddWindows(shell::Module& module) {
    module.AddLauncher("Notes", [](shell::Module& owner) { owner.Default<notes::Notes>().ShowForm(); });
    module.AddLauncher("Agenda",
                       [](shell::Module& owner) { owner.Default<addressbook::Agenda>().ShowForm(); });
    module.AddLauncher("frmCalculator", OpenCalculator);
    module.AddLauncher("CursValutar",
                       [](shell::Module& owner) { owner.Default<rates::CursValutar>().ShowForm(); });
}

void OpenPalette(shell::Module& module) {
    auto& palette = module.Default<shell::Utilitati>();
    palette.Load();
    palette.Show();
    palette.cmdAction[CalculatorButton].SetFocus();
}

}  // namespace tavrin::com
