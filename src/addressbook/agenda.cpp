#include "addressbook/agenda.h"

#include <algorithm>

#include "addressbook/arrow_moves.h"
#include "addressbook/messages.h"
#include "addressbook/text_rules.h"
#include "shell/window_helpers.h"

namespace tavrin::addressbook {

namespace {

namespace key = forms::key;
namespace message = shell::message;
using forms::Icon;
using Answer = shell::Module::Answer;

constexpr std::uint8_t DarkMode = 1;
constexpr int FirstRow = 1;
constexpr int NameColumnWidth = 1500;
constexpr int VisibleColumns = 2;
constexpr int LastColumn = static_cast<int>(Columns.size()) - 1;

// Widening brings the buttons back a little short of where shrinking took them from.
constexpr int ButtonsComeShort = 20;

}  // namespace

Agenda::Agenda(shell::Module& module)
    : AgendaDesign(module.Desktop()),
      module_(module),
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
    list_.Create(module_.context.Database());
    SetPictures();
    Mode = "V";
    LoadList();
    module_.CreateMessageService();
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
    list_.Release();
}

// The list.

void Agenda::LoadList() {
    Grid.SetDataSource(nullptr);
    list_.Load(ListStatement(SearchPattern(TextBoxes[SearchNumeBox].Text()),
                             SearchPattern(TextBoxes[SearchPrenumeBox].Text())));
    FormatGrid();
    if (!list_.HasRows()) {
        ShowCompactLayout();
        return;
    }
    BindGrid();
    list_.MoveTo(Grid.Row());
    ShowRecord();
    SelectRow();
}

void Agenda::FormatGrid() {
    Grid.SetFormatString("<Nume|<Prenume");
    for (int column = 0; column <= LastColumn; ++column)
        Grid.SetColumnWidth(column, column < VisibleColumns ? NameColumnWidth : 0);
}

void Agenda::BindGrid() {
    Grid.SetDataSource(list_.ReadAll());
    FormatGrid();
}

bool Agenda::RequeryList() {
    list_.Requery();
    Grid.SetDataSource(nullptr);
    if (!list_.HasRows()) {
        ShowCompactLayout();
        return false;
    }
    BindGrid();
    return true;
}

void Agenda::SelectRow() {
    Grid.SetCol(0);
    Grid.SetFocus();
    Grid.SetColSel(LastColumn);
}

void Agenda::PositionRecordByName() {
    const int row = FindPerson(*Grid.DataSource(), TextBoxes[NumeBox].Text(), TextBoxes[PrenumeBox].Text());
    // Somebody whom the search leaves out is not in the list; it then starts at its first row.
    Grid.SetRow(std::max(row, FirstRow));
    list_.MoveTo(Grid.Row());
}

void Agenda::ShowRecord() {
    // All columns are read before any is shown: never does one person's name stand over another's details.
    const Person person = list_.Current();
    for (int column = 0; column <= LastColumn; ++column)
        TextBoxes[FirstColumnBox + column].SetText(person[static_cast<std::size_t>(column)]);
}

// The layouts and modes.

