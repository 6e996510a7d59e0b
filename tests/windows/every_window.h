#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "addressbook/agenda.h"
#include "calculator/frm_calculator.h"
#include "host/embedded/demo_data.h"
#include "host/embedded/embedded_connection.h"
#include "rates/alege_moneda.h"
#include "rates/cere_moneda.h"
#include "rates/curs_valutar.h"
#include "rates/curs_valutar_detaliu.h"
#include "rates/evolutie_curs.h"
#include "shell/utilitati.h"
#include "support/window_test.h"

namespace tavrin::tests {

/// What has to hold for every window in every state: on the demo data, one window after the other.
class EveryWindowTest : public WindowTest {
  protected:
    using Look = std::function<void(forms::Form& form)>;

    EveryWindowTest() {
        StartAnew();
        module.context.connection = std::make_shared<host::EmbeddedConnection>(DemoData());
        module.context.workDate = data::ToOleDate({2003, 11, 28});
        module.context.workYear = 2003;
        module.context.companyId = 1;
    }
    ~EveryWindowTest() override { desktop.UnloadAll(); }

    /// Undoes what was done to the data.
    void StartAnew() {
        transaction_.reset();
        transaction_.emplace(*DemoData());
    }

    void ForEachWindow(const Look& look) {
        auto& palette = module.Default<shell::Utilitati>();
        palette.Show();
        look(palette);
        LookAtRates(look);
        LookAtEvolution(look);
        LookAtCalculator(look);
        LookAtAgenda(look);
    }

  private:
    /// Made once for all tests, which takes longer than most of them.
    static const std::shared_ptr<host::EmbeddedDatabase>& DemoData() {
        static const std::shared_ptr<host::EmbeddedDatabase> database = host::OpenDemoDatabase(":memory:");
        return database;
    }

    void LookAtRates(const Look& look) {
        auto& list = module.Default<rates::CursValutar>();
        list.ShowForm();
        look(list);
        for (const rates::EntryMode mode : {rates::EntryMode::Add, rates::EntryMode::Modify}) {
            auto& entry = module.Default<rates::CursValutarDetaliu>();
            entry.ShowForm(list.Currencies(), mode);
            look(entry);
            entry.Unload();
        }
        list.cmdAction[3].Click();
        auto& currency = module.Default<rates::CereMoneda>();
        look(currency);
        currency.Unload();
    }

    void LookAtEvolution(const Look& look) {
        auto& evolution = module.Default<rates::EvolutieCurs>();
        evolution.Show();
        look(evolution);
        evolution.cmdAction[1].Click();
        look(evolution);
    }

    void LookAtCalculator(const Look& look) {
        auto& calculator = module.Default<calculator::FrmCalculator>();
        calculator.Show();
        look(calculator);
        auto& chooser = module.Default<rates::AlegeMoneda>();
        chooser.ShowForm(calculator, "EUR");
        look(chooser);
        chooser.Unload();
    }

    void LookAtAgenda(const Look& look) {
        auto& agenda = module.Default<addressbook::Agenda>();
        agenda.ShowForm();
        look(agenda);
        agenda.cmdAction[addressbook::Agenda::Add].Click();
        look(agenda);
    }

    std::optional<host::EmbeddedDatabase::Transaction> transaction_;
};

}  // namespace tavrin::tests
