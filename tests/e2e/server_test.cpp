// The windows on a database server, through the machine's own ADO: opened, read and written by real input.
// They run only where the environment names a server and a database on it that is theirs alone: they empty
// its tables.

#include <windows.h>

#include <array>

#include "data/text/date.h"
#include "e2e/driver/accessible_reader.h"
#include "e2e/driver/shown_message.h"
#include "e2e/host_test.h"
#include "e2e/server_variables.h"
#include "win32/ado/ado_connection.h"
#include "win32/base/text.h"

namespace tavrin::e2e {
namespace {

using testing::ElementsAre;

/// In the month of the rows below, none of which is frozen.
constexpr HostValues JuneOnServer{.year = 2003, .month = 6, .day = 16, .company = 2};

constexpr std::array RowsOnServer{
    "DELETE FROM [Curs Valutar]",
    "DELETE FROM Agenda",
    "DELETE FROM LpVal",
    "INSERT INTO LpVal (Valuta, Curs) VALUES ('EUR', 0)",
    "INSERT INTO [Curs Valutar] ([Data], Validat, EUR, [$]) VALUES ('20030602', 0, 37500, 31900)",
    "INSERT INTO [Curs Valutar] ([Data], Validat, EUR, [$]) VALUES ('20030603', 0, 37600.5, NULL)",
    "INSERT INTO Agenda VALUES ('Popescu', 'Ana', 'Str. Teilor 4', '', '', '', '', '', '', '', '', '', '', "
    "'', '', '')",
    "DELETE FROM AdmQuadrel.dbo.Societati",
    "INSERT INTO AdmQuadrel.dbo.Societati (Id, Curs) VALUES (2, NULL)",
};

class ServerTest : public HostTest {
  protected:
    ServerTest() : HostTest(LoopKind::Plain, HostData::None) {}

    void SetUp() override {
        host->Call([&] {
            Connect();
            for (const char* const statement : RowsOnServer)
                connection_->Execute(statement);
        });
    }

    void TearDown() override {
        CloseEverything();
        host->Call([&] {
            connection_.reset();
            if (ado_) ado_.Call(L"Close");
            ado_ = {};
        });
        HostTest::TearDown();
    }

    Window OpenThePalette() {
        return AwaitPalette(host->ApelWith(host->Call([&] { return ado_.Object().Get(); }), JuneOnServer));
    }

    Window Open(const char* button, const char* name) {
        Click(OpenThePalette().Control(button));
        const Window window = AwaitForm(name);
        Require("the window's focus", [&] { return window.HasFocus(); });
        host->Ui().Settle();
        return window;
    }

    TableTexts Shown(const Window& window) { return ReadTable(host->Ui(), window.Control("Grid")); }

    std::string Stored(const std::string& query) {
        return host->Call([&] { return data::ExecuteScalar(*connection_, query).ToText(); });
    }

    void Run(const std::string& statement) {
        host->Call([&] { connection_->Execute(statement); });
    }

    void TypeRate(const char* rate) {
        ASSERT_TRUE(AwaitFocus("txtCursValutar"));
        TypeText(rate);
        PressKey(VK_RETURN);
        host->Ui().Settle();
    }

  private:
    void Connect() {
        CLSID classId{};
        win32::ComPtr<IDispatch> object;
        ASSERT_EQ(CLSIDFromProgID(L"ADODB.Connection", &classId), S_OK);
        ASSERT_EQ(
            CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, object.ReceiveVoid()),
            S_OK);
        ado_ = win32::DispatchObject(object);
        ado_.Call(L"Open", win32::Variant(win32::ToUtf8(Variable(ConnectionVariable))));
        // Not by USE: ADO opens further connections by itself, and they go to this database too.
        if (const std::wstring database = Variable(DatabaseVariable); database != StandInDatabase)
            ado_.Put(L"DefaultDatabase", win32::Variant(win32::ToUtf8(database)));
        connection_ = std::make_unique<win32::AdoConnection>(object);
    }

