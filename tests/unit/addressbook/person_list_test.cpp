#include "addressbook/person_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "data/error.h"
#include "support/pass_through_connection.h"
#include "support/recording_connection.h"

namespace tavrin::addressbook {
namespace {

using data::Error;
using tests::RecordingConnection;
using tests::ScriptedConnection;
namespace number = data::error_number;

constexpr const char* Everybody = "everybody";
constexpr const char* Nobody = "nobody";

data::MemoryTable::Row Row(const std::string& nume, const std::string& prenume) {
    data::MemoryTable::Row row = {nume, prenume};
    for (std::size_t column = FirstDetailColumn; column < Columns.size(); ++column)
        row.emplace_back(nume + " " + std::string(Columns[column]));
    return row;
}

class PersonListTest : public testing::Test {
  protected:
    PersonListTest() {
        context.connection = connection;
        const std::vector<std::string> fields(Columns.begin(), Columns.end());
        connection->Script().AnswerRows(Everybody, fields,
                                        {Row("Ene", "Dan"), Row("Pop", "Ana"), Row("Pop", "Ion")});
        connection->Script().AnswerRows(Nobody, fields, {});
    }

    template <class Call>
    static std::int32_t ErrorOf(Call call) {
        try {
            call();
        } catch (const Error& error) {
            return error.Number();
        }
        return 0;
    }

    Person Current() const {
        Person person;
        list.Read(person);
        return person;
    }

    std::shared_ptr<RecordingConnection> connection = std::make_shared<RecordingConnection>();
    shell::HostContext context;
    PersonList list{context};
};

TEST_F(PersonListTest, WithoutARecordsetEveryUseIsARuntimeError) {
    EXPECT_FALSE(list.HasRows());
    EXPECT_EQ(ErrorOf([&] { list.MoveTo(1); }), number::ObjectNotSet);
    list.Load(Everybody);
    list.Release();
    EXPECT_EQ(ErrorOf([&] { list.ReadAll(); }), number::ObjectNotSet);
}

TEST_F(PersonListTest, WithoutAConnectionLoadingIsARuntimeErrorUntilThereIsOne) {
    context.connection = nullptr;
    EXPECT_EQ(ErrorOf([&] { list.Load(Everybody); }), number::ObjectNotSet);
    EXPECT_EQ(ErrorOf([&] { list.Refresh(Everybody); }), number::ObjectNotSet);
    context.connection = connection;
    list.Refresh(Everybody);
    EXPECT_TRUE(list.HasRows());
}

TEST_F(PersonListTest, LoadingAgainClosesWhatWasOpen) {
    list.Load(Everybody);
    list.Load(Nobody);
    EXPECT_THAT(connection->Log(),
                testing::ElementsAre("Open: everybody", "Close: everybody", "Open: nobody"));
    EXPECT_FALSE(list.HasRows());
}

// The connection of the moment.

/// Counts the recordsets that it hands out, and those of others that it takes over.
class CountingConnection : public RecordingConnection {
  public:
    std::unique_ptr<data::Recordset> CreateRecordset() override {
        ++created;
        return RecordingConnection::CreateRecordset();
    }
    std::unique_ptr<data::Recordset> Adopt(std::unique_ptr<data::Recordset> recordset) override {
        adopted += recordset != nullptr ? 1 : 0;
        return RecordingConnection::Adopt(std::move(recordset));
    }

    int created = 0;
    int adopted = 0;
};

class PersonListOnTwoConnectionsTest : public PersonListTest {
  protected:
    PersonListOnTwoConnectionsTest() {
        for (const auto& each : {first, second})
            each->Script().AnswerRows(Everybody, {Columns.begin(), Columns.end()}, {Row("Ene", "Dan")});
        context.connection = first;
        list.Load(Everybody);
    }

