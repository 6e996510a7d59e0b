// What the long runs on the real windows take for a loss, and what they let pass.

#include "e2e/proofs/footprint.h"

#include <gtest/gtest.h>

namespace tavrin::e2e {
namespace {

constexpr const char* SystemCursor = R"(cursor 107 of C:\windows\system32\riched20.dll)";

std::string DifferencesTo(const Footprint& after) {
    return Differences({}, after, {});
}

TEST(FootprintTest, NothingHasStayedWhereNothingHasChanged) {
    EXPECT_EQ(DifferencesTo({}), "");
}

TEST(FootprintTest, OneOfEachOfTheSystemsCursorsMayStay) {
    Footprint after;
    after.resources.icons = {SystemCursor};
    EXPECT_EQ(DifferencesTo(after), "");
    after.resources.icons = {SystemCursor, SystemCursor};
    EXPECT_NE(DifferencesTo(after), "") << "a second one is a loss";
}

TEST(FootprintTest, AnyOtherIconIsNamed) {
    for (const char* icon : {"icon made by the program", "icon 5 of Z:\\Tavrin.dll"}) {
        Footprint after;
        after.resources.icons = {icon};
        EXPECT_NE(DifferencesTo(after).find(icon), std::string::npos) << icon;
    }
}

TEST(FootprintTest, NamesThatTheSystemRegistersMayStay) {
    for (const char* atom : {"6.0.2600.2982!Edit", "commdlg_ColorOK", "Shell IDList Array"}) {
        Footprint after;
        after.resources.globalAtoms = {atom};
        EXPECT_EQ(DifferencesTo(after), "") << atom;
    }
}

TEST(FootprintTest, AnyOtherNameIsALoss) {
    for (const char* atom : {"Tavrin", "!Edit", "6.0"}) {
        Footprint after;
        after.resources.globalAtoms = {atom};
        EXPECT_NE(DifferencesTo(after).find(atom), std::string::npos) << atom;
    }
}

TEST(FootprintTest, MenusAndModulesAreNamed) {
    Footprint after;
    after.resources.menus = {"Undo, Cut"};
    after.modules = {"Tavrin.dll"};
    EXPECT_NE(DifferencesTo(after).find("Undo, Cut"), std::string::npos);
    EXPECT_NE(DifferencesTo(after).find("Tavrin.dll"), std::string::npos);
}

TEST(FootprintTest, GdiObjectsMayGrowByWhatIsAllowedAndNoMore) {
    Footprint after;
    after.resources.gdiObjects = {{"font", 3}};
    EXPECT_EQ(Differences({}, after, {.gdiObjects = 3}), "");
    EXPECT_NE(Differences({}, after, {.gdiObjects = 2}), "");
}

}  // namespace
}  // namespace tavrin::e2e
