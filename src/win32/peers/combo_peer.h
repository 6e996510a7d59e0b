#pragma once

#include "forms/controls/combo_box.h"
#include "win32/peers/control_window.h"
#include "win32/peers/inner_edit.h"

namespace tavrin::win32 {

/// The platform's combo box. Closed, it looks as the model draws it; the open list is the platform's, dark.
/// What the user chooses there reaches the model after the platform has dealt with it, since a handler may
/// well refill the list.
class ComboPeer final : public ControlWindow {
  public:
    ComboPeer(forms::ComboBox& control, FormPeer& form);
    ~ComboPeer() override;

    void Changed(forms::Aspect aspect) override;
    void DropDown() override;
    void Rescale() override;

    // For the field inside.
    LRESULT HandleInnerKey(const Message& message);
    void HandleInnerFocus();

  protected:
    LRESULT HandleMessage(const Message& message) override;
    LRESULT OnKey(const Message& message) override;
    LRESULT OnSetFocus(const Message& message) override;
    LRESULT Disagreement() const override;
    void Place() override;

  private:
    LRESULT OnPaint(const Message& message);
    LRESULT OnEraseBackground(const Message& message);
    LRESULT OnColors(const Message& message);
    LRESULT OnListColors(const Message& message);
    LRESULT OnCommand(const Message& message);
    LRESULT OnSetSelection(const Message& message);
    LRESULT OnDrawItem(const Message& message);
    LRESULT OnChosen(const Message& message);
    LRESULT OnMouse(const Message& message);
    LRESULT OnWheel(const Message& message);

    bool IsOpen() const;
    /// An open list acts on Esc, Enter and the keys that walk it before anybody else.
    bool HandleOpenListKey(const Message& message);
    void Accept();
    void CloseList();
    KeyRoute RouteKey(const Message& message);

    enum class Choice { Settled, Reported };  ///< by the user, or by a change of the platform's selection
    void PostChoice(int index, Choice choice);
    void Choose(int index, Choice choice);
    void ShowList();
    void ShowText();
    void ShowSelection();
    void ShowFont();
    void FitClosedHeight(int height);
    void PlaceField();
    int SelectedIndex() const;
    std::string EntryText(int index) const;

    forms::ComboBox& control_;
    InnerEdit edit_;
    bool isShowing_ = false;
    /// The entry that the user settled on while the list was still closing, -1 for none.
    int settled_ = -1;
};

}  // namespace tavrin::win32
