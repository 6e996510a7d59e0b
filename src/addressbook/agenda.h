#pragma once

#include <cstddef>
#include <string>

#include "addressbook/agenda_design.h"
#include "addressbook/arrow_moves.h"
#include "addressbook/edit_rules.h"
#include "addressbook/person.h"
#include "addressbook/person_store.h"
#include "forms/drawing/image_list.h"
#include "shell/application.h"

namespace tavrin::addressbook {

/// The address book: the persons on the left, the selected one's details on the right. It browses, adds and
/// modifies; an empty book or an empty search leaves the details alone in sight, ready for a new person.
/// A statement that the database refuses is reported by the desktop, and the window stays as it was when it
/// sent it.
class Agenda : public AgendaDesign {
  public:
    explicit Agenda(shell::Application& application);

    void ShowForm();

    EditMode Mode = EditMode::Browse;
    /// The grid row that was current when the editing began.
    int SavedRow = 0;

  protected:
    void OnLoad() override;
    void OnActivate() override { KeepOnTop(); }
    void OnDeactivate() override { KeepOnTop(); }
    void OnUnload() override;
    void OnKeyDown(int& keyCode, forms::Modifiers modifiers) override;

  private:
    void ConnectEvents();
    void SetPictures();

    // The list.
    void LoadList();
    // False where nobody is in the list: the window is in the compact layout then.
    bool ReadList();
    bool RequeryList();
    bool BindRows();
    PersonSearch Search() const;
    void FormatGrid();
    void SelectRow();
    int RowOfShownPerson() const;
    /// Moves the list to a row and shows its person. Fields that cannot be read stay empty.
    void ShowRow(int row);
    /// Whether the list shown was read from the host's current connection. If not, reads it again and answers
    /// false: the user has to look at the person again before changing it.
    bool ShowsCurrentList();

    // The layouts and modes.
    bool IsCompact() const { return fraPersoana.Bounds().left == 0; }
    void ShowCompactLayout();
    void ShowWideLayout();
    void MoveEditButtons(int distance);
    void ChangeWidth(int change);
    void SetEditMode(bool editing);
    void LockSearch(bool locked);

    // The details.
    Person ShownPerson() const;
    void ShowPerson(const Person& person);
    void ClearFields();
    void Refuse(std::size_t missingColumn);

    // The actions.
    void cmdAction_Click(int index);
    void cmdAction_KeyDown(int keyCode);
    void AcceptPerson();
    void SavePerson(const Person& person);
    void ShowAccepted(int row);
    void CancelOrLeave();
    void CancelEdit();
    void AskToLeave();
    void AddPerson();
    void ModifyPerson();
    void DeletePerson();

    void FocusArrowTarget(const ArrowTarget& target);
    void TextBoxes_KeyDown(int index, int& keyCode);
    void TextBoxes_GotFocus(int index);
    void Grid_KeyDown(int keyCode);

    shell::Application& application_;
    PersonStore store_;
    forms::ImageList lstImages_;
    bool isEditing_ = false;  ///< as SetEditMode was last told
};

}  // namespace tavrin::addressbook
