#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>

#include "com/composition.h"
#include "host/embedded/demo_data.h"
#include "host/embedded/embedded_connection.h"
#include "host/windows/catalogue.h"
#include "support/fake_rich_text.h"
#include "support/window_test.h"

namespace tavrin::tests {

/// What has to hold for every window in every state: on the demo data, each reached from the palette as a
/// user does.
class EveryWindowTest : public WindowTest {
  protected:
    using Look = std::function<void(forms::Form& form)>;

    EveryWindowTest() {
        StartAnew();
        application.context.connection = std::make_shared<host::EmbeddedConnection>(DemoData());
        application.context.workDate = data::ToOleDate({2003, 11, 28});
        application.context.workYear = 2003;
        application.context.companyId = 1;
        com::AddWindows(application);
        desktop.whenCreating = [](forms::Form& form) {
            for (forms::Control* control : form.AllControls())
                if (auto* box = dynamic_cast<forms::RichTextBox*>(control)) FakeRichText::Give(*box);
        };
    }
    ~EveryWindowTest() override { desktop.UnloadAll(); }

    /// Undoes what was done to the data.
    void StartAnew() {
        transaction_.reset();
        transaction_.emplace(*DemoData());
    }

    forms::Form* Find(std::string_view name) const {
        const auto& open = desktop.Forms();
        const auto found = std::ranges::find(open, name, &forms::Form::Name);
        return found != open.end() ? *found : nullptr;
    }

    static bool IsClickable(const forms::Control& control) {
        return control.IsEffectivelyVisible() && control.AcceptsInput();
    }

    /// \return whether there is such a control, and it could be clicked
    bool Click(std::string_view window, std::string_view button) {
        const forms::Form* form = Find(window);
        forms::Control* control = form != nullptr ? form->FindControl(button) : nullptr;
        if (control == nullptr || !IsClickable(*control)) return false;
        const forms::Desktop::DispatchScope scope(desktop);
        control->Click();
        return true;
    }

    /// Begins at the palette anew, on the data as they were. \return null where the state's way does not lead
    /// to the window
    forms::Form* Come(const host::WindowEntry& window, const host::WindowState& state) {
        desktop.UnloadAll();
        StartAnew();
        com::OpenPalette(application);
        for (const auto& [form, button] : state.clicks)
            if (!Click(form, button)) return nullptr;
        return Find(window.name);
    }

    void ForEachWindow(const Look& look) {
        for (const host::WindowEntry& window : host::AllWindows()) {
            for (const host::WindowState& state : window.states) {
                SCOPED_TRACE(state.description);
                forms::Form* const form = Come(window, state);
                ASSERT_NE(form, nullptr) << window.name;
                look(*form);
            }
        }
    }

  private:
    /// Made once for all tests, which takes longer than most of them.
    static const std::shared_ptr<host::EmbeddedDatabase>& DemoData() {
        static const std::shared_ptr<host::EmbeddedDatabase> database = host::OpenDemoDatabase(":memory:");
        return database;
    }

    std::optional<host::EmbeddedDatabase::Transaction> transaction_;
};

}  // namespace tavrin::tests
