// Which windows make a message service of their own, and when.

#include <gmock/gmock.h>

#include <algorithm>
#include <set>

#include "notes/notes.h"
#include "support/fake_rich_text.h"
#include "windows/every_window.h"

namespace tavrin::tests {
namespace {

class MessageServicesTest : public EveryWindowTest {
  protected:
    /// A window that is seen for the first time has made one, or none, since the one before it.
    void LookAt(const forms::Form& form) {
        const bool isNew = seen_ != &form;
        const bool makesNone = form.Name() == "Utilitati" || form.Name() == "frmCalculator";
        EXPECT_EQ(messages.created - created_, isNew && !makesNone ? 1 : 0) << form.Name();
        created_ = messages.created;
        seen_ = &form;
        names.insert(form.Name());
    }

    std::set<std::string> names;

  private:
    const forms::Form* seen_ = nullptr;
    int created_ = 0;
};

TEST_F(MessageServicesTest, EveryWindowButPaletteAndCalculatorMakesOneWhenItLoads) {
    ForEachWindow([this](const forms::Form& form) { LookAt(form); });
    auto& notes = module.Default<notes::Notes>();
    FakeRichText::Give(notes.txtNota);
    notes.ShowForm();
    LookAt(notes);
    EXPECT_EQ(names.size(), 9U) << "all of them";
}

TEST_F(MessageServicesTest, AFailureWhileLoadingCostsNoWindowItsService) {
    module.context.connection = nullptr;
    for (auto* window : std::initializer_list<forms::Form*>{
             &module.Default<rates::CursValutar>(), &module.Default<rates::CursValutarDetaliu>(),
             &module.Default<rates::CereMoneda>(), &module.Default<rates::EvolutieCurs>(),
             &module.Default<rates::AlegeMoneda>(), &module.Default<addressbook::Agenda>()}) {
        messages.created = 0;
        window->Show();
        EXPECT_EQ(messages.created, 1) << window->Name();
    }
    EXPECT_FALSE(desktop.reports.empty());
}

}  // namespace
}  // namespace tavrin::tests
