// The address book as it opens: places, captions, tab order, colours, state.

#include "windows/agenda_fixture.h"

namespace tavrin::tests {
namespace {

using addressbook::Agenda;
using forms::Icon;
using forms::Rect;

bool Overlap(const Rect& left, const Rect& right) {
    return left.left < right.Right() && right.left < left.Right() && left.top < right.Bottom() &&
           right.top < left.Bottom();
}

class AgendaDesignTest : public AgendaTest {};

TEST_F(AgendaDesignTest, WindowAndFramesStandWhereTheyWereDesigned) {
    const Agenda& window = OpenOnThree();
    EXPECT_EQ(window.Name(), "Agenda");
    EXPECT_EQ(window.Caption(), "Agenda");
    EXPECT_EQ(window.fraGrid.Bounds().left, 30);
    EXPECT_EQ(window.fraGrid.Bounds().width, 3315);
    EXPECT_EQ(window.fraGrid.Bounds().height, 6675);
    EXPECT_EQ(window.fraPersoana.Bounds().left, 3315);
    EXPECT_EQ(window.fraPersoana.Bounds().width, 7275);
}

TEST_F(AgendaDesignTest, LabelsStayBehindTheirValues) {
    const Agenda& window = OpenOnThree();
    for (int box = 0; box < Agenda::BoxCount; ++box) {
        EXPECT_EQ(window.Label2[box].ForeColor(), forms::scheme::LabelText);
        EXPECT_EQ(window.TextBoxes[box].ForeColor(), forms::scheme::Value);
    }
    EXPECT_EQ(window.Label2[Agenda::PersonHeading].ForeColor(), forms::scheme::Text);
}

TEST_F(AgendaDesignTest, ButtonsStandInOneRowWithTheirCaptionsAndAccelerators) {
    const Agenda& window = OpenOnThree();
    struct Expected {
        int index;
        const char* caption;
        char32_t accelerator;
        int left;
        int tabIndex;
    };
    for (const Expected& expected : {Expected{2, "Adauga", U'A', 3360, 18},
                                     {3, "Modifica", U'M', 4680, 19},
                                     {4, "Sterge", U'S', 6000, 20},
                                     {0, "Accepta", U'C', 7920, 21},
                                     {1, "Renunta", U'R', 9240, 22}}) {
        const forms::CommandButton& button = window.cmdAction[expected.index];
        EXPECT_EQ(button.Caption(), expected.caption);
        EXPECT_EQ(button.Accelerator(), expected.accelerator) << expected.caption;
        EXPECT_EQ(button.Bounds(), (Rect{expected.left, 6180, 1290, 375})) << expected.caption;
        EXPECT_EQ(button.TabIndex(), expected.tabIndex) << expected.caption;
    }
}

TEST_F(AgendaDesignTest, PicturesComeByTheirNumbers) {
    const Agenda& window = OpenOnThree();
    EXPECT_EQ(window.cmdAction[0].Picture(), Icon::Accept);
    EXPECT_EQ(window.cmdAction[1].Picture(), Icon::Cancel);
    EXPECT_EQ(window.cmdAction[2].Picture(), Icon::Add);
    EXPECT_EQ(window.cmdAction[3].Picture(), Icon::Modify);
    EXPECT_EQ(window.cmdAction[4].Picture(), Icon::Remove);
    EXPECT_EQ(window.imgAgenda.Picture(), Icon::AddressBook);
}

TEST_F(AgendaDesignTest, EveryBoxHasItsLabelOnItsLeft) {
    const Agenda& window = OpenOnThree();
    const std::vector<std::string> captions = {
        "Nume:",  "Prenume:",    "Nume:",       "Prenume:", "Adresa:",      "Oras:",
        "Judet:", "Tel. acasa:", "Tel. mobil:", "E-mail:",  "Denumire:",    "Adresa:",
        "Oras:",  "Judet:",      "Telefon:",    "Fax:",     "Departament:", "Functie:"};
    for (int box = 0; box < 18; ++box) {
        const Rect& label = window.Label2[box].Bounds();
        const Rect& field = window.TextBoxes[box].Bounds();
        EXPECT_EQ(window.Label2[box].Caption(), captions[static_cast<std::size_t>(box)]);
        EXPECT_EQ(label.top, field.top) << box;
        EXPECT_EQ(field.left - label.Right(), 60) << box;
        EXPECT_EQ(window.TextBoxes[box].TextFont().face, "Arial");
        EXPECT_EQ(window.TextBoxes[box].QualifiedName(), "TextBoxes(" + std::to_string(box) + ")");
    }
    EXPECT_EQ(window.Label2[18].Caption(), "Cautare persoana");
    EXPECT_EQ(window.Label2[19].Caption(), "Date Personale");
    EXPECT_EQ(window.Label2[20].Caption(), "Date Firma");
}

TEST_F(AgendaDesignTest, BoxesStandInEvenRowsThatTwoColumnsShare) {
    const Agenda& window = OpenOnThree();
    // Each row by its boxes, below one heading.
    const std::vector<std::vector<std::vector<int>>> groups = {
        {{0}, {1}}, {{2, 3}}, {{4}, {5, 6}, {7, 8}, {9}}, {{10}, {11}, {12, 13}, {14, 15}, {16, 17}}};
    for (const auto& rows : groups) {
        for (std::size_t row = 0; row < rows.size(); ++row) {
            const int top = window.TextBoxes[rows[row].front()].Bounds().top;
            for (const int box : rows[row])
                EXPECT_EQ(window.TextBoxes[box].Bounds().top, top) << box;
            if (row < 2) continue;
            const int above = window.TextBoxes[rows[row - 1].front()].Bounds().top;
            const int beforeThat = window.TextBoxes[rows[row - 2].front()].Bounds().top;
            EXPECT_EQ(top - above, above - beforeThat) << rows[row].front();
        }
    }
}

TEST_F(AgendaDesignTest, ColumnsLineUp) {
    const Agenda& window = OpenOnThree();
    const auto expectAligned = [&](const std::vector<int>& boxes) {
        const Rect& first = window.TextBoxes[boxes.front()].Bounds();
        for (const int box : boxes) {
            EXPECT_EQ(window.TextBoxes[box].Bounds().left, first.left) << box;
            EXPECT_EQ(window.TextBoxes[box].Bounds().width, first.width) << box;
        }
    };
    const std::vector<int> left = {2, 5, 7, 12, 14, 16};
    const std::vector<int> right = {3, 6, 8, 13, 15, 17};
    const std::vector<int> full = {4, 9, 10, 11};
    for (const auto& column : {std::vector<int>{0, 1}, left, right, full})
        expectAligned(column);
    EXPECT_EQ(window.TextBoxes[full.front()].Bounds().left, window.TextBoxes[left.front()].Bounds().left);
    EXPECT_EQ(window.TextBoxes[full.front()].Bounds().Right(),
              window.TextBoxes[right.front()].Bounds().Right());
    EXPECT_EQ(window.TextBoxes[left.front()].Bounds().width, window.TextBoxes[right.front()].Bounds().width);
}

TEST_F(AgendaDesignTest, TheSearchStandsInTheListsFrameAndTheDetailsInTheirs) {
    Agenda& window = OpenOnThree();
    for (int box = 0; box < 18; ++box) {
        const forms::Container* expected =
            box < 2 ? static_cast<forms::Container*>(&window.fraGrid) : &window.fraPersoana;
        EXPECT_EQ(&window.TextBoxes[box].Parent(), expected) << box;
    }
    EXPECT_EQ(&window.Grid.Parent(), &window.fraGrid);
}

TEST_F(AgendaDesignTest, NothingIsCutOffAndNothingCoversAnythingElse) {
    Agenda& window = OpenOnThree();
    for (forms::Frame* frame : {&window.fraGrid, &window.fraPersoana}) {
        const auto& controls = frame->Controls();
        for (std::size_t i = 0; i < controls.size(); ++i) {
            const Rect& bounds = controls[i]->Bounds();
            EXPECT_GE(bounds.left, 0) << controls[i]->QualifiedName();
            EXPECT_LE(bounds.Right(), frame->Bounds().width) << controls[i]->QualifiedName();
            EXPECT_LE(bounds.Bottom(), frame->Bounds().height) << controls[i]->QualifiedName();
            EXPECT_FALSE(bounds.IsEmpty()) << controls[i]->QualifiedName();
            for (std::size_t k = 0; k < i; ++k) {
                EXPECT_FALSE(Overlap(bounds, controls[k]->Bounds()))
                    << controls[i]->QualifiedName() << " and " << controls[k]->QualifiedName();
            }
        }
    }
    EXPECT_LE(window.fraPersoana.Bounds().Right(), window.ClientSize().width);
    EXPECT_LE(window.fraPersoana.Bounds().Bottom(), window.ClientSize().height);
    for (const auto& button : window.cmdAction) {
        EXPECT_LE(button->Bounds().Right(), window.ClientSize().width);
        EXPECT_LE(button->Bounds().Bottom(), window.ClientSize().height);
        for (int box = 2; box < 18; ++box) {
            Rect field = window.TextBoxes[box].Bounds();
            field.left += window.fraPersoana.Bounds().left;
            EXPECT_FALSE(Overlap(button->Bounds(), field)) << button->Caption() << " and " << box;
        }
    }
    // The details begin where the list has ended.
    EXPECT_LE(window.fraGrid.Bounds().left + window.Grid.Bounds().Right(), window.fraPersoana.Bounds().left);
}

TEST_F(AgendaDesignTest, DetailsLieOverTheListAndButtonsOverBoth) {
    const Agenda& window = OpenOnThree();
    // The first declared lies on top.
    const auto& controls = window.Controls();
    const auto place = [&](const forms::Control* control) { return std::ranges::find(controls, control); };
    EXPECT_LT(place(&window.fraPersoana), place(&window.fraGrid));
    for (const auto& button : window.cmdAction)
        EXPECT_LT(place(button.get()), place(&window.fraPersoana));
}

TEST_F(AgendaDesignTest, TabGoesThroughTheBoxesThenTheButtonsThenTheList) {
    const Agenda& window = OpenOnThree();
    std::vector<std::string> order;
    for (const forms::Control* control : window.AllControls()) {
        if (control->IsFocusable()) order.push_back(control->QualifiedName());
    }
    std::vector<std::string> expected;
    for (int box = 0; box < 18; ++box)
        expected.push_back("TextBoxes(" + std::to_string(box) + ")");
    for (const char* last :
         {"cmdAction(2)", "cmdAction(3)", "cmdAction(4)", "cmdAction(0)", "cmdAction(1)", "Grid"})
        expected.emplace_back(last);
    EXPECT_EQ(order, expected);
}

TEST_F(AgendaDesignTest, IsDressedInTheDarkScheme) {
    const Agenda& window = OpenOnThree();
    EXPECT_EQ(window.BackColor(), 0x000000U);
    for (const auto& box : window.TextBoxes) {
        EXPECT_TRUE(box->Bordered());
        EXPECT_EQ(box->BackColor(), 0x000000U);
        EXPECT_EQ(box->ForeColor(), 0x00FF00U);
    }
}

TEST_F(AgendaDesignTest, OpensBrowsingWithTheDesignedCaptionRenunta) {
    const Agenda& window = OpenOnThree();
    EXPECT_EQ(window.Mode, addressbook::EditMode::Browse);
    EXPECT_THAT(ButtonsInSight(window), testing::ElementsAre("Adauga", "Modifica", "Sterge", "Renunta"));
    EXPECT_EQ(LockedBoxes(window), Boxes(2, 17));
    EXPECT_FALSE(window.fraPersoana.Enabled());
    EXPECT_TRUE(window.fraGrid.Enabled());
    EXPECT_EQ(FocusedControl(), "Grid");
}

TEST_F(AgendaDesignTest, KeepsItselfOnTopWhenItIsEnteredAndWhenItIsLeft) {
    Agenda& window = OpenOnThree();
    EXPECT_EQ(desktop.CallsOf(window).keptOnTop, 1);
    desktop.ActivateByUser(nullptr);
    EXPECT_EQ(desktop.CallsOf(window).keptOnTop, 2);
    desktop.ActivateByUser(&window);
    EXPECT_EQ(desktop.CallsOf(window).keptOnTop, 3);
}

TEST_F(AgendaDesignTest, EachLoadingMakesAMessageServiceOnce) {
    OpenOnThree();
    EXPECT_EQ(messages.created, 1);
    application.Default<Agenda>().ShowForm();
    EXPECT_EQ(messages.created, 1) << "it was only shown again";
    application.Default<Agenda>().Unload();
    application.Default<Agenda>().ShowForm();
    EXPECT_EQ(messages.created, 2);
}

TEST_F(AgendaDesignTest, AssistiveToolsHearWhatEachBoxIsFor) {
    const Agenda& window = OpenOnThree();
    std::vector<std::string> spoken;
    for (const auto& box : window.TextBoxes)
        spoken.push_back(box->Accessible().name);
    EXPECT_THAT(spoken,
                testing::ElementsAre("Cautare dupa nume", "Cautare dupa prenume", "Nume", "Prenume", "Adresa",
                                     "Oras", "Judet", "Telefon acasa", "Telefon mobil", "E-mail",
                                     "Denumire firma", "Adresa firma", "Oras firma", "Judet firma",
                                     "Telefon firma", "Fax firma", "Departament", "Functie"));
    EXPECT_EQ(window.Grid.Accessible().name, "Persoane");
}

}  // namespace
}  // namespace tavrin::tests
