// How often a window that opens paints and erases itself and its controls.

#include <map>

#include "e2e/host_test.h"

namespace tavrin::e2e {
namespace {

/// The messages that a thread's windows get, by window. One at a time.
class MessageCount {
  public:
    struct Counts {
        int paints = 0;
        int erases = 0;
    };

    /// \pre on the thread that is counted
    MessageCount() {
        AllCounts().clear();
        taken_ = SetWindowsHookExW(WH_GETMESSAGE, SeeTaken, nullptr, GetCurrentThreadId());
        sent_ = SetWindowsHookExW(WH_CALLWNDPROC, SeeSent, nullptr, GetCurrentThreadId());
    }
    ~MessageCount() {
        UnhookWindowsHookEx(taken_);
        UnhookWindowsHookEx(sent_);
    }
    MessageCount(const MessageCount&) = delete;
    MessageCount& operator=(const MessageCount&) = delete;

    static Counts Of(HWND window) { return AllCounts()[window]; }

  private:
    static std::map<HWND, Counts>& AllCounts() {
        static std::map<HWND, Counts> byWindow;
        return byWindow;
    }
    static void See(HWND window, UINT message) {
        if (message == WM_PAINT) ++AllCounts()[window].paints;
        if (message == WM_ERASEBKGND) ++AllCounts()[window].erases;
    }
    static LRESULT CALLBACK SeeTaken(int code, WPARAM wParam, LPARAM lParam) {
        const MSG& message = *reinterpret_cast<const MSG*>(lParam);
        if (code == HC_ACTION && wParam == PM_REMOVE) See(message.hwnd, message.message);
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }
    static LRESULT CALLBACK SeeSent(int code, WPARAM wParam, LPARAM lParam) {
        const auto& message = *reinterpret_cast<const CWPSTRUCT*>(lParam);
        if (code == HC_ACTION) See(message.hwnd, message.message);
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }

    HHOOK taken_;
    HHOOK sent_;
};

struct Opening {
    const char* window;
    const char* opener;
    const char* control;
};

constexpr Opening Openings[] = {
    {"Notes", "Utilitati", "cmdAction(0)"},         {"Agenda", "Utilitati", "cmdAction(1)"},
    {"frmCalculator", "Utilitati", "cmdAction(2)"}, {"AlegeMoneda", "frmCalculator", "cmdVal"},
    {"CursValutar", "Utilitati", "cmdAction(3)"},   {"CursValutarDetaliu", "CursValutar", "cmdAction(0)"},
    {"CereMoneda", "CursValutar", "cmdAction(3)"},  {"EvolutieCurs", "CursValutar", "cmdAction(5)"}};

class PaintingTest : public HostTest {
  protected:
    /// With messages, which no movement of the mouse disturbs.
    void Press(const Window& button) {
        const LPARAM middle = MAKELPARAM(button.Width() / 2, button.Height() / 2);
        PostMessageW(button.Handle(), WM_LBUTTONDOWN, MK_LBUTTON, middle);
        PostMessageW(button.Handle(), WM_LBUTTONUP, 0, middle);
    }

    Window Open(const Opening& opening) {
        Press(AwaitForm(opening.opener).Control(opening.control));
        const Window window = AwaitForm(opening.window);
        host->Ui().Settle();
        return window;
    }

    void ExpectOneOfEach(const Opening& opening) {
        const auto count = host->Call([] { return std::make_unique<MessageCount>(); });
        const Window window = Open(opening);
        std::vector<Window> painted = window.Controls();
        painted.push_back(window);
        for (const Window& control : painted) {
            const auto counts = host->Call([&] { return MessageCount::Of(control.Handle()); });
            if (!control.IsVisible()) continue;
            EXPECT_EQ(counts.paints, 1) << opening.window << ", " << control.Name();
            // The platform's own fields erase themselves once more when they take the focus. What others
            // cover is not erased at all.
            EXPECT_LE(counts.erases, control.HasFocus() ? 2 : 1) << opening.window << ", " << control.Name();
        }
        PostMessageW(window.Handle(), WM_CLOSE, 0, 0);
        ASSERT_TRUE(AwaitClosed(opening.window));
    }
};

TEST_F(PaintingTest, AWindowThatOpensIsPaintedAndErasedOnce) {
    OpenPalette();
    for (const Opening& opening : Openings) {
        if (!FindForm(opening.opener)) Open({opening.opener, "Utilitati", "cmdAction(3)"});
        ExpectOneOfEach(opening);
        if (std::string(opening.window) == "frmCalculator" || std::string(opening.window) == "CursValutar")
            Open(opening);
    }
}

}  // namespace
}  // namespace tavrin::e2e
