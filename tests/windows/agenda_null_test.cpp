// A person with a NULL in a field: what comes before it is shown, nothing of anybody else is, and the window
// is in order whichever way it came to that row.

#include <memory>

#include "data/error.h"
#include "support/pass_through_connection.h"
#include "windows/agenda_fixture.h"

namespace tavrin::tests {
namespace {

namespace key = forms::key;
using addressbook::Agenda;
using testing::ElementsAre;
using testing::IsEmpty;

/// A text that comes out of the database as NULL. Among names it stands in the middle of the alphabet.
constexpr const char* Marker = "Enull";

class MarkedNulls : public PassThroughRecordset {
  public:
    using PassThroughRecordset::Field;
    using PassThroughRecordset::PassThroughRecordset;
    data::Value Field(std::string_view name) const override {
        const data::Value value = PassThroughRecordset::Field(name);
        return value == data::Value(std::string(Marker)) ? data::Value(data::Null{}) : value;
    }
};

/// Enescu Ana has a NULL in the column that is the parameter.
class AgendaNullTest : public AgendaTest, public testing::WithParamInterface<std::size_t> {
  protected:
    AgendaNullTest() {
        connection = std::make_shared<RecordingConnection>(std::make_shared<PassThroughConnection>(
            others, [](auto rows) { return std::make_unique<MarkedNulls>(std::move(rows)); }));
        application.context.connection = connection;
    }

    std::size_t Column() const { return GetParam(); }
    bool IsNamed() const { return Column() >= addressbook::FirstDetailColumn; }

    void KeepEnescu() {
        addressbook::Person person = MakePerson("Enescu", "Ana");
        person[Column()] = Marker;
        others.Execute(addressbook::InsertStatement(person));
    }

    /// Opens on Albu, Enescu and Popa, and shows the second.
    Agenda& OpenOnEnescu() {
        Keep("Albu", "Dan");
        KeepEnescu();
        Keep("Popa", "Ion");
        Agenda& window = Open();
        window.Grid.SetRow(2);
        keyboard.Press(key::Enter);
        ExpectEnescuShown(window, 2);
        desktop.reports.clear();
        return window;
    }

    void ExpectEnescuShown(const Agenda& window, int row) {
        ASSERT_EQ(desktop.reports.size(), 1U);
        EXPECT_EQ(desktop.reports[0].number, data::error_number::InvalidUseOfNull);
        addressbook::Person expected;
        const addressbook::Person whole = MakePerson("Enescu", "Ana");
        std::copy_n(whole.begin(), Column(), expected.begin());
        EXPECT_THAT(DataBoxTexts(window), testing::ElementsAreArray(expected));
        EXPECT_EQ(window.Grid.Row(), row);
        EXPECT_EQ(window.Mode, addressbook::EditMode::Browse);
    }

