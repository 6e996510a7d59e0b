#include "forms/model/keys.h"
#include "host/windows/catalogue.h"

namespace tavrin::host {
namespace {

constexpr ButtonClick OpenList{"Utilitati", "cmdAction(3)"};

std::vector<WindowEntry> RateWindows() {
    return {
        {"CursValutar",
         {{"RateList", "Curs Valutar", {OpenList}}},
         {"Sunteti sigur ca doriti sa stergeti cursul valutar", "Acest curs a fost validat !",
          "Data documentului introdus nu poate fi mai mica", "Nu puteti sterge toate monedele !",
          "Eroare 13\n"}},  // a day is to be changed where the list has none
        {"CursValutarDetaliu",
         {{"RateEntry", "Curs Valutar - Adaugare", {OpenList, {"CursValutar", "cmdAction(0)"}}},
          {"RateModify", "Curs Valutar - Modificare", {OpenList, {"CursValutar", "cmdAction(1)"}}}},
         {"Valoare obligatorie !", "Valoarea cursului trebuie sa fie >= 0  !",
          "Exista curs valutar la aceasta data!"}},
        {"CereMoneda",
         {{"AddCurrency", "Adauga Moneda", {OpenList, {"CursValutar", "cmdAction(3)"}}}},
         {"Nume Obligatoriu", "Moneda deja existenta !",
          "String or binary data would be truncated.",   // a currency's name is too long
          "Incorrect syntax near ",                      // a currency's name ends its quotation
          "Unclosed quotation mark ",                    // the same
          "The embedded database does not understand ",  // the same, in words that a server might take
          "Lipseste conexiunea la baza de date "}},      // a host without one
        {"EvolutieCurs",
         {{"Evolution", "Evolutie Curs", {OpenList, {"CursValutar", "cmdAction(5)"}}},
          {"EvolutionWithChart",
           "Evolutie Curs",
           {OpenList, {"CursValutar", "cmdAction(5)"}, {"EvolutieCurs", "cmdAction(1)"}}}},
         {}},
        {"AlegeMoneda",
         {{"CurrencyChooser", "Alege Moneda", {{"Utilitati", "cmdAction(2)"}, {"frmCalculator", "cmdVal"}}}},
         {}},
    };
}

/// From its place at the start to the left of the rate list, over the host's window.
TourAction DragPaletteToList() {
    return {"Utilitati", "picCaption", "", "", {36, 281}};
}

std::vector<TourStep> ListAndEntrySteps() {
    const std::string enter = Key(forms::key::Enter);
    return {
        {"rate-list", {{"frmCalculator", "cmdUnload"}, {"Utilitati", "cmdAction(3)"}}, {"CursValutar"}},
        {"overview", {DragPaletteToList(), {"CursValutar", "Grid"}}, {HostClass, "Utilitati", "CursValutar"}},
        {"calendar", {{"CursValutar", "dpDataIn", Key(forms::key::F4)}}, {"CursValutar", "Calendar"}},
        {"question",
         {Press(Key(forms::key::Escape)), {"CursValutar", "cmdAction(2)"}},
         {"CursValutar", MessageClass}},
        {"rate-entry", {Press("N"), {"CursValutar", "cmdAction(0)"}}, {"CursValutarDetaliu"}},
        {"rate-entry-editing",
         {{"CursValutarDetaliu", "DataCurs", enter + "40315" + enter + "32610"}},
         {"CursValutarDetaliu"}},
        {"rate-entry-modify",
         {{"CursValutarDetaliu", "cmdAction(1)"}, {"CursValutar", "cmdAction(1)"}},
         {"CursValutarDetaliu"}},
        {"add-currency",
         {{"CursValutarDetaliu", "cmdAction(1)"}, {"CursValutar", "cmdAction(3)"}},
         {"CereMoneda"}},
    };
}

std::vector<TourStep> EvolutionSteps() {
    const std::string chooseLast = Key(forms::key::End) + Key(forms::key::Enter);
    return {
        {"evolution-prompt",
         {{"CereMoneda", "cmdAction(1)"}, {"CursValutar", "cmdAction(5)"}},
         {"EvolutieCurs"}},
        {"evolution", {{"EvolutieCurs", "cmdAction(1)"}}, {"EvolutieCurs"}},
        {"evolution-months", {{"EvolutieCurs", "cmbLuna"}}, {"EvolutieCurs", ListClass}},
        {"evolution-year", {Press(chooseLast), {"EvolutieCurs", "cmdAction(1)"}}, {"EvolutieCurs"}},
        {"evolution-no-data",
         {{"EvolutieCurs", "cmbAn", chooseLast},
          {"EvolutieCurs", "cmbLuna", Key(forms::key::Up) + Key(forms::key::Enter)},
          {"EvolutieCurs", "cmdAction(1)"}},
         {"EvolutieCurs"}},
    };
}

}  // namespace

Utility DescribeRates() {
    std::vector<TourStep> tour = ListAndEntrySteps();
    for (TourStep& step : EvolutionSteps())
        tour.push_back(std::move(step));
    return {"src/rates", RateWindows(), std::move(tour)};
}

}  // namespace tavrin::host
