#include "addressbook/agenda_design.h"

#include <array>
#include <initializer_list>

#include "shell/layout.h"

namespace tavrin::addressbook {

namespace {

namespace layout = shell::layout;

constexpr int ClientWidth = 10590 + layout::Unit;
constexpr int ClientHeight = 6675;
constexpr int AboveCentre = 500;
constexpr forms::Rect GridFrame = {30, 0, 3315, ClientHeight};
constexpr forms::Rect PersonFrame = {3315, 0, 7275, ClientHeight};

// What the list's panel holds ends before the panel does: its last twips lie under the details.
constexpr int ListWidth = 3255;
constexpr int ListTop = 1410;
constexpr int ListBottom = 6555;
constexpr int PictureSide = 300;
constexpr int LineGap = 30;
constexpr int LineThickness = 15;

constexpr int PersonLeft = 60;
constexpr int PersonWidth = 7155;

enum class Column { Search, Left, Right, Full };

/// Where a label and its box stand in their panel.
struct ColumnPlace {
    int labelLeft;
    int labelWidth;
    int boxLeft;
    int boxWidth;
};

constexpr ColumnPlace PlaceOf(Column column) {
    switch (column) {
        case Column::Search:
            return {0, 840, 900, 2355};
        case Column::Left:
            return {PersonLeft, 1140, 1260, 2295};
        case Column::Right:
            return {3720, 1140, 4920, 2295};
        case Column::Full:
            return {PersonLeft, 1140, 1260, 5955};
    }
    return {};
}

struct FieldLook {
    const char* caption;
    const char* spoken;  ///< the name for assistive tools, which do not see the headings
    Column column;
    int top;
};

constexpr std::array<FieldLook, AgendaDesign::BoxCount> Fields = {{
    {"Nume:", "Cautare dupa nume", Column::Search, 510},
    {"Prenume:", "Cautare dupa prenume", Column::Search, 960},
    {"Nume:", "Nume", Column::Left, 120},
    {"Prenume:", "Prenume", Column::Right, 120},
    {"Adresa:", "Adresa", Column::Full, 1050},
    {"Oras:", "Oras", Column::Left, 1560},
    {"Judet:", "Judet", Column::Right, 1560},
    {"Tel. acasa:", "Telefon acasa", Column::Left, 2070},
    {"Tel. mobil:", "Telefon mobil", Column::Right, 2070},
    {"E-mail:", "E-mail", Column::Full, 2580},
    {"Denumire:", "Denumire firma", Column::Full, 3540},
    {"Adresa:", "Adresa firma", Column::Full, 4050},
    {"Oras:", "Oras firma", Column::Left, 4560},
    {"Judet:", "Judet firma", Column::Right, 4560},
    {"Telefon:", "Telefon firma", Column::Left, 5070},
    {"Fax:", "Fax firma", Column::Right, 5070},
    {"Departament:", "Departament", Column::Left, 5580},
    {"Functie:", "Functie", Column::Right, 5580},
}};

constexpr int ButtonTop = 6180;
constexpr int ButtonWidth = 1290;
constexpr int ButtonHeight = 375;

struct ActionLook {
    AgendaDesign::Action action;
    const char* caption;
    char32_t accelerator;
    int left;
};

// In tab order.
constexpr std::array<ActionLook, 5> Actions = {{
    {AgendaDesign::Add, "Adauga", U'A', 3360},
    {AgendaDesign::Modify, "Modifica", U'M', 4680},
    {AgendaDesign::Delete, "Sterge", U'S', 6000},
    {AgendaDesign::Accept, "Accepta", U'C', 7920},
    {AgendaDesign::Cancel, "Renunta", U'R', 9240},
}};

}  // namespace

AgendaDesign::AgendaDesign(forms::Desktop& desktop)
    : Form(desktop, "Agenda", "Agenda", forms::BorderStyle::FixedDialog),
      cmdAction(*this, "cmdAction"),
      fraPersoana(*this, "fraPersoana"),
      fraGrid(*this, "fraGrid"),
      Label2([this](int label) -> forms::Container& { return ContainerOf(label); }, "Label2"),
      TextBoxes([this](int box) -> forms::Container& { return ContainerOf(box); }, "TextBoxes"),
      Grid(fraGrid, "Grid"),
      imgAgenda(fraGrid, "imgAgenda"),
      Line1(fraGrid, "Line1"),
      Line2(fraPersoana, "Line2"),
      Line3(fraPersoana, "Line3") {
    PlaceFrames();
    PlaceFields();
    PlaceHeading(SearchHeading, Line1, 120);
    PlaceHeading(PersonHeading, Line2, 660);
    PlaceHeading(CompanyHeading, Line3, 3150);
    PlaceButtons();
    SetTabOrder();
}

forms::Container& AgendaDesign::ContainerOf(int labelOrBox) {
    const bool searches =
        labelOrBox == SearchNumeBox || labelOrBox == SearchPrenumeBox || labelOrBox == SearchHeading;
    return searches ? fraGrid : fraPersoana;
}

void AgendaDesign::PlaceOnScreen() {
    const forms::Size screen = OwnerDesktop().ScreenSize();
    MoveTo((screen.width - Bounds().width) / 2, (screen.height - Bounds().height) / 2 - AboveCentre);
}

void AgendaDesign::PlaceFrames() {
    SetClientSize({ClientWidth, ClientHeight});
    PlaceOnScreen();
    fraGrid.SetBounds(GridFrame);
    fraPersoana.SetBounds(PersonFrame);
    for (forms::Frame* frame : {&fraGrid, &fraPersoana}) {
        frame->SetBordered(false);
        frame->SetBackColor(forms::Black);
    }
    fraPersoana.SetEnabled(false);
    Grid.SetBounds({0, ListTop, ListWidth, ListBottom - ListTop});
    Grid.SetAccessibleName("Persoane");
    imgAgenda.SetBounds({ListWidth - PictureSide, layout::Unit, PictureSide, PictureSide});
    imgAgenda.SetBackColor(forms::Black);
    imgAgenda.SetAccessibleName(Caption());
}

void AgendaDesign::PlaceFields() {
    for (int box = 0; box < BoxCount; ++box) {
        const FieldLook& look = Fields[static_cast<std::size_t>(box)];
        const ColumnPlace place = PlaceOf(look.column);
        Label2[box].SetCaption(look.caption);
        Label2[box].SetBackColor(forms::Black);
        Label2[box].SetForeColor(forms::scheme::LabelText);
        Label2[box].SetBounds({place.labelLeft, look.top, place.labelWidth, layout::FieldHeight});
        TextBoxes[box].SetBounds({place.boxLeft, look.top, place.boxWidth, layout::FieldHeight});
        TextBoxes[box].SetFont({.face = "Arial"});
        TextBoxes[box].SetAccessibleName(look.spoken);
        TextBoxes[box].SetLocked(box >= FirstColumnBox);
    }
    Label2[SearchHeading].SetCaption("Cautare persoana");
    Label2[PersonHeading].SetCaption("Date Personale");
    Label2[CompanyHeading].SetCaption("Date Firma");
}

void AgendaDesign::PlaceHeading(Heading heading, forms::Line& line, int top) {
    const bool searches = heading == SearchHeading;
    const int left = searches ? 0 : PersonLeft;
    const int width = searches ? ListWidth : PersonWidth;
    forms::Label& label = Label2[heading];
    label.SetFont({.face = "Arial", .points = 9, .bold = true});
    label.SetBackColor(forms::Black);
    label.SetBounds({left, top, width - (searches ? PictureSide : 0), layout::LabelHeight});
    line.SetBounds({left, top + layout::LabelHeight + LineGap, width, LineThickness});
}

void AgendaDesign::PlaceButtons() {
    for (const ActionLook& look : Actions) {
        forms::CommandButton& button = cmdAction[look.action];
        button.SetCaption(look.caption);
        button.SetAccelerator(look.accelerator);
        button.SetBounds({look.left, ButtonTop, ButtonWidth, ButtonHeight});
    }
    cmdAction[Accept].SetVisible(false);
}

void AgendaDesign::SetTabOrder() {
    int next = 0;
    for (auto& box : TextBoxes)
        box->SetTabIndex(next++);
    for (const ActionLook& look : Actions)
        cmdAction[look.action].SetTabIndex(next++);
    Grid.SetTabIndex(next++);
    // The rest takes no focus, and comes after what does.
    for (auto& label : Label2)
        label->SetTabIndex(next++);
    for (forms::Control* control :
         std::initializer_list<forms::Control*>{&fraPersoana, &fraGrid, &imgAgenda, &Line1, &Line2, &Line3}) {
        control->SetTabIndex(next++);
    }
}

}  // namespace tavrin::addressbook
