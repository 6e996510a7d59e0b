// The event Iesire: who hears it, how often, and what a listener may do while it hears it.

#include <windows.h>

#include <olectl.h>

#include "e2e/driver/component.h"
#include "e2e/host_test.h"

namespace tavrin::e2e {
namespace {

using win32::ComPtr;

class EventTest : public HostTest {
  protected:
    ComPtr<EventSink> AdviseAnother() {
        return host->Call([&] {
            auto sink = win32::MakeObject<EventSink>();
            cookie = host->Advise(sink);
            return sink;
        });
    }

    /// Closes the palette as a user does and waits for the first listener.
    void ClosePalette() {
        PressKey(VK_ESCAPE);
        EXPECT_TRUE(AwaitClosed("Utilitati"));
        host->Ui().Settle();
    }

    DWORD cookie = 0;
};

TEST_F(EventTest, ComesOnceForEachCloseOfThePalette) {
    OpenPalette();
    EXPECT_EQ(host->Iesire(), 0);
    ClosePalette();
    EXPECT_EQ(host->Iesire(), 1);
    OpenPalette();
    ClosePalette();
    EXPECT_EQ(host->Iesire(), 2);
}

TEST_F(EventTest, ReachesEveryListener) {
    const ComPtr<EventSink> second = AdviseAnother();
    OpenPalette();
    ClosePalette();
    EXPECT_EQ(host->Iesire(), 1);
    EXPECT_EQ(second->Iesire(), 1);
}

TEST_F(EventTest, AFailingListenerDoesNotStopTheOthers) {
    host->Sink()->onIesire = [] { return E_FAIL; };
    const ComPtr<EventSink> second = AdviseAnother();
    OpenPalette();
    ClosePalette();
    EXPECT_EQ(host->Iesire(), 1);
    EXPECT_EQ(second->Iesire(), 1);
}

TEST_F(EventTest, AListenerThatHasLeftHearsNothing) {
    const ComPtr<EventSink> second = AdviseAnother();
    OpenPalette();
    EXPECT_EQ(host->Unadvise(cookie), S_OK);
    EXPECT_EQ(host->Unadvise(cookie), CONNECT_E_NOCONNECTION);
    ClosePalette();
    EXPECT_EQ(host->Iesire(), 1);
    EXPECT_EQ(second->Iesire(), 0);
}

TEST_F(EventTest, AListenerMayLeaveDuringTheEvent) {
    const ComPtr<EventSink> second = AdviseAnother();
    HRESULT left = E_UNEXPECTED;
    second->onIesire = [&] { return left = host->Unadvise(cookie); };
    const ComPtr<EventSink> third = AdviseAnother();
    const DWORD thirdCookie = cookie;
    cookie = thirdCookie - 1;
    OpenPalette();
    ClosePalette();
    EXPECT_EQ(left, S_OK);
    EXPECT_EQ(second->Iesire(), 1);
    EXPECT_EQ(third->Iesire(), 1) << "the next one hears it all the same";
    OpenPalette();
    ClosePalette();
    EXPECT_EQ(second->Iesire(), 1);
    EXPECT_EQ(third->Iesire(), 2);
    host->Unadvise(thirdCookie);
}

TEST_F(EventTest, AListenerMayMakeALaterOneLeave) {
    const ComPtr<EventSink> second = AdviseAnother();
    host->Sink()->onIesire = [&] { return host->Unadvise(cookie); };
    OpenPalette();
    ClosePalette();
    EXPECT_EQ(second->Iesire(), 0);
}

TEST_F(EventTest, AListenerMayLetGoOfTheObjectDuringTheEvent) {
    host->Sink()->onIesire = [&] {
        host->Release();
        return S_OK;
    };
    OpenPalette();
    ClosePalette();
    EXPECT_EQ(host->Iesire(), 1);
    EXPECT_FALSE(host->Object());
}

TEST_F(EventTest, AListenerMayLetGoOfEverythingDuringTheEvent) {
    host->Sink()->onIesire = [&] {
        host->Release();
        CoFreeUnusedLibrariesEx(0, 0);
        EXPECT_TRUE(Component::IsLoaded()) << "its own code is still under way";
        return S_OK;
    };
    OpenPalette();
    ClosePalette();
    EXPECT_EQ(host->Iesire(), 1);
    host->Call([] { CoFreeUnusedLibrariesEx(0, 0); });
    EXPECT_FALSE(Component::IsLoaded());
    EXPECT_EQ(host->ReferencesToConnection(), 0);
}

TEST_F(EventTest, ReachesTheListenersOfTheObjectThatCalledLast) {
    ComPtr<_Utile> first = host->Object();
    const ComPtr<EventSink> firstSink = AdviseAnother();
    host->CreateObject();  // and the host's own listener now hears the second one
    IDispatch* connection = &host->Data().Connection();
    EXPECT_EQ(host->Call([&] { return first->Apel(&connection, OleDay({}), 2003, 2); }), S_OK);
    OpenPalette();
    ClosePalette();
    EXPECT_EQ(firstSink->Iesire(), 0);
    EXPECT_EQ(host->Iesire(), 1);

    host->Call([&] { return first->Apel(&connection, OleDay({}), 2003, 2); });
    ASSERT_TRUE(AwaitFocus("cmdAction(2)"));
    ClosePalette();
    EXPECT_EQ(firstSink->Iesire(), 1);
    host->Call([&] { first.Reset(); });
}

TEST_F(EventTest, AListenerMayOpenThePaletteAgainDuringTheEvent) {
    host->Sink()->onIesire = [&, first = true]() mutable {
        return std::exchange(first, false) ? host->Apel() : S_OK;
    };
    OpenPalette();
    PressKey(VK_ESCAPE);
    ASSERT_TRUE(WaitUntil([&] { return host->Iesire() == 1; }));
    host->Ui().Settle();
    AwaitForm("Utilitati");
    EXPECT_TRUE(AwaitFocus("cmdAction(2)"));
}

TEST_F(EventTest, ComesToListenersOfAnObjectThatTheHostHasReleased) {
    // The windows keep the calling object's listeners; a host may forget the object itself.
    OpenPalette();
    const ComPtr<EventSink> second = AdviseAnother();
    host->Call([&] {
        // All but the listening is let go.
        host->Release();
    });
    ClosePalette();
    EXPECT_EQ(host->Iesire(), 0) << "the host had left";
    EXPECT_EQ(second->Iesire(), 1);
}

TEST_F(EventTest, ComesWhenTheRateListClosesToo) {
    OpenRateList();
    PressKey(VK_ESCAPE);
    ASSERT_TRUE(AwaitClosed("CursValutar"));
    host->Ui().Settle();
    EXPECT_EQ(host->Iesire(), 1);
    EXPECT_TRUE(FindForm("Utilitati"));
}

TEST_F(EventTest, ComesFromBothWindowsWhenThePaletteTakesTheListAlong) {
    OpenRateList();
    Click(AwaitForm("Utilitati").Control("imgClose"));
    ASSERT_TRUE(AwaitClosed("CursValutar"));
    ASSERT_TRUE(AwaitClosed("Utilitati"));
    host->Ui().Settle();
    EXPECT_EQ(host->Iesire(), 2);
}

}  // namespace
}  // namespace tavrin::e2e
