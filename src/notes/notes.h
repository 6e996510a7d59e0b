#pragma once

#include <optional>

#include "notes/notes_design.h"
#include "shell/module.h"

namespace tavrin::notes {

/// The note pad: one formatted text, kept in an RTF file where the user saves it. Nothing asks about unsaved
/// text. A dialog that is cancelled, and a file that cannot be read or written, end the action without a
/// word; the text is as it was then.
class Notes : public NotesDesign {
  public:
    explicit Notes(shell::Module& module);

    void ShowForm();

    /// Draws the border of a button on the bar: none, raised or sunken.
    void ShowTool(int index, forms::ToolLook look = forms::ToolLook::Resting);

  protected:
    void OnLoad() override;
    void OnActivate() override;
    void OnDeactivate() override { KeepOnTop(); }
    void OnKeyDown(int& keyCode, forms::Modifiers modifiers) override;
    void OnMouseMove(const forms::MouseInput& input) override;

  private:
    void ConnectEvents();

    // The bar under the mouse.
    void ImgBouton_MouseDown(int index, const forms::MouseInput& input);
    void ImgBouton_MouseMove(int index);
    void ImgBouton_MouseLeave(int index);
    void RestTools();

    // The actions.
    void ImgBouton_Click(int index);
    void Perform(int index);
    void NewOrOpenNote();
    void OpenNote();
    void SaveNote();
    void ChooseSelectionFont();
    void ChooseSelectionColor();
    void Toggle(std::optional<bool> forms::CharacterFormat::*property);
    void ShowSelectionFormat();

    shell::Module& module_;
    int lastButton_;  ///< the one under the mouse, NoButton where it is elsewhere
};

}  // namespace tavrin::notes