void Agenda::ShowCompactLayout() {
    const int width = fraGrid.Bounds().width;
    fraPersoana.MoveTo(0, fraPersoana.Bounds().top);
    MoveEditButtons(-width);
    ChangeWidth(-width);
    ClearFields();
    Mode = "A";
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
    const bool namesLocked = Mode == "M" || !editing;
    TextBoxes[NumeBox].SetLocked(namesLocked);
    TextBoxes[PrenumeBox].SetLocked(namesLocked);
    for (int box = FirstDetailBox; box <= LastBox; ++box)
        TextBoxes[box].SetLocked(!editing);
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

void Agenda::ClearFields() {
    for (int box = FirstColumnBox; box <= LastBox; ++box)
        TextBoxes[box].SetText({});
}

bool Agenda::CheckNume() {
    return CheckFilled(NumeBox, text::NumeRequired);
}

bool Agenda::CheckPrenume() {
    return CheckFilled(PrenumeBox, text::PrenumeRequired);
}

bool Agenda::CheckFilled(int box, const char* refusal) {
    if (!Trimmed(TextBoxes[box].Text()).empty()) return true;
    module_.ShowMessage(refusal, message::Error, message::Ok, Caption());
    TextBoxes[box].SetFocus();
    return false;
}

// The actions.

void Agenda::cmdAction_Click(int index) {
    switch (index) {
        case Accept:
            if (CheckNume() && CheckPrenume()) AcceptPerson();
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
    module_.context.Database().Execute(Mode == "M" ? UpdateStatement(person) : InsertStatement(person));
    LockSearch(true);
    fraGrid.SetEnabled(true);
    if (Mode == "A" && list_.AtEnd()) {
        ShowWideLayout();
        LoadList();
        // Where the search in the boxes leaves the new person out, the window is ready for another one.
        if (list_.HasRows() && RequeryList()) ShowAccepted();
    } else if (RequeryList()) {
        ShowAccepted();
    }
    LockSearch(false);
}

void Agenda::ShowAccepted() {
    if (Mode == "A") {
        PositionRecordByName();
    } else {
        list_.MoveTo(SavedRow);
        Grid.SetRow(SavedRow);
    }
    ShowRecord();
    SetEditMode(false);
    SelectRow();
    Mode = "V";
}

void Agenda::CancelOrLeave() {
    const bool cancels = cmdAction[Cancel].Caption() == "Renunta" && Mode != "V";
    if (!cancels) {
        AskToLeave();
    } else if (list_.HasRows()) {
        CancelEdit();
    } else {
        Unload();
    }
}

void Agenda::CancelEdit() {
    LockSearch(true);
    fraGrid.SetEnabled(true);
    SetEditMode(false);
    Mode = "V";
    LockSearch(false);
    SelectRow();
    // Last, so that a row that cannot be shown does not hold the user in the edit.
    list_.MoveTo(SavedRow);
    ShowRecord();
}

void Agenda::AskToLeave() {
    if (module_.Ask(*this, text::LeaveQuestion, text::LeaveTitle) == Answer::Yes) Unload();
}

void Agenda::AddPerson() {
    SavedRow = Grid.Row();
    Mode = "A";
    ClearFields();
    SetEditMode(true);
    fraGrid.SetEnabled(false);
    Refresh();
    TextBoxes[NumeBox].SetFocus();
}

void Agenda::ModifyPerson() {
    SavedRow = Grid.Row();
    Mode = "M";
    SetEditMode(true);
    fraGrid.SetEnabled(false);
    TextBoxes[FirstDetailBox].SetFocus();
}

void Agenda::DeletePerson() {
    const std::string nume(Trimmed(TextBoxes[NumeBox].Text()));
    const std::string prenume(Trimmed(TextBoxes[PrenumeBox].Text()));
    module_.lastQuestion = text::DeleteQuestion + nume + " " + prenume + text::DeleteQuestionEnd;
    const int row = Grid.Row();
    const auto connection = module_.context.connection;
    const Answer answer = module_.Ask(*this, module_.lastQuestion, Caption());
    if (answer == Answer::No) Grid.SetFocus();
    // The person that the question named, in the data that it was about: a host may call while it is up.
    if (answer != Answer::Yes || Mode != "V" || Grid.Row() != row) return;
    if (module_.context.connection != connection) return;
    module_.context.Database().Execute(DeleteStatement(nume, prenume));
    if (!RequeryList()) return;
    Grid.SetRow(FirstRow);
    list_.MoveTo(FirstRow);
    ShowRecord();
    Grid.SetCol(0);
    Grid.SetColSel(LastColumn);
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
    // The details follow the row that was current before the key: the grid moves its cursor afterwards.
    list_.MoveTo(Grid.Row());
    ShowRecord();
    SetEditMode(false);
}

}  // namespace tavrin::addressbook
