// The compact layout: nobody in the list, the details alone in sight.

#include "windows/agenda_fixture.h"

namespace tavrin::tests {
namespace {

namespace key = forms::key;
using addressbook::Agenda;
using addressbook::ListStatement;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr int FrameWidth = 3315;

class AgendaCompactTest : public AgendaTest {
  protected:
    void ExpectPlacedOnScreen(const Agenda& window) {
        const forms::Size screen = desktop.ScreenSize();
        EXPECT_EQ(window.Bounds().left, (screen.width - window.Bounds().width) / 2);
        EXPECT_EQ(window.Bounds().top, (screen.height - window.Bounds().height) / 2 - 500);
    }

    void ExpectCompact(const Agenda& window) {
        EXPECT_EQ(window.fraPersoana.Bounds().left, 0);
        ExpectPlacedOnScreen(window);
        ExpectAdding(window);
        EXPECT_THAT(DataBoxTexts(window), testing::Each(""));
        EXPECT_EQ(FocusedControl(), "TextBoxes(2)");
    }

    /// Everything that is in sight lies inside the window.
    static void ExpectNothingCutOff(const Agenda& window) {
        for (const auto& button : window.cmdAction) {
            if (!button->Visible()) continue;
            EXPECT_GE(button->Bounds().left, 0) << button->Caption();
            EXPECT_LE(button->Bounds().Right(), window.ClientSize().width) << button->Caption();
        }
        EXPECT_LE(window.fraPersoana.Bounds().Right(), window.ClientSize().width);
    }

