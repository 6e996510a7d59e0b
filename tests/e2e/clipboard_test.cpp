// What other programs find on the clipboard after Ctrl+C in a window, and how the keyboard gets from window
// to window.

#include <windows.h>

#include <string>

#include "e2e/driver/clipboard.h"
#include "e2e/host_test.h"

namespace tavrin::e2e {
namespace {

class ClipboardTest : public HostTest {};

TEST_F(ClipboardTest, ARowOfTheListIsTextForATable) {
    const Window list = OpenRateList();
    Click(list.Control("Grid"));
    ASSERT_TRUE(AwaitFocus("Grid"));
    PressKey('C', {VK_CONTROL});
    host->Ui().Settle();
    const std::string text = TextOnClipboard();
    EXPECT_TRUE(text.starts_with("Data\t")) << text;
    EXPECT_EQ(text.find("\r\n", text.find("\r\n") + 2), text.size() - 2) << "the header and one row";
    EXPECT_EQ(PictureOnClipboard().cx, 0);
}

TEST_F(ClipboardTest, AChartIsAPictureToo) {
    const Window list = OpenRateList();
    Click(list.Control("cmdAction(5)"));
    const Window evolution = AwaitForm("EvolutieCurs");
    Click(evolution.Control("cmdAction(1)"));
    host->Ui().Settle();
    PressKey('C', {VK_CONTROL});
    host->Ui().Settle();
    EXPECT_TRUE(TextOnClipboard().find('\t') != std::string::npos);
    const RECT chart = evolution.Control("MSChart1").ScreenBounds();
    EXPECT_EQ(PictureOnClipboard().cx, chart.right - chart.left);
    EXPECT_EQ(PictureOnClipboard().cy, chart.bottom - chart.top);
}

TEST_F(ClipboardTest, WhatAnotherProgramKeepsIsAnErrorAndLeavesTheWindowAsItIs) {
    const Window list = OpenRateList();
    Click(list.Control("Grid"));
    ASSERT_TRUE(AwaitFocus("Grid"));
    ASSERT_TRUE(OpenClipboard(GetDesktopWindow()));
    PressKey('C', {VK_CONTROL});
    const ShownMessage message = ShownMessage::Await();
    CloseClipboard();
    message.Press(IDOK);
    host->Ui().Settle();
    EXPECT_TRUE(list.IsEnabled());
}

class BetweenWindowsTest : public HostTest {};

TEST_F(BetweenWindowsTest, F6LeadsBackToTheHost) {
    const Window list = OpenRateList();
    Click(list.Control("Grid"));
    ASSERT_TRUE(AwaitFocus("Grid"));
    PressKey(VK_F6);
    Require("the host's window in front",
            [&] { return GetForegroundWindow() == host->MainWindow().Handle(); });
}

TEST_F(BetweenWindowsTest, AWindowWithoutACaptionHasAMenuToMoveItBy) {
    const Window palette = OpenPalette();
    Click(palette.Control("cmdAction(2)"));
    const Window calculator = AwaitForm("frmCalculator");
    EXPECT_NE(GetWindowLongW(calculator.Handle(), GWL_STYLE) & WS_SYSMENU, 0);
    const UINT move = GetMenuState(GetSystemMenu(calculator.Handle(), FALSE), SC_MOVE, MF_BYCOMMAND);
    EXPECT_EQ(move & (MF_GRAYED | MF_DISABLED), 0U);
}

}  // namespace
}  // namespace tavrin::e2e
