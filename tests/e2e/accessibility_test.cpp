// Every window as somebody uses it who does not see it or has no mouse: each control tells what it is and how
// it stands, and the keyboard reaches all that can be acted upon.

#include <oleacc.h>

#include <map>
#include <set>

#include "e2e/driver/accessible_reader.h"
#include "e2e/driver/event_watch.h"
#include "e2e/host_test.h"
#include "host/windows/catalogue.h"

namespace tavrin::e2e {
namespace {

/// A state of a window.
struct Place {
    host::WindowState state;
    const char* window;
    WORD key;  ///< by which the focus moves on
};

void PrintTo(const Place& place, std::ostream* stream) {
    *stream << place.state.description;
}

std::vector<Place> Places() {
    std::vector<Place> places;
    for (const host::WindowEntry& window : host::AllWindows()) {
        // The palette's buttons keep Tab for themselves.
        const WORD key = std::string_view(window.name) == "Utilitati" ? VK_DOWN : VK_TAB;
        for (const host::WindowState& state : window.states)
            places.push_back({state, window.name, key});
    }
    return places;
}

class AccessibilityTest : public HostTest, public testing::WithParamInterface<Place> {
  protected:
    void SetUp() override {
        OpenPalette();
        for (const auto& [form, control] : GetParam().state.clicks) {
            Click(AwaitForm(form).Control(control));
            host->Ui().Settle();
        }
        window = AwaitForm(GetParam().window);
        Require("the window's focus", [&] { return window.HasFocus(); });
        host->Ui().Settle();
    }

    std::vector<Window> VisibleControls() const {
        std::vector<Window> controls = window.Controls();
        std::erase_if(controls, [](const Window& control) { return !control.IsVisible(); });
        return controls;
    }

    /// A label or a disabled control lets the mouse through, to what it stands on.
    static bool IsSeenAt(const Window& control, POINT place) {
        const HWND seen = WindowFromPoint(place);
        return seen == control.Handle() || IsChild(control.Handle(), seen) || IsChild(seen, control.Handle());
    }

    AccessibleFacts Facts(const Window& control) { return ReadAccessible(host->Ui(), control); }

    /// A field's window lies inside the frame that belongs to the control.
    static bool IsAround(const RECT& control, const RECT& inner) {
        constexpr int frame = 4;
        RECT most = inner;
        InflateRect(&most, frame, frame);
        return control.left <= inner.left && control.top <= inner.top && control.right >= inner.right &&
               control.bottom >= inner.bottom && control.left >= most.left && control.top >= most.top &&
               control.right <= most.right && control.bottom <= most.bottom;
    }

    static bool Has(const AccessibleFacts& facts, long state) { return (facts.state & state) != 0; }

    /// The names of the controls that say they take the keyboard.
    std::set<std::string> Focusable() {
        std::set<std::string> names;
        for (const Window& control : VisibleControls()) {
            const AccessibleFacts facts = Facts(control);
            if (Has(facts, STATE_SYSTEM_FOCUSABLE) && !Has(facts, STATE_SYSTEM_UNAVAILABLE))
                names.insert(control.Name());
        }
        return names;
    }

    std::string Press(WORD key, std::initializer_list<WORD> held = {}) {
        PressKey(key, held);
        host->Ui().Settle();
        return FocusedName();
    }

