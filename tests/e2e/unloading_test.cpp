// When the component may be unloaded, and that it leaves nothing behind when it is.

#include "e2e/driver/accessible_reader.h"
#include "e2e/driver/component.h"
#include "e2e/driver/resource_count.h"
#include "e2e/host_test.h"

namespace tavrin::e2e {
namespace {

using win32::ComPtr;

class UnloadingTest : public HostTest {
  protected:
    HRESULT CanUnload() {
        // Loaded once more for the question alone.
        return host->Call([] { return Component().CanUnloadNow(); });
    }

    void CloseByEscape() {
        PressKey(VK_ESCAPE);
        ASSERT_TRUE(AwaitClosed("Utilitati"));
        host->Ui().Settle();
    }
};

TEST_F(UnloadingTest, AHeldObjectKeepsItLoaded) {
    EXPECT_EQ(CanUnload(), S_FALSE);
    host->Release();
    EXPECT_EQ(CanUnload(), S_OK);
}

TEST_F(UnloadingTest, AnOpenWindowKeepsItLoadedAfterTheObjectIsReleased) {
    OpenPalette();
    host->Release();
    EXPECT_EQ(CanUnload(), S_FALSE);
    host->Call([] { CoFreeUnusedLibrariesEx(0, 0); });
    EXPECT_TRUE(Component::IsLoaded());
    CloseByEscape();
    EXPECT_EQ(CanUnload(), S_OK);
}

TEST_F(UnloadingTest, TheAnswerLetsGoOfTheConnection) {
    OpenPalette();
    CloseByEscape();
    EXPECT_GT(host->ReferencesToConnection(), 0) << "it stays for the next window";
    host->Release();
    EXPECT_EQ(CanUnload(), S_OK);
    EXPECT_EQ(host->ReferencesToConnection(), 0);
}

TEST_F(UnloadingTest, AListenerAloneDoesNotKeepItLoaded) {
    const auto second = host->Call([] { return win32::MakeObject<EventSink>(); });
    host->Advise(second);
    OpenPalette();
    host->Release();
    CloseByEscape();
    EXPECT_EQ(second->Iesire(), 1);
    EXPECT_EQ(CanUnload(), S_OK);
    EXPECT_EQ(host->Call([&] { return second->AddRef(), second->Release(); }), 1U)
        << "the listener was let go";
}

TEST_F(UnloadingTest, AnAccessibleObjectHeldOutsideKeepsItLoadedAndOutlivesItsWindow) {
    const Window palette = OpenPalette();
    ComPtr<IAccessible> outside = host->Call([&] { return OpenAccessible(palette.Control("cmdAction(0)")); });
    CloseByEscape();
    host->Release();
    EXPECT_EQ(CanUnload(), S_FALSE);
    host->Call([&] {
        LONG count = 0;
        EXPECT_EQ(outside->get_accChildCount(&count), CO_E_OBJNOTCONNECTED);
        outside.Reset();
    });
    EXPECT_EQ(CanUnload(), S_OK);
}

TEST_F(UnloadingTest, CanBeLoadedAgain) {
    for (int i = 0; i < 3; ++i) {
        OpenPalette();
        CloseByEscape();
        host->Release();
        host->Call([] { CoFreeUnusedLibrariesEx(0, 0); });
        EXPECT_FALSE(Component::IsLoaded());
        host->CreateObject();
        EXPECT_TRUE(Component::IsLoaded());
    }
}

/// Loads the DLL by hand, uses it as a host does, and frees it again, over and over.
class CycleTest : public HostTest {
  protected:
    void SetUp() override {
        host->Release();
        host->Call([] { CoFreeUnusedLibrariesEx(0, 0); });
        ASSERT_FALSE(Component::IsLoaded());
    }

    void RunCycle() {
        {
            Component component;
            host->CreateObjectFrom(component);
            Click(OpenPalette().Control("cmdAction(3)"));
            AwaitForm("CursValutar");
            ASSERT_TRUE(AwaitFocus("Grid"));
            PressKey(VK_ESCAPE);
            ASSERT_TRUE(AwaitClosed("CursValutar"));
            Click(AwaitForm("Utilitati").Control("imgClose"));
            ASSERT_TRUE(AwaitClosed("Utilitati"));
            host->Ui().Settle();
            host->Release();
            ASSERT_EQ(host->Call([&] { return component.CanUnloadNow(); }), S_OK);
        }
        ASSERT_FALSE(Component::IsLoaded());
        ASSERT_EQ(host->ReferencesToConnection(), 0);
    }
};

TEST_F(CycleTest, AHundredCyclesLeaveNothingBehind) {
    constexpr int WarmUp = 5;  // what the system loads on first use stays
    constexpr int Cycles = 100;
    // The runtime library of the component allocates a little for its exceptions that it never frees.
    constexpr auto KeptByRuntime = std::size_t{96} * 1024;
    for (int i = 0; i < WarmUp; ++i)
        ASSERT_NO_FATAL_FAILURE(RunCycle());
    const ResourceCount before = ResourceCount::Take();
    const std::size_t heapBefore = HeapBytes();
    const std::size_t privateBefore = PrivateBytes();
    const int eventsBefore = host->Iesire();
    for (int i = 0; i < Cycles; ++i)
        ASSERT_NO_FATAL_FAILURE(RunCycle()) << "in cycle " << i;

    EXPECT_EQ(ResourceCount::Take(), before);
    EXPECT_EQ(KillThreadTimers(host->Ui()), 0);
    EXPECT_EQ(host->Iesire() - eventsBefore, 2 * Cycles) << "once from each window";
    const std::size_t heapAfter = HeapBytes();
    EXPECT_LE(heapAfter, heapBefore + Cycles * KeptByRuntime);
    std::printf("In %d cycles: heap %zu to %zu bytes, private %zu to %zu bytes\n", Cycles, heapBefore,
                heapAfter, privateBefore, PrivateBytes());
}

}  // namespace
}  // namespace tavrin::e2e
