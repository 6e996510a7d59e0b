#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "data/text/date.h"
#include "forms/model/form.h"
#include "shell/application.h"
#include "support/headless_desktop.h"
#include "support/headless_keyboard.h"
#include "support/recording_messages.h"

namespace tavrin::tests {

/// Counts the exit notifications that the host would receive.
class CountingCaller : public shell::CallingObject {
  public:
    void RaiseIesire() noexcept override {
        ++raised;
        if (whenRaised) whenRaised();
    }

    int raised = 0;
    std::function<void()> whenRaised;
};

/// A component without a platform: its windows stand on a headless desktop, its messages are recorded.
class WindowTest : public testing::Test {
  protected:
    WindowTest() { application.context.caller = caller; }

    std::string FocusedControl() const {
        const forms::Form* form = desktop.ActiveForm();
        if (form == nullptr) return "no window";
        return form->ActiveControl() != nullptr ? form->ActiveControl()->QualifiedName() : "nothing";
    }

    std::string ActiveWindow() const {
        return desktop.ActiveForm() != nullptr ? desktop.ActiveForm()->Name() : "none";
    }

    HeadlessDesktop desktop;
    HeadlessKeyboard keyboard{desktop};
    RecordingMessages messages;
    std::shared_ptr<CountingCaller> caller = std::make_shared<CountingCaller>();
    shell::Application application{desktop, [this] { return messages.CreateService(); }};
};

}  // namespace tavrin::tests
