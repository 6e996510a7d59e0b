#pragma once

#include <string>

#include "forms/model/character_format.h"

namespace tavrin::forms {

class Form;

/// What a dialog that asks for a file shows, and what was chosen in it.
struct FileDialogSettings {
    unsigned flags = 0;  ///< as the platform's file dialogs number them
    std::string title;
    std::string filter;  ///< "Description|*.ext"
    std::string fileName;
    bool operator==(const FileDialogSettings&) const = default;
};

/// What a font dialog shows, and what was chosen in it. A property without a value is shown as not chosen,
/// and still has none where the user leaves it so.
struct FontDialogSettings {
    unsigned flags = 0;  ///< as the platform's font dialog numbers them
    CharacterFormat font;
    bool operator==(const FontDialogSettings&) const = default;
};

/// The platform's dialogs, modal to the owner's window. Each answers whether the user has chosen; else the
/// settings are as they were. \throws data::Error where a dialog cannot be shown
class Dialogs {
  public:
    virtual ~Dialogs() = default;
    virtual bool ShowOpen(const Form& owner, FileDialogSettings& settings) = 0;
    virtual bool ShowSave(const Form& owner, FileDialogSettings& settings) = 0;
    virtual bool ShowFont(const Form& owner, FontDialogSettings& settings) = 0;
    virtual bool ShowColor(const Form& owner, Color& color) = 0;
};

/// A form's own access to the platform's dialogs. What was chosen stays for the next time.
class CommonDialog {
  public:
    explicit CommonDialog(Form& owner) : owner_(owner) {}

    unsigned flags = 0;
    std::string dialogTitle;
    std::string filter;
    std::string fileName;
    CharacterFormat font;
    Color color = Black;  ///< of the colour dialog and of the font dialog

    // Each answers whether the user has chosen, and the form is still open to act upon it.
    bool ShowOpen();
    bool ShowSave();
    bool ShowFont();
    bool ShowColor();

  private:
    template <class Show>
    bool ShowModal(const Show& show);
    FileDialogSettings FileSettings() const { return {flags, dialogTitle, filter, fileName}; }

    Form& owner_;
};

}  // namespace tavrin::forms