    void ExpectEnescuBrowsed(const Agenda& window, int row) {
        ExpectEnescuShown(window, row);
        ExpectBrowsing(window);
        ExpectWholeRowSelected(window, row);
        EXPECT_EQ(FocusedControl(), "Grid");
    }
};

INSTANTIATE_TEST_SUITE_P(InEachColumn, AgendaNullTest,
                         testing::Range(std::size_t{0}, addressbook::Columns.size()),
                         [](const auto& column) { return std::string(addressbook::Columns[column.param]); });

TEST_P(AgendaNullTest, TheOnlyPersonIsShownWhenTheWindowOpens) {
    KeepEnescu();
    const Agenda& window = Open();
    ExpectEnescuShown(window, 1);
    ExpectWholeRowSelected(window, 1);
    EXPECT_EQ(FocusedControl(), "Grid");
    EXPECT_EQ(messages.created, 1) << "opening went on to its end";
}

TEST_P(AgendaNullTest, TheFirstOfTwoIsShownAfterASearch) {
    Keep("Albu", "Dan");
    KeepEnescu();
    Keep("Ezop", "Ion");
    Agenda& window = Open();
    Search(window, "E/");
    ExpectEnescuShown(window, 1);
    ExpectWholeRowSelected(window, 1);
    EXPECT_EQ(FocusedControl(), "Grid");
}

TEST_P(AgendaNullTest, EveryKeyThatReadsTheRowShowsIt) {
    Keep("Albu", "Dan");
    KeepEnescu();
    Keep("Popa", "Ion");
    Agenda& window = Open();
    for (const int keyCode : {key::Enter, key::Down, key::Up, key::PageDown, key::PageUp}) {
        window.Grid.SetRow(1);
        keyboard.Press(key::Enter);
        desktop.reports.clear();
        window.Grid.SetRow(2);
        keyboard.Press(keyCode);
        ExpectEnescuShown(window, window.Grid.Row());
        ExpectBrowsing(window);
    }
}

TEST_P(AgendaNullTest, AClickShowsIt) {
    Keep("Albu", "Dan");
    KeepEnescu();
    Agenda& window = Open();
    const forms::Rect cell = window.Grid.CellBounds(2, 0);
    ClickWithMouse(window.Grid, {cell.left + 10, cell.top + 10});
    ExpectEnescuShown(window, 2);
    ExpectBrowsing(window);
}

TEST_P(AgendaNullTest, TheNextPersonIsShownWhole) {
    Agenda& window = OpenOnEnescu();
    window.Grid.SetRow(3);
    keyboard.Press(key::Enter);
    EXPECT_THAT(DataBoxTexts(window), testing::ElementsAreArray(MakePerson("Popa", "Ion")));
    EXPECT_THAT(desktop.reports, IsEmpty());
}

TEST_P(AgendaNullTest, ItComesIntoTheRowOfAnAcceptedChange) {
    Keep("Albu", "Dan");
    Keep("Popa", "Ion");
    Agenda& window = Open();
    window.Grid.SetRow(2);
    keyboard.Press(key::Enter);
    window.cmdAction[Agenda::Modify].Click();
    KeepEnescu();
    window.cmdAction[Agenda::Accept].Click();
    ExpectEnescuBrowsed(window, 2);
}

TEST_P(AgendaNullTest, ItHeadsTheListThatLeavesANewPersonOut) {
    Keep("Albu", "Dan");
    KeepEnescu();
    Agenda& window = Open();
    Search(window, "E/");
    desktop.reports.clear();
    Add(window, "Marin", "Eva");
    ExpectEnescuBrowsed(window, 1);
    EXPECT_EQ(Names().size(), 3U);
}

TEST_P(AgendaNullTest, ItComesIntoAnEmptyListBeforeANewPerson) {
    Agenda& window = Open();
    TypeNames(window, "Marin", "Eva");
    KeepEnescu();
    window.cmdAction[Agenda::Accept].Click();
    ExpectEnescuBrowsed(window, 1);
    EXPECT_EQ(window.Grid.Rows(), 3);
}

TEST_P(AgendaNullTest, CancelingComesBackToIt) {
    Agenda& window = OpenOnEnescu();
    window.cmdAction[Agenda::Add].Click();
    window.cmdAction[Agenda::Cancel].Click();
    ExpectEnescuBrowsed(window, 2);
}

TEST_P(AgendaNullTest, ItIsTheFirstThatADeletedPersonLeaves) {
    Keep("Albu", "Dan");
    KeepEnescu();
    Agenda& window = Open();
    messages.answers = {6};
    window.cmdAction[Agenda::Delete].Click();
    ExpectEnescuShown(window, 1);
    ExpectWholeRowSelected(window, 1);
    EXPECT_EQ(Names().size(), 1U);
}

TEST_P(AgendaNullTest, StergeDeletesThatPersonOrNobody) {
    Agenda& window = OpenOnEnescu();
    messages.answers = {6};
    connection->ClearRecord();
    window.cmdAction[Agenda::Delete].Click();
    if (IsNamed()) {
        EXPECT_EQ(messages.shown.at(0).prompt, "Doriti sa stergeti din agenda persoana Enescu Ana ?");
        EXPECT_THAT(Names(), ElementsAre("Albu Dan", "Popa Ion"));
        return;
    }
    EXPECT_THAT(connection->Log(), IsEmpty()) << "no statement can name somebody whose name is NULL";
    EXPECT_THAT(messages.shown, IsEmpty());
    EXPECT_EQ(desktop.reports.size(), 1U);
}

TEST_P(AgendaNullTest, ModificaChangesThatPersonOrNobody) {
    Agenda& window = OpenOnEnescu();
    window.cmdAction[Agenda::Modify].Click();
    if (IsNamed()) {
        TypeInto(window, 4, "Str. Noua 1");
        window.cmdAction[Agenda::Accept].Click();
        EXPECT_EQ(Stored("AdresaHome", "Enescu"), data::Value(std::string("Str. Noua 1")));
        EXPECT_EQ(Stored("AdresaHome", "Albu"), data::Value(std::string("Albu 4")));
        EXPECT_THAT(desktop.reports, IsEmpty()) << "nothing is NULL any more";
        return;
    }
    EXPECT_EQ(desktop.reports.size(), 1U);
    ExpectBrowsing(window);
}

}  // namespace
}  // namespace tavrin::tests