    Window window;
};

TEST_P(AccessibilityTest, EveryControlTellsWhatItIs) {
    for (const Window& control : VisibleControls()) {
        SCOPED_TRACE(control.Name());
        const AccessibleFacts facts = Facts(control);
        EXPECT_NE(facts.role, ROLE_SYSTEM_CLIENT) << "no role of its own";
        EXPECT_NE(facts.role, ROLE_SYSTEM_WINDOW) << "no role of its own";
        const bool mayBeNameless = facts.role == ROLE_SYSTEM_GROUPING;
        EXPECT_TRUE(mayBeNameless || !facts.name.empty()) << "no name";
        EXPECT_TRUE(IsAround(facts.place, control.ScreenBounds())) << "it tells another place";
    }
}

TEST_P(AccessibilityTest, EveryControlTellsItsStateAndValue) {
    for (const Window& control : VisibleControls()) {
        SCOPED_TRACE(control.Name());
        const AccessibleFacts facts = Facts(control);
        EXPECT_FALSE(Has(facts, STATE_SYSTEM_INVISIBLE));
        EXPECT_TRUE(control.IsEnabled() || Has(facts, STATE_SYSTEM_UNAVAILABLE));
        EXPECT_EQ(Has(facts, STATE_SYSTEM_FOCUSED), FocusedName() == control.Name());
        EXPECT_EQ(facts.role == ROLE_SYSTEM_PUSHBUTTON, facts.defaultAction == "Apasă");
        const bool hasValue = facts.role == ROLE_SYSTEM_COMBOBOX || facts.role == ROLE_SYSTEM_DROPLIST;
        EXPECT_TRUE(!hasValue || !facts.value.empty()) << "no value";
        EXPECT_EQ(Has(facts, STATE_SYSTEM_COLLAPSED), hasValue);
        EXPECT_EQ(facts.defaultAction == "Deschide", hasValue);
        EXPECT_TRUE(facts.role != ROLE_SYSTEM_TABLE || facts.childCount > 0) << "no cells";
    }
}

TEST_P(AccessibilityTest, NoControlIsHiddenBehindAnother) {
    for (const Window& control : VisibleControls()) {
        // The picture that unrolls the palette waits beneath the one that rolls it up.
        if (Facts(control).role == ROLE_SYSTEM_GROUPING || control.Name() == "imgRollup(1)") continue;
        // A bar is behind its buttons, but for its edge.
        const RECT bounds = control.ScreenBounds();
        EXPECT_TRUE(IsSeenAt(control, control.Center()) ||
                    IsSeenAt(control, {bounds.left + 1, bounds.top + 1}))
            << control.Name();
    }
}

TEST_P(AccessibilityTest, AcceleratorsAreUnique) {
    std::map<std::string, std::string> owners;
    for (const Window& control : VisibleControls()) {
        const std::string shortcut = Facts(control).shortcut;
        if (shortcut.empty()) continue;
        const auto [found, isNew] = owners.emplace(shortcut, control.Name());
        EXPECT_TRUE(isNew) << shortcut << ": " << found->second << " and " << control.Name();
    }
}

TEST_P(AccessibilityTest, TheKeyboardReachesEveryControlThatTakesIt) {
    const std::set<std::string> focusable = Focusable();
    ASSERT_FALSE(focusable.empty());
    std::set<std::string> reached{FocusedName()};
    const auto press = [&](WORD key, std::initializer_list<WORD> held, const auto& isEnough) {
        for (std::size_t i = 0; i < 2 * focusable.size() + 2 && !isEnough(); ++i)
            reached.insert(Press(key, held));
    };
    const auto never = [] { return false; };
    press(VK_TAB, {}, never);
    press(VK_TAB, {VK_SHIFT}, never);
    // Where a window's own keys take Tab elsewhere, the arrows go from button to button.
    press(VK_TAB, {}, [&] { return Facts(window.Control(FocusedName())).role == ROLE_SYSTEM_PUSHBUTTON; });
    press(VK_DOWN, {}, never);
    for (const std::string& control : focusable)
        EXPECT_TRUE(reached.contains(control)) << control << " is never reached";
}

TEST_P(AccessibilityTest, MovingTheFocusIsTold) {
    const EventWatch watch(host->Ui());
    const std::string before = FocusedName();
    std::string now = before;
    for (int i = 0; i < 8 && now == before; ++i)
        now = Press(GetParam().key);
    // A note takes the key for itself, but with Shift.
    if (now == before) now = Press(GetParam().key, {VK_SHIFT});
    ASSERT_NE(now, before);
    EXPECT_TRUE(watch.Await(EVENT_OBJECT_FOCUS, now));
}

INSTANTIATE_TEST_SUITE_P(Windows, AccessibilityTest, testing::ValuesIn(Places()),
                         [](const auto& each) { return std::string(each.param.state.description); });

class AccessibleEventsTest : public HostTest {};

TEST_F(AccessibleEventsTest, AGridTellsOfItsSelection) {
    const Window list = OpenRateList();
    const Window grid = list.Control("Grid");
    ReadAccessible(host->Ui(), grid);
    Click(grid);
    ASSERT_TRUE(AwaitFocus("Grid"));
    const EventWatch watch(host->Ui());
    PressKey(VK_HOME, {VK_CONTROL});
    PressKey(VK_DOWN);
    EXPECT_TRUE(watch.Await(EVENT_OBJECT_SELECTION, "Grid"));
}

TEST_F(AccessibleEventsTest, TheCellAtAPlaceIsFoundInAnInstant) {
    const Window grid = OpenRateList().Control("Grid");
    const std::vector<AccessibleFacts> parts = ReadParts(host->Ui(), grid);
    const auto partAt = [&](LONG left, LONG top) {
        return host->Call([&] {
            VARIANT child;
            VariantInit(&child);
            return OpenAccessible(grid)->accHitTest(left, top, &child) == S_OK ? child.lVal : -1;
        });
    };
    int inSight = 0;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const RECT& place = parts[i].place;
        if (IsRectEmpty(&place)) continue;
        ++inSight;
        EXPECT_EQ(partAt((place.left + place.right) / 2, (place.top + place.bottom) / 2),
                  static_cast<LONG>(i) + 1);
    }
    EXPECT_GT(inSight, 5);
    const RECT bounds = grid.ScreenBounds();
    EXPECT_EQ(partAt(bounds.left, bounds.top), CHILDID_SELF) << "on the frame";
    EXPECT_EQ(partAt(bounds.left - 1, bounds.top), -1) << "beside the grid";
}

TEST_F(AccessibleEventsTest, ADisplayTellsOfItsValue) {
    Click(OpenPalette().Control("cmdAction(2)"));
    const Window calculator = AwaitForm("frmCalculator");
    host->Ui().Settle();
    ReadAccessible(host->Ui(), calculator.Control("ValLei"));
    const EventWatch watch(host->Ui());
    Click(calculator.Control("Number(7)"));
    EXPECT_TRUE(watch.Await(EVENT_OBJECT_VALUECHANGE, "ValLei"));
    EXPECT_TRUE(watch.Await(EVENT_OBJECT_NAMECHANGE, "ValLei"));
    EXPECT_FALSE(watch.Saw(LiveRegionChanged, "ValLei")) << "what is typed is read out key by key";
}

TEST_F(AccessibleEventsTest, AResultIsReadOutToWhomeverListens) {
    Click(OpenPalette().Control("cmdAction(2)"));
    const Window calculator = AwaitForm("frmCalculator");
    host->Ui().Settle();
    Click(calculator.Control("Number(7)"));
    const EventWatch watch(host->Ui());
    PressKey(VK_ADD);
    EXPECT_TRUE(watch.Await(LiveRegionChanged, "ValLei")) << "nobody has asked for the display before";
    EXPECT_FALSE(watch.Saw(LiveRegionChanged, "ValValuta"));
    EXPECT_EQ(ReadAccessible(host->Ui(), calculator.Control("ValLei")).name.substr(0, 6), "Lei: 7");
    EXPECT_EQ(FocusedName(), "Operator(1)");
    EXPECT_EQ(ReadAccessible(host->Ui(), calculator.Control("Operator(2)")).name, "înmulțit");
}

TEST_F(AccessibleEventsTest, ANoticeIsReadOutWhileTheFocusIsElsewhere) {
    host->Run("DELETE FROM [Curs Valutar] WHERE [Data] < '02-01-2003'");
    Click(OpenRateList().Control("cmdAction(5)"));
    const Window evolution = AwaitForm("EvolutieCurs");
    host->Ui().Settle();
    const EventWatch watch(host->Ui());
    Click(evolution.Control("cmdAction(1)"));
    EXPECT_TRUE(watch.Await(LiveRegionChanged, "lblMesaj2"));
    EXPECT_TRUE(AwaitFocus("cmbAn"));
}

TEST_F(AccessibleEventsTest, AListTellsThatItOpensAndCloses) {
    Click(OpenPalette().Control("cmdAction(2)"));
    const Window list = AwaitForm("frmCalculator").Control("cmbPrecizie");
    host->Ui().Settle();
    ReadAccessible(host->Ui(), list);
    EventWatch watch(host->Ui());
    for (const bool opens : {true, false}) {
        SCOPED_TRACE(opens);
        watch.Forget();
        EXPECT_EQ(DoDefaultAction(host->Ui(), list), S_OK);
        EXPECT_TRUE(watch.Await(EVENT_OBJECT_STATECHANGE, "cmbPrecizie"));
        const AccessibleFacts facts = ReadAccessible(host->Ui(), list);
        EXPECT_EQ((facts.state & STATE_SYSTEM_EXPANDED) != 0, opens);
        EXPECT_EQ((facts.state & STATE_SYSTEM_COLLAPSED) != 0, !opens);
        EXPECT_EQ(facts.defaultAction, opens ? "Închide" : "Deschide");
    }
}

TEST_F(AccessibleEventsTest, ADateFieldTellsThatItsCalendarOpensAndCloses) {
    const Window field = OpenRateList().Control("dpDataIn");
    const auto isOpen = [&] {
        return (ReadAccessible(host->Ui(), field).state & STATE_SYSTEM_EXPANDED) != 0;
    };
    EXPECT_FALSE(isOpen());
    for (const bool opens : {true, false}) {
        EXPECT_EQ(DoDefaultAction(host->Ui(), field), S_OK);
        EXPECT_TRUE(WaitUntil([&] { return isOpen() == opens; })) << opens;
    }
}

}  // namespace
}  // namespace tavrin::e2e
