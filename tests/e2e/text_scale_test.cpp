// Larger texts, as the user sets them for all programs: windows open in that size, and follow while open.

#include <windows.h>

#include <richedit.h>

#include "e2e/host_test.h"

namespace tavrin::e2e {
namespace {

constexpr wchar_t Key[] = L"Software\\Microsoft\\Accessibility";
constexpr wchar_t Value[] = L"TextScaleFactor";

class TextSizeTest : public HostTest {
  protected:
    void TearDown() override {
        RegDeleteKeyValueW(HKEY_CURRENT_USER, Key, Value);
        HostTest::TearDown();
    }

    static void SetTextScale(DWORD percent) {
        ASSERT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, Key, Value, REG_DWORD, &percent, sizeof percent),
                  ERROR_SUCCESS);
    }
    static void Tell(const Window& window) { SendMessageW(window.Handle(), WM_SETTINGCHANGE, 0, 0); }

    static void ExpectTimes(double factor, SIZE before, const Window& window) {
        EXPECT_NEAR(window.Width(), before.cx * factor, 1) << window.Name();
        EXPECT_NEAR(window.Height(), before.cy * factor, 1) << window.Name();
    }
    /// What the controls stand in is so much larger, and the frame is what it was.
    static void ExpectClientTimes(double factor, SIZE before, const Window& window) {
        const SIZE now = ClientOf(window);
        EXPECT_NEAR(now.cx, before.cx * factor, 1);
        EXPECT_NEAR(now.cy, before.cy * factor, 1);
    }
    static SIZE ClientOf(const Window& window) {
        RECT client{};
        GetClientRect(window.Handle(), &client);
        return {client.right, client.bottom};
    }
    static SIZE SizeOf(const Window& window) { return {window.Width(), window.Height()}; }
};

TEST_F(TextSizeTest, AnOpenWindowFollowsAndTheNextOneOpensInIt) {
    const Window palette = OpenPalette();
    const SIZE first = SizeOf(palette);
    Click(palette.Control("cmdAction(3)"));
    const Window list = AwaitForm("CursValutar");
    const SIZE button = SizeOf(list.Control("cmdAction(0)"));
    const SIZE picker = SizeOf(list.Control("dpDataIn"));
    const SIZE grid = SizeOf(list.Control("Grid"));
    const SIZE client = ClientOf(list);
    ASSERT_TRUE(AwaitFocus("Grid"));

    SetTextScale(140);
    Tell(list);
    ExpectClientTimes(1.4, client, list);
    ExpectTimes(1.4, button, list.Control("cmdAction(0)"));
    ExpectTimes(1.4, picker, list.Control("dpDataIn"));
    ExpectTimes(1.4, grid, list.Control("Grid"));
    EXPECT_LE(list.ScreenBounds().right, GetSystemMetrics(SM_CXSCREEN));
    EXPECT_LE(list.ScreenBounds().bottom, GetSystemMetrics(SM_CYSCREEN));
    EXPECT_TRUE(AwaitFocus("Grid"));
    Tell(palette);
    ExpectTimes(1.4, first, palette);

    PressKey(VK_ESCAPE);
    ASSERT_TRUE(AwaitClosed("CursValutar"));
    Click(palette.Control("cmdAction(3)"));
    const Window next = AwaitForm("CursValutar");
    ExpectTimes(1.4, button, next.Control("cmdAction(0)"));
    ExpectTimes(1.4, grid, next.Control("Grid"));

    ExpectClientTimes(1.4, client, next);

    SetTextScale(100);
    Tell(next);
    ExpectClientTimes(1, client, next);
    ExpectTimes(1, button, next.Control("cmdAction(0)"));
    ExpectTimes(1, grid, next.Control("Grid"));
}

TEST_F(TextSizeTest, ANoteIsReadInItToo) {
    SetTextScale(150);
    Click(OpenPalette().Control("cmdAction(0)"));
    const Window note = AwaitForm("Notes").Control("txtNota");
    const auto expectZoom = [&](WPARAM percent) {
        const auto [numerator, denominator] = host->Call([&] {
            std::pair<int, int> zoom;
            SendMessageW(note.Handle(), EM_GETZOOM, reinterpret_cast<WPARAM>(&zoom.first),
                         reinterpret_cast<LPARAM>(&zoom.second));
            return zoom;
        });
        ASSERT_GT(denominator, 0);
        EXPECT_EQ(static_cast<WPARAM>(numerator * 100 / denominator), percent);
    };
    expectZoom(150);
    SetTextScale(125);
    Tell(AwaitForm("Notes"));
    expectZoom(125);
}

}  // namespace
}  // namespace tavrin::e2e
