// The driver itself, tried on windows of this program: what it would overlook, no test below could find.

#include <gmock/gmock.h>

#include <future>

#include "e2e/driver/accessible_reader.h"
#include "e2e/driver/input.h"
#include "e2e/driver/platform.h"
#include "e2e/driver/resource_count.h"
#include "e2e/driver/screen.h"
#include "e2e/driver/shown_message.h"
#include "e2e/driver/ui_thread.h"
#include "e2e/driver/wait.h"
#include "win32/base/text.h"
#include "win32/window/name_property.h"

namespace tavrin::e2e {
namespace {

using testing::ElementsAre;

/// A window with an edit field, each with its name.
class NamedWindow {
  public:
    NamedWindow() {
        window_ = CreateWindowExW(WS_EX_TOPMOST, L"STATIC", L"Sample", WS_POPUP | WS_VISIBLE, 300, 300, 200,
                                  100, nullptr, nullptr, nullptr, nullptr);
        edit_ = CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 10, 10, 100, 24, window_, nullptr,
                                nullptr, nullptr);
        windowName_.emplace(window_, "Sample");
        editName_.emplace(edit_, "txtField(1)");
        SetForegroundWindow(window_);
    }
    ~NamedWindow() {
        windowName_.reset();
        editName_.reset();
        DestroyWindow(window_);
    }

  private:
    HWND window_;
    HWND edit_;
    std::optional<win32::NameProperty> windowName_;
    std::optional<win32::NameProperty> editName_;
};

HWND CreateHiddenWindow() {
    return CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
}

class DriverTest : public testing::Test {
  protected:
    void Open() {
        thread.Call([&] { sample.emplace(); });
        AwaitForm("Sample");
        thread.Settle();
    }
    void TearDown() override {
        thread.Call([&] { sample.reset(); });
    }

