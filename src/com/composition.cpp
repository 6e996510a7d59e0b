#include "com/composition.h"

#include "addressbook/agenda.h"
#include "calculator/frm_calculator.h"
#include "notes/notes.h"
#include "rates/curs_valutar.h"
#include "shell/utilitati.h"

namespace tavrin::com {
namespace {

constexpr int CalculatorButton = 2;

void OpenCalculator(shell::Application& application) {
    auto& window = application.Default<calculator::FrmCalculator>();
    window.Load();
    window.Show();
}

}  // namespace

void AddWindows(shell::Application& application) {
    application.AddLauncher("Notes",
                            [](shell::Application& owner) { owner.Default<notes::Notes>().ShowForm(); });
    application.AddLauncher(
        "Agenda", [](shell::Application& owner) { owner.Default<addressbook::Agenda>().ShowForm(); });
    application.AddLauncher("frmCalculator", OpenCalculator);
    application.AddLauncher(
        "CursValutar", [](shell::Application& owner) { owner.Default<rates::CursValutar>().ShowForm(); });
}

void OpenPalette(shell::Application& application) {
    auto& palette = application.Default<shell::Utilitati>();
    palette.Load();
    palette.Show();
    palette.cmdAction[CalculatorButton].SetFocus();
}

}  // namespace tavrin::com
