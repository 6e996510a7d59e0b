#include "forms/controls/text_box.h"

#include <gtest/gtest.h>

#include "forms/model/form.h"
#include "support/headless_desktop.h"
#include "support/headless_keyboard.h"

namespace tavrin::tests {
namespace {

class FieldForm : public forms::Form {
  public:
    explicit FieldForm(forms::Desktop& desktop)
        : Form(desktop, "Fields", "Fields", forms::BorderStyle::FixedDialog) {}

    forms::TextBox field{*this, "field", {0, 0, 2000, 330}};
};

class TextBoxTest : public testing::Test {
  protected:
    TextBoxTest() {
        form->Show();
        field.onChange = [this] { ++changes; };
    }
    ~TextBoxTest() override { desktop.UnloadAll(); }

    void ExpectSelection(int start, int length) const {
        EXPECT_EQ(field.SelStart(), start);
        EXPECT_EQ(field.SelLength(), length);
    }

    HeadlessDesktop desktop;
    HeadlessKeyboard keyboard{desktop};
    std::shared_ptr<FieldForm> form = std::make_shared<FieldForm>(desktop);
    forms::TextBox& field = form->field;
    int changes = 0;
};

TEST_F(TextBoxTest, SettingADifferentTextRaisesChange) {
    field.SetText("abc");
    EXPECT_EQ(changes, 1);
    field.SetText("abc");
    EXPECT_EQ(changes, 1);
    field.SetText("");
    EXPECT_EQ(changes, 2);
}

TEST_F(TextBoxTest, ANewTextPutsTheCaretAtItsStart) {
    field.SetText("abc");
    field.SelectAll();
    field.SetText("abcd");
    ExpectSelection(0, 0);
}

TEST_F(TextBoxTest, TellsTheTextThatIsSelected) {
    field.SetText("ăîșțâ");
    EXPECT_EQ(field.SelText(), "");
    field.Select(1, 2);
    EXPECT_EQ(field.SelText(), "îș");
    field.SelectAll();
    EXPECT_EQ(field.SelText(), "ăîșțâ");
}

TEST_F(TextBoxTest, PositionsCountCharacters) {
    field.SetText("ăîșțâ");
    EXPECT_EQ(field.TextLength(), 5);
    field.Select(1, 2);
    field.ReplaceSelection("€");
    EXPECT_EQ(field.Text(), "ă€țâ");
    ExpectSelection(2, 0);
}

TEST_F(TextBoxTest, SelectionsStayWithinTheText) {
    field.SetText("abc");
    field.Select(2, 10);
    ExpectSelection(2, 1);
    field.Select(10, 1);
    ExpectSelection(3, 0);
    field.Select(-5, -5);
    ExpectSelection(0, 0);
}

TEST_F(TextBoxTest, EditingRaisesChangeOnlyWhenTheTextDiffers) {
    field.HandleEdited("x", 1, 0);
    EXPECT_EQ(changes, 1);
    ExpectSelection(1, 0);
    field.HandleEdited("x", 0, 1);
    EXPECT_EQ(changes, 1);
    ExpectSelection(0, 1);
    field.ReplaceSelection("x");
    EXPECT_EQ(changes, 1);
}

TEST_F(TextBoxTest, ALockedFieldKeepsItsText) {
    field.SetText("abc");
    field.SetLocked(true);
    field.SelectAll();
    field.ReplaceSelection("x");
    field.HandleEdited("y", 1, 0);
    EXPECT_EQ(field.Text(), "abc");
    field.SetText("code may");
    EXPECT_EQ(field.Text(), "code may");
    EXPECT_TRUE(field.Accessible().readOnly);
}

TEST_F(TextBoxTest, AHandlerMayCorrectWhatWasTyped) {
    field.onChange = [this] {
        if (field.Text() == "1,5") field.SetText("1.5");
    };
    keyboard.Type("1,5");
    EXPECT_EQ(field.Text(), "1.5");
}

TEST_F(TextBoxTest, AssistiveToolsReadTheText) {
    field.SetAccessibleName("Nume:");
    field.SetText("Ion");
    const forms::AccessibleNode node = field.Accessible();
    EXPECT_EQ(node.role, forms::Role::EditableText);
    EXPECT_EQ(node.name, "Nume:");
    EXPECT_EQ(node.value, "Ion");
    EXPECT_TRUE(node.focused);
}

}  // namespace
}  // namespace tavrin::tests
