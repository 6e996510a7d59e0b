// What happens when the host's connection is none, is something else, or fails.

#include "data/error.h"
#include "e2e/driver/accessible_reader.h"
#include "e2e/driver/late_call.h"
#include "e2e/driver/shown_message.h"
#include "e2e/host_test.h"

namespace tavrin::e2e {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

constexpr const char* RatesTable =
    "CREATE TABLE [Curs Valutar] ([Data] datetime PRIMARY KEY, [EUR] float, [USD] float)";

class BadConnectionTest : public HostTest {
  protected:
    void ClickRateButton() { Click(AwaitForm("Utilitati").Control("cmdAction(3)")); }

    /// Waits for the report of an unexpected error and takes it away.
    static void ExpectReport(const testing::Matcher<std::string>& prompt) {
        const ShownMessage report = ShownMessage::Await();
        EXPECT_EQ(report.Title(), "Eroare");
        EXPECT_THAT(report.Prompt(), prompt);
        EXPECT_EQ(report.Icon(), MessageIcon::Error);
        EXPECT_TRUE(report.ComesToFront());
        report.Press(IDOK);
    }

    /// The palette answers as if nothing had happened.
    void ExpectPaletteAlive() {
        host->Ui().Settle();
        EXPECT_FALSE(ShownMessage::Find()) << "one error, one report";
        const Window palette = AwaitForm("Utilitati");
        Click(palette.Control("picCaption"));
        ASSERT_TRUE(AwaitFocus("cmdAction(0)"));
        PressKey(VK_UP);
        EXPECT_TRUE(AwaitFocus("cmdAction(3)"));
    }
};

TEST_F(BadConnectionTest, ANullConnectionFailsAtTheFirstQuery) {
    ASSERT_EQ(host->ApelWith(nullptr), S_OK);
    AwaitForm("Utilitati");
    ClickRateButton();
    ExpectReport(StartsWith("Eroare 91"));
    ExpectPaletteAlive();
}

TEST_F(BadConnectionTest, AForeignObjectFailsAtTheFirstQuery) {
    // Any object will do that is not a connection: here a listener.
    const auto foreign = host->Call([] { return win32::MakeObject<EventSink>(); });
    ASSERT_EQ(host->ApelWith(foreign.Get()), S_OK);
    AwaitForm("Utilitati");
    ClickRateButton();
    ExpectReport(StartsWith("Eroare "));
    ExpectPaletteAlive();
    EXPECT_EQ(foreign->Iesire(), 0);
}

TEST_F(BadConnectionTest, AGoodConnectionAfterABadOneWorks) {
    ASSERT_EQ(host->ApelWith(nullptr), S_OK);
    AwaitForm("Utilitati");
    ClickRateButton();
    ExpectReport(StartsWith("Eroare 91"));
    ASSERT_EQ(host->Apel(), S_OK);
    const Window list = AwaitForm("CursValutar");
    Click(list.Control("cmdRefresh"));
    EXPECT_TRUE(AwaitFocus("Grid"));
    EXPECT_GT(ReadTable(host->Ui(), list.Control("Grid")).size(), 1U);
}

TEST_F(BadConnectionTest, AMissingTableIsReportedAndTheNextActionWorks) {
    host->Run("DROP TABLE [Curs Valutar]");
    OpenPalette();
    ClickRateButton();
    ExpectReport(AllOf(HasSubstr("80040E37"), HasSubstr("Curs Valutar")));
    ExpectPaletteAlive();
}

TEST_F(BadConnectionTest, ATableThatGoesWhileTheListIsOpenLosesNothingInSight) {
    const Window list = OpenRateList();
    const TableTexts before = ReadTable(host->Ui(), list.Control("Grid"));
    host->Run("DROP TABLE [Curs Valutar]");
    Click(list.Control("cmdRefresh"));
    ExpectReport(HasSubstr("80040E37"));
    host->Ui().Settle();
    EXPECT_EQ(ReadTable(host->Ui(), list.Control("Grid")), before);

    host->Run(RatesTable);
    host->Run("INSERT INTO [Curs Valutar] VALUES ('06-10-2003', 37500, 32000)");
    Click(list.Control("cmdRefresh"));
    EXPECT_TRUE(AwaitFocus("Grid"));
    host->Ui().Settle();
    const TableTexts expected = {{"Data", "EUR", "USD"}, {"10/06/2003", "37500", "32000"}};
    EXPECT_EQ(ReadTable(host->Ui(), list.Control("Grid")), expected);
}

TEST_F(BadConnectionTest, AConnectionThatTheHostHasClosedIsReported) {
    const Window list = OpenRateList();
    host->Call([&] { CallByName(host->Data().Connection(), L"Close", {}); });
    Click(list.Control("cmdRefresh"));
    ExpectReport(StartsWith("Eroare "));
    host->Ui().Settle();
    Click(list.Control("cmdAction(6)"));
    EXPECT_TRUE(AwaitClosed("CursValutar"));
    ExpectPaletteAlive();
}

TEST_F(BadConnectionTest, AFailureInTheMiddleOfAnActionIsReportedOnce) {
    const Window list = OpenRateList();
    const TableTexts before = ReadTable(host->Ui(), list.Control("Grid"));
    host->Call([&] {
        host->Data().Connection().SharedSession()->beforeStatement = [](const std::string& statement) {
            if (statement.starts_with("DELETE")) throw data::Error(-2147467259, "The connection is broken");
        };
    });
    Click(list.Control("cmdAction(2)"));
    ShownMessage::Await().Press(IDYES);
    ExpectReport(AllOf(HasSubstr("80004005"), HasSubstr("The connection is broken")));
    host->Ui().Settle();
    EXPECT_EQ(ReadTable(host->Ui(), list.Control("Grid")), before);

    host->Call([&] { host->Data().Connection().SharedSession()->beforeStatement = nullptr; });
    Click(list.Control("cmdAction(2)"));
    ShownMessage::Await().Press(IDYES);
    host->Ui().Settle();
    EXPECT_EQ(ReadTable(host->Ui(), list.Control("Grid")).size(), before.size() - 1);
}

TEST_F(BadConnectionTest, ATableWithoutCurrenciesShowsTheDaysAlone) {
    host->Run("DROP TABLE [Curs Valutar]");
    host->Run("CREATE TABLE [Curs Valutar] ([Data] datetime PRIMARY KEY, [Validat] int)");
    host->Run("INSERT INTO [Curs Valutar] VALUES ('06-10-2003', 0)");
    const Window list = OpenRateList();
    const TableTexts expected = {{"Data"}, {"10/06/2003"}};
    EXPECT_EQ(ReadTable(host->Ui(), list.Control("Grid")), expected);
}

TEST_F(BadConnectionTest, AnEmptyTableShowsNoGrid) {
    host->Run("DELETE FROM [Curs Valutar]");
    const Window list = OpenRateList();
    EXPECT_FALSE(list.Control("fraGrid").IsVisible());
}

TEST_F(BadConnectionTest, AnUnknownCompanyIsReportedWhenADayIsToBeDeleted) {
    const Window list = OpenRateList({2003, 6, 16, 4711});
    Click(list.Control("cmdAction(2)"));
    ExpectReport(StartsWith("Eroare 3021"));
    host->Ui().Settle();
    EXPECT_TRUE(FindForm("CursValutar"));
}

TEST_F(BadConnectionTest, AbsurdDatesAreClamped) {
    HostValues absurd;
    absurd.year = 9000;
    absurd.month = 1;
    absurd.day = 1;
    const Window list = OpenRateList(absurd);
    EXPECT_FALSE(list.Control("fraGrid").IsVisible());
    CloseEverything();
    const HRESULT result = host->Call([&] {
        IDispatch* connection = &host->Data().Connection();
        return host->Object()->Apel(&connection, 1e300, 2003, 2);
    });
    EXPECT_EQ(result, S_OK);
    ClickRateButton();
    host->Ui().Settle();
    CloseEverything();
    EXPECT_TRUE(host->MainWindow().Exists());
}

}  // namespace
}  // namespace tavrin::e2e
