#pragma once

#include <windows.h>

#include <gmock/gmock.h>

#include <functional>
#include <memory>
#include <string>

#include "data/text/date.h"
#include "e2e/driver/input.h"
#include "e2e/driver/ui_thread.h"
#include "e2e/driver/wait.h"
#include "e2e/driver/window.h"
#include "forms/controls/combo_box.h"
#include "forms/controls/command_button.h"
#include "forms/controls/date_picker.h"
#include "forms/controls/frame.h"
#include "forms/controls/grid.h"
#include "forms/controls/text_box.h"
#include "forms/model/form.h"
#include "win32/desktop/desktop.h"

namespace tavrin::e2e {

/// A form with one control of each kind that the platform has a part in.
class SampleForm : public forms::Form {
  public:
    SampleForm(forms::Desktop& desktop, const std::string& name);

    int activations = 0;
    int deactivations = 0;
    std::function<void(int& keyCode)> preview;
    std::function<void()> whenUnloading;

    forms::TextBox field{*this, "field", {60, 60, 2000, 345}};
    forms::CommandButton button{*this, "cmdStop", "Opreste", {60, 460, 2000, 345}};
    forms::ComboBox list{*this, "list", forms::ComboStyle::DropDownList, {60, 860, 2000, 345}};
    forms::ComboBox typed{*this, "typed", forms::ComboStyle::DropDown, {60, 1260, 2000, 345}};
    forms::DatePicker date{*this, "date", "dd/MM/yyyy", {60, 1660, 2000, 345}};
    forms::Frame frame{*this, "frame", {3000, 60, 2900, 2000}};
    forms::Grid grid{frame, "grid", {60, 60, 2700, 1000}};
    forms::TextBox inner{frame, "inner", {60, 1200, 2700, 345}};

  protected:
    void OnActivate() override;
    void OnDeactivate() override;
    void OnUnload() override;
    void OnKeyDown(int& keyCode, forms::Modifiers modifiers) override;
};

/// A test of the platform's windows without the component: a form of its own on a thread with a host's loop.
class PeersTest : public testing::Test, public testing::WithParamInterface<LoopKind> {
  protected:
    PeersTest() : ui(GetParam()) {}
    void SetUp() override { Open(); }
    void TearDown() override;

    /// Shows a new form and waits until it has the keyboard.
    void Open();
    void Unload();
    /// Whether form, window and everything they shared are gone.
    bool IsGone();

    /// Presses a key and waits until its message has been dealt with.
    void Press(WORD key, std::initializer_list<WORD> held = {});
    void Type(std::string_view text);
    void ClickOn(const std::string& control);
    void ClickInList(const forms::ComboBox& box, int pixelsDown);
    /// A character that no key gives, as input methods and other programs send it.
    void Send(std::wstring_view units);

    Window Control(const std::string& name) const { return window.Control(name); }
    template <class Function>
    auto Call(Function&& function) {
        return ui.Call(std::forward<Function>(function));
    }

    UiThread ui;
    std::unique_ptr<win32::Desktop> desktop;  ///< lives on the thread, as the form does
    std::shared_ptr<SampleForm> form;
    Window window;
};

}  // namespace tavrin::e2e
