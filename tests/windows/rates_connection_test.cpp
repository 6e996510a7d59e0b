// The host changes its connection while the rate list or the entry of a day's rates is open, or has none at
// first.

#include <gmock/gmock.h>

#include "data/error.h"
#include "rates/curs_valutar_detaliu.h"
#include "support/rates_test.h"

namespace tavrin::tests {
namespace {

namespace number = data::error_number;
using rates::CursValutar;
using rates::CursValutarDetaliu;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;
using testing::SizeIs;

/// The second database has one other currency, and two days, 14 May of them in both.
class RatesConnectionTest : public RatesTest {
  protected:
    RatesConnectionTest() {
        for (const char* statement :
             {"CREATE TABLE [Curs Valutar] (Data datetime NOT NULL PRIMARY KEY, Validat int, GBP float)",
              "CREATE TABLE AdmQuadrel.dbo.Societati (Id int, Curs datetime)",
              "INSERT INTO AdmQuadrel.dbo.Societati (Id, Curs) VALUES (7, NULL)",
              "INSERT INTO [Curs Valutar] (Data, GBP) VALUES ('05-14-2003', 50)",
              "INSERT INTO [Curs Valutar] (Data, GBP) VALUES ('05-15-2003', 51)"}) {
            secondDatabase->Run(statement);
        }
    }

    void HostTurnsToTheSecond() {
        connection->ClearRecord();
        application.context.connection = secondConnection;
    }

    CursValutar& OpenOnTheFourteenth() {
        CursValutar& list = OpenList();
        list.SelectDay("14/05/2003");
        return list;
    }

    void ExpectOnlyTheSecondsListRead(const CursValutar& list) const {
        EXPECT_THAT(secondConnection->Statements(), SizeIs(2)) << "the currencies, the days";
        EXPECT_THAT(connection->Log(), IsEmpty());
        EXPECT_THAT(RowOf(list.Grid, 1), ElementsAre("14/05/2003", testing::_, "50"));
        EXPECT_EQ(list.Grid.Rows(), 3);
    }

    std::int64_t CountOfSecond() {
        return secondDatabase->Run("SELECT count(*) FROM [Curs Valutar]").rows->At(0, 0).ToInteger();
    }

    CursValutarDetaliu* Entry() { return application.Loaded<CursValutarDetaliu>(); }

