// The calculator and its currency chooser under real keys and clicks, read as an assistive tool reads them.
// Runs with decimal commas and with decimal points.

#include <windows.h>

#include <oleacc.h>

#include <array>
#include <string>

#include "e2e/driver/accessible_reader.h"
#include "e2e/driver/shown_message.h"
#include "e2e/host_test.h"

namespace tavrin::e2e {
namespace {

struct Separators {
    const char* name;
    const wchar_t* decimal;
    const wchar_t* thousands;
};
constexpr Separators Romanian{"Romanian", L",", L"."};
constexpr Separators English{"English", L".", L","};

/// The user's separators, other ones while the object lives.
class UserSeparators {
  public:
    explicit UserSeparators(const Separators& separators) {
        Read(LOCALE_SDECIMAL, decimal_);
        Read(LOCALE_STHOUSAND, thousands_);
        Write(separators.decimal, separators.thousands);
    }
    ~UserSeparators() { Write(decimal_.data(), thousands_.data()); }
    UserSeparators(const UserSeparators&) = delete;
    UserSeparators& operator=(const UserSeparators&) = delete;

    /// As the user has it now.
    static std::wstring Decimal() {
        Text text{};
        Read(LOCALE_SDECIMAL, text);
        return text.data();
    }

  private:
    using Text = std::array<wchar_t, 16>;
    static void Read(LCTYPE setting, Text& text) {
        GetLocaleInfoW(LOCALE_USER_DEFAULT, setting, text.data(), static_cast<int>(text.size()));
    }
    static void Write(const wchar_t* decimal, const wchar_t* thousands) {
        SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, decimal);
        SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_STHOUSAND, thousands);
    }

    Text decimal_{};
    Text thousands_{};
};

class CalculatorTest : public HostTest, public testing::WithParamInterface<Separators> {
  protected:
    CalculatorTest() : HostTest(LoopKind::Plain), separators_(GetParam()) {}

    void SetUp() override {
        Click(OpenPalette().Control("cmdAction(2)"));
        calculator = AwaitForm("frmCalculator");
        Require("the calculator's focus", [&] { return calculator.HasFocus(); });
        host->Ui().Settle();
    }

    /// A text with decimal commas in the separators of the test.
    static std::string Local(std::string text) {
        if (GetParam().decimal[0] == L',') return text;
        for (char& character : text) {
            if (character == ',') {
                character = '.';
            } else if (character == '.') {
                character = ',';
            }
        }
        return text;
    }

    /// Types digits and operators on the number pad.
    void TypeKeys(std::string_view keys) {
        for (const char key : keys) {
            switch (key) {
                case '+':
                    PressKey(VK_ADD);
                    break;
                case '-':
                    PressKey(VK_SUBTRACT);
                    break;
                case '*':
                    PressKey(VK_MULTIPLY);
                    break;
                case '/':
                    PressKey(VK_DIVIDE);
                    break;
                case '%':
                    PressKey('5', {VK_SHIFT});
                    break;
                case '.':
                    PressKey(VK_OEM_PERIOD);
                    break;
                case '=':
                    PressKey(VK_RETURN);
                    break;
                default:
                    PressKey(static_cast<WORD>(key));
                    break;
            }
        }
        host->Ui().Settle();
    }

    std::string ShownIn(const char* display) {
        return ReadAccessible(host->Ui(), calculator.Control(display)).value;
    }

    void ExpectShown(const char* lei, const char* currency) {
        EXPECT_TRUE(WaitUntil([&] { return ShownIn("ValLei") == Local(lei); })) << ShownIn("ValLei");
        EXPECT_EQ(ShownIn("ValValuta"), Local(currency));
    }

    void FocusKey(const char* name) {
        Click(calculator.Control(name));
        ASSERT_TRUE(AwaitFocus(name));
        host->Ui().Settle();
    }

    /// Opens the chooser on a table whose newest dollar is at 4 lei.
    Window OpenChooser() {
        host->Run("UPDATE [Curs Valutar] SET [$] = 4");
        Click(calculator.Control("cmdVal"));
        const Window chooser = AwaitForm("AlegeMoneda");
        EXPECT_TRUE(AwaitFocus("Grid"));
        host->Ui().Settle();
        return chooser;
    }

    /// Closes the calculator and opens another.
    void Reopen() {
        Click(calculator.Control("cmdUnload"));
        ASSERT_TRUE(AwaitClosed("frmCalculator"));
        SetUp();
    }

    Window calculator;

  private:
    UserSeparators separators_;
};

