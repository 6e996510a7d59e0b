// When the component may be unloaded, and that it leaves nothing behind when it is.

#include "e2e/driver/accessible_reader.h"
#include "e2e/driver/component.h"
#include "e2e/driver/resource_count.h"
#include "e2e/driver/tour.h"
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

/// Loads the DLL by hand, opens every window, closes them, and frees it again, over and over.
class CycleTest : public HostTest {
  protected:
    void SetUp() override {
        host->Release();
        host->Call([] { CoFreeUnusedLibrariesEx(0, 0); });
        ASSERT_FALSE(Component::IsLoaded());
    }

    void Run(int cycles) {
        for (int i = 0; i < cycles; ++i)
            ASSERT_NO_THROW(LiveAndLeave(*host)) << "in cycle " << i;
    }
};

// A thousand of them are run by tests/e2e/proofs/unload_cycles.cpp.
TEST_F(CycleTest, ALifeWithEveryWindowLeavesNothingBehind) {
    constexpr int WarmUp = 3;  // what the system loads on first use stays
    constexpr int Cycles = 10;
    // What the C++ runtime keeps for exceptions is more than this in each cycle.
    constexpr std::size_t Tolerance = std::size_t{Cycles} * 4 * 1024;
    ASSERT_NO_FATAL_FAILURE(Run(WarmUp));
    const ResourceCount before = ResourceCount::Take();
    const std::set<std::string> modulesBefore = LoadedModules();
    const std::size_t heapBefore = HeapBytes();
    const int eventsBefore = host->Iesire();
    ASSERT_NO_FATAL_FAILURE(Run(Cycles));

    EXPECT_EQ(ResourceCount::Take(), before);
    EXPECT_EQ(KillThreadTimers(host->Ui()), 0);
    EXPECT_EQ(LoadedModules(), modulesBefore);
    EXPECT_EQ(host->Iesire() - eventsBefore, EventsOfTour * Cycles);
    EXPECT_LE(HeapBytes(), heapBefore + Tolerance);
}

}  // namespace
}  // namespace tavrin::e2e
