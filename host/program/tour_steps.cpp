#include "host/program/tour_steps.h"

#include <utility>

namespace tavrin::host {
namespace {

using Steps = std::vector<TourStep>;

constexpr const char* Message = "#32770";
constexpr const char* List = "ComboLBox";
constexpr const char* HostClass = "TavrinHost";

/// From its place at the start to the left of the rate list, over the host's window.
constexpr POINT PaletteToList{36, 281};

std::string Key(int code) {
    return {static_cast<char>(code)};
}

const std::string Enter = Key(VK_RETURN);
const std::string Escape = Key(VK_ESCAPE);

/// What is pressed wherever the keyboard is.
TourAction Press(std::string keys) {
    return {nullptr, nullptr, std::move(keys)};
}

Steps PaletteSteps() {
    return {
        {"palette", {}, {"Utilitati"}},
        {"palette-rolled-up", {{"Utilitati", "imgRollup(0)"}}, {"Utilitati"}},
    };
}

Steps CalculatorSteps() {
    return {
        {"calculator",
         {{"Utilitati", "imgRollup(1)"},
          {"Utilitati", "cmdAction(2)"},
          {"frmCalculator", "Number(1)", "25000"}},
         {"frmCalculator"}},
        {"currency-chooser", {{"frmCalculator", "cmdVal"}}, {"AlegeMoneda"}},
        {"error-report", {{"AlegeMoneda", "cmbMoneda", "", L"?"}}, {"AlegeMoneda", Message}},
        {"calculator-with-rate",
         {Press(Enter),
          {"AlegeMoneda", "cmdAction(1)"},
          {"frmCalculator", "cmdVal"},
          {"AlegeMoneda", "cmdAction(0)"}},
         {"frmCalculator"}},
        {"calculator-memory", {{"frmCalculator", "cmdMPlus"}, {"frmCalculator", "cmdMR"}}, {"frmCalculator"}},
    };
}

Steps RateSteps() {
    return {
        {"rate-list", {{"frmCalculator", "cmdUnload"}, {"Utilitati", "cmdAction(3)"}}, {"CursValutar"}},
        {"overview",
         {{"Utilitati", "picCaption", "", L"", PaletteToList}, {"CursValutar", "Grid"}},
         {HostClass, "Utilitati", "CursValutar"}},
        {"calendar", {{"CursValutar", "dpDataIn", Key(VK_F4)}}, {"CursValutar", "Calendar"}},
        {"question", {Press(Escape), {"CursValutar", "cmdAction(2)"}}, {"CursValutar", Message}},
        {"rate-entry", {Press("N"), {"CursValutar", "cmdAction(0)"}}, {"CursValutarDetaliu"}},
        {"rate-entry-editing",
         {{"CursValutarDetaliu", "DataCurs", Enter + "40315" + Enter + "32610"}},
         {"CursValutarDetaliu"}},
        {"rate-entry-modify",
         {{"CursValutarDetaliu", "cmdAction(1)"}, {"CursValutar", "cmdAction(1)"}},
         {"CursValutarDetaliu"}},
        {"add-currency",
         {{"CursValutarDetaliu", "cmdAction(1)"}, {"CursValutar", "cmdAction(3)"}},
         {"CereMoneda"}},
    };
}

Steps EvolutionSteps() {
    const std::string last = Key(VK_END);
    return {
        {"evolution-prompt",
         {{"CereMoneda", "cmdAction(1)"}, {"CursValutar", "cmdAction(5)"}},
         {"EvolutieCurs"}},
        {"evolution", {{"EvolutieCurs", "cmdAction(1)"}}, {"EvolutieCurs"}},
        {"evolution-months", {{"EvolutieCurs", "cmbLuna"}}, {"EvolutieCurs", List}},
        {"evolution-year", {Press(last + Enter), {"EvolutieCurs", "cmdAction(1)"}}, {"EvolutieCurs"}},
        {"evolution-no-data",
         {{"EvolutieCurs", "cmbAn", last + Enter},
          {"EvolutieCurs", "cmbLuna", Key(VK_UP) + Enter},
          {"EvolutieCurs", "cmdAction(1)"}},
         {"EvolutieCurs"}},
    };
}

Steps AddressBookSteps() {
    return {
        {"address-book", {{"EvolutieCurs", "cmdAction(0)"}, {"Utilitati", "cmdAction(1)"}}, {"Agenda"}},
        {"address-book-modify", {{"Agenda", "cmdAction(3)"}}, {"Agenda"}},
        {"address-book-entry", {{"Agenda", "cmdAction(1)"}, {"Agenda", "cmdAction(2)"}}, {"Agenda"}},
        {"address-book-compact",
         {{"Agenda", "cmdAction(1)"}, {"Agenda", "TextBoxes(0)", "NIMENI" + Enter}},
         {"Agenda"}},
    };
}

Steps NotesSteps() {
    return {
        {"notes",
         {{"Agenda", "cmdAction(1)"},
          {"Utilitati", "cmdAction(0)"},
          {"Notes", "ImgBouton(4)", "", L"Luni, 1 decembrie"},
          {"Notes", "ImgBouton(4)", "", L"\rBanca: curs EUR \u0219i USD, 500 \u20ac\r"},
          {"Notes", "ImgBouton(5)", "", L"de trimis balan\u021ba pe noiembrie\r"},
          {"Notes", "ImgBouton(5)"},
          {"Notes", "ImgBouton(6)", "", L"Sun\u0103 la Radu"}},
         {"Notes"}},
    };
}

}  // namespace

const std::vector<TourStep>& TourSteps() {
    static const Steps steps = [] {
        Steps all;
        for (Steps (*part)() :
             {PaletteSteps, CalculatorSteps, RateSteps, EvolutionSteps, AddressBookSteps, NotesSteps}) {
            for (TourStep& step : part())
                all.push_back(std::move(step));
        }
        return all;
    }();
    return steps;
}

}  // namespace tavrin::host