TEST_P(CalculatorTest, OpensOnTopWithoutAFrame) {
    EXPECT_EQ(calculator.Text(), "Calculator");
    EXPECT_TRUE(calculator.IsTopmost());
    EXPECT_EQ(GetWindowLongW(calculator.Handle(), GWL_STYLE) & WS_CAPTION, 0);
    ExpectShown("0,00", "0,00");
    EXPECT_FALSE(calculator.Control("lblM").IsVisible());
}

TEST_P(CalculatorTest, SumsAreTypedWithTheKeyboard) {
    TypeKeys("1234.5+1000=");
    ExpectShown("2.234,50", "2.234,50");
    EXPECT_TRUE(AwaitFocus("Operator(4)"));
    TypeKeys("+0.25=");
    ExpectShown("2.234,75", "2.234,75");
    TypeKeys("C6*7=");
    ExpectShown("7,00", "7,00");
}

TEST_P(CalculatorTest, EveryKeyTakesTheFocusAlong) {
    constexpr std::pair<char, const char*> Keys[] = {
        {'7', "Number(7)"},   {'*', "Operator(2)"}, {'2', "Number(2)"},   {'+', "Operator(1)"},
        {'3', "Number(3)"},   {'-', "Operator(3)"}, {'8', "Number(8)"},   {'/', "Operator(0)"},
        {'4', "Number(4)"},   {'=', "Operator(4)"}, {'C', "CancelEntry"}, {'5', "Number(5)"},
        {'+', "Operator(1)"}, {'1', "Number(1)"},   {'%', "Operator(5)"}};
    for (const auto& [key, focus] : Keys) {
        TypeKeys({&key, 1});
        EXPECT_TRUE(AwaitFocus(focus)) << key << ": " << FocusedName();
    }
}

TEST_P(CalculatorTest, EnterIsEqualsOnce) {
    TypeKeys("7+5=");
    ExpectShown("12,00", "12,00");
    // After one "=" a number begins anew and the operator after it is not taken.
    TypeKeys("3++4=");
    ExpectShown("4,00", "4,00");
}

TEST_P(CalculatorTest, ThePointTypesTheUsersSeparatorAndBackspaceTakesItBack) {
    TypeKeys("1.25");
    ExpectShown("1,25", "1,25");
    PressKey(VK_BACK);
    ExpectShown("1,20", "1,20");
    PressKey(VK_BACK);
    ExpectShown("1,00", "1,00");
    EXPECT_EQ(calculator.Control("Decimal").Text(), "");
    EXPECT_EQ(ReadAccessible(host->Ui(), calculator.Control("Decimal")).name,
              Local(",") == "," ? "virgulă" : "punct");
}

TEST_P(CalculatorTest, TheMousePressesKeysAndMemory) {
    for (const char* key : {"Number(4)", "Number(2)", "cmdMPlus"})
        Click(calculator.Control(key));
    EXPECT_TRUE(WaitUntil([&] { return calculator.Control("lblM").IsVisible(); }));
    ExpectShown("0,00", "0,00");
    Click(calculator.Control("cmdMR"));
    ExpectShown("42,00", "42,00");
    Click(calculator.Control("Operator(6)"));
    ExpectShown("-42,00", "-42,00");
    Click(calculator.Control("cmdMC"));
    EXPECT_TRUE(WaitUntil([&] { return !calculator.Control("lblM").IsVisible(); }));
}

TEST_P(CalculatorTest, Percent) {
    TypeKeys("200+10%");
    ExpectShown("220,00", "220,00");
}

TEST_P(CalculatorTest, DividingByZeroShowsAMessageInFront) {
    TypeKeys("5/0=");
    ExpectMessage("Impartire la 0 !!", MessageIcon::Exclamation, "Eroare", {IDOK}, IDOK);
    ExpectShown("5,00", "5,00");
    EXPECT_TRUE(AwaitFocus("Operator(4)"));
}

TEST_P(CalculatorTest, MayBeClosedWhileItsMessageIsUp) {
    TypeKeys("5/0=");
    const ShownMessage message = ShownMessage::Await();
    PostMessageW(calculator.Handle(), WM_CLOSE, 0, 0);
    EXPECT_TRUE(AwaitClosed("frmCalculator"));
    message.Dismiss();
    host->Ui().Settle();
    EXPECT_TRUE(FindForm("Utilitati"));
}

TEST_P(CalculatorTest, APrecisionAndAUnitAreChosenByKeyboard) {
    calculator.Control("cmbPrecizie");
    Click(calculator.Control("cmbPrecizie"));
    PressKey(VK_ESCAPE);
    ASSERT_TRUE(AwaitFocus("cmbPrecizie"));
    PressKey(VK_DOWN);
    ExpectShown("0,0000", "0,0000");
    FocusKey("Number(1)");
    TypeKeys(".2345");
    ExpectShown("1,2345", "1,2345");
    Click(calculator.Control("cmbPrecizie"));
    PressKey(VK_ESCAPE);
    ASSERT_TRUE(AwaitFocus("cmbPrecizie"));
    PressKey(VK_HOME);
    ExpectShown("1", "1");
}

