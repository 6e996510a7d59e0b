// Windows made larger and smaller, by the mouse on their frames and by the keyboard.

#include <windows.h>

#include "e2e/driver/accessible_reader.h"
#include "e2e/host_test.h"

namespace tavrin::e2e {
namespace {

class SizedWindowsTest : public HostTest {
  protected:
    static SIZE SizeOf(const Window& window) { return {window.Width(), window.Height()}; }

    static POINT LowerRightCorner(const Window& window) {
        const RECT bounds = window.ScreenBounds();
        return {bounds.right - 2, bounds.bottom - 2};
    }

    static void SetSize(const Window& window, int width, int height) {
        SetWindowPos(window.Handle(), nullptr, 0, 0, width, height,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }

    std::string CurrentCell(const Window& grid) { return ReadAccessible(host->Ui(), grid).value; }

    /// How much further than the other window's corner a control's lower right corner is.
    static SIZE Distance(const Window& control, const Window& window) {
        const RECT inner = control.ScreenBounds();
        const RECT outer = window.ScreenBounds();
        return {outer.right - inner.right, outer.bottom - inner.bottom};
    }
};

bool operator==(const SIZE& a, const SIZE& b) {
    return a.cx == b.cx && a.cy == b.cy;
}

TEST_F(SizedWindowsTest, TheCornerOfTheRateListIsDragged) {
    const Window list = OpenRateList();
    const Window grid = list.Control("Grid");
    ASSERT_TRUE(AwaitFocus("Grid"));
    PressKey(VK_DOWN);
    PressKey(VK_DOWN);
    PressKey(VK_RIGHT);
    host->Ui().Settle();
    const std::string cell = CurrentCell(grid);
    const SIZE window = SizeOf(list);
    const SIZE before = SizeOf(grid);
    const SIZE button = SizeOf(list.Control("cmdAction(6)"));
    const SIZE fromCorner = Distance(list.Control("cmdAction(6)"), list);

    const POINT corner = LowerRightCorner(list);
    Drag(host->Ui(), corner, {corner.x + 60, corner.y + 40});
    Require("the list to grow", [&] { return SizeOf(list) == SIZE{window.cx + 60, window.cy + 40}; });
    host->Ui().Settle();
    EXPECT_TRUE((SizeOf(grid) == SIZE{before.cx + 60, before.cy + 40}));
    EXPECT_TRUE(SizeOf(list.Control("cmdAction(6)")) == button);
    EXPECT_TRUE(Distance(list.Control("cmdAction(6)"), list) == fromCorner);
    EXPECT_EQ(CurrentCell(grid), cell);
    EXPECT_TRUE(AwaitFocus("Grid"));

    // Reading the list anew leaves the size as it is.
    Click(list.Control("cmdRefresh"));
    ASSERT_TRUE(AwaitFocus("Grid"));
    EXPECT_TRUE((SizeOf(list) == SIZE{window.cx + 60, window.cy + 40}));
}

TEST_F(SizedWindowsTest, TheChartGrowsByKeyboard) {
    const Window list = OpenRateList();
    Click(list.Control("cmdAction(5)"));
    const Window evolution = AwaitForm("EvolutieCurs");
    Click(evolution.Control("cmdAction(1)"));
    ASSERT_TRUE(AwaitFocus("Grid"));
    PressKey(VK_DOWN);
    host->Ui().Settle();
    const std::string cell = CurrentCell(evolution.Control("Grid"));
    const UINT item = GetMenuState(GetSystemMenu(evolution.Handle(), FALSE), SC_SIZE, MF_BYCOMMAND);
    ASSERT_EQ(item & (MF_GRAYED | MF_DISABLED), 0U) << "the menu that Alt and the blank open has it";
    const SIZE before = SizeOf(evolution.Control("MSChart1"));
    PostMessageW(evolution.Handle(), WM_SYSCOMMAND, SC_SIZE, 0);
    Require("the chart to grow", [&] {
        PressKey(VK_DOWN);
        host->Ui().Settle();
        return SizeOf(evolution.Control("MSChart1")).cy > before.cy;
    });
    PressKey(VK_RETURN);
    host->Ui().Settle();
    EXPECT_EQ(SizeOf(evolution.Control("MSChart1")).cx, before.cx);
    EXPECT_EQ(CurrentCell(evolution.Control("Grid")), cell);
    EXPECT_TRUE(AwaitFocus("Grid"));
}

TEST_F(SizedWindowsTest, ANoteIsNeitherSmallerThanItsBarNorLargerThanTheScreen) {
    Click(OpenPalette().Control("cmdAction(0)"));
    const Window notes = AwaitForm("Notes");
    ASSERT_TRUE(AwaitFocus("txtNota"));
    TypeText("Curs");
    const SIZE before = SizeOf(notes);
    const SIZE gap = Distance(notes.Control("txtNota"), notes);
    SetSize(notes, 10, 10);
    EXPECT_LT(notes.Width(), before.cx);
    EXPECT_GT(notes.Control("ImgBouton(7)").ScreenBounds().left,
              notes.Control("ImgBouton(6)").ScreenBounds().right);
    EXPECT_TRUE(Distance(notes.Control("txtNota"), notes) == gap);
    SetSize(notes, 20000, 20000);
    RECT area{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    EXPECT_TRUE((SizeOf(notes) == SIZE{area.right - area.left, area.bottom - area.top}));
    EXPECT_TRUE(Distance(notes.Control("txtNota"), notes) == gap);
    EXPECT_TRUE(AwaitFocus("txtNota"));
}

TEST_F(SizedWindowsTest, ADraggedEdgeStopsAtTheWorkArea) {
    const Window list = OpenRateList();
    RECT area{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    RECT dragged = list.ScreenBounds();
    const RECT before = dragged;
    dragged.right = area.right + 300;
    dragged.bottom = area.bottom + 300;
    SendMessageW(list.Handle(), WM_SIZING, WMSZ_RIGHT, reinterpret_cast<LPARAM>(&dragged));
    EXPECT_EQ(dragged.right, area.right);
    EXPECT_EQ(dragged.left, before.left);
    EXPECT_EQ(dragged.bottom, area.bottom + 300) << "not the edge that is dragged";
    dragged.left = area.left - 300;
    dragged.top = area.top - 300;
    SendMessageW(list.Handle(), WM_SIZING, WMSZ_TOPLEFT, reinterpret_cast<LPARAM>(&dragged));
    EXPECT_EQ(dragged.left, area.left);
    EXPECT_EQ(dragged.top, area.top);
}

TEST_F(SizedWindowsTest, OtherWindowsKeepTheirSize) {
    const Window palette = OpenPalette();
    EXPECT_EQ(GetWindowLongW(palette.Handle(), GWL_STYLE) & WS_THICKFRAME, 0);
    Click(palette.Control("cmdAction(1)"));
    const Window agenda = AwaitForm("Agenda");
    EXPECT_EQ(GetWindowLongW(agenda.Handle(), GWL_STYLE) & WS_THICKFRAME, 0);
}

}  // namespace
}  // namespace tavrin::e2e
