#include "forms/controls/combo_box.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "forms/model/form.h"
#include "support/counting_peer.h"
#include "support/headless_desktop.h"
#include "support/headless_keyboard.h"
#include "support/recording_surface.h"

namespace tavrin::tests {
namespace {

namespace key = forms::key;
using forms::ComboStyle;
using testing::ElementsAre;
using testing::IsEmpty;

class ListForm : public forms::Form {
  public:
    explicit ListForm(forms::Desktop& desktop)
        : Form(desktop, "Lists", "Lists", forms::BorderStyle::FixedDialog) {}

    forms::ComboBox list{*this, "list", ComboStyle::DropDownList, {0, 0, 1800, 330}};
    forms::ComboBox field{*this, "field", ComboStyle::DropDown, {0, 500, 1800, 330}};
};

class ComboBoxTest : public testing::Test {
  protected:
    ComboBoxTest() {
        for (forms::ComboBox* combo : {&list, &field}) {
            for (const char* item : {"Ianuarie", "Februarie", "Martie", "Iunie"})
                combo->AddItem(item);
            combo->onClick = [this] { ++clicks; };
            combo->onChange = [this] { ++changes; };
        }
        form->Show();
    }
    ~ComboBoxTest() override { desktop.UnloadAll(); }

    HeadlessDesktop desktop;
    HeadlessKeyboard keyboard{desktop};
    std::shared_ptr<ListForm> form = std::make_shared<ListForm>(desktop);
    forms::ComboBox& list = form->list;
    forms::ComboBox& field = form->field;
    int clicks = 0;
    int changes = 0;
};

TEST_F(ComboBoxTest, ANewListHasNothingChosen) {
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(list.Text(), "");
    EXPECT_EQ(list.ListCount(), 4);
}

TEST_F(ComboBoxTest, SettingTheIndexShowsTheEntryAndRaisesClickOnce) {
    list.SetListIndex(2);
    EXPECT_EQ(list.Text(), "Martie");
    list.SetListIndex(2);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(changes, 0);
}

TEST_F(ComboBoxTest, AnIndexThatTheListLacksChoosesNothing) {
    list.SetListIndex(2);
    list.SetListIndex(4);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(list.Text(), "");
}

TEST_F(ComboBoxTest, TheUserMayChooseTheSameEntryAgain) {
    list.HandleChosen(1);
    list.HandleChosen(1);
    EXPECT_EQ(clicks, 2);
    list.HandleChosen(7);
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(list.ListIndex(), 1);
}

TEST_F(ComboBoxTest, AnEntrysTextChoosesItInAList) {
    list.SetText("Februarie");
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_EQ(clicks, 1);
    list.SetText("Brumar");
    EXPECT_EQ(list.Text(), "Februarie");
    EXPECT_EQ(list.ListIndex(), 1);
}

TEST_F(ComboBoxTest, AnyTextMayStandInAField) {
    field.SetListIndex(1);
    field.SetText("$");
    EXPECT_EQ(field.Text(), "$");
    EXPECT_EQ(field.ListIndex(), -1);
    EXPECT_EQ(changes, 1);
    field.SetText("$");
    EXPECT_EQ(changes, 1);
}

TEST_F(ComboBoxTest, TypingIntoAFieldRaisesChange) {
    field.SetListIndex(1);
    field.HandleTyped("Feb");
    EXPECT_EQ(field.Text(), "Feb");
    EXPECT_EQ(field.ListIndex(), -1);
    EXPECT_EQ(changes, 1);
    list.HandleTyped("Feb");
    EXPECT_EQ(list.Text(), "");
}

TEST_F(ComboBoxTest, ClearingEmptiesListAndTextWithoutEvents) {
    list.SetListIndex(1);
    clicks = 0;
    list.Clear();
    EXPECT_EQ(list.ListCount(), 0);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(list.Text(), "");
    EXPECT_EQ(clicks, 0);
}

TEST_F(ComboBoxTest, EqualEntriesMayStandInAListTwice) {
    list.AddItem("Martie");
    list.SetListIndex(4);
    EXPECT_EQ(list.ListIndex(), 4);
    EXPECT_EQ(list.Text(), "Martie");
}

TEST_F(ComboBoxTest, ArrowsChooseTheNeighbourAndStopAtTheEnds) {
    keyboard.Press(key::Down);
    EXPECT_EQ(list.ListIndex(), 0);
    keyboard.Press(key::Up);
    EXPECT_EQ(list.ListIndex(), 0);
    keyboard.Press(key::End);
    EXPECT_EQ(list.ListIndex(), 3);
    keyboard.Press(key::Down);
    EXPECT_EQ(list.ListIndex(), 3);
    keyboard.Press(key::Home);
    keyboard.Press(key::PageDown);
    EXPECT_EQ(list.ListIndex(), 3);
    keyboard.Press(key::PageUp);
    EXPECT_EQ(list.ListIndex(), 0);
    EXPECT_EQ(clicks, 5);
}

TEST_F(ComboBoxTest, KeysInAnEmptyListDoNothing) {
    list.Clear();
    for (const int code : {key::Up, key::Down, key::Home, key::End, key::PageUp, key::PageDown})
        keyboard.Press(code);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(clicks, 0);
}

TEST_F(ComboBoxTest, ASwallowedKeyChoosesNothing) {
    list.SetListIndex(3);
    list.onKeyDown = [](int& code, forms::Modifiers) { code = key::Swallowed; };
    keyboard.Press(key::Up);
    EXPECT_EQ(list.ListIndex(), 3);
}

TEST_F(ComboBoxTest, ALetterChoosesTheNextEntryThatBeginsWithIt) {
    keyboard.Type("i");
    EXPECT_EQ(list.Text(), "Ianuarie");
    keyboard.Type("I");
    EXPECT_EQ(list.Text(), "Iunie");
    keyboard.Type("i");
    EXPECT_EQ(list.Text(), "Ianuarie");
    EXPECT_EQ(desktop.beeps, 0);
    keyboard.Type("x");
    EXPECT_EQ(list.Text(), "Ianuarie");
    EXPECT_EQ(desktop.beeps, 1) << "no entry begins with it";
}

TEST_F(ComboBoxTest, InAFieldTheCaretKeysStayWithTheCaret) {
    field.SetFocus();
    field.SetListIndex(1);
    for (const int code : {key::Home, key::End, key::Left, key::Right})
        EXPECT_EQ(form->HandleKeyDown(code, {}), forms::KeyOutcome::Default);
    EXPECT_EQ(field.ListIndex(), 1);
    keyboard.Press(key::Down);
    EXPECT_EQ(field.ListIndex(), 2);
}

TEST_F(ComboBoxTest, AnOpenListKeepsItsKeys) {
    list.HandleDropped(true);
    EXPECT_EQ(form->HandleKeyDown(key::Down, {}), forms::KeyOutcome::Default);
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(ComboBoxTest, TellsAssistiveToolsWhetherItsListIsOpen) {
    const CountingPeer* peer = CountingPeer::Give(list);
    EXPECT_TRUE(list.Accessible().expandable);
    EXPECT_FALSE(list.Accessible().expanded);
    list.HandleDropped(true);
    EXPECT_TRUE(list.Accessible().expanded);
    list.HandleDropped(false);
    EXPECT_FALSE(list.Accessible().expanded);
    EXPECT_EQ(peer->changes, 2);
}

TEST_F(ComboBoxTest, AltDownAndF4OpenTheList) {
    const CountingPeer* peer = CountingPeer::Give(list);
    keyboard.Press(key::F4);
    keyboard.Press(key::Down, {.alt = true});
    EXPECT_EQ(peer->dropDowns, 2);
    list.HandleDropped(true);
    keyboard.Press(key::F4);
    EXPECT_EQ(peer->dropDowns, 2) << "it is open";
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(ComboBoxTest, TheClosedListShowsItsTextBesideTheArrow) {
    list.SetListIndex(1);
    RecordingSurface surface;
    list.Draw(surface);
    ASSERT_NE(surface.FindText("Februarie"), nullptr);
    EXPECT_EQ(surface.FindText("Februarie")->area, list.TextArea());
    EXPECT_TRUE(surface.HasFrame({0, 0, 1800, 330}, forms::scheme::Focus));
    EXPECT_THAT(surface.CutTexts(), IsEmpty());
}

TEST_F(ComboBoxTest, ThePlatformDrawsTheTextOfAField) {
    field.SetText("$");
    RecordingSurface surface;
    field.Draw(surface);
    EXPECT_THAT(surface.Texts(), IsEmpty());
}

TEST_F(ComboBoxTest, AHandlerMayRefillTheList) {
    list.onClick = [this] {
        list.Clear();
        list.AddItem("Alta");
    };
    list.HandleChosen(3);
    EXPECT_EQ(list.ListCount(), 1);
    EXPECT_EQ(list.ListIndex(), -1);
}

}  // namespace
}  // namespace tavrin::tests
