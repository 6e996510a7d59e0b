#include "calculator/frm_calculator.h"

#include <array>
#include <optional>

#include "calculator/key_map.h"
#include "rates/alege_moneda.h"
#include "shell/layout.h"
#include "shell/window_helpers.h"

namespace tavrin::calculator {

namespace {

namespace key = forms::key;
namespace layout = shell::layout;
namespace message = shell::message;

constexpr std::array<const char*, 4> Precisions = {"0 zecimale", "2 zecimale", "4 zecimale", "6 zecimale"};
constexpr int TwoDecimals = 1;
constexpr const char* LeiUnit = "Lei";
constexpr int LeiItem = 0;
constexpr const char* CurrencyUnit = "Valuta";  // until one has been chosen

constexpr int KeyColumns = 6;
constexpr int KeyRows = 4;
constexpr int KeyWidth = 720;
constexpr int KeyHeight = 540;
constexpr int KeyGap = layout::Unit;
constexpr int PanelWidth = KeyColumns * (KeyWidth + KeyGap) - KeyGap;
constexpr int WindowWidth = PanelWidth + 2 * layout::Margin;
constexpr int TopRowHeight = 300;
constexpr int DisplayHeight = 780;
constexpr int MarkWidth = 240;
constexpr int UnitListWidth = 1140;
constexpr int PrecisionListWidth = 1500;
constexpr double DisplayPoints = 27;  // as large as the display is high

constexpr int DisplaysTop = layout::Margin + TopRowHeight + layout::Unit;
constexpr int ListsTop = DisplaysTop + 2 * (DisplayHeight + layout::Unit) + layout::Unit;
constexpr int KeysTop = ListsTop + layout::FieldHeight + layout::Gap;
constexpr int WindowHeight = KeysTop + KeyRows * (KeyHeight + KeyGap) - KeyGap + layout::Margin;

bool IsOfMemory(Command command) {
    return command >= Command::MemoryClear;
}

/// Whether a key brings a number that nobody has typed. What is typed is read out key by key.
bool ShowsResult(Command command) {
    return command > Command::Digit9 && command != Command::DecimalPoint && command != Command::Clear &&
           command != Command::ClearEntry && command != Command::MemoryClear;
}

void PlaceKey(KeyButton& button, int column, int row, KeyKind kind) {
    button.SetBounds({layout::Margin + column * (KeyWidth + KeyGap), KeysTop + row * (KeyHeight + KeyGap),
                      KeyWidth, KeyHeight});
    button.SetKind(kind);
}

}  // namespace

FrmCalculator::FrmCalculator(shell::Application& application)
    : Form(application.Desktop(), "frmCalculator", "Calculator", forms::BorderStyle::Borderless),
      z(*this, "z"),
      lblCurs(z, "lblCurs", "Curs Valutar:"),
      lblM(z, "lblM", "M"),
      Shape1(z, "Shape1"),
      ValLei(z, "ValLei"),
      Shape2(z, "Shape2"),
      ValValuta(z, "ValValuta"),
      Number(z, "Number"),
      Decimal(z, "Decimal"),
      Operator(z, "Operator"),
      Cancel(z, "Cancel", "AC"),
      CancelEntry(z, "CancelEntry", "C"),
      cmdMC(z, "cmdMC", "MC"),
      cmdMR(z, "cmdMR", "MR"),
      cmdMPlus(z, "cmdMPlus", "M+"),
      cmdMMinus(z, "cmdMMinus", "M-"),
      cmbUM(z, "cmbUM", forms::ComboStyle::DropDownList),
      cmbPrecizie(z, "cmbPrecizie", forms::ComboStyle::DropDownList),
      cmdVal(z, "cmdVal", "Alege Moneda"),
      cmdUnload(z, "cmdUnload"),
      application_(application),
      engine_(conversion_, *this, UserLocale().decimalSeparator) {
    PlaceDisplays();
    PlaceLists();
    PlaceKeys();
    ConnectEvents();
}

// Looks.

void FrmCalculator::PlaceDisplays() {
    SetClientSize({WindowWidth, WindowHeight});
    z.SetBounds({0, 0, WindowWidth, WindowHeight});

    const int unloadLeft = layout::Margin + PanelWidth - TopRowHeight;
    const int markLeft = unloadLeft - layout::Unit - MarkWidth;
    lblCurs.SetBounds(
        {layout::Margin, layout::Margin, markLeft - layout::Unit - layout::Margin, TopRowHeight});
    lblM.SetBounds({markLeft, layout::Margin, MarkWidth, TopRowHeight});
    lblM.SetFont({.face = "Arial", .points = 11, .bold = true});
    lblM.SetForeColor(forms::scheme::Value);
    lblM.SetAlign(forms::Align::Center);
    lblM.SetAccessibleName("Memorie");
    cmdUnload.SetBounds({unloadLeft, layout::Margin, TopRowHeight, TopRowHeight});
    cmdUnload.SetPicture(forms::Icon::Close);
    cmdUnload.SetToolTip("Inchide calculatorul");

    const forms::Rect upper{layout::Margin, DisplaysTop, PanelWidth, DisplayHeight};
    Shape1.SetBounds(upper);
    Shape2.SetBounds({upper.left, upper.Bottom() + layout::Unit, upper.width, upper.height});
    ValLei.SetBounds(Shape1.Bounds().Inset(layout::Unit));
    ValValuta.SetBounds(Shape2.Bounds().Inset(layout::Unit));
    ValLei.SetAccessibleName("Lei");
    ValValuta.SetAccessibleName("Valuta");
    ValLei.SetUnitText("Lei");
    for (forms::NumericDisplay* display : {&ValLei, &ValValuta})
        display->SetFont({.face = "Arial", .points = DisplayPoints, .bold = true});
}

void FrmCalculator::PlaceLists() {
    int left = layout::Margin;
    const auto place = [&left](forms::Control& control, int width) {
        control.SetBounds({left, ListsTop, width, layout::FieldHeight});
        left += width + layout::Unit;
    };
    place(cmbUM, UnitListWidth);
    place(cmbPrecizie, PrecisionListWidth);
    place(cmdVal, layout::Margin + PanelWidth - left);
    for (forms::ComboBox* list : {&cmbUM, &cmbPrecizie})
        list->SetBackColor(forms::Black);
    cmbUM.SetAccessibleName("Unitatea de masura");
    cmbPrecizie.SetAccessibleName("Precizia");
    cmdVal.SetPicture(forms::Icon::Exchange);
}

// Memory, digits, operators and what clears stand in columns of their own.
void FrmCalculator::PlaceKeys() {
    PlaceKey(cmdMC, 0, 0, KeyKind::Memory);
    PlaceKey(cmdMR, 0, 1, KeyKind::Memory);
    PlaceKey(cmdMPlus, 0, 2, KeyKind::Memory);
    PlaceKey(cmdMMinus, 0, 3, KeyKind::Memory);

    for (int digit = 0; digit < 10; ++digit)
        Number[digit].SetCaption(std::to_string(digit));
    for (int digit = 1; digit < 10; ++digit)
        PlaceKey(Number[digit], 1 + (digit - 1) % 3, 2 - (digit - 1) / 3, KeyKind::Digit);
    PlaceKey(Number[0], 1, 3, KeyKind::Digit);
    PlaceKey(Decimal, 2, 3, KeyKind::Digit);

    for (std::size_t i = 0; i < OperatorKeys.size(); ++i)
        Operator[static_cast<int>(i)].SetCaption(OperatorKeys[i].caption);
    NameKeys();
    PlaceKey(Operator[6], 3, 3, KeyKind::Operator);
    PlaceKey(Operator[0], 4, 0, KeyKind::Operator);
    PlaceKey(Operator[2], 4, 1, KeyKind::Operator);
    PlaceKey(Operator[3], 4, 2, KeyKind::Operator);
    PlaceKey(Operator[1], 4, 3, KeyKind::Operator);
    PlaceKey(Cancel, 5, 0, KeyKind::Clear);
    PlaceKey(CancelEntry, 5, 1, KeyKind::Clear);
    PlaceKey(Operator[5], 5, 2, KeyKind::Operator);
    PlaceKey(Operator[4], 5, 3, KeyKind::Result);
}

/// What is read out for a caption that is no word.
void FrmCalculator::NameKeys() {
    static constexpr std::pair<KeyButton FrmCalculator::*, std::string_view> spoken[] = {
        {&FrmCalculator::Cancel, "șterge tot"},         {&FrmCalculator::CancelEntry, "șterge numărul"},
        {&FrmCalculator::cmdMC, "golește memoria"},     {&FrmCalculator::cmdMR, "citește memoria"},
        {&FrmCalculator::cmdMPlus, "adună la memorie"}, {&FrmCalculator::cmdMMinus, "scade din memorie"},
    };
    for (const auto& [key, name] : spoken)
        (this->*key).SetAccessibleName(name);
    for (std::size_t i = 0; i < OperatorKeys.size(); ++i)
        Operator[static_cast<int>(i)].SetAccessibleName(OperatorKeys[i].spoken);
}

// Events.

void FrmCalculator::ConnectEvents() {
    z.onMouseDown = [this](const forms::MouseInput&) { shell::MoveByCaption(*this); };
    cmdVal.onClick = [this] { cmdVal_Click(); };
    cmdUnload.onClick = [this] { Unload(); };
    cmbPrecizie.onClick = [this] { cmbPrecizie_Click(); };
    cmbUM.onClick = [this] { cmbUM_Click(); };
    for (forms::ComboBox* list : {&cmbUM, &cmbPrecizie}) {
        list->onGotFocus = [list] { list->SetBackColor(forms::FocusGrey); };
        list->onLostFocus = [list] { list->SetBackColor(forms::Black); };
    }
    AssignKeys();
    ConnectKeys();
    ConnectTyping();
}

void FrmCalculator::AssignKeys() {
    for (int digit = 0; digit < 10; ++digit)
        KeyOf(DigitCommand(digit)) = &Number[digit];
    for (std::size_t i = 0; i < OperatorKeys.size(); ++i)
        KeyOf(OperatorKeys[i].command) = &Operator[static_cast<int>(i)];
    KeyOf(Command::DecimalPoint) = &Decimal;
    KeyOf(Command::Clear) = &Cancel;
    KeyOf(Command::ClearEntry) = &CancelEntry;
    KeyOf(Command::MemoryClear) = &cmdMC;
    KeyOf(Command::MemoryRecall) = &cmdMR;
    KeyOf(Command::MemoryAdd) = &cmdMPlus;
    KeyOf(Command::MemorySubtract) = &cmdMMinus;
}

void FrmCalculator::ConnectKeys() {
    for (int i = 0; i < CommandCount; ++i) {
        const auto command = static_cast<Command>(i);
        KeyButton* button = KeyOf(command);
        if (button == nullptr) continue;
        button->onClick = [this, command] { Press(command); };
        // The keys of the memory, like all other buttons, are pressed by Enter.
        if (!IsOfMemory(command))
            button->onKeyDown = [this](int& keyCode, forms::Modifiers) { Key_KeyDown(keyCode); };
    }
}

void FrmCalculator::ConnectTyping() {
    // Wherever the focus stands but in the lists, which have a use for characters of their own.
    for (forms::Control* control : AllControls()) {
        if (control->Kind() != forms::ControlKind::ComboBox)
            control->onKeyPress = [this](char32_t& character) { Key_KeyPress(character); };
    }
}

// Life.

void FrmCalculator::OnLoad() {
    lblCurs.SetCaption("Nu este setat nici un curs valutar!!");
    // What a chooser may have left in an instance that nobody has opened yet goes as well.
    ValValuta.SetUnitText(CurrencyUnit);
    Decimal.SetCaption(UserLocale().decimalSeparator);
    Decimal.SetAccessibleName(Decimal.Caption() == "," ? "virgulă" : "punct");
    engine_.SetDecimalSeparator(UserLocale().decimalSeparator);
    engine_.Press(Command::Clear);
    conversion_.SetRate(1);
    FillLists();
    engine_.ShowEntry();
    CenterOnScreen();
    Show();
}

void FrmCalculator::FillLists() {
    cmbPrecizie.Clear();
    for (const char* precision : Precisions)
        cmbPrecizie.AddItem(precision);
    cmbPrecizie.SetListIndex(TwoDecimals);
    cmbUM.Clear();
    cmbUM.AddItem(LeiUnit);
    cmbUM.AddItem(CurrencyUnit);
    cmbUM.SetListIndex(LeiItem);
}

void FrmCalculator::OnMouseDown(const forms::MouseInput& /*input*/) {
    shell::MoveByCaption(*this);
}

// What the engine asks for.

void FrmCalculator::ShowValues() {
    // Whoever listens hears of the display first that is typed in.
    const bool inLei = conversion_.TypedIn() == Unit::Lei;
    if (inLei) ValLei.SetValue(conversion_.Lei());
    ValValuta.SetValue(conversion_.Currency());
    if (!inLei) ValLei.SetValue(conversion_.Lei());
}

forms::NumericDisplay& FrmCalculator::ActiveDisplay() {
    return conversion_.TypedIn() == Unit::Lei ? ValLei : ValValuta;
}

void FrmCalculator::ReportDivisionByZero() {
    application_.ShowMessage("Impartire la 0 !!", message::Exclamation, message::Ok, "Eroare");
}

void FrmCalculator::ShowMemoryMark(bool visible) {
    lblM.SetVisible(visible);
}

// The lists and the chooser.

void FrmCalculator::cmbPrecizie_Click() {
    if (cmbPrecizie.Text().empty()) return;
    conversion_.SetDecimals(cmbPrecizie.Text().front() - '0');
    for (forms::NumericDisplay* display : {&ValLei, &ValValuta})
        display->SetDecimals(static_cast<std::uint8_t>(conversion_.Decimals()));
    engine_.ShowEntry();
}

void FrmCalculator::cmbUM_Click() {
    const bool inLei = cmbUM.ListIndex() == LeiItem;
    ValLei.SetActive(inLei);
    Shape1.SetBackColor(inLei ? forms::FocusGrey : forms::Black);
    ValValuta.SetActive(!inLei);
    Shape2.SetBackColor(inLei ? forms::Black : forms::FocusGrey);
    engine_.ChooseUnit(inLei ? Unit::Lei : Unit::Currency);
    ActiveDisplay().Announce();
}

void FrmCalculator::TakeChoice(const rates::CurrencyChoice& choice) {
    conversion_.SetRate(choice.rate);
    lblCurs.SetCaption(choice.rateCaption);
    lblCurs.Announce();
    ValValuta.SetUnitText(choice.currency);
    conversion_.BuyFor(choice.amountInLei);
    ValValuta.SetValue(conversion_.Currency());
    // Typing goes on from the number that is shown.
    if (conversion_.TypedIn() == Unit::Currency) engine_.SetEntry(conversion_.Currency());
}

void FrmCalculator::cmdVal_Click() {
    currency_ = "$";
    application_.Default<rates::AlegeMoneda>().ShowForm(*this, currency_);
}

// The keys.

void FrmCalculator::Key_KeyDown(int& keyCode) {
    if (keyCode != key::Enter) return;
    // Dealt with here, so that the button does not click itself and no character follows.
    keyCode = key::Swallowed;
    PressAndFocus(Command::Equals);
}

void FrmCalculator::Key_KeyPress(char32_t& character) {
    if (character == key::Escape) {
        Unload();
        return;
    }
    const std::optional<Command> command = CommandOfCharacter(character);
    character = 0;
    if (!command) return OwnerDesktop().Beep();
    PressAndFocus(*command);
}

void FrmCalculator::Press(Command command) {
    if (!engine_.Press(command)) return OwnerDesktop().Beep();
    if (ShowsResult(command)) ActiveDisplay().Announce();
}

void FrmCalculator::PressAndFocus(Command command) {
    ReleaseKeys();
    KeyButton* const button = KeyOf(command);
    if (button != nullptr) button->SetStruck(true);
    Press(command);
    // The point alone is typed with the focus where it was.
    if (button != nullptr && button != &Decimal) button->SetFocus();
}

std::optional<forms::Copied> FrmCalculator::Copy() const {
    return forms::Copied{(ValLei.Active() ? ValLei : ValValuta).Text()};
}

void FrmCalculator::ReleaseKeys() {
    for (KeyButton* key : keys_)
        if (key != nullptr) key->SetStruck(false);
}

void FrmCalculator::OnDeactivate() {
    ReleaseKeys();
    KeepOnTop();
}

void FrmCalculator::OnKeyDown(int& keyCode, forms::Modifiers /*modifiers*/) {
    if (keyCode == key::Escape) Unload();
}

}  // namespace tavrin::calculator
