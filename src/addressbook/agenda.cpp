#include "addressbook/agenda.h"

#include <algorithm>

#include "addressbook/messages.h"
#include "addressbook/text_rules.h"
#include "data/text/trim.h"
#include "shell/window_helpers.h"

namespace tavrin::addressbook {

namespace {

namespace key = forms::key;
namespace message = shell::message;
using forms::Icon;
using Answer = shell::Application::Answer;

constexpr std::uint8_t DarkMode = 1;
constexpr int FirstRow = 1;
constexpr int NameColumnWidth = 1500;
constexpr int VisibleColumns = 2;
constexpr int LastColumn = static_cast<int>(Columns.size()) - 1;

// Widening brings the buttons back a little short of where shrinking took them from.
constexpr int ButtonsComeShort = 20;

}  // namespace

Agenda::Agenda(shell::Application& application)
    : AgendaDesign(application.Desktop()),
      application_(application),
      store_(application.context),
      lstImages_{{3, Icon::Modify},  {17, Icon::Add},    {22, Icon::Accept},
                 {23, Icon::Cancel}, {27, Icon::Remove}, {30, Icon::AddressBook}} {
    ConnectEvents();
}

void Agenda::ConnectEvents() {
    cmdAction.OnEach(&forms::Control::onClick, [this](int index) { cmdAction_Click(index); });
    cmdAction.OnEach(&forms::Control::onKeyDown,
                     [this](int, int& keyCode, forms::Modifiers) { cmdAction_KeyDown(keyCode); });
    TextBoxes.OnEach(&forms::Control::onKeyDown, [this](int index, int& keyCode, forms::Modifiers) {
        TextBoxes_KeyDown(index, keyCode);
    });
    TextBoxes.OnEach(&forms::Control::onKeyPress, [](int, char32_t& character) {
        if (IsRefused(character)) character = 0;
    });
    TextBoxes.OnEach(&forms::Control::onGotFocus, [this](int index) { TextBoxes_GotFocus(index); });
    TextBoxes.OnEach(&forms::Control::onLostFocus,
                     [this](int index) { TextBoxes[index].SetBackColor(forms::Black); });
    Grid.onClick = [this] { Grid_KeyDown(key::Enter); };
    Grid.onKeyDown = [this](int& keyCode, forms::Modifiers) { Grid_KeyDown(keyCode); };
}

// Life.

void Agenda::ShowForm() {
    Load();
    Show();
}

void Agenda::OnLoad() {
    shell::ApplyDarkScheme(*this, DarkMode);
    SetPictures();
    Mode = EditMode::Browse;
    // A list that cannot be read is reported, and the rest of the window is made all the same.
    OwnerDesktop().Guard({this, nullptr, forms::event::Load}, [this] { LoadList(); });
    application_.CreateMessageService();
}

void Agenda::SetPictures() {
    cmdAction[Accept].SetPicture(lstImages_.Picture(22));
    cmdAction[Cancel].SetPicture(lstImages_.Picture(23));
    cmdAction[Add].SetPicture(lstImages_.Picture(17));
    cmdAction[Modify].SetPicture(lstImages_.Picture(3));
    cmdAction[Delete].SetPicture(lstImages_.Picture(27));
    imgAgenda.SetPicture(lstImages_.Picture(30));
}

void Agenda::OnUnload() {
    Grid.SetDataSource(nullptr);
    store_.Release();
}

// The list.

void Agenda::LoadList() {
    // Whoever was shown goes with the old list: should the new one not come, the buttons are left with
    // nobody.
    ClearFields();
    if (!ReadList()) return;
    SelectRow();
    ShowRow(Grid.Row());
}

bool Agenda::ReadList() {
    Grid.SetDataSource(nullptr);
    store_.Load(Search());
    FormatGrid();
    return BindRows();
}

bool Agenda::RequeryList() {
    store_.Refresh(Search());
    Grid.SetDataSource(nullptr);
    return BindRows();
}

bool Agenda::BindRows() {
    if (!store_.HasRows()) {
        ShowCompactLayout();
        return false;
    }
    Grid.SetDataSource(store_.ReadAll());
    FormatGrid();
    return true;
}

PersonSearch Agenda::Search() const {
    return {TextBoxes[SearchNumeBox].Text(), TextBoxes[SearchPrenumeBox].Text()};
}

void Agenda::FormatGrid() {
    Grid.SetFormatString("<Nume|<Prenume");
    for (int column = 0; column <= LastColumn; ++column)
        Grid.SetColumnWidth(column, column < VisibleColumns ? NameColumnWidth : 0);
}

void Agenda::SelectRow() {
    Grid.SetCol(0);
    Grid.SetFocus();
    Grid.SetColSel(LastColumn);
}

int Agenda::RowOfShownPerson() const {
    const int row = FindPerson(*Grid.DataSource(), TextBoxes[NumeBox].Text(), TextBoxes[PrenumeBox].Text());
    // Somebody whom the search leaves out is not in the list; it then starts at its first row.
    return std::max(row, FirstRow);
}

void Agenda::ShowRow(int row) {
    Person person;
    try {
        store_.MoveTo(row);
        store_.Read(person);
    } catch (...) {
        // The names come first and are the row's; nothing of the person before stays behind them.
        ShowPerson(person);
        throw;
    }
    ShowPerson(person);
}

bool Agenda::ShowsCurrentList() {
    if (store_.IsCurrent() && Grid.DataSource() != nullptr) return true;
    LoadList();
    return false;
}

// The layouts and modes.

void Agenda::ShowCompactLayout() {
    const int width = fraGrid.Bounds().width;
    fraPersoana.MoveTo(0, fraPersoana.Bounds().top);
    MoveEditButtons(-width);
    ChangeWidth(-width);
    ClearFields();
    Mode = EditMode::Add;
    SetEditMode(true);
    // The list lies under the details now, where no key may reach it.
    fraGrid.SetEnabled(false);
    TextBoxes[NumeBox].SetFocus();
}

void Agenda::ShowWideLayout() {
    const int width = fraGrid.Bounds().width;
    fraPersoana.MoveTo(fraPersoana.Bounds().left + width, fraPersoana.Bounds().top);
    MoveEditButtons(width - ButtonsComeShort);
    ChangeWidth(Grid.Bounds().width);
}

void Agenda::MoveEditButtons(int distance) {
    for (const Action action : {Accept, Cancel}) {
        const forms::Rect& bounds = cmdAction[action].Bounds();
        cmdAction[action].MoveTo(bounds.left + distance, bounds.top);
    }
}

void Agenda::ChangeWidth(int change) {
    SetBounds({Bounds().left, Bounds().top, Bounds().width + change, Bounds().height});
    PlaceOnScreen();
}

void Agenda::SetEditMode(bool editing) {
    isEditing_ = editing;
    const OpenBoxes open = OpenBoxesOf({.mode = Mode, .isEditing = editing});
    TextBoxes[NumeBox].SetLocked(!open.names);
    TextBoxes[PrenumeBox].SetLocked(!open.names);
    for (int box = FirstDetailBox; box <= LastBox; ++box)
        TextBoxes[box].SetLocked(!open.details);
    cmdAction[Accept].SetVisible(editing);
    cmdAction[Cancel].SetCaption(editing ? "Renunta" : "Iesire");
    cmdAction[Cancel].SetAccelerator(editing ? U'R' : U'I');
    for (const Action action : {Add, Modify, Delete})
        cmdAction[action].SetVisible(!editing);
    fraPersoana.SetEnabled(editing);
}

void Agenda::LockSearch(bool locked) {
    TextBoxes[SearchNumeBox].SetLocked(locked);
    TextBoxes[SearchPrenumeBox].SetLocked(locked);
}

// The details.

Person Agenda::ShownPerson() const {
    Person person;
    for (int column = 0; column <= LastColumn; ++column)
        person[static_cast<std::size_t>(column)] = TextBoxes[FirstColumnBox + column].Text();
    return person;
}

void Agenda::ShowPerson(const Person& person) {
    for (int column = 0; column <= LastColumn; ++column)
        TextBoxes[FirstColumnBox + column].SetText(person[static_cast<std::size_t>(column)]);
}

void Agenda::ClearFields() {
    ShowPerson({});
}

void Agenda::Refuse(std::size_t missingColumn) {
    application_.ShowMessage(missingColumn == NumeColumn ? text::NumeRequired : text::PrenumeRequired,
                             message::Error, message::Ok, Caption());
    TextBoxes[FirstColumnBox + static_cast<int>(missingColumn)].SetFocus();
}

// The actions.

void Agenda::cmdAction_Click(int index) {
    switch (index) {
        case Accept:
            AcceptPerson();
            break;
        case Cancel:
            CancelOrLeave();
            break;
        case Add:
            AddPerson();
            break;
        case Modify:
            ModifyPerson();
            break;
        case Delete:
            DeletePerson();
            break;
        default:
            break;
    }
}

void Agenda::AcceptPerson() {
    const Person person = ShownPerson();
    if (const auto missing = MissingColumn(person)) return Refuse(*missing);
    SavePerson(person);
}

void Agenda::SavePerson(const Person& person) {
    const bool modifies = Mode == EditMode::Modify;
    if (modifies) {
        store_.Change(person);
    } else {
        store_.Add(person);
    }
    LockSearch(true);
    fraGrid.SetEnabled(true);
    if (IsCompact()) {
        ShowWideLayout();
        // Where the search in the boxes leaves the new person out, the window is ready for another one.
        if (ReadList() && RequeryList()) ShowAccepted(FirstRow);
    } else if (RequeryList()) {
        ShowAccepted(modifies ? SavedRow : RowOfShownPerson());
    }
    LockSearch(false);
}

// What follows a statement is in order before the row is shown: one that cannot be shown whole holds nobody
// in the edit.
void Agenda::ShowAccepted(int row) {
    Grid.SetRow(row);
    SetEditMode(false);
    SelectRow();
    Mode = EditMode::Browse;
    LockSearch(false);
    ShowRow(Grid.Row());
}

void Agenda::CancelOrLeave() {
    if (!CancelsEdit({.mode = Mode, .isEditing = isEditing_})) {
        AskToLeave();
    } else if (store_.HasRows()) {
        CancelEdit();
    } else {
        Unload();
    }
}

void Agenda::CancelEdit() {
    LockSearch(true);
    fraGrid.SetEnabled(true);
    SetEditMode(false);
    Mode = EditMode::Browse;
    LockSearch(false);
    SelectRow();
    ShowRow(SavedRow);
}

void Agenda::AskToLeave() {
    if (application_.Ask(*this, text::LeaveQuestion, text::LeaveTitle) == Answer::Yes) Unload();
}

void Agenda::AddPerson() {
    SavedRow = Grid.Row();
    Mode = EditMode::Add;
    ClearFields();
    SetEditMode(true);
    fraGrid.SetEnabled(false);
    Refresh();
    TextBoxes[NumeBox].SetFocus();
}

void Agenda::ModifyPerson() {
    if (!ShowsCurrentList()) return;
    store_.RequireNames();
    SavedRow = Grid.Row();
    Mode = EditMode::Modify;
    SetEditMode(true);
    fraGrid.SetEnabled(false);
    TextBoxes[FirstDetailBox].SetFocus();
}

void Agenda::DeletePerson() {
    if (!ShowsCurrentList()) return;
    store_.RequireNames();
    const std::string nume(data::Trimmed(TextBoxes[NumeBox].Text()));
    const std::string prenume(data::Trimmed(TextBoxes[PrenumeBox].Text()));
    application_.lastQuestion = text::DeleteQuestion + nume + " " + prenume + text::DeleteQuestionEnd;
    const int row = Grid.Row();
    const Answer answer = application_.Ask(*this, application_.lastQuestion, Caption());
    if (answer == Answer::No) Grid.SetFocus();
    // The person that the question named, and in the data that it was about: a host may call while it is up.
    if (answer != Answer::Yes || Mode != EditMode::Browse || Grid.Row() != row) return;
    if (!ShowsCurrentList()) return;
    store_.Remove(nume, prenume);
    if (!RequeryList()) return;
    Grid.SetRow(FirstRow);
    Grid.SetCol(0);
    Grid.SetColSel(LastColumn);
    ShowRow(FirstRow);
}

// Focus and keys.

void Agenda::OnKeyDown(int& keyCode, forms::Modifiers /*modifiers*/) {
    if (keyCode != key::Escape) return;
    keyCode = key::Swallowed;
    cmdAction[Cancel].Click();
}

void Agenda::cmdAction_KeyDown(int keyCode) {
    if (keyCode != key::Up) return;
    TextBoxes[fraPersoana.Enabled() ? LastBox : SearchNumeBox].SetFocus();
}

void Agenda::TextBoxes_KeyDown(int index, int& keyCode) {
    if (keyCode == key::Enter) {
        keyCode = key::Swallowed;
        if (index == SearchNumeBox || index == SearchPrenumeBox) {
            LoadList();
        } else {
            FocusNext();
        }
    } else if (const auto target = ArrowMove(index, keyCode)) {
        FocusArrowTarget(*target);
    }
}

void Agenda::FocusArrowTarget(const ArrowTarget& target) {
    if (target.kind == ArrowTarget::Kind::AcceptButton) {
        cmdAction[Accept].SetFocus();
    } else {
        TextBoxes[target.box].SetFocus();
    }
}

void Agenda::TextBoxes_GotFocus(int index) {
    TextBoxes[index].SetBackColor(forms::FocusGrey);
    TextBoxes[index].SelectAll();
}

void Agenda::Grid_KeyDown(int keyCode) {
    switch (keyCode) {
        case key::Up:
            if (Grid.Row() == FirstRow) TextBoxes[SearchPrenumeBox].SetFocus();
            break;
        case key::Enter:
        case key::Down:
        case key::PageDown:
        case key::PageUp:
            break;
        default:
            return;
    }
    SetEditMode(false);
    // The details follow the row that was current before the key: the grid moves its cursor afterwards.
    ShowRow(Grid.Row());
}

}  // namespace tavrin::addressbook
