// The pointer while a statement takes its time.

#include <windows.h>

#include <atomic>

#include "e2e/host_test.h"
#include "host/ado/connection_object.h"

namespace tavrin::e2e {
namespace {

constexpr ULONGLONG Delay = 250;  // milliseconds until the pointer changes

bool IsPointer(LPCWSTR name) {
    CURSORINFO pointer{};
    pointer.cbSize = sizeof pointer;
    return GetCursorInfo(&pointer) != FALSE && pointer.hCursor == LoadCursorW(nullptr, name);
}

class WaitPointerTest : public HostTest {
  protected:
    void SetUp() override {
        list = OpenRateList();
        ASSERT_TRUE(AwaitFocus("Grid"));
        host->Call([this] {
            host->Data().Connection().SharedSession()->beforeStatement = [this](const std::string&) {
                if (holds) begun = GetTickCount64();
                while (holds)
                    Sleep(1);
            };
        });
    }
    void TearDown() override {
        holds = false;
        HostTest::TearDown();
    }

    Window list;
    std::atomic<bool> holds = false;  ///< each statement keeps the host's thread meanwhile
    std::atomic<ULONGLONG> begun = 0;
};

TEST_F(WaitPointerTest, AppearsAfterAQuarterOfASecondAndGoesWithTheStatement) {
    const Window modify = list.Control("cmdAction(1)");
    holds = true;
    Click(modify);
    Require("the pointer to say wait", [] { return IsPointer(IDC_WAIT); });
    EXPECT_GE(GetTickCount64() - begun, Delay - 20) << "not at once: nothing flickers";
    holds = false;
    AwaitForm("CursValutarDetaliu");
    Require("the pointer to be an arrow again", [] { return IsPointer(IDC_ARROW); });
}

TEST_F(WaitPointerTest, WhatWasToBePaintedIsPaintedBeforeTheThreadIsGone) {
    const Window modify = list.Control("cmdAction(1)");
    const Window grid = list.Control("Grid");
    host->Call([&] {
        RedrawWindow(list.Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
        holds = true;
        PostMessageW(modify.Handle(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
        PostMessageW(modify.Handle(), WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    });
    Require("the statement to begin", [&] { return begun != 0; });
    for (const Window& each : {list, grid, modify})
        EXPECT_EQ(GetUpdateRect(each.Handle(), nullptr, FALSE), FALSE) << each.Name();
}

}  // namespace
}  // namespace tavrin::e2e