    /// As a designer drew it, before anything is loaded.
    int DesignedWidth() { return application.Default<Agenda>().Bounds().width; }
};

TEST_F(AgendaCompactTest, AnEmptyBookOpensReadyForItsFirstPerson) {
    const int designed = DesignedWidth();
    const Agenda& window = Open();
    ExpectCompact(window);
    EXPECT_EQ(window.Grid.TextMatrix(0, 0), "Nume");
    EXPECT_EQ(window.Grid.TextMatrix(0, 1), "Prenume");
    EXPECT_EQ(window.Bounds().width, designed - FrameWidth);
    EXPECT_EQ(window.cmdAction[0].Bounds(), (forms::Rect{7920 - FrameWidth, 6180, 1290, 375}));
    EXPECT_EQ(window.cmdAction[1].Bounds(), (forms::Rect{9240 - FrameWidth, 6180, 1290, 375}));
    EXPECT_EQ(window.fraPersoana.Bounds().width, 7275);
    ExpectNothingCutOff(window);
    EXPECT_THAT(messages.shown, IsEmpty());
    EXPECT_THAT(desktop.reports, IsEmpty());
}

TEST_F(AgendaCompactTest, TheDetailsCoverTheListAndNoKeyReachesIt) {
    const Agenda& window = Open();
    const forms::Rect& details = window.fraPersoana.Bounds();
    const forms::Rect& list = window.fraGrid.Bounds();
    EXPECT_LE(details.left, list.left);
    EXPECT_GE(details.Right(), list.Right());
    EXPECT_LE(details.top, list.top);
    EXPECT_GE(details.Bottom(), list.Bottom());
    for (int i = 0; i < 30; ++i) {
        keyboard.Press(key::Tab);
        const std::string focused = FocusedControl();
        EXPECT_TRUE(focused != "Grid" && focused != "TextBoxes(0)" && focused != "TextBoxes(1)") << focused;
    }
}

TEST_F(AgendaCompactTest, TheFirstPersonBringsBackTheWideLayout) {
    const int designed = DesignedWidth();
    Agenda& window = Open();
    TypeNames(window, "Popa", "Ion");
    window.cmdAction[Agenda::Accept].Click();

    EXPECT_EQ(window.fraPersoana.Bounds().left, FrameWidth);
    EXPECT_EQ(window.cmdAction[0].Bounds().left, 7920 - 20);
    EXPECT_EQ(window.cmdAction[1].Bounds().left, 9240 - 20);
    EXPECT_EQ(window.Bounds().width, designed - FrameWidth + window.Grid.Bounds().width);
    EXPECT_LT(window.Grid.Bounds().width, FrameWidth);
    ExpectPlacedOnScreen(window);
    ExpectNothingCutOff(window);

    ExpectBrowsing(window);
    EXPECT_EQ(ShownName(window), "Popa Ion");
    ExpectWholeRowSelected(window, 1);
    EXPECT_EQ(FocusedControl(), "Grid");
}

TEST_F(AgendaCompactTest, TheFirstPersonIsInsertedThenTheListLoadedAndRequeried) {
    Agenda& window = Open();
    TypeNames(window, "Popa", "Ion");
    window.cmdAction[Agenda::Accept].Click();
    const std::string list = ListStatement("%", "%");
    EXPECT_THAT(connection->Log(),
                ElementsAre("Execute: " + addressbook::InsertStatement({"Popa", "Ion"}), "Close: " + list,
                            "Open: " + list, "ReadAll: " + list, "Requery: " + list, "ReadAll: " + list));
}

TEST_F(AgendaCompactTest, RequiredNamesAreCheckedHereToo) {
    Agenda& window = Open();
    window.cmdAction[Agenda::Accept].Click();
    EXPECT_THAT(messages.shown, ElementsAre(ShownMessage{"Numele este obligatoriu !", 16, 0, "Agenda"}));
    ExpectCompact(window);
}

TEST_F(AgendaCompactTest, RenuntaClosesWithoutAQuestion) {
    Agenda& window = Open();
    TypeNames(window, "Popa", "Ion");
    window.cmdAction[Agenda::Cancel].Click();
    EXPECT_THAT(messages.shown, IsEmpty());
    EXPECT_EQ(application.Loaded<Agenda>(), nullptr);
    EXPECT_THAT(Names(), IsEmpty());
}

TEST_F(AgendaCompactTest, ASearchThatFindsNobodyGoesThereToo) {
    const int designed = DesignedWidth();
    Agenda& window = OpenOnThree();
    Search(window, "Zz/");
    ExpectCompact(window);
    EXPECT_EQ(window.Bounds().width, designed - FrameWidth);
    EXPECT_EQ(window.TextBoxes[0].Text(), "Zz/");
    EXPECT_EQ(window.Grid.DataSource(), nullptr);
    EXPECT_THAT(messages.shown, IsEmpty());
}

TEST_F(AgendaCompactTest, AfterASearchForNobodyTheNewPersonIsFound) {
    Agenda& window = OpenOnThree();
    Search(window, "Zz/");
    TypeNames(window, "Zzaharia", "Ion");
    window.cmdAction[Agenda::Accept].Click();
    EXPECT_EQ(ShownName(window), "Zzaharia Ion");
    EXPECT_EQ(window.Grid.Rows(), 2);
    ExpectBrowsing(window);
}

TEST_F(AgendaCompactTest, APersonWhomThatSearchLeavesOutIsSavedAndTheNextCanBeAdded) {
    const int designed = DesignedWidth();
    Agenda& window = OpenOnThree();
    Search(window, "Zz/");
    TypeNames(window, "Marin", "Eva");
    window.cmdAction[Agenda::Accept].Click();
    EXPECT_EQ(Names().size(), 4U);
    ExpectCompact(window);
    EXPECT_THAT(desktop.reports, IsEmpty());
    // Shrunk, widened and shrunk again.
    EXPECT_EQ(window.Bounds().width, designed - 2 * FrameWidth + window.Grid.Bounds().width);
    EXPECT_EQ(window.cmdAction[0].Bounds().left, 7920 - FrameWidth - 20);
    TypeNames(window, "Zzaharia", "Ion");
    window.cmdAction[Agenda::Accept].Click();
    EXPECT_EQ(ShownName(window), "Zzaharia Ion");
}

TEST_F(AgendaCompactTest, DeletingTheLastPersonGoesThere) {
    const int designed = DesignedWidth();
    Keep("Popa", "Ion");
    Agenda& window = Open();
    messages.answers = {6};
    window.cmdAction[Agenda::Delete].Click();
    EXPECT_THAT(Names(), IsEmpty());
    ExpectCompact(window);
    EXPECT_EQ(window.Bounds().width, designed - FrameWidth);
    EXPECT_EQ(window.Grid.DataSource(), nullptr);
    TypeNames(window, "Marin", "Eva");
    window.cmdAction[Agenda::Accept].Click();
    EXPECT_EQ(ShownName(window), "Marin Eva");
    ExpectBrowsing(window);
}

TEST_F(AgendaCompactTest, EachRoundTripNarrowsTheWindowAndShiftsTheButtonsByTheSame) {
    const int designed = DesignedWidth();
    Agenda& window = Open();
    const int lost = FrameWidth - window.Grid.Bounds().width;
    for (int round = 1; round <= 2; ++round) {
        TypeNames(window, "Popa", "Ion");
        window.cmdAction[Agenda::Accept].Click();
        EXPECT_EQ(window.Bounds().width, designed - round * lost);
        EXPECT_EQ(window.cmdAction[1].Bounds().left, 9240 - round * 20);
        messages.answers = {6};
        window.cmdAction[Agenda::Delete].Click();
        ExpectCompact(window);
    }
}

TEST_F(AgendaCompactTest, AWindowOpenedAgainIsAsDesigned) {
    const int designed = DesignedWidth();
    Open().Unload();
    KeepThree();
    const Agenda& window = Open();
    EXPECT_EQ(window.Bounds().width, designed);
    EXPECT_EQ(window.fraPersoana.Bounds().left, 3315);
}

}  // namespace
}  // namespace tavrin::tests
