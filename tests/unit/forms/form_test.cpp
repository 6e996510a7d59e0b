#include "forms/model/form.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/error.h"
#include "forms/controls/command_button.h"
#include "forms/controls/frame.h"
#include "forms/controls/text_box.h"
#include "forms/model/control_array.h"
#include "support/headless_desktop.h"
#include "support/headless_keyboard.h"

namespace tavrin::tests {
namespace {

namespace key = forms::key;
using forms::KeyOutcome;
using testing::ElementsAre;
using testing::IsEmpty;

using Events = std::vector<std::string>;

/// A window of two fields, a frame with a button, and a button with an accelerator; it notes all that it is
/// told.
class ProbeForm : public forms::Form {
  public:
    ProbeForm(forms::Desktop& desktop, Events& events, const std::string& name = "Probe")
        : Form(desktop, name, "Probe", forms::BorderStyle::FixedDialog), events_(events) {
        button.SetAccelerator(U'B');
        for (forms::Control* control : AllControls()) {
            control->onGotFocus = [this, control] { events_.push_back("got " + control->QualifiedName()); };
            control->onLostFocus = [this, control] { events_.push_back("lost " + control->QualifiedName()); };
            control->onClick = [this, control] { events_.push_back("click " + control->QualifiedName()); };
        }
    }

    forms::TextBox first{*this, "first"};
    forms::TextBox second{*this, "second"};
    forms::Frame frame{*this, "frame"};
    forms::CommandButton inner{frame, "inner"};
    forms::CommandButton button{*this, "button"};

    std::function<void()> whenLoading, whenActivating, whenUnloading;
    std::function<void(int&)> preview;

  protected:
    void OnLoad() override { Note("load", whenLoading); }
    void OnActivate() override { Note("activate", whenActivating); }
    void OnDeactivate() override { Note("deactivate", {}); }
    void OnUnload() override { Note("unload", whenUnloading); }
    void OnKeyDown(int& keyCode, forms::Modifiers) override {
        if (preview) preview(keyCode);
    }

  private:
    void Note(const char* event, const std::function<void()>& then) {
        events_.emplace_back(event);
        if (then) then();
    }

    Events& events_;
};

class FormTest : public testing::Test {
  protected:
    ~FormTest() override { desktop.UnloadAll(); }

    std::shared_ptr<ProbeForm> Make(const std::string& name = "Probe") {
        return std::make_shared<ProbeForm>(desktop, events, name);
    }

