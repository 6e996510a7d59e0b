#include "notes/notes_design.h"

#include <algorithm>
#include <array>

#include "shell/layout.h"

namespace tavrin::notes {

namespace {

namespace layout = shell::layout;
using forms::Icon;

// Twips. The smallest window holds the bar with a margin; a large screen needs no larger note.
constexpr int SmallestWidth = 5400;
constexpr int SmallestHeight = 4200;
constexpr int LargestWidth = 8400;
constexpr int LargestHeight = 7800;

constexpr int ButtonSide = 420;
constexpr int BarHeight = ButtonSide + 2 * layout::Unit;

struct ButtonLook {
    const char* toolTip;
    const char* spoken;  ///< the name for assistive tools
    int picture;         ///< in the image list
    int gapBefore;       ///< groups of buttons stand apart
};

constexpr std::array<ButtonLook, NotesDesign::ButtonCount> Buttons = {{
    {"Reinitializeaza/Incarca Nota", "Reinitializeaza/Incarca Nota", 7, 0},
    {"Salveaza Nota", "Salveaza Nota", 9, 0},
    {"Alege Font", "Alege Font", 20, layout::Gap},
    {"Culoare Text", "Culoare Text", 10, 0},
    {"", "Aldin", 13, layout::Gap},
    {"", "Cursiv", 14, 0},
    {"", "Subliniat", 15, 0},
    {"", "Inchide", 11, 0},
}};

/// Whole pixels only, so that what is placed by the window's size has sharp edges.
int Floor(int twips, int twipsPerPixel) {
    return twips - twips % twipsPerPixel;
}

const ButtonLook& LookOf(int button) {
    return Buttons[static_cast<std::size_t>(button)];
}

}  // namespace

NotesDesign::NotesDesign(forms::Desktop& desktop)
    : Form(desktop, "Notes", "Bloc Notes", forms::BorderStyle::Sizable),
      ImgBouton(*this, "ImgBouton"),
      PctBarreFond(*this, "PctBarreFond"),
      txtNota(*this, "txtNota"),
      dlgCommonDialog(*this),
      lstImages_{{7, Icon::NewNote}, {9, Icon::Save},    {10, Icon::TextColor}, {11, Icon::Close},
                 {13, Icon::Bold},   {14, Icon::Italic}, {15, Icon::Underline}, {20, Icon::Letters}} {
    Describe();
}

void NotesDesign::Describe() {
    for (int i = 0; i < ButtonCount; ++i) {
        ImgBouton[i].SetToolTip(LookOf(i).toolTip);
        ImgBouton[i].SetAccessibleName(LookOf(i).spoken);
        ImgBouton[i].SetBackColor(forms::scheme::Face);
    }
    PctBarreFond.SetBackColor(forms::scheme::Face);
    PctBarreFond.SetAccessibleName("Bara de butoane");
    txtNota.SetFont({.face = "Arial", .points = 10});
    txtNota.SetAccessibleName("Nota");
}

void NotesDesign::PlaceOnScreen() {
    const forms::Size screen = OwnerDesktop().ScreenSize();
    const int width =
        Floor(std::clamp(screen.width / 3, SmallestWidth, LargestWidth), OwnerDesktop().TwipsPerPixelX());
    const int height =
        Floor(std::clamp(screen.height / 2, SmallestHeight, LargestHeight), OwnerDesktop().TwipsPerPixelY());
    const int left = screen.width - width - screen.width / 20;
    SetBounds({std::max(0, left), std::max(0, (screen.height - height) / 3), width, height});
    KeepInWorkArea();
}

void NotesDesign::PlaceControls() {
    using forms::Anchors;
    SetBounds({0, 0, SmallestWidth, SmallestHeight});
    const forms::Size client = ClientSize();
    PctBarreFond.SetBounds({0, 0, client.width, BarHeight});
    PlaceButtons();
    const int top = BarHeight + layout::Unit;
    txtNota.SetBounds(
        {layout::Unit, top, client.width - 2 * layout::Unit, client.height - top - layout::Unit});
    Anchor(PctBarreFond, Anchors::Top);
    Anchor(ImgBouton[Leave], Anchors::TopRight);
    Anchor(txtNota, Anchors::All);
}

void NotesDesign::PlaceButtons() {
    int left = layout::Unit;
    for (int i = 0; i < ButtonCount; ++i) {
        left += LookOf(i).gapBefore;
        ImgBouton[i].SetBounds({left, layout::Unit, ButtonSide, ButtonSide});
        left += ButtonSide;
    }
    // The way out stands alone at the end of the bar.
    ImgBouton[Leave].MoveTo(ClientSize().width - layout::Unit - ButtonSide, layout::Unit);
}

void NotesDesign::SetPictures() {
    for (int i = 0; i < ButtonCount; ++i)
        ImgBouton[i].SetPicture(lstImages_.Picture(LookOf(i).picture));
}

}  // namespace tavrin::notes