    std::shared_ptr<host::EmbeddedDatabase> secondDatabase =
        std::make_shared<host::EmbeddedDatabase>(":memory:");
    std::shared_ptr<RecordingConnection> secondConnection =
        std::make_shared<RecordingConnection>(std::make_shared<host::EmbeddedConnection>(secondDatabase));
};

TEST_F(RatesConnectionTest, StergeShowsTheNewListInsteadOfDeletingInItADayOfTheOld) {
    CursValutar& list = OpenOnTheFourteenth();
    HostTurnsToTheSecond();
    messages.answers = {6};
    list.cmdAction[CursValutar::DeleteDay].Click();
    EXPECT_THAT(messages.shown, IsEmpty());
    ExpectOnlyTheSecondsListRead(list);

    list.cmdAction[CursValutar::DeleteDay].Click();
    EXPECT_THAT(messages.shown, SizeIs(1));
    EXPECT_EQ(CountOfSecond(), 1);
    EXPECT_EQ(CountOf("[Curs Valutar]"), 5);
}

TEST_F(RatesConnectionTest, AnAnswerToAQuestionAboutTheOldListDeletesNothing) {
    CursValutar& list = OpenOnTheFourteenth();
    messages.answers = {6};
    messages.whileShowing = [this] { HostTurnsToTheSecond(); };
    list.cmdAction[CursValutar::DeleteDay].Click();
    EXPECT_THAT(messages.shown, SizeIs(1));
    EXPECT_EQ(CountOfSecond(), 2);
    EXPECT_EQ(CountOf("[Curs Valutar]"), 5);
    ExpectOnlyTheSecondsListRead(list);
}

TEST_F(RatesConnectionTest, ModificaShowsTheNewListFirst) {
    CursValutar& list = OpenOnTheFourteenth();
    HostTurnsToTheSecond();
    list.cmdAction[CursValutar::ModifyDay].Click();
    ExpectOnlyTheSecondsListRead(list);
    EXPECT_EQ(Entry(), nullptr);
    EXPECT_TRUE(list.Enabled());
    list.cmdAction[CursValutar::ModifyDay].Click();
    ASSERT_NE(Entry(), nullptr);
    EXPECT_EQ(Entry()->Grid.TextMatrix(1, 0), "GBP");
}

TEST_F(RatesConnectionTest, ANewDayHasTheCurrenciesOfTheNewDatabase) {
    CursValutar& list = OpenOnTheFourteenth();
    HostTurnsToTheSecond();
    list.cmdAction[CursValutar::AddDay].Click();
    ASSERT_NE(Entry(), nullptr);
    EXPECT_THAT(ColumnOf(Entry()->Grid, 0), ElementsAre("Moneda", "GBP"));
}

TEST_F(RatesConnectionTest, AnEntryBegunOnTheOldConnectionIsNotWrittenOnTheNewOne) {
    for (const CursValutar::Action action : {CursValutar::AddDay, CursValutar::ModifyDay}) {
        application.context.connection = connection;
        CursValutar& list = OpenOnTheFourteenth();
        list.ApplyDateFilter();
        list.SelectDay("14/05/2003");
        list.cmdAction[action].Click();
        ASSERT_NE(Entry(), nullptr);
        Entry()->Grid.SetTextMatrix(1, 1, "77");
        HostTurnsToTheSecond();
        desktop.reports.clear();
        Entry()->cmdAction[CursValutarDetaliu::Accept].Click();
        EXPECT_THAT(desktop.reports,
                    ElementsAre(Field(&HeadlessDesktop::Report::number, number::InvalidConnection)));
        EXPECT_THAT(secondConnection->Log(), IsEmpty());
        EXPECT_THAT(connection->Log(), IsEmpty());
        ASSERT_NE(Entry(), nullptr) << "what was typed stays in sight";
        EXPECT_EQ(Entry()->Grid.TextMatrix(1, 1), "77");
        Entry()->cmdAction[CursValutarDetaliu::Cancel].Click();
        EXPECT_TRUE(list.Enabled());
    }
}

TEST_F(RatesConnectionTest, AnotherCallWithTheSameConnectionChangesNothing) {
    CursValutar& list = OpenOnTheFourteenth();
    connection->ClearRecord();
    application.context.companyId = 8;
    application.context.connection = connection;
    list.cmdAction[CursValutar::DeleteDay].Click();
    EXPECT_THAT(messages.shown, SizeIs(1));
    EXPECT_THAT(connection->Statements(),
                ElementsAre("SELECT IsNull([Curs], COnvert(smalldatetime,'12:00')) FROM "
                            "AdmQuadrel.dbo.Societati WHERE Id  =8"));
}

TEST_F(RatesConnectionTest, AListOpenedWithoutAConnectionIsWholeAfterAGoodOne) {
    application.context.connection = nullptr;
    CursValutar& list = OpenList();
    EXPECT_THAT(desktop.reports, SizeIs(1));
    HostTurnsToTheSecond();
    list.cmdAction[CursValutar::AddDay].Click();
    ASSERT_NE(Entry(), nullptr);
    EXPECT_THAT(ColumnOf(Entry()->Grid, 0), ElementsAre("Moneda", "GBP"))
        << "a day without currencies is no day";
    EXPECT_EQ(list.Grid.Rows(), 3);
    EXPECT_THAT(desktop.reports, SizeIs(1));
}

}  // namespace
}  // namespace tavrin::tests