    UiThread thread;
    std::optional<NamedWindow> sample;
};

TEST_F(DriverTest, FindsWindowsAndControlsByName) {
    Open();
    const Window form = AwaitForm("Sample");
    EXPECT_EQ(form.Text(), "Sample");
    EXPECT_TRUE(form.IsTopmost());
    EXPECT_EQ(form.Control("txtField(1)").ClassName(), "Edit");
    EXPECT_FALSE(form.FindControl("txtField"));
    EXPECT_THROW(form.Control("txtField"), DriverError);
    EXPECT_FALSE(FindForm("Other"));
}

TEST_F(DriverTest, ClicksAndTypes) {
    Open();
    const Window edit = AwaitForm("Sample").Control("txtField(1)");
    Click(edit);
    ASSERT_TRUE(AwaitFocus("txtField(1)"));
    TypeText("Ab 1");
    PressKey(VK_HOME);
    PressKey(VK_DELETE);
    EXPECT_TRUE(WaitUntil([&] { return edit.Text() == "b 1"; })) << edit.Text();
}

TEST_F(DriverTest, AClickOnACoveredWindowIsRefused) {
    Open();
    const Window form = AwaitForm("Sample");
    const HWND cover = thread.Call([&] {
        const HWND window =
            CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
        // A form that lost the focus to it would come to the front again.
        SetWindowPos(window, HWND_TOPMOST, 0, 0, 800, 800, SWP_NOACTIVATE | SWP_SHOWWINDOW);
        return window;
    });
    EXPECT_THROW(Click(form.Control("txtField(1)")), DriverError);
    thread.Call([&] { DestroyWindow(cover); });
}

TEST_F(DriverTest, SettlingWaitsForAllInput) {
    Open();
    const Window edit = AwaitForm("Sample").Control("txtField(1)");
    Click(edit);
    TypeText("1234567890");
    thread.Settle();
    EXPECT_EQ(edit.Text(), "1234567890");
}

TEST_F(DriverTest, SeesColorsOnTheScreen) {
    Open();
    const Window form = AwaitForm("Sample");
    EXPECT_FALSE(ShowsColor(form, RGB(1, 200, 3)));
    thread.Settle();
    thread.Call([&] {
        HDC dc = GetDC(form.Handle());
        SetPixel(dc, 190, 90, RGB(1, 200, 3));
        ReleaseDC(form.Handle(), dc);
    });
    EXPECT_TRUE(WaitUntil([&] { return ShowsColor(form, RGB(1, 200, 3)); }));
}

TEST_F(DriverTest, PicturesOfTestsLieInFilesOfTheirOwn) {
    for (const std::string name : {"Sample/One.Test/0", "Sample/One.Test/1"}) {
        const std::string place = SaveScreenshot(name);
        const std::wstring file = win32::ToWide((place.starts_with('/') ? "Z:" : "") + place);
        EXPECT_THAT(place, testing::EndsWith("Sample-One.Test-" + name.substr(name.size() - 1) + ".png"));
        EXPECT_TRUE(DeleteFileW(file.c_str())) << place;
    }
}

TEST_F(DriverTest, ReadsAccessibleFacts) {
    Open();
    const Window edit = AwaitForm("Sample").Control("txtField(1)");
    Click(edit);
    TypeText("42");
    ASSERT_TRUE(WaitUntil([&] { return edit.Text() == "42"; }));
    EXPECT_EQ(ReadAccessible(thread, edit).value, "42");
}

TEST_F(DriverTest, ReadsAndAnswersMessages) {
    Open();
    EXPECT_FALSE(ShownMessage::Find());
    auto answer = std::async(std::launch::async, [&] {
        return thread.Call(
            [] { return MessageBoxW(nullptr, L"Continue?", L"Title", MB_YESNO | MB_ICONQUESTION); });
    });
    const ShownMessage message = ShownMessage::Await();
    EXPECT_EQ(message.Title(), "Title");
    EXPECT_EQ(message.Prompt(), "Continue?");
    EXPECT_EQ(message.Icon(), MessageIcon::Question);
    EXPECT_THAT(message.Buttons(), ElementsAre(IDYES, IDNO));
    EXPECT_FALSE(message.IsInFront()) << "a plain message stands beneath a topmost window";
    message.Press(IDNO);
    EXPECT_EQ(answer.get(), IDNO);
}

TEST_F(DriverTest, ASoleOkIsOneWhateverItsNumber) {
    Open();
    auto answer = std::async(std::launch::async, [&] {
        return thread.Call([] { return MessageBoxW(nullptr, L"So.", L"", MB_OK); });
    });
    const ShownMessage message = ShownMessage::Await();
    EXPECT_THAT(message.Buttons(), ElementsAre(IDOK));
    // As Windows numbers it. The system's answer to that is its own.
    const HWND ok = FindWindowExW(GetForegroundWindow(), nullptr, L"Button", nullptr);
    SetWindowLongPtrW(ok, GWLP_ID, IDCANCEL);
    EXPECT_THAT(message.Buttons(), ElementsAre(IDOK));
    message.Press(IDOK);
    answer.wait();
}

TEST_F(DriverTest, TypesWhatNoKeyGives) {
    Open();
    const Window edit = AwaitForm("Sample").Control("txtField(1)");
    Click(edit);
    ASSERT_TRUE(AwaitFocus("txtField(1)"));
    TypeText("a\xA7z");
    EXPECT_TRUE(WaitUntil([&] { return edit.Text() == "a\u00A7z"; })) << edit.Text();
}

TEST_F(DriverTest, CallsPassFailuresOn) {
    EXPECT_THROW(thread.Call([] { throw DriverError("inside"); }), DriverError);
    EXPECT_EQ(thread.Call([] { return 3; }), 3);
}

TEST_F(DriverTest, CountsEveryKindOfResource) {
    // A thread's first window brings one of the input method's along, and its last takes it away.
    const HWND first = CreateHiddenWindow();
    // The system keeps its own icon from here on.
    const HICON shared = LoadIconW(nullptr, IDI_ERROR);
    const ResourceCount before = ResourceCount::Take();
    EXPECT_EQ(ResourceCount::Take(), before) << "counting leaves something behind";

    const HPEN pen = CreatePen(PS_SOLID, 1, RGB(1, 2, 3));
    const HWND hidden = CreateHiddenWindow();
    const HMENU menu = CreatePopupMenu();
    const HICON icon = CopyIcon(shared);
    const ATOM atom = GlobalAddAtomW(L"Tavrin.DriverTest");
    const ResourceCount with = ResourceCount::Take();
    EXPECT_NE(with.gdiObjects, before.gdiObjects);
    EXPECT_EQ(with.windows, before.windows + 1);
    if (IsWine()) {
        EXPECT_EQ(with.menus.size(), before.menus.size() + 1);
        EXPECT_EQ(with.icons.size(), before.icons.size() + 1);
    } else {
        EXPECT_GE(with.gdiObjects.at("user objects"), before.gdiObjects.at("user objects") + 3);
    }
    EXPECT_EQ(with.globalAtoms.size(), before.globalAtoms.size() + 1);

    GlobalDeleteAtom(atom);
    DestroyIcon(icon);
    DestroyMenu(menu);
    DestroyWindow(hidden);
    DeleteObject(pen);
    EXPECT_EQ(ResourceCount::Take(), before);
    DestroyWindow(first);
}

TEST_F(DriverTest, MeasuresTheHeap) {
    const std::size_t before = HeapBytes();
    constexpr std::size_t Size = 12345;
    void* block = HeapAlloc(GetProcessHeap(), 0, Size);
    EXPECT_GE(HeapBytes(), before + Size);
    HeapFree(GetProcessHeap(), 0, block);
    EXPECT_LT(HeapBytes(), before + Size);
    EXPECT_GT(PrivateBytes(), before);
}

TEST_F(DriverTest, CountsTimersOfAThread) {
    EXPECT_EQ(KillThreadTimers(thread), 0);
    thread.Call([] { SetTimer(nullptr, 0, 60000, nullptr); });
    EXPECT_EQ(KillThreadTimers(thread), 1);
    EXPECT_EQ(KillThreadTimers(thread), 0);
}

}  // namespace
}  // namespace tavrin::e2e
