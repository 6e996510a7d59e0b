// What a viewer of debug output, or a debugger, reads of a session.

#include "e2e/driver/clipboard.h"
#include "e2e/driver/component.h"
#include "e2e/driver/debug_output.h"
#include "e2e/driver/shown_message.h"
#include "e2e/host_test.h"
#include "win32/base/debug_output.h"
#include "win32/base/module_path.h"

namespace tavrin::e2e {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::Each;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

class DiagnosisTest : public HostTest {
  protected:
    Window OpenAgenda() {
        Click(OpenPalette().Control("cmdAction(1)"));
        const Window window = AwaitForm("Agenda");
        Require("the address book's focus", [&] { return window.HasFocus(); });
        host->Ui().Settle();
        return window;
    }
};

TEST_F(DiagnosisTest, AViewerReadsCallWindowsAndStatements) {
    const DebugViewer viewer;
    OpenRateList();
    CloseEverything();
    host->Ui().Settle();
    const std::vector<std::string> lines = viewer.Lines();
    ASSERT_THAT(lines, SizeIs(testing::Ge(6U)));
    EXPECT_EQ(lines[0], "Tavrin: Apel with date 2003-06-16, year 2003, company 2, a connection");
    EXPECT_EQ(lines[1], "Tavrin: window Utilitati opened");
    EXPECT_EQ(lines[2], "Tavrin: window CursValutar opened");
    EXPECT_THAT(lines, Contains(AllOf(StartsWith("Tavrin: statement, "), HasSubstr(" ms, 11 rows: SELECT "),
                                      HasSubstr("between  '2003-06-01' and '2003-06-16'"))));
    EXPECT_THAT(lines, Contains("Tavrin: window CursValutar closed"));
    EXPECT_THAT(lines, Contains("Tavrin: window Utilitati closed"));
}

TEST_F(DiagnosisTest, NoTextOfAPersonLeavesTheComponent) {
    host->Run("DELETE FROM Agenda");
    host->Run(
        "INSERT INTO Agenda VALUES ('Popa', 'Ion', 'Str. Lunga 1', '', '', '', '', '', '', '', '', '', "
        "'', '', '', '')");
    const DebugViewer viewer;
    const Window window = OpenAgenda();
    Click(window.Control("cmdAction(2)"));
    ASSERT_TRUE(AwaitFocus("TextBoxes(2)"));
    TypeText("Marinica");
    Click(window.Control("TextBoxes(3)"));
    ASSERT_TRUE(AwaitFocus("TextBoxes(3)"));
    host->Call([&] { PutOnClipboard("x' Ghilimea 'y"); });
    PressKey('V', {VK_CONTROL});
    host->Ui().Settle();
    Click(window.Control("cmdAction(0)"));
    const ShownMessage report = ShownMessage::Await();
    EXPECT_THAT(report.Prompt(), EndsWith("\n\nFereastra: Agenda\nActiunea: Accepta (clic)"));
    report.Press(IDOK);
    host->Ui().Settle();
    const std::vector<std::string> lines = viewer.Lines();
    ASSERT_THAT(lines, Not(IsEmpty()));
    EXPECT_THAT(lines, Contains(AllOf(HasSubstr("failed with -2147217900"), EndsWith("VALUES ( '...')"))));
    EXPECT_EQ(lines.back(), "Tavrin: error -2147217900 in Agenda.cmdAction(0)_Click");
    for (const char* text : {"Popa", "Ion", "Lunga", "Marinica", "Ghilimea"})
        EXPECT_THAT(lines, Each(Not(HasSubstr(text)))) << text;
}

TEST_F(DiagnosisTest, ADeletionTellsHowManyRowsWent) {
    const DebugViewer viewer;
    const Window list = OpenRateList();
    Click(list.Control("cmdAction(2)"));
    ShownMessage::Await().Press(IDYES);
    host->Ui().Settle();
    EXPECT_THAT(viewer.LineWith("DELETE"), HasSubstr(" ms, 1 rows: DELETE FROM [Curs Valutar] "));
}

TEST_F(DiagnosisTest, AViewerThatComesLaterIsHeardOfWithTheNextCall) {
    OpenPalette();
    const DebugViewer viewer;
    Click(AwaitForm("Utilitati").Control("cmdAction(3)"));
    AwaitForm("CursValutar");
    host->Ui().Settle();
    EXPECT_THAT(viewer.Lines(), IsEmpty());
    ASSERT_EQ(host->Apel(), S_OK);
    EXPECT_THAT(viewer.Lines(), testing::ElementsAre(StartsWith("Tavrin: Apel with ")));
}

TEST_F(DiagnosisTest, AViewerThatGoesLeavesAWorkingComponent) {
    {
        const DebugViewer viewer;
        OpenPalette();
    }
    Click(AwaitForm("Utilitati").Control("cmdAction(3)"));
    AwaitForm("CursValutar");
    EXPECT_EQ(win32::FindDebugListener(), nullptr);
    ASSERT_EQ(host->Apel(), S_OK);
}

TEST(Debugger, ReadsASessionOfTheProcessThatItIsAt) {
    const std::vector<std::string> lines = DebugOutputOf(L"\"" + win32::ModulePath(nullptr) + L"\" --dll \"" +
                                                         Component::Path() + L"\" --leave return");
    ASSERT_THAT(lines, Not(IsEmpty()));
    EXPECT_THAT(lines[0], StartsWith("Tavrin: Apel with "));
    for (const char* window : {"Utilitati", "Notes", "Agenda", "frmCalculator", "CursValutar"})
        EXPECT_THAT(lines, Contains("Tavrin: window " + std::string(window) + " opened"));
}

}  // namespace
}  // namespace tavrin::e2e
