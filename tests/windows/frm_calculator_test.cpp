#include "calculator/frm_calculator.h"

#include <gmock/gmock.h>

#include "calculator_fixture.h"
#include "data/text/number_text.h"
#include "data/value.h"
#include "support/counting_peer.h"

namespace tavrin::tests {
namespace {

namespace key = forms::key;
using calculator::FrmCalculator;
using calculator::KeyButton;
using forms::MouseButton;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr forms::Color Grey = 0x404040;

class FrmCalculatorTest : public CalculatorTest {
  protected:
    /// The names of all keys but those of the memory.
    static std::vector<std::string> EqualsKeyNames() {
        std::vector<std::string> names = {"Decimal", "Cancel", "CancelEntry"};
        for (int i = 0; i < 10; ++i)
            names.push_back("Number(" + std::to_string(i) + ")");
        for (int i = 0; i < 7; ++i)
            names.push_back("Operator(" + std::to_string(i) + ")");
        return names;
    }
    static std::vector<std::string> KeyNames() {
        std::vector<std::string> names = EqualsKeyNames();
        names.insert(names.end(), {"cmdMC", "cmdMR", "cmdMPlus", "cmdMMinus"});
        return names;
    }
    /// The names of all controls on which characters are typed into the calculator.
    static std::vector<std::string> TypingNames() {
        std::vector<std::string> names = KeyNames();
        names.insert(names.end(), {"cmdVal", "cmdUnload"});
        return names;
    }

