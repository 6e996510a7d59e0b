// What the windows of one component share.

#include "shell/application.h"

#include <gmock/gmock.h>

#include <memory>

#include "shell/utilitati.h"
#include "support/window_test.h"

namespace tavrin::tests {
namespace {

using testing::IsEmpty;

class ApplicationTest : public WindowTest {
  protected:
    ~ApplicationTest() override { desktop.UnloadAll(); }

    int Show() {
        return application.ShowMessage("Question", shell::message::Question, shell::message::YesNo, "Title");
    }
};

TEST_F(ApplicationTest, TheDesktopKnowsWhileAMessageIsUp) {
    bool known = false;
    messages.whileShowing = [&] { known = desktop.IsShowingMessage(); };
    Show();
    EXPECT_TRUE(known);
    EXPECT_FALSE(desktop.IsShowingMessage());
}

TEST_F(ApplicationTest, AMessageIsShownAsItIsPutAndItsAnswerComesBack) {
    messages.answers = {shell::message::AnswerYes};
    EXPECT_EQ(Show(), shell::message::AnswerYes);
    EXPECT_EQ(Show(), shell::message::AnswerNo);
    EXPECT_EQ(messages.shown.back(), (ShownMessage{"Question", 32, 4, "Title"}));
}

TEST_F(ApplicationTest, OneMessageServiceServesUntilAWindowMakesAnother) {
    Show();
    Show();
    EXPECT_EQ(messages.created, 1);
    application.CreateMessageService();
    Show();
    EXPECT_EQ(messages.created, 2);
}

TEST_F(ApplicationTest, AWindowThatOpensWhileAMessageIsUpTakesNothingFromIt) {
    messages.whileShowing = [this] { application.CreateMessageService(); };
    EXPECT_EQ(Show(), shell::message::AnswerNo);
    EXPECT_EQ(messages.created, 2);
}

TEST_F(ApplicationTest, AWindowIsUnloadedByItsName) {
    application.Default<shell::Utilitati>().Show();
    application.UnloadWindow("utilitati");
    application.UnloadWindow("Agenda");
    EXPECT_NE(application.Loaded<shell::Utilitati>(), nullptr);
    application.UnloadWindow("Utilitati");
    EXPECT_EQ(application.Loaded<shell::Utilitati>(), nullptr);
    EXPECT_THAT(desktop.Forms(), IsEmpty());
}

TEST_F(ApplicationTest, AWindowThatWasNotLoadedIsNotFoundLoaded) {
    const auto& palette = application.Default<shell::Utilitati>();
    EXPECT_EQ(application.Loaded<shell::Utilitati>(), nullptr);
    EXPECT_EQ(&application.Default<shell::Utilitati>(), &palette);
}

TEST_F(ApplicationTest, WindowsAreUnloadedBeforeTheComponentGoes) {
    auto component =
        std::make_unique<shell::Application>(desktop, [this] { return messages.CreateService(); });
    component->context.caller = caller;
    component->Default<shell::Utilitati>().Show();
    component.reset();
    EXPECT_THAT(desktop.Forms(), IsEmpty());
    EXPECT_EQ(caller->raised, 1) << "the host was told";
}

TEST_F(ApplicationTest, OnlyNamesOfTheCatalogueOpenAnything) {
    int launched = 0;
    application.AddLauncher("Agenda", [&](shell::Application& given) {
        EXPECT_EQ(&given, &application);
        ++launched;
    });
    application.Launch("agenda");
    application.Launch("");
    EXPECT_EQ(launched, 0);
    application.Launch("Agenda");
    EXPECT_EQ(launched, 1);
}

}  // namespace
}  // namespace tavrin::tests
