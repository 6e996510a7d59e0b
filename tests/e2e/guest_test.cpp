// How the component behaves in a process that is not its own: what it leaves alone, and what it follows.

#include <windows.h>

#include <array>

#include "e2e/driver/platform.h"
#include "e2e/driver/process_settings.h"
#include "e2e/driver/shown_message.h"
#include "e2e/host_test.h"
#include "win32/base/text.h"

namespace tavrin::e2e {
namespace {

constexpr int StandardDpi = 96;

class GuestTest : public HostTest {
  protected:
    /// Tells a window of another resolution, as the system tells those of hosts that follow it.
    static void TellResolution(const Window& window, int dpi) {
        RECT place = window.ScreenBounds();
        SendMessageW(window.Handle(), WM_DPICHANGED,
                     MAKEWPARAM(static_cast<WORD>(dpi), static_cast<WORD>(dpi)),
                     reinterpret_cast<LPARAM>(&place));
    }

    static void Move(const Window& window, int left, int top) {
        SetWindowPos(window.Handle(), nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }

    static void TellDisplaysChanged(const Window& window) {
        SendMessageW(window.Handle(), WM_DISPLAYCHANGE, 32,
                     MAKELPARAM(GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)));
    }

    static SIZE ClientSize(const Window& window) {
        RECT client{};
        GetClientRect(window.Handle(), &client);
        return {client.right, client.bottom};
    }

    /// The library that a window's class comes from.
    static std::string LibraryOf(HWND window) {
        const auto module = reinterpret_cast<HMODULE>(GetClassLongPtrW(window, GCLP_HMODULE));
        std::array<wchar_t, 1024> path{};
        GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
        CharLowerW(path.data());
        const std::string file = win32::ToUtf8(path.data());
        return file.substr(file.find_last_of('\\') + 1);
    }

    /// The platform's own edit field inside a control.
    static HWND FieldIn(const Window& control) {
        const HWND inner = FindWindowExW(control.Handle(), nullptr, L"Edit", nullptr);
        return inner != nullptr ? inner : control.Handle();
    }
};

TEST_F(GuestTest, TouchesNothingThatBelongsToTheProcess) {
    const ProcessSettings before = host->Call(ReadProcessSettings);
    const Window list = OpenRateList();
    Click(list.Control("cmdAction(0)"));
    AwaitForm("CursValutarDetaliu");
    EXPECT_EQ(host->Call(ReadProcessSettings), before) << "with windows open";
    CloseEverything();
    EXPECT_EQ(host->Call(ReadProcessSettings), before) << "with all closed";
}

TEST_F(GuestTest, ItsFieldsAreTheCurrentCommonControlsWhateverTheHostsAre) {
    Click(OpenRateList().Control("cmdAction(3)"));
    const Window dialog = AwaitForm("CereMoneda");
    EXPECT_NE(LibraryOf(FieldIn(dialog.Control("txtMoneda"))), "user32.dll");
    const std::string hosts = host->Call([&] {
        const HWND field = CreateWindowExW(0, L"Edit", L"", WS_CHILD, 0, 0, 50, 20,
                                           host->MainWindow().Handle(), nullptr, nullptr, nullptr);
        std::string library = LibraryOf(field);
        DestroyWindow(field);
        return library;
    });
    EXPECT_EQ(hosts, "user32.dll");
}

TEST_F(GuestTest, FollowsTheResolutionOfItsMonitor) {
    const Window list = OpenRateList();
    const SIZE client = ClientSize(list);
    const int button = list.Control("cmdAction(0)").Width();
    TellResolution(list, 2 * StandardDpi);
    // Wine keeps the frame and the title bar of a process that is not aware.
    constexpr int SideFrames = 4;
    EXPECT_NEAR(ClientSize(list).cx, 2 * client.cx, IsWine() ? SideFrames : 1);
    EXPECT_GE(ClientSize(list).cy, 2 * client.cy - 1);
    EXPECT_NEAR(list.Control("cmdAction(0)").Width(), 2 * button, 1);
    TellResolution(list, StandardDpi);
    EXPECT_EQ(ClientSize(list).cx, client.cx);
    EXPECT_EQ(list.Control("cmdAction(0)").Width(), button);
}

TEST_F(GuestTest, AWindowWhoseMonitorHasGoneComesBack) {
    const Window list = OpenRateList();
    const RECT before = list.ScreenBounds();
    Move(list, 5000, 4000);
    TellDisplaysChanged(list);
    const RECT after = list.ScreenBounds();
    EXPECT_LE(after.right, GetSystemMetrics(SM_CXSCREEN));
    EXPECT_LE(after.bottom, GetSystemMetrics(SM_CYSCREEN));
    EXPECT_EQ(after.right - after.left, before.right - before.left);

    Move(list, -5000, -4000);
    TellDisplaysChanged(list);
    EXPECT_EQ(list.ScreenBounds().left, 0);
    EXPECT_EQ(list.ScreenBounds().top, 0);
}

TEST_F(GuestTest, AWindowInSightStaysWhereItIs) {
    const Window list = OpenRateList();
    Move(list, 37, 41);
    TellDisplaysChanged(list);
    EXPECT_EQ(list.ScreenBounds().left, 37);
    EXPECT_EQ(list.ScreenBounds().top, 41);
}

TEST_F(GuestTest, MessagesStandAboveTheTopmostWindows) {
    const Window list = OpenRateList();
    Click(list.Control("cmdAction(2)"));
    const ShownMessage question = ShownMessage::Await();
    EXPECT_TRUE(question.IsInFront());
    question.Press(IDNO);
}

}  // namespace
}  // namespace tavrin::e2e
