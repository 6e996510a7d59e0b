// In every window the keyboard goes through the controls in tab order, and each control has something to be
// called.

#include <gmock/gmock.h>

#include "windows/every_window.h"

namespace tavrin::tests {
namespace {

using testing::ElementsAreArray;
using testing::IsEmpty;
using testing::Not;

class FocusOrderTest : public EveryWindowTest {
  protected:
    static std::vector<std::string> InTabOrder(const forms::Form& form) {
        std::vector<std::string> names;
        for (const forms::Control* control : form.AllControls())
            if (control->CanTakeFocus()) names.push_back(control->QualifiedName());
        return names;
    }

    /// From the first in tab order on, as long as Tab leads to another one.
    static std::vector<std::string> ByTab(forms::Form& form) {
        for (forms::Control* control : form.AllControls()) {
            control->SetFocus();
            if (form.ActiveControl() == control) break;
        }
        std::vector<std::string> names;
        const forms::Control* const first = form.ActiveControl();
        do {
            names.push_back(form.ActiveControl()->QualifiedName());
            form.FocusNext();
        } while (form.ActiveControl() != first && names.size() < 100);
        return names;
    }
};

TEST_F(FocusOrderTest, TabFollowsTheTabOrder) {
    ForEachWindow([](forms::Form& form) {
        SCOPED_TRACE(form.Name());
        ASSERT_THAT(InTabOrder(form), Not(IsEmpty()));
        EXPECT_THAT(ByTab(form), ElementsAreArray(InTabOrder(form)));
    });
}

TEST_F(FocusOrderTest, EveryControlInSightHasAName) {
    ForEachWindow([](forms::Form& form) {
        for (const forms::Control* control : form.AllControls()) {
            const bool isLook = control->Kind() == forms::ControlKind::Decoration ||
                                control->Accessible().role == forms::Role::Grouping;
            const bool needsName = control->IsEffectivelyVisible() && !isLook;
            EXPECT_TRUE(!needsName || !control->Accessible().name.empty())
                << form.Name() << "." << control->QualifiedName();
        }
    });
}

}  // namespace
}  // namespace tavrin::tests