    win32::DispatchObject ado_;
    std::unique_ptr<win32::AdoConnection> connection_;
};

TEST_F(ServerTest, ThePaletteOpens) {
    EXPECT_TRUE(OpenThePalette().IsTopmost());
}

TEST_F(ServerTest, TheRateListShowsWhatIsStored) {
    const TableTexts shown = Shown(Open("cmdAction(3)", "CursValutar"));
    ASSERT_EQ(shown.size(), 3U);
    EXPECT_EQ(shown[1][0], "02/06/2003");
    EXPECT_EQ(shown[1][1], "37500");
    EXPECT_EQ(shown[2][1], "37600.5");
    EXPECT_EQ(shown[2][2], "");
}

TEST_F(ServerTest, ADaysRatesAreAdded) {
    const Window list = Open("cmdAction(3)", "CursValutar");
    Click(list.Control("cmdAction(0)"));
    const Window entry = AwaitForm("CursValutarDetaliu");
    ASSERT_TRUE(AwaitFocus("DataCurs"));
    PressKey(VK_RETURN);
    TypeRate("41234");
    while (FocusedName() == "txtCursValutar")
        TypeRate("7");
    Click(entry.Control("cmdAction(0)"));
    ASSERT_TRUE(AwaitClosed("CursValutarDetaliu"));
    EXPECT_EQ(Stored("SELECT count(*) FROM [Curs Valutar]"), "3");
    EXPECT_EQ(Stored("SELECT count(*) FROM [Curs Valutar] WHERE EUR = 41234"), "1");
    EXPECT_EQ(Shown(list).size(), 4U);
}

TEST_F(ServerTest, ADayIsDeletedAfterYes) {
    const Window list = Open("cmdAction(3)", "CursValutar");
    Click(list.Control("cmdAction(2)"));
    ShownMessage::Await().Press(IDYES);
    EXPECT_TRUE(WaitUntil([&] { return Shown(list).size() == 2; }));
    EXPECT_EQ(Stored("SELECT count(*) FROM [Curs Valutar]"), "1");
}

TEST_F(ServerTest, APersonIsAdded) {
    const Window book = Open("cmdAction(1)", "Agenda");
    EXPECT_THAT(Shown(book), ElementsAre(ElementsAre("Nume", "Prenume"), ElementsAre("Popescu", "Ana")));
    Click(book.Control("cmdAction(2)"));
    ASSERT_TRUE(AwaitFocus("TextBoxes(2)"));
    TypeText("Marinica");
    PressKey(VK_RETURN);
    TypeText("Eva");
    host->Ui().Settle();
    Click(book.Control("cmdAction(0)"));
    EXPECT_TRUE(WaitUntil([&] { return Shown(book).size() == 3; }));
    EXPECT_EQ(Stored("SELECT Prenume FROM Agenda WHERE Nume = 'Marinica'"), "Eva");
}

TEST_F(ServerTest, TheCalculatorReadsARate) {
    EXPECT_TRUE(Open("cmdAction(2)", "frmCalculator").IsVisible());
    EXPECT_FALSE(ShownMessage::Find()) << "the rate of the day before is there";
}

TEST_F(ServerTest, WhatTheServerRefusesIsTold) {
    const Window list = Open("cmdAction(3)", "CursValutar");
    Run("DELETE FROM LpVal");
    Run("DROP TABLE LpVal");
    Click(list.Control("cmdAction(3)"));
    AwaitForm("CereMoneda");
    ASSERT_TRUE(AwaitFocus("txtMoneda"));
    TypeText("ZZZ");
    PressKey(VK_RETURN);
    PressKey(VK_RETURN);
    const ShownMessage message = ShownMessage::Await();
    EXPECT_THAT(message.Prompt(), testing::HasSubstr("LpVal"));
    message.Press(IDOK);
    Run("CREATE TABLE LpVal (Valuta nvarchar(10) NOT NULL PRIMARY KEY, Curs float NULL)");
}

}  // namespace
}  // namespace tavrin::e2e