TEST_P(CalculatorTest, ACurrencyIsChosenAndConvertsBothWays) {
    TypeKeys("100");
    const Window chooser = OpenChooser();
    EXPECT_EQ(chooser.Text(), "Alege Moneda");
    EXPECT_FALSE(calculator.IsEnabled());
    const TableTexts rates = ReadTable(host->Ui(), chooser.Control("Grid"));
    EXPECT_EQ(rates[0], (std::vector<std::string>{"Data", "$"}));
    EXPECT_EQ(rates[1][1], "4");
    PressKey(VK_RETURN);
    ASSERT_TRUE(AwaitClosed("AlegeMoneda"));
    EXPECT_TRUE(calculator.IsEnabled());
    ExpectShown("100,00", "25,00");
    EXPECT_EQ(ReadAccessible(host->Ui(), calculator.Control("lblCurs")).name,
              Local("Cursul este de  4,00 Lei pentru 1 $"));

    Click(calculator.Control("cmbUM"));
    PressKey(VK_ESCAPE);
    ASSERT_TRUE(AwaitFocus("cmbUM"));
    PressKey(VK_DOWN);
    FocusKey("Number(0)");
    ExpectShown("1.000,00", "250,00");
}

TEST_P(CalculatorTest, TheChooserListsTheCurrenciesOfTheTable) {
    const Window chooser = OpenChooser();
    Click(chooser.Control("cmbMoneda"));
    ASSERT_TRUE(AwaitFocus("cmbMoneda"));
    PressKey(VK_DOWN);
    ASSERT_TRUE(WaitUntil([&] { return ReadTable(host->Ui(), chooser.Control("Grid"))[0][1] == "EUR"; }));
    const auto newest = host->Rows("SELECT [EUR] FROM [Curs Valutar] ORDER BY [Data] DESC");
    EXPECT_EQ(ReadTable(host->Ui(), chooser.Control("Grid"))[1][1], newest[0][0]);
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(AwaitClosed("AlegeMoneda"));
    EXPECT_TRUE(WaitUntil([&] { return calculator.IsEnabled() && calculator.HasFocus(); }));
}

TEST_P(CalculatorTest, IsDraggedByItsPanel) {
    const RECT before = calculator.ScreenBounds();
    const RECT panel = calculator.Control("z").ScreenBounds();
    const POINT grip{panel.left + 4, panel.top + 4};
    Drag(host->Ui(), grip, {grip.x + 120, grip.y + 90});
    EXPECT_TRUE(WaitUntil([&] { return calculator.ScreenBounds().left > before.left + 50; }));
    EXPECT_EQ(calculator.ScreenBounds().right - calculator.ScreenBounds().left, before.right - before.left);
}

TEST_P(CalculatorTest, EscapeClosesIt) {
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(AwaitClosed("frmCalculator"));
    EXPECT_TRUE(FindForm("Utilitati"));
}

TEST_P(CalculatorTest, ThePaletteClosesItUnlessItIsLeftByEscape) {
    Click(AwaitForm("Utilitati").Control("picCaption"));
    PressKey(VK_ESCAPE);
    ASSERT_TRUE(AwaitClosed("Utilitati"));
    host->Ui().Settle();
    EXPECT_TRUE(FindForm("frmCalculator"));
    Click(OpenPalette().Control("imgClose"));
    EXPECT_TRUE(AwaitClosed("frmCalculator"));
}

TEST_P(CalculatorTest, SettingsThatChangeReachTheNextCalculatorAndNotTheOpenOne) {
    const UserSeparators changed(GetParam().decimal[0] == L',' ? English : Romanian);
    TypeKeys("1234.5+0=");
    ExpectShown("1.234,50", "1.234,50");
    Reopen();
    TypeKeys("1234.5+0=");
    const std::string expected = UserSeparators::Decimal() == L"." ? "1,234.50" : "1.234,50";
    EXPECT_TRUE(WaitUntil([&] { return ShownIn("ValLei") == expected; })) << ShownIn("ValLei");
    EXPECT_EQ(ReadAccessible(host->Ui(), calculator.Control("Decimal")).name,
              UserSeparators::Decimal() == L"." ? "punct" : "virgulă");
}

INSTANTIATE_TEST_SUITE_P(Locales, CalculatorTest, testing::Values(Romanian, English),
                         [](const auto& locale) { return locale.param.name; });

}  // namespace
}  // namespace tavrin::e2e
