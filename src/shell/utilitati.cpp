#include "shell/utilitati.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "shell/layout.h"
#include "shell/window_helpers.h"

namespace tavrin::shell {

namespace {

using forms::Icon;

constexpr forms::Color DarkGreen = 0x004000;
constexpr forms::Point CaptionAt{7, 8};

// The window has a little air below its last button; restoring after a roll-up gives it less than loading
// does.
constexpr int HeightAddedAtLoad = 60;
constexpr int HeightAddedAtRestore = 40;
constexpr int RolledUpPixels = 6;
constexpr int PointerStepPixels = 100;

constexpr int StripHeight = 300;
/// More than what stays in sight of a palette that is rolled up: at every resolution its buttons are below.
constexpr int FirstButtonTop = StripHeight + layout::Gap;
constexpr int ButtonSide = 540;
constexpr int RowPitch = ButtonSide + layout::Unit;
constexpr int PaletteWidth = 2640;
constexpr int ButtonCount = 4;
constexpr int PaletteHeight = FirstButtonTop + ButtonCount * RowPitch;

// What each button opens, by the name of the window.
constexpr std::array<std::string_view, ButtonCount> Targets = {"Notes", "Agenda", "frmCalculator",
                                                               "CursValutar"};
// The picture of each button in the image list; the middle two are crossed over.
constexpr std::array<int, ButtonCount> Pictures = {1, 3, 2, 4};

// The windows that Escape takes along with the palette. The calculator's window goes by another name than the
// one listed here, so it stays: people leave the palette with Escape and go on calculating.
constexpr std::array<std::string_view, 5> ClosedByEscape = {"Agenda", "AlegeMoneda", "Calculator", "Notes",
                                                            "CursValutar"};

constexpr std::array<std::string_view, 6> ClosedWithPalette = {
    "Agenda", "AlegeMoneda", "CereMoneda", "CursValutar", "CursValutarDetaliu", "Notes"};
constexpr std::string_view CalculatorWindow = "frmCalculator";

}  // namespace

Utilitati::Utilitati(Application& application)
    : Form(application.Desktop(), "Utilitati", "Utilitati", forms::BorderStyle::Borderless),
      picCaption(*this, "picCaption"),
      imgRollup(*this, "imgRollup"),
      imgClose(*this, "imgClose"),
      cmdAction(*this, "cmdAction"),
      Label1(*this, "Label1", "BLOC NOTES"),
      Label2(*this, "Label2", "AGENDA"),
      Label3(*this, "Label3", "CALCULATOR"),
      Label4(*this, "Label4", "CURS VALUTAR"),
      application_(application),
      lstImages_{Icon::NotePad, Icon::Calculator, Icon::AddressBook, Icon::Exchange} {
    PlaceControls();
    ConnectEvents();
}

void Utilitati::PlaceControls() {
    SetClientSize({PaletteWidth, PaletteHeight});
    const int imageLeft = PaletteWidth - 2 * StripHeight;
    picCaption.SetBounds({0, 0, imageLeft, StripHeight});
    picCaption.SetFont({.face = "Arial", .points = 9, .bold = true});

    imgRollup[0].SetPicture(Icon::RollUp);
    imgRollup[0].SetToolTip("Micsoreaza fereastra");
    imgRollup[1].SetPicture(Icon::Restore);
    imgRollup[1].SetToolTip("Mareste fereastra");
    imgClose.SetPicture(Icon::Close);
    imgClose.SetToolTip("Paraseste fereastra cu utilitare");
    for (auto& image : imgRollup)
        image->SetBounds({imageLeft, 0, StripHeight, StripHeight});
    imgClose.SetBounds({imageLeft + StripHeight, 0, StripHeight, StripHeight});
    for (forms::Image* image : {&imgRollup[0], &imgRollup[1], &imgClose})
        image->SetBackColor(DarkGreen);

    for (int i = 0; i < ButtonCount; ++i) {
        const int top = FirstButtonTop + i * RowPitch;
        cmdAction[i].SetBounds({layout::Unit, top, ButtonSide, ButtonSide});
        cmdAction[i].SetFont({.face = "Verdana"});
        cmdAction[i].SetAccessibleName(CaptionOf(i).Caption());
        const int labelLeft = layout::Unit + ButtonSide + layout::Gap;
        CaptionOf(i).SetBounds({labelLeft, top, PaletteWidth - labelLeft - layout::Unit, ButtonSide});
        CaptionOf(i).SetFont({.face = "Arial", .points = 9, .bold = true});
        CaptionOf(i).SetForeColor(forms::Red);
    }
}

void Utilitati::ConnectEvents() {
    cmdAction.OnEach(&forms::Control::onClick, [this](int index) { cmdAction_Click(index); });
    cmdAction.OnEach(&forms::Control::onKeyDown, [this](int index, int& keyCode, forms::Modifiers) {
        cmdAction_KeyDown(index, keyCode);
    });
    cmdAction.OnEach(&forms::Control::onMouseMove, [this](int index, const forms::MouseInput& input) {
        cmdAction_MouseMove(index, input);
    });
    picCaption.onMouseMove = [this](const forms::MouseInput& input) {
        if (input.button == forms::MouseButton::Left) MutaForma();
    };
    imgRollup[0].onClick = [this] { RollUp(); };
    imgRollup[1].onClick = [this] { Restore(); };
    imgClose.onMouseUp = [this](const forms::MouseInput&) { Unload(); };
}

// Life.

void Utilitati::OnLoad() {
    picCaption.PrintAt(CaptionAt, "Utilitati");
    designHeight_ = Bounds().height;
    designWidth_ = Bounds().width;
    SetBounds({Bounds().left, Bounds().top, Bounds().width, picCaption.Bounds().height});
    SetBounds({Bounds().left, Bounds().top, designWidth_, designHeight_ + HeightAddedAtLoad});
    twipsPerPixelX_ = OwnerDesktop().TwipsPerPixelX();
    twipsPerPixelY_ = OwnerDesktop().TwipsPerPixelY();
    for (int i = 0; i < ButtonCount; ++i) {
        cmdAction[i].SetPicture(lstImages_.Picture(Pictures[static_cast<std::size_t>(i)]));
    }
    MoveTo(0, 0);
}

void Utilitati::OnActivate() {
    KeepOnTop();
    PaintCaption();
    HighlightCaption(0);
    if (Visible()) cmdAction[0].SetFocus();
}

void Utilitati::OnDeactivate() {
    KeepOnTop();
    PaintCaption();
}

void Utilitati::OnUnload() {
    for (const std::string_view window : ClosedWithPalette)
        application_.UnloadWindow(window);
    if (!leftByEscape_) application_.UnloadWindow(CalculatorWindow);
    application_.context.RaiseIesire();
}

// The caption strip.

void Utilitati::PaintCaption() {
    picCaption.Paint(DarkGreen, forms::Green);
    picCaption.PrintAt(CaptionAt, "Utilitati");
}

void Utilitati::MutaForma() {
    MoveByCaption(*this);
}

void Utilitati::RollUp() {
    const int height = picCaption.Bounds().height + RolledUpPixels * twipsPerPixelY_;
    SetBounds({Bounds().left, Bounds().top, designWidth_, height});
    imgRollup[0].SetVisible(false);
}

void Utilitati::Restore() {
    SetBounds({Bounds().left, Bounds().top, designWidth_, designHeight_ + HeightAddedAtRestore});
    imgRollup[0].SetVisible(true);
}

// The launch buttons.

forms::Label& Utilitati::CaptionOf(int index) {
    const std::array<forms::Label*, ButtonCount> captions = {&Label1, &Label2, &Label3, &Label4};
    return *captions[static_cast<std::size_t>(index)];
}

void Utilitati::HighlightCaption(int index) {
    for (int i = 0; i < ButtonCount; ++i) {
        CaptionOf(i).SetForeColor(i == index ? forms::Green : forms::Red);
    }
}

void Utilitati::cmdAction_Click(int index) {
    application_.Launch(Targets[static_cast<std::size_t>(index)]);
}

void Utilitati::cmdAction_KeyDown(int index, int& keyCode) {
    // The pointer leaves the buttons, so that it does not take the highlight back from the keyboard.
    const forms::PixelPoint pointer = OwnerDesktop().CursorPosition();
    OwnerDesktop().SetCursorPosition({pointer.x - PointerStepPixels, pointer.y});

    int target = 0;
    switch (keyCode) {
        case forms::key::Enter:
        case forms::key::Escape:
            return;
        case forms::key::Up:
            target = index == 0 ? ButtonCount - 1 : index - 1;
            break;
        case forms::key::Down:
            target = index == ButtonCount - 1 ? 0 : index + 1;
            break;
        default:
            keyCode = forms::key::Swallowed;
            break;
    }
    cmdAction[target].SetFocus();
    HighlightCaption(target);
}

void Utilitati::cmdAction_MouseMove(int index, const forms::MouseInput& input) {
    if (input.button != forms::MouseButton::None) return;
    // Only the caption that is lit already answers the pointer; a red one waits for the keyboard or a click.
    if (CaptionOf(index).ForeColor() == forms::Red) return;
    HighlightCaption(index);
    // A pointer that passes by does not take the keyboard away from the window that the user is typing in.
    if (IsActive()) cmdAction[index].SetFocus();
}

// Keys of the window.

void Utilitati::OnKeyDown(int& keyCode, forms::Modifiers /*modifiers*/) {
    if (keyCode != forms::key::Escape) return;
    leftByEscape_ = true;
    Unload();
    UnloadListedWindows();
}

void Utilitati::UnloadListedWindows() {
    const auto listed = [](const forms::Form* form) {
        return !form->IsUnloading() &&
               std::ranges::find(ClosedByEscape, form->Name()) != ClosedByEscape.end();
    };
    const auto& open = OwnerDesktop().Forms();
    for (auto found = std::ranges::find_if(open, listed); found != open.end();
         found = std::ranges::find_if(open, listed)) {
        (*found)->Unload();
    }
}

}  // namespace tavrin::shell