    std::shared_ptr<CountingConnection> first = std::make_shared<CountingConnection>();
    std::shared_ptr<CountingConnection> second = std::make_shared<CountingConnection>();
};

TEST_F(PersonListOnTwoConnectionsTest, OneRecordsetServesAllLoadsOfAConnection) {
    list.Load(Everybody);
    list.Load(Everybody);
    EXPECT_EQ(first->created, 1);
    EXPECT_EQ(first->adopted, 0);
    EXPECT_TRUE(list.IsCurrent());
}

TEST_F(PersonListOnTwoConnectionsTest, ALoadAfterTheHostChangedItsConnectionRunsOnTheNewOne) {
    context.connection = second;
    EXPECT_FALSE(list.IsCurrent());
    EXPECT_TRUE(list.HasRows()) << "what is in sight can still be walked";
    list.Load(Everybody);
    EXPECT_THAT(first->Log(), testing::ElementsAre("Open: everybody", "Close: everybody"));
    EXPECT_THAT(second->Log(), testing::ElementsAre("Open: everybody"));
    EXPECT_EQ(second->adopted, 1) << "the window's one recordset moves with it";
    EXPECT_TRUE(list.IsCurrent());
}

TEST_F(PersonListOnTwoConnectionsTest, ARefreshLoadsWhereTheHostIsNow) {
    list.Refresh(Everybody);
    EXPECT_EQ(first->Log().back(), "Requery: everybody");
    context.connection = second;
    list.Refresh(Everybody);
    EXPECT_THAT(second->Log(), testing::ElementsAre("Open: everybody"));
}

TEST_F(PersonListOnTwoConnectionsTest, ARefreshAfterOneThatWasLostLoadsAnew) {
    first->FailOperation(2, {number::ErrorsInCommand, "lost"});
    EXPECT_EQ(ErrorOf([&] { list.Load(Everybody); }), number::ErrorsInCommand);
    EXPECT_FALSE(list.IsCurrent());
    list.Refresh(Everybody);
    EXPECT_EQ(first->Log().back(), "Open: everybody");
    EXPECT_TRUE(list.IsCurrent());
}

TEST_F(PersonListOnTwoConnectionsTest, NothingOfAConnectionIsKeptAlive) {
    const std::weak_ptr<data::Connection> let = first;
    context.connection = second;
    first.reset();
    EXPECT_TRUE(let.expired());
    EXPECT_FALSE(list.IsCurrent());
}

TEST_F(PersonListOnTwoConnectionsTest, AWriteIsRefusedOnAnotherConnection) {
    list.DemandConnection();
    context.connection = second;
    EXPECT_EQ(ErrorOf([&] { list.DemandConnection(); }), number::InvalidConnection);
    context.connection = nullptr;
    EXPECT_EQ(ErrorOf([&] { list.DemandConnection(); }), number::ObjectNotSet);
}

// Rows.

TEST_F(PersonListTest, RowsAreCountedFromOneAndReadByColumnName) {
    list.Load(Everybody);
    list.MoveTo(3);
    Person person = Current();
    EXPECT_EQ(person[NumeColumn], "Pop");
    EXPECT_EQ(person[PrenumeColumn], "Ion");
    EXPECT_EQ(person[15], "Pop Functie");
    list.MoveTo(1);
    person = Current();
    EXPECT_EQ(person[PrenumeColumn], "Dan");
}

TEST_F(PersonListTest, ARowBeyondTheLastIsTheLast) {
    list.Load(Everybody);
    for (const int row : {4, 1000, std::numeric_limits<int>::max()}) {
        list.MoveTo(row);
        EXPECT_EQ(Current()[PrenumeColumn], "Ion") << row;
    }
    list.MoveTo(0);
    EXPECT_EQ(Current()[PrenumeColumn], "Dan");
}

TEST_F(PersonListTest, ARowBeyondTheOnlyOneIsThatOne) {
    constexpr const char* Somebody = "somebody";
    connection->Script().AnswerRows(Somebody, {Columns.begin(), Columns.end()}, {Row("Ene", "Dan")});
    list.Load(Somebody);
    for (const int row : {0, 1, 2, 1000}) {
        list.MoveTo(row);
        EXPECT_EQ(Current()[PrenumeColumn], "Dan") << row;
    }
}

class UncountedRows : public tests::PassThroughRecordset {
  public:
    using PassThroughRecordset::PassThroughRecordset;
    std::int64_t RecordCount() const override { return -1; }
};

TEST_F(PersonListTest, AProviderThatDoesNotCountIsWalkedAllTheSame) {
    const auto uncounted = std::make_shared<tests::PassThroughConnection>(
        *connection, [](auto rows) { return std::make_unique<UncountedRows>(std::move(rows)); });
    context.connection = uncounted;
    list.Load(Everybody);
    for (const auto& [row, prenume] : {std::pair{1, "Dan"}, {2, "Ana"}, {3, "Ion"}, {0, "Dan"}}) {
        list.MoveTo(row);
        EXPECT_EQ(Current()[PrenumeColumn], prenume) << row;
    }
}

TEST_F(PersonListTest, AnEmptyListHasNoRowToMoveTo) {
    list.Load(Nobody);
    EXPECT_EQ(ErrorOf([&] { list.MoveTo(1); }), number::NoCurrentRecord);
    EXPECT_EQ(ErrorOf([&] { Current(); }), number::NoCurrentRecord);
}

TEST_F(PersonListTest, AFailedLoadLeavesAListWithoutRows) {
    list.Load(Everybody);
    EXPECT_EQ(ErrorOf([&] { list.Load("garbage"); }), number::ErrorsInCommand);
    EXPECT_FALSE(list.HasRows());
    list.Load(Everybody);
    EXPECT_TRUE(list.HasRows());
}

TEST_F(PersonListTest, ANullEndsTheReadingBehindTheColumnsBeforeIt) {
    for (std::size_t column = 0; column < Columns.size(); ++column) {
        auto row = Row("Pop", "Ana");
        row[column] = data::Null{};
        connection->Script().AnswerRows(std::string(Columns[column]), {Columns.begin(), Columns.end()},
                                        {row});
        list.Load(Columns[column]);
        Person person;
        EXPECT_EQ(ErrorOf([&] { list.Read(person); }), number::InvalidUseOfNull) << Columns[column];
        for (std::size_t i = 0; i < Columns.size(); ++i)
            EXPECT_EQ(person[i].empty(), i >= column) << Columns[column] << ", column " << i;
        const bool isName = column < FirstDetailColumn;
        EXPECT_EQ(ErrorOf([&] { list.DemandNames(); }), isName ? number::InvalidUseOfNull : 0);
    }
}

TEST(FindPerson, ComparesTrimmedNamesExactly) {
    const data::MemoryTable persons({"Nume", "Prenume"}, {{std::string("Pop"), data::Null{}},
                                                          {std::string("Pop"), std::string("Ana")},
                                                          {std::string(" Pop "), std::string("Ion  ")},
                                                          {std::string("Pop"), std::string("Ion")},
                                                          {data::Null{}, std::string("Ion")}});
    EXPECT_EQ(addressbook::FindPerson(persons, "Pop", "Ana"), 2);
    EXPECT_EQ(addressbook::FindPerson(persons, "  Pop", "Ion "), 3) << "the first of several";
    EXPECT_EQ(addressbook::FindPerson(persons, "pop", "Ana"), 0);
    EXPECT_EQ(addressbook::FindPerson(persons, "Ana", "Pop"), 0);
}

TEST(FindPerson, FindsTheFirstAndTheLast) {
    const data::MemoryTable persons({"Nume", "Prenume"}, {{std::string("Albu"), std::string("Dan")},
                                                          {std::string("Pop"), std::string("Ana")}});
    EXPECT_EQ(addressbook::FindPerson(persons, "Albu", "Dan"), 1);
    EXPECT_EQ(addressbook::FindPerson(persons, "Pop", "Ana"), 2);
}

TEST(FindPerson, FindsNobodyWhereNamesAreMissing) {
    const data::MemoryTable persons({"Nume"}, {{std::string("Pop")}});
    EXPECT_EQ(addressbook::FindPerson(persons, "Pop", ""), 0);
}

}  // namespace
}  // namespace tavrin::addressbook
