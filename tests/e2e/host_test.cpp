#include "e2e/host_test.h"

#include "e2e/driver/component.h"
#include "e2e/driver/shown_message.h"

namespace tavrin::e2e {

namespace {

/// Registers the component for the whole run.
class Registration : public testing::Environment {
  public:
    void SetUp() override { ASSERT_EQ(Component().RegisterAsAllowed(), S_OK); }
    void TearDown() override { EXPECT_EQ(Component().UnregisterAsAllowed(), S_OK); }
};

// Owned by GoogleTest.
[[maybe_unused]] const auto* const registration = testing::AddGlobalTestEnvironment(new Registration);

bool NothingIsOpen() {
    if (const auto message = ShownMessage::Find()) {
        message->Dismiss();
        return false;
    }
    const std::vector<Window> forms = OpenForms();
    if (!forms.empty()) PostMessageW(forms.front().Handle(), WM_CLOSE, 0, 0);
    return forms.empty();
}

}  // namespace

POINT PointerAtRest() {
    constexpr LONG AboveTheEdge = 124;
    RECT area{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    return {area.right / 2, area.bottom - AboveTheEdge};
}

HostTest::HostTest(LoopKind loop, HostData data) {
    MovePointer(PointerAtRest());
    host = std::make_unique<Host>(loop, data);
}

void HostTest::TearDown() {
    CloseEverything();
    if (!host) return;
    host->Release();
    host->Call([] { CoFreeUnusedLibrariesEx(0, 0); });
    EXPECT_FALSE(Component::IsLoaded()) << "something still keeps the component loaded";
    EXPECT_EQ(host->ReferencesToConnection(), 0);
    EXPECT_EQ(Database::AliveObjects(), 0) << "recordsets or fields were kept";
    host.reset();
}

void HostTest::CloseEverything() {
    EXPECT_TRUE(WaitUntil(NothingIsOpen)) << "a window does not close";
}

Window HostTest::OpenPalette(const HostValues& values) {
    return AwaitPalette(host->Apel(values));
}

Window HostTest::AwaitPalette(HRESULT result) {
    if (result != S_OK) throw DriverError("Apel failed with " + std::to_string(result));
    const Window palette = AwaitForm("Utilitati");
    Require("the focus on the calculator's button", [] { return FocusedName() == "cmdAction(2)"; });
    host->Ui().Settle();
    return palette;
}

Window HostTest::OpenRateList(const HostValues& values) {
    Click(OpenPalette(values).Control("cmdAction(3)"));
    const Window list = AwaitForm("CursValutar");
    Require("the rate list's focus", [&] { return list.HasFocus(); });
    host->Ui().Settle();
    return list;
}

void HostTest::ExpectMessage(const std::string& prompt, MessageIcon icon, const std::string& title,
                             const std::vector<int>& buttons, int answer) {
    const ShownMessage message = ShownMessage::Await();
    EXPECT_EQ(message.Prompt(), prompt);
    EXPECT_EQ(message.Title(), title);
    EXPECT_EQ(message.Icon(), icon);
    EXPECT_EQ(message.Buttons(), buttons);
    EXPECT_TRUE(message.ComesToFront());
    message.Press(answer);
}

void HostTest::ActivateHostWindow() {
    Click(host->MainWindow());
    Require("the host's window in front",
            [&] { return GetForegroundWindow() == host->MainWindow().Handle(); });
}

}  // namespace tavrin::e2e