    int BeepsOf(std::string_view typed) {
        const int before = desktop.beeps;
        keyboard.Type(typed);
        return desktop.beeps - before;
    }
};

// Opening and closing.

TEST_F(FrmCalculatorTest, ItsRateLineIsNamedByItsDesignUntilItLoads) {
    EXPECT_EQ(application.Default<FrmCalculator>().lblCurs.Caption(), "Curs Valutar:");
}

TEST_F(FrmCalculatorTest, OpensWithZeroInLeiAndTwoDecimals) {
    const FrmCalculator& window = Open();
    EXPECT_EQ(window.Name(), "frmCalculator");
    EXPECT_EQ(window.Caption(), "Calculator");
    EXPECT_EQ(window.Border(), forms::BorderStyle::Borderless);
    EXPECT_TRUE(window.Visible());
    EXPECT_EQ(Shown(), "0,00 Lei | 0,00 Valuta");
    EXPECT_EQ(window.lblCurs.Caption(), "Nu este setat nici un curs valutar!!");
    EXPECT_EQ(window.cmbUM.Text(), "Lei");
    EXPECT_EQ(window.cmbPrecizie.Text(), "2 zecimale");
    EXPECT_FALSE(window.lblM.Visible());
    EXPECT_EQ(window.CursCurent(), 1);
    EXPECT_EQ(messages.created, 0) << "the message service is other windows' business";
    EXPECT_THAT(desktop.reports, IsEmpty());
}

TEST_F(FrmCalculatorTest, LoadingAloneShowsIt) {
    application.Default<FrmCalculator>().Load();
    EXPECT_EQ(ActiveWindow(), "frmCalculator");
}

TEST_F(FrmCalculatorTest, FillsItsLists) {
    const FrmCalculator& window = Open();
    const auto items = [](const forms::ComboBox& list) {
        std::vector<std::string> texts;
        for (int i = 0; i < list.ListCount(); ++i)
            texts.push_back(list.Item(i));
        return texts;
    };
    EXPECT_THAT(items(window.cmbPrecizie),
                ElementsAre("0 zecimale", "2 zecimale", "4 zecimale", "6 zecimale"));
    EXPECT_THAT(items(window.cmbUM), ElementsAre("Lei", "Valuta"));
    EXPECT_EQ(window.cmbPrecizie.Style(), forms::ComboStyle::DropDownList);
    EXPECT_EQ(window.cmbUM.Style(), forms::ComboStyle::DropDownList);
}

TEST_F(FrmCalculatorTest, ASecondOpeningShowsTheSameWindow) {
    Open();
    keyboard.Type("12");
    Open();
    EXPECT_EQ(Shown(), "12,00 Lei | 12,00 Valuta");
}

TEST_F(FrmCalculatorTest, OpenedAgainAfterClosingItBeginsAnew) {
    Open().SetCursCurent(4);
    keyboard.Type("12+3M");
    Calculator()->Unload();
    Open();
    keyboard.Type("=");
    EXPECT_EQ(Shown(), "0,00 Lei | 0,00 Valuta");
    EXPECT_EQ(Calculator()->CursCurent(), 1);
}

TEST_F(FrmCalculatorTest, EveryKeyBearsItsCaptionInArial) {
    FrmCalculator& window = Open();
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(window.Number[i].Caption(), std::to_string(i));
    const std::vector<std::string> operators = {"/", "+", "X", "-", "=", "%", "+/-"};
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(window.Operator[i].Caption(), operators[static_cast<std::size_t>(i)]);
    EXPECT_EQ(window.Cancel.Caption(), "AC");
    EXPECT_EQ(window.CancelEntry.Caption(), "C");
    EXPECT_EQ(window.cmdMC.Caption(), "MC");
    EXPECT_EQ(window.cmdMR.Caption(), "MR");
    EXPECT_EQ(window.cmdMPlus.Caption(), "M+");
    EXPECT_EQ(window.cmdMMinus.Caption(), "M-");
    EXPECT_EQ(window.cmdVal.Caption(), "Alege Moneda");
    for (const std::string& name : KeyNames())
        EXPECT_EQ(window.FindControl(name)->TextFont().face, "Arial") << name;
    for (const char* name : {"cmbUM", "cmbPrecizie", "cmdVal", "cmdUnload"})
        EXPECT_EQ(window.FindControl(name)->TextFont().face, "Arial") << name;
}

TEST_F(FrmCalculatorTest, NoControlOverlapsAnother) {
    const FrmCalculator& window = Open();
    std::vector<const forms::Control*> placed;
    for (const forms::Control* control : window.z.Controls()) {
        if (control->Kind() == forms::ControlKind::Decoration) continue;
        const forms::Rect& area = control->Bounds();
        EXPECT_FALSE(area.IsEmpty()) << control->QualifiedName();
        EXPECT_LE(area.Right(), window.z.Bounds().width) << control->QualifiedName();
        EXPECT_LE(area.Bottom(), window.z.Bounds().height) << control->QualifiedName();
        EXPECT_EQ(area.left % 30, 0) << control->QualifiedName();
        for (const forms::Control* other : placed) {
            const forms::Rect& taken = other->Bounds();
            const bool apart = area.left >= taken.Right() || area.Right() <= taken.left ||
                               area.top >= taken.Bottom() || area.Bottom() <= taken.top;
            EXPECT_TRUE(apart) << control->QualifiedName() << " and " << other->QualifiedName();
        }
        placed.push_back(control);
    }
}

TEST_F(FrmCalculatorTest, TheCloseButtonUnloads) {
    ClickWithMouse(Open().cmdUnload);
    EXPECT_EQ(Calculator(), nullptr);
    EXPECT_THAT(desktop.Forms(), IsEmpty());
}

TEST_F(FrmCalculatorTest, EscapeUnloadsFromEveryControl) {
    std::vector<std::string> names = KeyNames();
    names.insert(names.end(), {"cmbUM", "cmbPrecizie", "cmdVal", "cmdUnload"});
    for (const std::string& name : names) {
        Open().FindControl(name)->SetFocus();
        keyboard.Press(key::Escape);
        EXPECT_EQ(Calculator(), nullptr) << name;
    }
}

TEST_F(FrmCalculatorTest, AnEscapeCharacterUnloadsOnItsOwn) {
    Open().Number[5].SetFocus();
    Calculator()->HandleKeyPress(U'\x1B');
    EXPECT_EQ(Calculator(), nullptr);
}

TEST_F(FrmCalculatorTest, StaysOnTop) {
    FrmCalculator& window = Open();
    const int kept = desktop.CallsOf(window).keptOnTop;
    EXPECT_EQ(kept, 1);
    desktop.ActivateByUser(nullptr);
    EXPECT_EQ(desktop.CallsOf(window).keptOnTop, kept + 1);
}

TEST_F(FrmCalculatorTest, AnyMouseButtonDragsByTheFormAndByThePanel) {
    FrmCalculator& window = Open();
    int dragged = 0;
    for (const MouseButton button : {MouseButton::Left, MouseButton::Right, MouseButton::Middle}) {
        window.HandleMouseDown({button, {10, 10}, {}});
        EXPECT_EQ(desktop.CallsOf(window).draggedByCaption, ++dragged);
        window.z.HandleMouseDown({button, {10, 10}, {}});
        EXPECT_EQ(desktop.CallsOf(window).draggedByCaption, ++dragged);
        window.z.HandleMouseUp({button, {10, 10}, {}});
        window.Number[5].HandleMouseDown({button, {10, 10}, {}});
        EXPECT_EQ(desktop.CallsOf(window).draggedByCaption, dragged) << "keys are not dragged by";
    }
}

// Calculating.

TEST_F(FrmCalculatorTest, TheMousePressesEveryKey) {
    FrmCalculator& window = Open();
    const auto press = [&](const std::vector<std::string>& names) {
        for (const std::string& name : names)
            ClickWithMouse(*window.FindControl(name));
        return Shown();
    };
    EXPECT_EQ(
        press({"Number(1)", "Number(2)", "Number(3)", "Number(4)", "Number(5)", "Number(6)", "Number(7)"}),
        "1.234.567,00 Lei | 1.234.567,00 Valuta");
    EXPECT_EQ(press({"Cancel", "Number(8)", "Number(9)", "Number(0)", "Decimal", "Number(5)"}),
              "890,50 Lei | 890,50 Valuta");
    EXPECT_EQ(press({"Operator(1)", "Number(9)", "Operator(4)"}), "899,50 Lei | 899,50 Valuta");
    EXPECT_EQ(press({"Cancel", "Number(9)", "Operator(3)", "Number(4)", "Operator(4)"}),
              "5,00 Lei | 5,00 Valuta");
    EXPECT_EQ(press({"Operator(2)", "Number(6)", "Operator(4)"}), "30,00 Lei | 30,00 Valuta");
    EXPECT_EQ(press({"Operator(0)", "Number(4)", "Operator(4)"}), "7,50 Lei | 7,50 Valuta");
    EXPECT_EQ(press({"Operator(1)", "Number(1)", "Number(0)", "Operator(5)"}), "8,25 Lei | 8,25 Valuta");
    EXPECT_EQ(press({"Operator(6)"}), "-8,25 Lei | -8,25 Valuta");
    EXPECT_EQ(press({"Number(7)", "CancelEntry"}), "7,00 Lei | 7,00 Valuta") << "no refresh";
    EXPECT_EQ(press({"Number(3)", "cmdMPlus"}), "0,00 Lei | 0,00 Valuta");
    EXPECT_TRUE(window.lblM.Visible());
    EXPECT_EQ(press({"Number(2)", "cmdMMinus", "cmdMR"}), "1,00 Lei | 1,00 Valuta");
    EXPECT_EQ(press({"cmdMC", "cmdMR"}), "0,00 Lei | 0,00 Valuta");
    EXPECT_FALSE(window.lblM.Visible());
}

struct TypedKey {
    std::string_view typed;
    const char* focus;
    const char* shown;
};

TEST_F(FrmCalculatorTest, EveryTypedKeyWorksOnEveryKeyAndTakesTheFocusAlong) {
    const std::vector<TypedKey> keys = {{"0", "Number(0)", "0,00"},         {"1", "Number(1)", "1,00"},
                                        {"2", "Number(2)", "2,00"},         {"3", "Number(3)", "3,00"},
                                        {"4", "Number(4)", "4,00"},         {"5", "Number(5)", "5,00"},
                                        {"6", "Number(6)", "6,00"},         {"7", "Number(7)", "7,00"},
                                        {"8", "Number(8)", "8,00"},         {"9", "Number(9)", "9,00"},
                                        {"7*", "Operator(2)", "7,00"},      {"7*2*", "Operator(2)", "14,00"},
                                        {"7+2+", "Operator(1)", "9,00"},    {"7-2-", "Operator(3)", "5,00"},
                                        {"7/2/", "Operator(0)", "3,50"},    {"7+2\r", "Operator(4)", "9,00"},
                                        {"50+10%", "Operator(5)", "55,00"}, {"7C", "CancelEntry", "7,00"},
                                        {"7c", "CancelEntry", "7,00"},      {"7.5", "Number(5)", "7,50"},
                                        {"75\b", "Number(5)", "7,00"},      {"7\b", "Number(7)", "0,00"}};
    for (const std::string& name : TypingNames()) {
        for (const TypedKey& typed : keys) {
            FrmCalculator& window = Open();
            window.FindControl(name)->SetFocus();
            keyboard.Type(typed.typed);
            EXPECT_EQ(FocusedControl(), typed.focus) << typed.typed << " on " << name;
            EXPECT_EQ(window.ValLei.Text(), typed.shown) << typed.typed << " on " << name;
            window.Unload();
        }
    }
}

TEST_F(FrmCalculatorTest, APointLeavesTheFocusWhereItIs) {
    Open().Number[3].SetFocus();
    keyboard.Type("3.");
    EXPECT_EQ(FocusedControl(), "Number(3)");
    keyboard.Type("5");
    EXPECT_EQ(Shown(), "3,50 Lei | 3,50 Valuta");
}

TEST_F(FrmCalculatorTest, ACommaIsNoDecimalKey) {
    Open();
    EXPECT_EQ(BeepsOf("3,5"), 1) << "so that nobody takes 35 for 3,5";
    EXPECT_EQ(Shown(), "35,00 Lei | 35,00 Valuta");
}

TEST_F(FrmCalculatorTest, OtherCharactersOnlyBeep) {
    Open().Number[3].SetFocus();
    EXPECT_EQ(BeepsOf("3abxyzM=XR!"), 10);
    EXPECT_EQ(Shown(), "3,00 Lei | 3,00 Valuta");
    EXPECT_EQ(FocusedControl(), "Number(3)");
    keyboard.Type("4");
    EXPECT_EQ(Shown(), "34,00 Lei | 34,00 Valuta");
}

TEST_F(FrmCalculatorTest, AKeyThatDoesNothingBeeps) {
    FrmCalculator& window = Open();
    EXPECT_EQ(BeepsOf("123456789012345"), 0);
    EXPECT_EQ(BeepsOf("6"), 1) << "a sixteenth digit";
    EXPECT_EQ(FocusedControl(), "Number(6)") << "the focus goes along all the same";
    EXPECT_EQ(BeepsOf("c1.23"), 0);
    EXPECT_EQ(BeepsOf("4"), 1) << "a decimal too many";
    EXPECT_EQ(BeepsOf("."), 1) << "a second point";
    EXPECT_EQ(BeepsOf("+2*3/4-5\rc"), 0);
    ClickWithMouse(window.Operator[6]);
    EXPECT_EQ(desktop.beeps, 4) << "zero has no sign";
    keyboard.Type("5");
    ClickWithMouse(window.Operator[6]);
    EXPECT_EQ(desktop.beeps, 4);
    ClickWithMouse(window.Operator[6]);
    EXPECT_EQ(desktop.beeps, 5) << "a minus stays";
}

TEST_F(FrmCalculatorTest, KeysAreReadOutByName) {
    const FrmCalculator& window = Open();
    const auto spoken = [](const forms::Control& control) { return control.Accessible().name; };
    std::vector<std::string> operators;
    for (const auto& button : window.Operator)
        operators.push_back(spoken(*button));
    EXPECT_THAT(operators,
                ElementsAre("împărțit", "plus", "înmulțit", "minus", "egal", "procent", "schimbă semnul"));
    EXPECT_EQ(spoken(window.Number[7]), "7");
    EXPECT_EQ(spoken(window.Decimal), "virgulă");
    EXPECT_EQ(spoken(window.Cancel), "șterge tot");
    EXPECT_EQ(spoken(window.CancelEntry), "șterge numărul");
    EXPECT_EQ(spoken(window.cmdMC), "golește memoria");
    EXPECT_EQ(spoken(window.cmdMR), "citește memoria");
    EXPECT_EQ(spoken(window.cmdMPlus), "adună la memorie");
    EXPECT_EQ(spoken(window.cmdMMinus), "scade din memorie");
    EXPECT_EQ(window.Operator[2].Caption(), "X");
    EXPECT_EQ(window.cmdMC.Caption(), "MC");
}

TEST_F(FrmCalculatorTest, TheDecimalKeyIsReadOutAsTheUsersSeparator) {
    SpeakEnglish();
    EXPECT_EQ(Open().Decimal.Accessible().name, "punct");
}

TEST_F(FrmCalculatorTest, ResultsAreReadOutAndTypingIsNot) {
    FrmCalculator& window = Open();
    const CountingPeer* lei = CountingPeer::Give(window.ValLei);
    const CountingPeer* currency = CountingPeer::Give(window.ValValuta);
    keyboard.Type("12.5c7");
    EXPECT_EQ(lei->announced, 0);
    keyboard.Type("+");
    EXPECT_EQ(lei->announced, 1);
    keyboard.Type("5\r");
    EXPECT_EQ(lei->announced, 2);
    EXPECT_EQ(window.ValLei.Accessible().name, "Lei: 12,00");
    window.cmdMR.Click();
    EXPECT_EQ(lei->announced, 3);
    EXPECT_EQ(currency->announced, 0) << "nobody works in it";
    window.cmbUM.SetListIndex(1);
    EXPECT_EQ(currency->announced, 1);
    EXPECT_EQ(lei->announced, 3);
}

TEST_F(FrmCalculatorTest, TheRateLineIsReadOutWhenARateIsChosen) {
    FrmCalculator& window = Open();
    const CountingPeer* line = CountingPeer::Give(window.lblCurs);
    OpenChooser().cmdAction[0].Click();
    EXPECT_EQ(line->announced, 1);
}

TEST_F(FrmCalculatorTest, KeysThatAreNoCharactersDoNotBeep) {
    constexpr int ShiftKey = 16;
    constexpr int ControlKey = 17;
    constexpr int AltKey = 18;
    Open().Number[3].SetFocus();
    for (const int code : {ShiftKey, ControlKey, AltKey, key::Left, key::Down, key::Tab, key::Home,
                           key::Delete, key::F4, key::Space, key::Enter, key::Backspace})
        keyboard.Press(code);
    EXPECT_EQ(desktop.beeps, 0);
}

TEST_F(FrmCalculatorTest, EnterPressesTheMemoryKeys) {
    FrmCalculator& window = Open();
    const auto enterOn = [&](forms::Control& button) {
        button.SetFocus();
        keyboard.Press(key::Enter);
        EXPECT_EQ(FocusedControl(), button.QualifiedName());
    };
    keyboard.Type("7+5");
    enterOn(window.cmdMPlus);
    EXPECT_TRUE(window.lblM.Visible());
    EXPECT_EQ(Shown(), "0,00 Lei | 0,00 Valuta");
    keyboard.Type("2");
    enterOn(window.cmdMMinus);
    enterOn(window.cmdMR);
    EXPECT_EQ(Shown(), "3,00 Lei | 3,00 Valuta");
    enterOn(window.cmdMC);
    EXPECT_FALSE(window.lblM.Visible());
}

TEST_F(FrmCalculatorTest, TheMemoryMarkIsLitWhileTheMemoryHoldsAValue) {
    FrmCalculator& window = Open();
    keyboard.Type("5");
    ClickWithMouse(window.cmdMPlus);
    keyboard.Type("7+5\rc");
    EXPECT_TRUE(window.lblM.Visible());
    ClickWithMouse(window.Cancel);
    EXPECT_FALSE(window.lblM.Visible());
    ClickWithMouse(window.cmdMR);
    EXPECT_EQ(Shown(), "0,00 Lei | 0,00 Valuta");
}

TEST_F(FrmCalculatorTest, EnterIsEqualsExactlyOnce) {
    for (const std::string& name : EqualsKeyNames()) {
        FrmCalculator& window = Open();
        keyboard.Type("7+5");
        window.FindControl(name)->SetFocus();
        keyboard.Press(key::Enter);
        EXPECT_EQ(Shown(), "12,00 Lei | 12,00 Valuta") << name;
        EXPECT_EQ(FocusedControl(), "Operator(4)") << name;
        // Taken twice, the second would have replaced the operator that waits for nothing more; a number
        // after it shows which: only after a single "=" it is a restart.
        keyboard.Type("3+");
        EXPECT_EQ(Shown(), "3,00 Lei | 3,00 Valuta") << name;
        window.Unload();
    }
    // On "=" itself: neither a click nor a character on top.
    FrmCalculator& window = Open();
    int presses = 0;
    const auto press = window.Operator[4].onClick;
    window.Operator[4].onClick = [&] {
        ++presses;
        press();
    };
    window.Operator[4].SetFocus();
    keyboard.Press(key::Enter);
    EXPECT_EQ(presses, 0) << "the key was dealt with before the button saw it";
}

TEST_F(FrmCalculatorTest, KeysTypedInTheListsDoNotCalculate) {
    Open().cmbUM.SetFocus();
    keyboard.Type("789");
    EXPECT_EQ(Shown(), "0,00 Lei | 0,00 Valuta");
    EXPECT_EQ(FocusedControl(), "cmbUM");
}

TEST_F(FrmCalculatorTest, SpacePressesTheFocusedKey) {
    Open().cmdMPlus.SetFocus();
    keyboard.Press(key::Space);
    EXPECT_TRUE(Calculator()->lblM.Visible());
}

TEST_F(FrmCalculatorTest, AHostWithPointsSeparatesWithPoints) {
    SpeakEnglish();
    const FrmCalculator& window = Open();
    EXPECT_EQ(window.Decimal.Caption(), ".");
    keyboard.Type("1234.5+0.25\r");
    EXPECT_EQ(Shown(), "1,234.75 Lei | 1,234.75 Valuta");
}

TEST_F(FrmCalculatorTest, TheDecimalKeyBearsTheUsersSeparator) {
    EXPECT_EQ(Open().Decimal.Caption(), ",");
}

// Division by zero.

TEST_F(FrmCalculatorTest, DividingByZeroIsReportedThroughANewServiceWhereThereIsNone) {
    Open();
    keyboard.Type("5/0\r");
    EXPECT_THAT(messages.shown, ElementsAre(ShownMessage{"Impartire la 0 !!", 48, 0, "Eroare"}));
    EXPECT_EQ(messages.created, 1);
    EXPECT_EQ(Shown(), "5,00 Lei | 5,00 Valuta");
    EXPECT_EQ(FocusedControl(), "Operator(4)");
}

TEST_F(FrmCalculatorTest, DividingByZeroUsesTheServiceOfTheOtherWindows) {
    application.CreateMessageService();
    Open();
    keyboard.Type("5/0%");
    EXPECT_THAT(messages.shown, ElementsAre(ShownMessage{"Impartire la 0 !!", 48, 0, "Eroare"}));
    EXPECT_EQ(messages.created, 1);
}

TEST_F(FrmCalculatorTest, MayBeUnloadedWhileTheMessageIsUp) {
    Open();
    messages.whileShowing = [this] { Calculator()->Unload(); };
    keyboard.Type("5/0\r");
    EXPECT_EQ(Calculator(), nullptr);
    EXPECT_THAT(desktop.reports, IsEmpty());
}

TEST_F(FrmCalculatorTest, AHostThatClosesEverythingMeanwhileIsHarmless) {
    Open();
    messages.whileShowing = [this] { desktop.UnloadAll(); };
    Calculator()->Number[5].Click();
    Calculator()->Operator[0].Click();
    Calculator()->Number[0].Click();
    Calculator()->Operator[4].Click();
    EXPECT_THAT(desktop.Forms(), IsEmpty());
    EXPECT_THAT(desktop.reports, IsEmpty());
}

// Two units.

TEST_F(FrmCalculatorTest, TheOtherDisplayFollowsAtTheRate) {
    Open().SetCursCurent(4.5);
    keyboard.Type("9");
    EXPECT_EQ(Shown(), "9,00 Lei | 2,00 Valuta");
    Calculator()->cmbUM.SetListIndex(1);
    EXPECT_EQ(Shown(), "9,00 Lei | 2,00 Valuta");
    Calculator()->Number[0].SetFocus();
    keyboard.Type("0");
    EXPECT_EQ(Shown(), "90,00 Lei | 20,00 Valuta") << "the converted number is what typing goes on from";
    Calculator()->cmbUM.SetListIndex(0);
    Calculator()->Number[0].SetFocus();
    keyboard.Type("+10\r");
    EXPECT_EQ(Shown(), "100,00 Lei | 22,22 Valuta");
}

TEST_F(FrmCalculatorTest, TheDisplayOfTheUnitIsLit) {
    FrmCalculator& window = Open();
    EXPECT_TRUE(window.ValLei.Active());
    EXPECT_FALSE(window.ValValuta.Active());
    EXPECT_EQ(window.Shape1.BackColor(), Grey);
    EXPECT_EQ(window.Shape2.BackColor(), 0U);
    window.cmbUM.SetListIndex(1);
    EXPECT_FALSE(window.ValLei.Active());
    EXPECT_TRUE(window.ValValuta.Active());
    EXPECT_EQ(window.Shape1.BackColor(), 0U);
    EXPECT_EQ(window.Shape2.BackColor(), Grey);
    window.cmbUM.SetListIndex(0);
    EXPECT_EQ(window.Shape1.BackColor(), Grey);
    EXPECT_EQ(window.Shape2.BackColor(), 0U);
}

TEST_F(FrmCalculatorTest, EachShapeFramesItsDisplay) {
    const FrmCalculator& window = Open();
    EXPECT_EQ(window.Shape1.Bounds().Inset(60), window.ValLei.Bounds());
    EXPECT_EQ(window.Shape2.Bounds().Inset(60), window.ValValuta.Bounds());
}

TEST_F(FrmCalculatorTest, SwitchingTheUnitKeepsAnEntryOfMinusZeroAtZero) {
    Open().SetCursCurent(0);
    Calculator()->cmbUM.SetListIndex(1);
    Calculator()->Number[0].SetFocus();
    for (const char pressed : {'5', 'n', '\b', '0'}) {
        if (pressed == 'n') {
            Calculator()->Operator[6].Click();
        } else {
            keyboard.Type({&pressed, 1});
        }
    }
    EXPECT_EQ(Shown(), "0,00 Lei | 0,00 Valuta");
    EXPECT_THAT(desktop.reports, IsEmpty());
}

TEST_F(FrmCalculatorTest, ThePrecisionChangesBothDisplaysAtOnceAndKeepsTheTypedDigits) {
    FrmCalculator& window = Open();
    window.SetCursCurent(4);
    window.cmbPrecizie.SetListIndex(2);
    EXPECT_EQ(Shown(), "0,0000 Lei | 0,0000 Valuta");
    window.Number[0].SetFocus();
    keyboard.Type("1.2345");
    EXPECT_EQ(Shown(), "1,2345 Lei | 0,3086 Valuta");
    window.cmbPrecizie.SetListIndex(0);
    EXPECT_EQ(Shown(), "1 Lei | 0 Valuta");
    window.cmbPrecizie.SetListIndex(3);
    EXPECT_EQ(Shown(), "1,234500 Lei | 0,308625 Valuta");
    window.Number[0].SetFocus();
    keyboard.Type("67");
    EXPECT_EQ(Shown(), "1,234567 Lei | 0,308642 Valuta");
}

TEST_F(FrmCalculatorTest, ThePrecisionRoundsResults) {
    Open().cmbPrecizie.SetListIndex(0);
    Calculator()->Number[0].SetFocus();
    keyboard.Type("5/2\r");
    EXPECT_EQ(Shown(), "2 Lei | 2 Valuta");
    Calculator()->cmbPrecizie.SetListIndex(3);
    EXPECT_EQ(Shown(), "2,000000 Lei | 2,000000 Valuta") << "the entry was rounded";
}

TEST_F(FrmCalculatorTest, TheListsAreGreyWhileTheyHaveTheFocus) {
    FrmCalculator& window = Open();
    for (forms::ComboBox* list : {&window.cmbUM, &window.cmbPrecizie}) {
        EXPECT_EQ(list->BackColor(), 0U);
        list->SetFocus();
        EXPECT_EQ(list->BackColor(), Grey);
        window.Number[1].SetFocus();
        EXPECT_EQ(list->BackColor(), 0U);
    }
}

// Rates that cannot be used.

TEST_F(FrmCalculatorTest, ARateOfZeroIsReportedByEveryKeyThatShows) {
    Open().SetCursCurent(0);
    keyboard.Type("5");
    ASSERT_EQ(desktop.reports.size(), 1U);
    EXPECT_EQ(desktop.reports.front().number, data::error_number::DivisionByZero);
    EXPECT_EQ(Calculator()->ValLei.Text(), "5,00");
    EXPECT_EQ(FocusedControl(), "Number(0)") << "the focus moves after a key that worked";
}

TEST_F(FrmCalculatorTest, AnOverflowIsReportedAndTheWindowLivesOn) {
    Open();
    keyboard.Type("999999999999999");
    for (int i = 0; i < 21; ++i)
        keyboard.Type("*999999999999999");
    ASSERT_EQ(desktop.reports.size(), 1U);
    EXPECT_EQ(desktop.reports.front().number, data::error_number::Overflow);
    keyboard.Type("c7+5\r");
    EXPECT_EQ(Shown(), "12,00 Lei | 12,00 Valuta") << "a new calculation";
}

TEST_F(FrmCalculatorTest, ATypedNumberThatCannotBeConvertedIsStillTheOneThatCounts) {
    FrmCalculator& window = Open();
    window.cmbUM.SetListIndex(1);
    window.SetCursCurent(1e308);
    window.Number[0].SetFocus();
    keyboard.Type("12");
    ASSERT_EQ(desktop.reports.size(), 1U) << "12e308 lei";
    EXPECT_EQ(window.ValValuta.Text(), "12,00");
    window.SetCursCurent(2);
    keyboard.Type("+1\r");
    EXPECT_EQ(Shown(), "26,00 Lei | 13,00 Valuta");
}

TEST_F(FrmCalculatorTest, TenThousandKeysArrive) {
    Open();
    keyboard.Type("0");
    for (int i = 0; i < 5'000; ++i)
        keyboard.Type("+1");
    keyboard.Type("\r");
    EXPECT_EQ(Calculator()->ValLei.Text(), "5.000,00");
}

// The chooser.

TEST_F(FrmCalculatorTest, OpensTheChooserForTheDollar) {
    Open();
    ClickWithMouse(Calculator()->cmdVal);
    ASSERT_NE(Chooser(), nullptr);
    EXPECT_EQ(Chooser()->cmbMoneda.Text(), "$");
    EXPECT_FALSE(Calculator()->Enabled());
}

TEST_F(FrmCalculatorTest, TypingGoesOnFromTheAmountThatTheChooserConverted) {
    Run("UPDATE [Curs Valutar] SET [$] = 4 WHERE [Data] = '05-14-2003'");
    FrmCalculator& window = Open();
    window.cmbUM.SetListIndex(1);
    window.Number[0].SetFocus();
    keyboard.Type("100");
    OpenChooser();
    keyboard.Press(key::Enter);
    EXPECT_EQ(Shown(), "100,00 Lei | 25,00 $");
    keyboard.Type("0");
    EXPECT_EQ(Shown(), "1.000,00 Lei | 250,00 $");
    keyboard.Type("\b\b");
    EXPECT_EQ(Shown(), "8,00 Lei | 2,00 $");
}

TEST_F(FrmCalculatorTest, AfterTheChooserCharactersReachTheCalculator) {
    Open();
    ClickWithMouse(Calculator()->cmdVal);
    keyboard.Press(key::Escape);
    ASSERT_EQ(FocusedControl(), "cmdVal");
    keyboard.Type("7+5\r");
    EXPECT_EQ(Shown(), "12,00 Lei | 12,00 Valuta");
}

TEST_F(FrmCalculatorTest, ChoosingTheChosenUnitTakesTheShownNumberAsEntry) {
    FrmCalculator& window = Open();
    keyboard.Type("12c");
    EXPECT_EQ(Shown(), "12,00 Lei | 12,00 Valuta") << "a cleared entry is not shown";
    window.cmbUM.HandleChosen(0);
    ClickWithMouse(window.cmdMPlus);
    ClickWithMouse(window.cmdMR);
    EXPECT_EQ(Shown(), "12,00 Lei | 12,00 Valuta");
}

// Numbers of more digits than a number has.

struct LongNumber {
    double rate;
    const char* lei;
};

TEST_F(FrmCalculatorTest, EveryDisplayKnowsFifteenDigits) {
    FrmCalculator& window = Open();
    window.cmbPrecizie.SetListIndex(3);
    window.cmbUM.SetListIndex(1);
    for (const LongNumber& number : {LongNumber{123456789012345, "123.456.789.012.345,000000"},
                                     LongNumber{1234567890123456, "1.234.567.890.123.460,000000"},
                                     LongNumber{12345678901234567.0, "12.345.678.901.234.600,000000"},
                                     LongNumber{1234567890.12345, "1.234.567.890,123450"},
                                     LongNumber{1234567890.123456, "1.234.567.890,123460"},
                                     LongNumber{0.12345678901234567, "0,123457"}}) {
        window.SetCursCurent(number.rate);
        window.Number[0].SetFocus();
        keyboard.Type("c1");
        EXPECT_EQ(window.ValLei.Text(), number.lei);
        window.cmbUM.SetListIndex(0);
        EXPECT_EQ(window.ValLei.Text(), number.lei) << "the same when typing goes on from it";
        EXPECT_EQ(window.ValValuta.Text(), "1,000000");
        window.cmbUM.SetListIndex(1);
    }
}

struct LongRate {
    const char* stored;
    const char* listed;
    const char* caption;
};

TEST_F(FrmCalculatorTest, ARateOfManyDigitsIsTakenAsItIsListed) {
    for (const LongRate& rate :
         {LongRate{"123456789012345.0", "123456789012345", "123.456.789.012.345,00"},
          LongRate{"1000000000000000.0", "1000000000000000", "1.000.000.000.000.000,00"},
          LongRate{"1234567890123456.0", "1234567890123460", "1.234.567.890.123.460,00"},
          LongRate{"12345678901234567.0", "12345678901234600", "12.345.678.901.234.600,00"},
          LongRate{"4.97621234567894", "4.97621234567894", "4,98"},
          LongRate{"4.976212345678945", "4.97621234567895", "4,98"},
          LongRate{"0.12345678901234567", "0.123456789012346", "0,12"}}) {
        Run(std::string("UPDATE [Curs Valutar] SET [$] = ") + rate.stored);
        const FrmCalculator& window = Open();
        EXPECT_EQ(OpenChooser().Grid.TextMatrix(1, 1), rate.listed);
        keyboard.Press(key::Enter);
        EXPECT_EQ(data::NumberText(window.CursCurent()), rate.listed);
        EXPECT_EQ(window.lblCurs.Caption(),
                  std::string("Cursul este de  ") + rate.caption + " Lei pentru 1 $");
        Calculator()->Unload();
    }
}

TEST_F(FrmCalculatorTest, ARateWithoutANewNumberConvertsNothingInLei) {
    Open();
    keyboard.Type("100");
    Calculator()->SetCursCurent(4);
    EXPECT_EQ(Shown(), "100,00 Lei | 100,00 Valuta");
    keyboard.Type("0");
    EXPECT_EQ(Shown(), "1.000,00 Lei | 250,00 Valuta");
}

}  // namespace
}  // namespace tavrin::tests
