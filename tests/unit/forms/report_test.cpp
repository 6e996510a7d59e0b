// What a report says of where its error came from, and what is told besides.

#include <gmock/gmock.h>

#include "data/error.h"
#include "forms/controls/command_button.h"
#include "forms/controls/text_box.h"
#include "forms/model/form.h"
#include "support/headless_desktop.h"
#include "support/headless_keyboard.h"
#include "support/recording_listener.h"

namespace tavrin::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

[[noreturn]] void Fail() {
    throw data::Error(-5, "near 'Popa'");
}

class FailingForm : public forms::Form {
  public:
    explicit FailingForm(forms::Desktop& desktop)
        : Form(desktop, "Persons", "Agenda", forms::BorderStyle::FixedDialog) {
        cmdAction.SetIndex(2);
        cmdAction.SetCaption("Sterge");
        txtSpoken.SetAccessibleName("De La Data");
    }

    forms::TextBox txtName{*this, "txtName"};
    forms::TextBox txtSpoken{*this, "txtSpoken"};
    forms::CommandButton cmdAction{*this, "cmdAction"};
    bool failsToLoad = false;

  protected:
    void OnLoad() override {
        if (failsToLoad) Fail();
    }
};

class ReportTest : public testing::Test {
  protected:
    ~ReportTest() override { desktop.UnloadAll(); }

    std::shared_ptr<RecordingListener> Listen() {
        auto listener = std::make_shared<RecordingListener>();
        desktop.SetListener(listener);
        return listener;
    }

    HeadlessDesktop desktop;
    HeadlessKeyboard keyboard{desktop};
    std::shared_ptr<FailingForm> form = std::make_shared<FailingForm>(desktop);
};

TEST_F(ReportTest, NamesTheWindowAndTheButton) {
    form->Show();
    form->cmdAction.onClick = Fail;
    form->cmdAction.Click();
    EXPECT_EQ(desktop.reportedPlace, "Agenda: Sterge (clic)");
}

TEST_F(ReportTest, NamesAFieldAsItIsSpokenOrElseAsItIsCalled) {
    form->Show();
    form->txtName.onChange = Fail;
    form->txtSpoken.onChange = Fail;
    form->txtName.SetText("x");
    EXPECT_EQ(desktop.reportedPlace, "Agenda: txtName (modificare)");
    form->txtSpoken.SetText("x");
    EXPECT_EQ(desktop.reportedPlace, "Agenda: De La Data (modificare)");
}

TEST_F(ReportTest, NamesWhatTheWindowItselfDid) {
    form->failsToLoad = true;
    form->Show();
    EXPECT_EQ(desktop.reportedPlace, "Agenda: deschidere");
}

TEST_F(ReportTest, NamesTheFieldThatAKeyWentTo) {
    form->Show();
    form->txtName.onKeyPress = [](char32_t&) { Fail(); };
    form->txtName.SetFocus();
    keyboard.Type("x");
    EXPECT_EQ(desktop.reportedPlace, "Agenda: txtName (tasta)");
}

TEST_F(ReportTest, NamesNothingWhereNoHandlerRuns) {
    desktop.Guard([] { Fail(); });
    EXPECT_EQ(desktop.reportedPlace, ": ");
}

TEST_F(ReportTest, IsToldByNumberAndHandlerWithoutWhatTheProviderQuotes) {
    const auto listener = Listen();
    form->failsToLoad = true;
    form->Show();
    form->cmdAction.onClick = Fail;
    form->cmdAction.Click();
    desktop.Guard([] { Fail(); });
    EXPECT_THAT(listener->lines, ElementsAre("window Persons opened", "error -5 in Persons.Form_Load",
                                             "error -5 in Persons.cmdAction(2)_Click", "error -5"));
}

TEST_F(ReportTest, TellsEachWindowOnceWhenItOpensAndCloses) {
    const auto listener = Listen();
    form->Load();
    form->Show();
    form->Unload();
    form->Unload();
    EXPECT_THAT(listener->lines, ElementsAre("window Persons opened", "window Persons closed"));
}

TEST_F(ReportTest, IsToldNobodyAfterTheListenerHasGone) {
    const auto listener = Listen();
    desktop.SetListener(nullptr);
    form->Show();
    desktop.Guard([] { Fail(); });
    EXPECT_THAT(listener->lines, IsEmpty());
    EXPECT_EQ(desktop.reports.size(), 1U);
}

}  // namespace
}  // namespace tavrin::tests
