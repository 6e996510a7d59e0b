// The rich text box and the tool button: what they ask of their surroundings, and their way with the
// keyboard.

#include "forms/controls/rich_text_box.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/error.h"
#include "forms/controls/tool_button.h"
#include "forms/model/form.h"
#include "support/fake_rich_text.h"
#include "support/headless_desktop.h"
#include "support/headless_keyboard.h"
#include "support/recording_surface.h"

namespace tavrin::tests {
namespace {

namespace key = forms::key;
namespace scheme = forms::scheme;
using forms::ToolLook;
using Kind = tavrin::tests::Drawing;

constexpr forms::Modifiers Shift{.shift = true};
constexpr forms::Modifiers Control{.control = true};

class NoteForm : public forms::Form {
  public:
    explicit NoteForm(forms::Desktop& desktop)
        : Form(desktop, "Note", "Note", forms::BorderStyle::FixedDialog) {
        first.SetPicture(forms::Icon::Bold);
        first.onClick = [this] { ++clicks; };
    }

    forms::ToolButton first{*this, "first", {0, 0, 420, 420}};
    forms::ToolButton second{*this, "second", {420, 0, 420, 420}};
    forms::RichTextBox note{*this, "note", {0, 420, 3000, 3000}};
    int clicks = 0;
};

class RichTextBoxTest : public testing::Test {
  protected:
    RichTextBoxTest() {
        form->Show();
        form->note.SetFocus();
    }
    ~RichTextBoxTest() override { desktop.UnloadAll(); }

    std::string Focused() const { return form->ActiveControl()->Name(); }

    static RecordingSurface DrawingOf(const forms::Control& control) {
        RecordingSurface surface;
        control.Draw(surface);
        return surface;
    }

    HeadlessDesktop desktop;
    HeadlessKeyboard keyboard{desktop};
    std::shared_ptr<NoteForm> form = std::make_shared<NoteForm>(desktop);
    FakeRichText& editor = FakeRichText::Give(form->note);
};

TEST_F(RichTextBoxTest, TabWritesAndWithShiftOrCtrlLeaves) {
    keyboard.Type("a\tb\rc");
    EXPECT_EQ(form->note.Text(), "a\tb\r\nc");
    keyboard.Press(key::Tab, Shift);
    EXPECT_EQ(Focused(), "second");
    form->note.SetFocus();
    keyboard.Press(key::Tab, Control);
    EXPECT_EQ(Focused(), "first");
    keyboard.Press(key::Tab, Control);
    EXPECT_EQ(Focused(), "first") << "Ctrl and Tab are the note's way out alone";
    keyboard.Press(key::Tab);
    EXPECT_EQ(Focused(), "second");
    keyboard.Press(key::Tab);
    EXPECT_EQ(Focused(), "note");
    EXPECT_EQ(form->note.Text(), "a\tb\r\nc");
}

TEST_F(RichTextBoxTest, TellsOfEveryChangeOfTheSelection) {
    int changes = 0;
    form->note.onSelChange = [&] { ++changes; };
    keyboard.Type("ab");
    EXPECT_EQ(changes, 2);
    editor.SelectAll();
    EXPECT_EQ(changes, 3);
    form->note.FormatSelection({.bold = true});
    EXPECT_EQ(changes, 4);
    form->note.SetText("c");
    EXPECT_EQ(changes, 5);
    form->note.Load(form->note.Save());
    EXPECT_EQ(changes, 6);
}

TEST_F(RichTextBoxTest, AssistiveToolsReadItsText) {
    form->note.SetAccessibleName("Nota");
    keyboard.Type("abc");
    const forms::AccessibleNode node = form->note.Accessible();
    EXPECT_EQ(node.role, forms::Role::EditableText);
    EXPECT_EQ(node.name, "Nota");
    EXPECT_EQ(node.value, "abc");
    EXPECT_TRUE(node.focused);
}

TEST_F(RichTextBoxTest, HasNoTextBeforeItIsShown) {
    NoteForm hidden(desktop);
    EXPECT_EQ(hidden.note.Accessible().value, "");
    EXPECT_THROW(hidden.note.Text(), data::Error);
    EXPECT_THROW(hidden.note.Load("{\\rtf1}"), data::Error);
}

TEST_F(RichTextBoxTest, ToolButtonsAreClickedByMouseWithoutTakingTheFocus) {
    ClickWithMouse(form->first);
    EXPECT_EQ(form->clicks, 1);
    EXPECT_EQ(Focused(), "note");
}

TEST_F(RichTextBoxTest, ToolButtonsAreWalkedAndClickedByKeys) {
    form->first.SetFocus();
    keyboard.Press(key::Enter);
    keyboard.Press(key::Space);
    EXPECT_EQ(form->clicks, 2);
    keyboard.Press(key::Right);
    EXPECT_EQ(Focused(), "second");
    keyboard.Press(key::Left);
    EXPECT_EQ(Focused(), "first");
}

TEST_F(RichTextBoxTest, AToolButtonShowsItsBorderItsFocusAndThatItIsOn) {
    const forms::Rect area{0, 0, 420, 420};
    form->first.SetBackColor(scheme::Face);
    EXPECT_TRUE(DrawingOf(form->first).AllOf(Kind::Frame).empty());
    form->first.SetLook(ToolLook::Raised);
    EXPECT_TRUE(DrawingOf(form->first).HasFrame(area, scheme::Border));
    EXPECT_TRUE(DrawingOf(form->first).IsFilled(area, scheme::FaceHot));
    form->first.SetLook(ToolLook::Sunken);
    EXPECT_TRUE(DrawingOf(form->first).HasFrame(area, scheme::Border));
    EXPECT_TRUE(DrawingOf(form->first).IsFilled(area, scheme::FacePressed));
    form->first.SetLook(ToolLook::Resting);
    form->first.SetFocus();
    EXPECT_TRUE(DrawingOf(form->first).HasFrame(area, scheme::Focus));
    form->note.SetFocus();
    EXPECT_FALSE(form->first.Accessible().pressed);
    form->first.SetChecked(true);
    EXPECT_TRUE(DrawingOf(form->first).IsFilled(area, scheme::Checked));
    EXPECT_TRUE(form->first.Accessible().pressed);
    EXPECT_EQ(form->first.Accessible().role, forms::Role::PushButton);
}

TEST_F(RichTextBoxTest, ASunkenPictureIsShifted) {
    const auto place = [&] { return DrawingOf(form->first).AllOf(Kind::Polyline).front().area; };
    const forms::Rect before = place();
    form->first.SetLook(ToolLook::Sunken);
    EXPECT_EQ(place().left, before.left + 15);
    EXPECT_EQ(place().top, before.top + 15);
}

}  // namespace
}  // namespace tavrin::tests
