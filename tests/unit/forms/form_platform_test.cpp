// What the platform tells a form and asks of it, beside keys and clicks.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "forms/controls/command_button.h"
#include "forms/controls/text_box.h"
#include "forms/model/form.h"
#include "support/counting_peer.h"
#include "support/headless_desktop.h"

namespace tavrin::tests {
namespace {

namespace key = forms::key;
using forms::KeyOutcome;

class PlatformForm : public forms::Form {
  public:
    explicit PlatformForm(forms::Desktop& desktop)
        : Form(desktop, "Platform", "Platform", forms::BorderStyle::FixedDialog) {}

    forms::TextBox first{*this, "first", {0, 0, 900, 300}};
    forms::CommandButton second{*this, "second", "Go", {0, 300, 900, 300}};
    int moved = 0;

  protected:
    void OnMouseMove(const forms::MouseInput& /*input*/) override { ++moved; }
};

class FormPlatformTest : public testing::Test {
  protected:
    FormPlatformTest() { form->Show(); }
    ~FormPlatformTest() override { desktop.UnloadAll(); }

    HeadlessDesktop desktop;
    std::shared_ptr<PlatformForm> form = std::make_shared<PlatformForm>(desktop);
};

TEST_F(FormPlatformTest, AFocusThatThePlatformGaveMovesTheModels) {
    form->HandleFocus(form->second);
    EXPECT_EQ(form->ActiveControl(), &form->second);
    form->first.SetEnabled(false);
    form->HandleFocus(form->first);
    EXPECT_EQ(form->ActiveControl(), &form->second) << "a control that cannot take it";
    form->Unload();
    form->HandleFocus(form->second);
    EXPECT_EQ(form->ActiveControl(), nullptr);
}

TEST_F(FormPlatformTest, ComingBackGivesTheFocusToWhoHadIt) {
    form->second.SetFocus();
    const CountingPeer* peer = CountingPeer::Give(form->second);
    desktop.ActivateByUser(nullptr);
    EXPECT_EQ(peer->focused, 0);
    desktop.ActivateByUser(form.get());
    EXPECT_EQ(peer->focused, 1);
}

TEST_F(FormPlatformTest, AMoveChangesThePlaceAlone) {
    const forms::Rect before = form->Bounds();
    form->HandleMoved({450, -30});
    EXPECT_EQ(form->Bounds(), (forms::Rect{450, -30, before.width, before.height}));
}

TEST_F(FormPlatformTest, TheMouseOverTheFormItselfIsTheForms) {
    form->HandleMouseMove({});
    EXPECT_EQ(form->moved, 1);
}

TEST_F(FormPlatformTest, KeysWithoutAnActiveControlAreNobodys) {
    form->first.SetVisible(false);
    form->second.SetVisible(false);
    ASSERT_EQ(form->ActiveControl(), nullptr);
    EXPECT_EQ(form->HandleKeyDown('A', {}), KeyOutcome::Default);
    EXPECT_EQ(form->HandleKeyPress(U'a'), KeyOutcome::Default);
    EXPECT_EQ(form->HandleKeyDown(key::Tab, {}), KeyOutcome::Done);
    EXPECT_EQ(form->ActiveControl(), nullptr) << "there is none to go to";
}

TEST_F(FormPlatformTest, TabWithoutAnActiveControlBeginsAtTheEnds) {
    form->first.SetVisible(false);
    form->second.SetVisible(false);
    form->first.SetVisible(true);
    form->second.SetVisible(true);
    ASSERT_EQ(form->ActiveControl(), nullptr);
    form->FocusPrevious();
    EXPECT_EQ(form->ActiveControl(), &form->second);
}

TEST_F(FormPlatformTest, AClickOnADisabledControlIsNone) {
    int clicks = 0;
    form->second.onClick = [&] { ++clicks; };
    form->second.onDblClick = [&] { ++clicks; };
    form->second.SetEnabled(false);
    form->second.Click();
    form->second.HandleDblClick({forms::MouseButton::Left, {10, 10}, {}});
    EXPECT_EQ(clicks, 0);
    form->second.SetEnabled(true);
    form->second.HandleDblClick({forms::MouseButton::Right, {10, 10}, {}});
    EXPECT_EQ(clicks, 0) << "another button of the mouse";
    form->second.HandleDblClick({forms::MouseButton::Left, {10, 10}, {}});
    EXPECT_EQ(clicks, 1);
}

TEST_F(FormPlatformTest, ActivationsThatChangeNothingAreNotTold) {
    form->HandleActivate();
    EXPECT_TRUE(form->IsActive());
    form->HandleDeactivate();
    form->HandleDeactivate();
    EXPECT_FALSE(form->IsActive());
    EXPECT_EQ(desktop.ActiveForm(), nullptr);
    form->Unload();
    form->HandleActivate();
    EXPECT_FALSE(form->IsActive());
}

TEST_F(FormPlatformTest, AClosedFormAsksThePlatformForNothing) {
    form->Unload();
    form->KeepOnTop();
    form->DragByCaption();
    EXPECT_EQ(desktop.CallsOf(*form).keptOnTop, 0);
}

}  // namespace
}  // namespace tavrin::tests
