// What the windows of one component share.

#include "shell/module.h"

#include <gmock/gmock.h>

#include <memory>

#include "shell/utilitati.h"
#include "support/window_test.h"

namespace tavrin::tests {
namespace {

using testing::IsEmpty;

class ModuleTest : public WindowTest {
  protected:
    ~ModuleTest() override { desktop.UnloadAll(); }

    int Show() {
        return module.ShowMessage("Question", shell::message::Question, shell::message::YesNo, "Title");
    }
};

TEST_F(ModuleTest, TheDesktopKnowsWhileAMessageIsUp) {
    bool known = false;
    messages.whileShowing = [&] { known = desktop.IsShowingMessage(); };
    Show();
    EXPECT_TRUE(known);
    EXPECT_FALSE(desktop.IsShowingMessage());
}

TEST_F(ModuleTest, AMessageIsShownAsItIsPutAndItsAnswerComesBack) {
    messages.answers = {shell::message::AnswerYes};
    EXPECT_EQ(Show(), shell::message::AnswerYes);
    EXPECT_EQ(Show(), shell::message::AnswerNo);
    EXPECT_EQ(messages.shown.back(), (ShownMessage{"Question", 32, 4, "Title"}));
}

TEST_F(ModuleTest, OneMessageServiceServesUntilAWindowMakesAnother) {
    Show();
    Show();
    EXPECT_EQ(messages.created, 1);
    module.CreateMessageService();
    Show();
    EXPECT_EQ(messages.created, 2);
}

TEST_F(ModuleTest, AWindowThatOpensWhileAMessageIsUpTakesNothingFromIt) {
    messages.whileShowing = [this] { module.CreateMessageService(); };
    EXPECT_EQ(Show(), shell::message::AnswerNo);
    EXPECT_EQ(messages.created, 2);
}

TEST_F(ModuleTest, AWindowIsUnloadedByItsName) {
    module.Default<shell::Utilitati>().Show();
    module.UnloadWindow("utilitati");
    module.UnloadWindow("Agenda");
    EXPECT_NE(module.Loaded<shell::Utilitati>(), nullptr);
    module.UnloadWindow("Utilitati");
    EXPECT_EQ(module.Loaded<shell::Utilitati>(), nullptr);
    EXPECT_THAT(desktop.Forms(), IsEmpty());
}

TEST_F(ModuleTest, AWindowThatWasNotLoadedIsNotFoundLoaded) {
    const auto& palette = module.Default<shell::Utilitati>();
    EXPECT_EQ(module.Loaded<shell::Utilitati>(), nullptr);
    EXPECT_EQ(&module.Default<shell::Utilitati>(), &palette);
}

TEST_F(ModuleTest, WindowsAreUnloadedBeforeTheComponentGoes) {
    auto component = std::make_unique<shell::Module>(desktop, [this] { return messages.CreateService(); });
    component->context.caller = caller;
    component->Default<shell::Utilitati>().Show();
    component.reset();
    EXPECT_THAT(desktop.Forms(), IsEmpty());
    EXPECT_EQ(caller->raised, 1) << "the host was told";
}

TEST_F(ModuleTest, OnlyNamesOfTheCatalogueOpenAnything) {
    int launched = 0;
    module.AddLauncher("Agenda", [&](shell::Module& given) {
        EXPECT_EQ(&given, &module);
        ++launched;
    });
    module.Launch("agenda");
    module.Launch("");
    EXPECT_EQ(launched, 0);
    module.Launch("Agenda");
    EXPECT_EQ(launched, 1);
}

}  // namespace
}  // namespace tavrin::tests
