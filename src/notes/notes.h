#pragma once

#include <array>
#include <optional>
#include <string>

#include "notes/notes_design.h"
#include "notes/rtf_reader.h"
#include "shell/application.h"

namespace tavrin::notes {

/// What a file action has to report. It allocates nothing, so that a lack of memory can be reported too.
struct Notice {
    const char* prompt = nullptr;  ///< null for nothing
    int icon = shell::message::Exclamation;
};
using Notices = std::array<Notice, 3>;

/// The note pad: one formatted text, kept in an RTF file where the user saves it. What goes into the editor
/// and what goes into the file is written by the note pad itself, from what it could read. Nothing asks about
/// unsaved text. A dialog that is cancelled ends the action without a word; a file that cannot be read or
/// written is told, with the text and the old file as they were, or that the old file is not.
class Notes : public NotesDesign {
  public:
    explicit Notes(shell::Application& application);

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
    Notices OpenNote();
    Notices LoadNote(const std::string& file);
    void PutBack(const std::string& written);
    const char* ProblemOfPictures(const RtfReading& reading) const;
    Notices SaveNote();
    void Replace(const std::string& name, const std::string& file);
    RtfReading ReadWritten(const std::string& written) const;
    void Tell(const std::string& prompt, int icon);
    template <class Action>
    void ReportingFailure(const char* failure, const Action& action);
    void ChooseSelectionFont();
    void ChooseSelectionColor();
    void Toggle(std::optional<bool> forms::CharacterFormat::*property);
    void ShowSelectionFormat();

    shell::Application& application_;
    int lastButton_;  ///< the one under the mouse, NoButton where it is elsewhere
};

}  // namespace tavrin::notes