    HeadlessDesktop desktop;
    HeadlessKeyboard keyboard{desktop};
    Events events;
};

// Life.

TEST_F(FormTest, ShowingLoadsThenActivatesThenFocusesTheFirstControl) {
    const auto form = Make();
    form->Show();
    EXPECT_THAT(events, ElementsAre("load", "activate", "got first"));
    EXPECT_TRUE(form->IsLoaded() && form->Visible() && form->IsActive());
    EXPECT_THAT(desktop.Forms(), ElementsAre(form.get()));
    EXPECT_EQ(desktop.ActiveForm(), form.get());
}

TEST_F(FormTest, LoadingTwiceRaisesLoadOnce) {
    const auto form = Make();
    form->Load();
    form->Load();
    form->Show();
    EXPECT_EQ(std::ranges::count(events, "load"), 1);
}

TEST_F(FormTest, LoadingAloneShowsNothing) {
    const auto form = Make();
    form->Load();
    EXPECT_FALSE(form->Visible());
    EXPECT_EQ(desktop.ActiveForm(), nullptr);
}

TEST_F(FormTest, AFocusGivenWhileActivatingStands) {
    const auto form = Make();
    form->whenActivating = [&] { form->button.SetFocus(); };
    form->Show();
    EXPECT_THAT(events, ElementsAre("load", "activate", "got button"));
}

TEST_F(FormTest, UnloadingRaisesUnloadOnceAndLeavesTheList) {
    const auto form = Make();
    form->Show();
    events.clear();
    form->whenUnloading = [&] { form->Unload(); };
    form->Unload();
    form->Unload();
    EXPECT_THAT(events, ElementsAre("unload"));
    EXPECT_FALSE(form->IsLoaded());
    EXPECT_THAT(desktop.Forms(), IsEmpty());
    EXPECT_EQ(desktop.ActiveForm(), nullptr);
}

TEST_F(FormTest, AFormWhoseWindowCannotBeMadeIsUnloaded) {
    const auto form = Make();
    desktop.whenCreating = [](const forms::Form&) { throw data::Error(8, "Not enough storage"); };
    EXPECT_THROW(form->Show(), data::Error);
    EXPECT_THAT(events, ElementsAre("load", "unload"));
    EXPECT_THAT(desktop.Forms(), IsEmpty());
    desktop.whenCreating = nullptr;
    const auto next = Make();
    next->Show();
    EXPECT_TRUE(next->Visible());
}

TEST_F(FormTest, AFormThatHasUnloadedStaysAway) {
    const auto form = Make();
    form->Show();
    form->Unload();
    events.clear();
    form->Load();
    form->Show();
    EXPECT_THAT(events, IsEmpty());
    EXPECT_FALSE(form->IsLoaded());
    EXPECT_THAT(desktop.Forms(), IsEmpty());
}

TEST_F(FormTest, NothingOfAFormThatHasUnloadedRuns) {
    const auto form = Make();
    form->Show();
    form->Unload();
    int ran = 0;
    form->first.onChange = [&] { ++ran; };
    form->first.SetText("x");
    EXPECT_EQ(ran, 0);
}

TEST_F(FormTest, AnUnloadedFormLivesUntilItsHandlerHasEnded) {
    std::weak_ptr<ProbeForm> watched;
    {
        auto form = Make();
        watched = form;
        form->button.onClick = [&form = *form] {
            form.Unload();
            form.SetCaption("still here");
        };
        form->Show();
        form->whenUnloaded = [&](forms::Form&) { form.reset(); };
        forms::CommandButton& button = form->button;
        button.Click();
        EXPECT_EQ(form, nullptr);
    }
    EXPECT_TRUE(watched.expired());
}

TEST_F(FormTest, TheNextWindowBecomesActiveWhenTheActiveOneCloses) {
    const auto below = Make("Below");
    below->Show();
    const auto above = Make("Above");
    above->Show();
    above->Unload();
    EXPECT_EQ(desktop.ActiveForm(), below.get());
}

TEST_F(FormTest, ADisabledWindowIsShownButNotActivated) {
    const auto form = Make();
    form->Show();
    desktop.ActivateByUser(nullptr);
    form->SetEnabled(false);
    form->Show();
    EXPECT_EQ(desktop.ActiveForm(), nullptr);
    form->first.SetFocus();
    EXPECT_EQ(desktop.ActiveForm(), nullptr);
}

TEST_F(FormTest, ADisabledWindowTakesNoKeys) {
    const auto form = Make();
    form->Show();
    form->SetEnabled(false);
    keyboard.Type("x");
    EXPECT_EQ(form->first.Text(), "");
}

TEST_F(FormTest, FrameAndClientAreaMakeTheWindow) {
    const auto form = Make();
    form->SetClientSize({3000, 2000});
    EXPECT_EQ(form->Bounds().width, 3090);
    EXPECT_EQ(form->Bounds().height, 2435);
    EXPECT_EQ(form->ClientSize(), (forms::Size{3000, 2000}));
    form->CenterOnScreen();
    EXPECT_EQ(form->Bounds().left, (1280 * 15 - 3090) / 2);
    EXPECT_EQ(form->Bounds().top, (1024 * 15 - 2435) / 2);
}

// Focus.

TEST_F(FormTest, FocusMovesWithLostBeforeGot) {
    const auto form = Make();
    form->Show();
    events.clear();
    form->second.SetFocus();
    EXPECT_THAT(events, ElementsAre("lost first", "got second"));
    form->second.SetFocus();
    EXPECT_EQ(events.size(), 2U);
}

TEST_F(FormTest, TheControlThatWasLeftMayTakeTheFocusBack) {
    const auto form = Make();
    form->Show();
    form->first.onLostFocus = [&] { form->first.SetFocus(); };
    events.clear();
    form->second.SetFocus();
    EXPECT_EQ(form->ActiveControl(), &form->first);
    EXPECT_THAT(events, ElementsAre("lost second", "got first"));
}

TEST_F(FormTest, HiddenAndDisabledControlsTakeNoFocus) {
    const auto form = Make();
    form->Show();
    form->second.SetVisible(false);
    form->second.SetFocus();
    EXPECT_EQ(form->ActiveControl(), &form->first);
    form->frame.SetEnabled(false);
    form->inner.SetFocus();
    EXPECT_EQ(form->ActiveControl(), &form->first);
}

TEST_F(FormTest, AControlThatIsHiddenPassesItsFocusOn) {
    const auto form = Make();
    form->Show();
    form->first.SetVisible(false);
    EXPECT_EQ(form->ActiveControl(), &form->second);
    form->second.SetEnabled(false);
    EXPECT_EQ(form->ActiveControl(), &form->inner);
    form->frame.SetVisible(false);
    EXPECT_EQ(form->ActiveControl(), &form->button);
    form->button.SetEnabled(false);
    EXPECT_EQ(form->ActiveControl(), nullptr);
}

TEST_F(FormTest, AControlThatCannotTakeTheFocusAnyMoreDoesNotGetIt) {
    const auto form = Make();
    form->Show();
    desktop.ActivateByUser(nullptr);
    form->whenActivating = [&] { form->second.SetEnabled(false); };
    form->second.SetFocus();
    EXPECT_EQ(desktop.ActiveForm(), form.get());
    EXPECT_EQ(form->ActiveControl(), &form->first);
}

TEST_F(FormTest, AWindowInTheBackgroundMovesItsFocusThere) {
    const auto form = Make();
    form->Show();
    desktop.ActivateByUser(nullptr);
    form->first.SetEnabled(false);
    EXPECT_EQ(form->ActiveControl(), &form->second);
    EXPECT_EQ(desktop.ActiveForm(), nullptr);
}

TEST_F(FormTest, AFocusGivenToAnInactiveWindowActivatesIt) {
    const auto form = Make();
    form->Show();
    desktop.ActivateByUser(nullptr);
    form->whenActivating = [&] { form->second.SetFocus(); };
    form->button.SetFocus();
    EXPECT_EQ(desktop.ActiveForm(), form.get());
    EXPECT_EQ(form->ActiveControl(), &form->button);
}

TEST_F(FormTest, ComingBackKeepsTheFocusedControlWithoutEvents) {
    const auto form = Make();
    form->Show();
    form->second.SetFocus();
    events.clear();
    desktop.ActivateByUser(nullptr);
    desktop.ActivateByUser(form.get());
    EXPECT_THAT(events, ElementsAre("deactivate", "activate"));
    EXPECT_EQ(form->ActiveControl(), &form->second);
}

TEST_F(FormTest, WindowsUnderAMessageAreNeitherLeftNorEntered) {
    const auto form = Make();
    form->Show();
    events.clear();
    {
        desktop.messagesAreModal = false;
        const forms::Desktop::MessageScope message(desktop);
        desktop.ActivateByUser(nullptr);
        desktop.ActivateByUser(form.get());
    }
    EXPECT_THAT(events, IsEmpty());
    EXPECT_TRUE(form->IsActive());
}

TEST_F(FormTest, EveryWindowWaitsForAMessage) {
    const auto other = Make();
    other->Show();
    const auto form = Make();
    form->Show();
    {
        const forms::Desktop::MessageScope message(desktop);
        for (const auto& each : {form, other}) {
            EXPECT_FALSE(desktop.IsWindowEnabled(*each));
            EXPECT_TRUE(each->Enabled()) << "the model's own state does not change";
        }
        const auto newcomer = Make();
        newcomer->Show();
        EXPECT_FALSE(desktop.IsWindowEnabled(*newcomer));
        EXPECT_FALSE(newcomer->IsActive());
        newcomer->Unload();
    }
    EXPECT_TRUE(desktop.IsWindowEnabled(*form));
    EXPECT_TRUE(desktop.IsWindowEnabled(*other));
}

TEST_F(FormTest, NoInputArrivesUnderAMessageThatIsNotModalByItself) {
    const auto form = Make();
    form->Show();
    int clicks = 0;
    form->button.onClick = [&] { ++clicks; };
    desktop.messagesAreModal = false;
    const forms::Desktop::MessageScope message(desktop);
    EXPECT_TRUE(desktop.IsWindowEnabled(*form));
    ClickWithMouse(form->button);
    form->button.Click();
    keyboard.Press(key::Tab);
    EXPECT_EQ(clicks, 0);
    EXPECT_EQ(form->ActiveControl(), &form->first);
}

TEST_F(FormTest, AWindowThatTheModelDisabledIsStillSoAfterAMessage) {
    const auto form = Make();
    form->Show();
    form->SetEnabled(false);
    desktop.ReportError({13, "Type mismatch"});
    EXPECT_FALSE(desktop.IsWindowEnabled(*form)) << "the platform enables what the message stood before";
}

TEST_F(FormTest, AMessageEndsAPress) {
    const auto form = Make();
    form->Show();
    int clicks = 0;
    form->button.onClick = [&] { ++clicks; };
    form->button.onMouseDown = [&](const forms::MouseInput&) { desktop.ReportError({13, "Type mismatch"}); };
    const forms::MouseInput inside{forms::MouseButton::Left, {15, 15}, {}};
    EXPECT_FALSE(form->button.HandleMouseDown(inside));
    EXPECT_FALSE(form->button.Accessible().pressed);
    form->button.HandleMouseUp(inside);
    EXPECT_EQ(clicks, 0);
}

TEST_F(FormTest, AFocusThatIsRefusedEndsThePressAndTheAccelerator) {
    const auto form = Make();
    form->Show();
    int clicks = 0;
    form->button.SetAccelerator(U'B');
    form->button.onClick = [&] { ++clicks; };
    form->first.onLostFocus = [&] { form->first.SetFocus(); };
    ClickWithMouse(form->button);
    EXPECT_FALSE(form->button.Accessible().pressed);
    keyboard.Accelerator(U'b');
    EXPECT_EQ(clicks, 0);
    EXPECT_EQ(form->ActiveControl(), &form->first);
}

TEST_F(FormTest, AMessageInTheControlThatWasLeftEndsThePress) {
    const auto form = Make();
    form->Show();
    int clicks = 0;
    form->button.onClick = [&] { ++clicks; };
    form->first.onLostFocus = [&] { desktop.ReportError({13, "Type mismatch"}); };
    ClickWithMouse(form->button);
    EXPECT_EQ(form->ActiveControl(), &form->button);
    EXPECT_EQ(clicks, 0) << "its button came up over the message";
}

TEST_F(FormTest, TabWalksTheControlsInOrderAndAround) {
    const auto form = Make();
    form->Show();
    for (const char* expected : {"second", "inner", "button", "first"}) {
        keyboard.Press(key::Tab);
        EXPECT_EQ(form->ActiveControl()->Name(), expected);
    }
    for (const char* expected : {"button", "inner", "second", "first"}) {
        keyboard.Press(key::Tab, {.shift = true});
        EXPECT_EQ(form->ActiveControl()->Name(), expected);
    }
}

TEST_F(FormTest, TabIndexOutranksTheOrderOfDeclaration) {
    const auto form = Make();
    form->button.SetTabIndex(-1);
    form->Show();
    EXPECT_EQ(form->ActiveControl(), &form->button);
}

// Keys.

TEST_F(FormTest, ThePreviewSeesAKeyBeforeTheControl) {
    const auto form = Make();
    form->Show();
    events.clear();
    form->preview = [&](int& keyCode) { events.push_back("preview " + std::to_string(keyCode)); };
    form->first.onKeyDown = [&](int& keyCode, forms::Modifiers) {
        events.push_back("first " + std::to_string(keyCode));
    };
    keyboard.Press(key::Down);
    EXPECT_THAT(events, ElementsAre("preview 40", "first 40"));
}

TEST_F(FormTest, AKeySwallowedByThePreviewGoesNoFurther) {
    const auto form = Make();
    form->Show();
    form->preview = [](int& keyCode) { keyCode = key::Swallowed; };
    bool seen = false;
    form->first.onKeyDown = [&](int&, forms::Modifiers) { seen = true; };
    EXPECT_EQ(form->HandleKeyDown(key::Tab, {}), KeyOutcome::Done);
    EXPECT_FALSE(seen);
    EXPECT_EQ(form->ActiveControl(), &form->first);
}

TEST_F(FormTest, AKeySwallowedByTheControlHasNoEffect) {
    const auto form = Make();
    form->Show();
    form->first.onKeyDown = [](int& keyCode, forms::Modifiers) { keyCode = key::Swallowed; };
    keyboard.Press(key::Tab);
    EXPECT_EQ(form->ActiveControl(), &form->first);
    keyboard.Type("a");
    EXPECT_EQ(form->first.Text(), "");
}

TEST_F(FormTest, AHandlerThatMovesTheFocusHasDealtWithTheKey) {
    const auto form = Make();
    form->Show();
    form->first.onKeyDown = [&](int&, forms::Modifiers) { form->button.SetFocus(); };
    keyboard.Press(key::Enter);
    EXPECT_EQ(form->ActiveControl(), &form->button);
    EXPECT_EQ(std::ranges::count(events, "click button"), 0);
    form->first.SetFocus();
    keyboard.Press(key::Tab);
    EXPECT_EQ(form->ActiveControl(), &form->button);
}

TEST_F(FormTest, AKeyThatClosedItsWindowInThePreviewStillReachesTheControl) {
    const auto form = Make();
    form->Show();
    form->preview = [&](int&) { form->Unload(); };
    int seen = 0;
    form->first.onKeyDown = [&](int& keyCode, forms::Modifiers) { seen = keyCode; };
    EXPECT_EQ(form->HandleKeyDown(key::Escape, {}), KeyOutcome::Done);
    EXPECT_EQ(seen, key::Escape);
}

TEST_F(FormTest, ACharacterMayBeSwallowedOrChanged) {
    const auto form = Make();
    form->Show();
    form->first.onKeyPress = [](char32_t& character) {
        if (character == U'x') character = 0;
    };
    keyboard.Type("axb");
    EXPECT_EQ(form->first.Text(), "ab");
}

TEST_F(FormTest, EnterAndSpaceClickAButton) {
    const auto form = Make();
    form->Show();
    form->button.SetFocus();
    events.clear();
    keyboard.Press(key::Enter);
    keyboard.Press(key::Space);
    EXPECT_THAT(events, ElementsAre("click button", "click button"));
}

TEST_F(FormTest, ArrowsWalkFromAButtonToItsNeighbours) {
    const auto form = Make();
    form->Show();
    form->inner.SetFocus();
    keyboard.Press(key::Down);
    EXPECT_EQ(form->ActiveControl(), &form->button);
    keyboard.Press(key::Up);
    EXPECT_EQ(form->ActiveControl(), &form->inner);
    keyboard.Press(key::Right);
    EXPECT_EQ(form->ActiveControl(), &form->button);
    keyboard.Press(key::Left);
    EXPECT_EQ(form->ActiveControl(), &form->inner);
}

TEST_F(FormTest, AnAcceleratorFocusesAndClicksItsButton) {
    const auto form = Make();
    form->Show();
    events.clear();
    keyboard.Accelerator(U'b');
    EXPECT_THAT(events, ElementsAre("lost first", "got button", "click button"));
    form->button.SetVisible(false);
    EXPECT_FALSE(form->HandleAccelerator(U'B'));
    EXPECT_FALSE(form->HandleAccelerator(U'z'));
}

// Mouse.

TEST_F(FormTest, AClickFocusesAndClicksOnRelease) {
    const auto form = Make();
    form->Show();
    form->button.SetBounds({0, 0, 600, 300});
    events.clear();
    ClickWithMouse(form->button);
    EXPECT_THAT(events, ElementsAre("lost first", "got button", "click button"));
}

TEST_F(FormTest, AReleaseOutsideOrWithAnotherButtonIsNoClick) {
    const auto form = Make();
    form->Show();
    form->button.SetBounds({0, 0, 600, 300});
    form->button.HandleMouseDown({forms::MouseButton::Left, {10, 10}, {}});
    form->button.HandleMouseUp({forms::MouseButton::Left, {700, 10}, {}});
    ClickWithMouse(form->button, forms::MouseButton::Right);
    EXPECT_EQ(std::ranges::count(events, "click button"), 0);
}

TEST_F(FormTest, ADisabledButtonIsNotClicked) {
    const auto form = Make();
    form->Show();
    form->frame.SetEnabled(false);
    ClickWithMouse(form->inner);
    form->inner.Click();
    EXPECT_EQ(std::ranges::count(events, "click inner"), 0);
}

// Errors.

TEST_F(FormTest, AnErrorEndsItsHandlerAndIsReportedOnce) {
    const auto form = Make();
    form->Show();
    form->button.onClick = [&] {
        events.emplace_back("before");
        throw data::Error(-2147217900, "Incorrect syntax");
    };
    form->button.Click();
    EXPECT_THAT(desktop.reports, ElementsAre(HeadlessDesktop::Report{-2147217900, "Incorrect syntax"}));
    EXPECT_TRUE(form->IsLoaded() && form->IsActive());
}

TEST_F(FormTest, AnErrorInANestedHandlerLeavesTheOuterOneRunning) {
    const auto form = Make();
    form->Show();
    form->second.onGotFocus = [] { throw data::RuntimeError(data::error_number::TypeMismatch); };
    bool finished = false;
    form->button.onClick = [&] {
        form->second.SetFocus();
        finished = true;
    };
    form->button.Click();
    EXPECT_TRUE(finished);
    EXPECT_EQ(desktop.reports.size(), 1U);
}

TEST_F(FormTest, AnErrorWhileLoadingStillShowsTheWindow) {
    const auto form = Make();
    form->whenLoading = [] { throw data::ObjectNotSet(); };
    form->Show();
    EXPECT_TRUE(form->Visible());
    EXPECT_EQ(desktop.reports.size(), 1U);
}

TEST_F(FormTest, ForeignExceptionsAreReportedToo) {
    const auto form = Make();
    form->Show();
    form->button.onClick = [] { throw std::runtime_error("odd"); };
    form->button.Click();
    form->button.onClick = [] { throw std::bad_alloc(); };
    form->button.Click();
    form->button.onClick = [] { throw 5; };
    form->button.Click();
    EXPECT_THAT(desktop.reports, ElementsAre(HeadlessDesktop::Report{51, "Eroare interna"},
                                             HeadlessDesktop::Report{7, "Memorie insuficienta"},
                                             HeadlessDesktop::Report{51, "Eroare interna"}));
}

TEST_F(FormTest, AWindowMayBeClosedWhileItsErrorIsReported) {
    auto form = Make();
    forms::CommandButton& button = form->button;
    form->whenUnloaded = [&](forms::Form&) { form.reset(); };
    form->Show();
    button.onClick = [] { throw data::Error(1, "first"); };
    desktop.whileReporting = [&] { form->Unload(); };
    button.Click();
    EXPECT_EQ(form, nullptr);
    EXPECT_EQ(desktop.reports.size(), 1U);
}

// Control arrays.

TEST_F(FormTest, OneHandlerServesAnArrayAndIsToldTheIndex) {
    const auto form = Make();
    forms::ControlArray<forms::CommandButton, 3> buttons(*form, "cmdAction", {0, 2, 6});
    std::vector<int> clicked;
    buttons.OnEach(&forms::Control::onClick, [&](int index) { clicked.push_back(index); });
    form->Show();
    buttons[6].Click();
    buttons[2].Click();
    EXPECT_THAT(clicked, ElementsAre(6, 2));
    EXPECT_EQ(buttons[2].QualifiedName(), "cmdAction(2)");
    EXPECT_EQ(form->FindControl("cmdAction(6)"), &buttons[6]);
    EXPECT_EQ(form->FindControl("cmdAction(1)"), nullptr);
    desktop.UnloadAll();
}

}  // namespace
}  // namespace tavrin::tests
