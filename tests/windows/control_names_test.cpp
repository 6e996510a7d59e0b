// What hosts and their tools reach controls by: every window's controls are called by fixed names.

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "addressbook/agenda.h"
#include "calculator/frm_calculator.h"
#include "notes/notes.h"
#include "rates/alege_moneda.h"
#include "rates/cere_moneda.h"
#include "rates/curs_valutar.h"
#include "rates/curs_valutar_detaliu.h"
#include "rates/evolutie_curs.h"
#include "shell/utilitati.h"
#include "support/window_test.h"

namespace tavrin::tests {
namespace {

using testing::UnorderedElementsAreArray;
using Names = std::vector<std::string>;

class ControlNamesTest : public WindowTest {
  protected:
    ~ControlNamesTest() override { desktop.UnloadAll(); }

    static Names Array(const std::string& name, const std::vector<int>& indices) {
        Names names;
        for (const int index : indices)
            names.push_back(name + "(" + std::to_string(index) + ")");
        return names;
    }

    static Names FirstOf(const std::string& name, int count) {
        std::vector<int> indices;
        for (int index = 0; index < count; ++index)
            indices.push_back(index);
        return Array(name, indices);
    }

    template <class Window>
    void Expect(const std::string& windowName, const std::vector<Names>& expected) {
        const auto& window = application.Default<Window>();
        EXPECT_EQ(window.Name(), windowName);
        Names names;
        for (const forms::Control* control : window.AllControls())
            names.push_back(control->QualifiedName());
        Names all;
        for (const Names& some : expected)
            all.insert(all.end(), some.begin(), some.end());
        EXPECT_THAT(names, UnorderedElementsAreArray(all)) << windowName;
    }
};

TEST_F(ControlNamesTest, OfThePalette) {
    Expect<shell::Utilitati>("Utilitati", {{"picCaption", "imgClose", "Label1", "Label2", "Label3", "Label4"},
                                           FirstOf("imgRollup", 2),
                                           FirstOf("cmdAction", 4)});
}

TEST_F(ControlNamesTest, OfTheRateList) {
    Expect<rates::CursValutar>("CursValutar", {{"fraGrid", "Grid", "dpDataIn", "dpDataFin", "cmdRefresh"},
                                               FirstOf("lblLabels", 2),
                                               Array("cmdAction", {0, 1, 2, 3, 5, 6})});
}

TEST_F(ControlNamesTest, OfTheRateEntry) {
    Expect<rates::CursValutarDetaliu>(
        "CursValutarDetaliu",
        {{"lblDescriere", "DataCurs", "txtCursValutar", "Grid"}, FirstOf("cmdAction", 2)});
}

TEST_F(ControlNamesTest, OfTheCurrencyQuestion) {
    Expect<rates::CereMoneda>(
        "CereMoneda",
        {{"Frame1", "Shape14", "txtMoneda", "cmbMoneda"}, FirstOf("lblLabels", 1), FirstOf("cmdAction", 2)});
}

TEST_F(ControlNamesTest, OfTheCurrencyChooser) {
    Expect<rates::AlegeMoneda>("AlegeMoneda", {{"Label2", "cmbMoneda", "Grid"}, FirstOf("cmdAction", 2)});
}

TEST_F(ControlNamesTest, OfTheEvolution) {
    Expect<rates::EvolutieCurs>(
        "EvolutieCurs",
        {{"Label1", "cmbAn", "Label2", "cmbLuna", "Label5", "cmbMoneda", "Line1", "Line2", "Line3"},
         {"fraMesaj", "lblMesaj1", "lblMesaj2", "fraGrafic", "MSChart1", "Grid"},
         FirstOf("cmdAction", 2)});
}

TEST_F(ControlNamesTest, OfTheCalculator) {
    Expect<calculator::FrmCalculator>("frmCalculator",
                                      {{"z", "lblCurs", "lblM", "Shape1", "ValLei", "Shape2", "ValValuta"},
                                       {"Decimal", "Cancel", "CancelEntry", "cmdMC", "cmdMR", "cmdMPlus"},
                                       {"cmdMMinus", "cmbUM", "cmbPrecizie", "cmdVal", "cmdUnload"},
                                       FirstOf("Number", 10),
                                       FirstOf("Operator", 7)});
}

TEST_F(ControlNamesTest, OfTheNotes) {
    Expect<notes::Notes>("Notes", {{"PctBarreFond", "txtNota"}, FirstOf("ImgBouton", 8)});
}

TEST_F(ControlNamesTest, OfTheAddressBook) {
    Expect<addressbook::Agenda>("Agenda",
                                {{"fraPersoana", "fraGrid", "Grid", "imgAgenda", "Line1", "Line2", "Line3"},
                                 FirstOf("cmdAction", 5),
                                 FirstOf("Label2", 21),
                                 FirstOf("TextBoxes", 18)});
}

}  // namespace
}  // namespace tavrin::tests
