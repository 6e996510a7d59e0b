#include "addressbook/person_store.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "addressbook/addressbook_statements.h"
#include "data/error.h"
#include "support/pass_through_connection.h"
#include "support/recording_connection.h"

namespace tavrin::addressbook {
namespace {

using data::Error;
using tests::RecordingConnection;
using tests::ScriptedConnection;
namespace number = data::error_number;

const PersonSearch Everybody;
const PersonSearch Nobody{"nobody", ""};

std::string QueryOf(const PersonSearch& search) {
    return ListStatement(search.nume.empty() ? "%" : search.nume, "%");
}
const std::string AskEverybody = QueryOf(Everybody);

data::MemoryTable::Row Row(const std::string& nume, const std::string& prenume) {
    data::MemoryTable::Row row = {nume, prenume};
    for (std::size_t column = FirstDetailColumn; column < Columns.size(); ++column)
        row.emplace_back(nume + " " + std::string(Columns[column]));
    return row;
}

class PersonStoreTest : public testing::Test {
  protected:
    PersonStoreTest() {
        context.connection = connection;
        const std::vector<std::string> fields(Columns.begin(), Columns.end());
        connection->Script().AnswerRows(AskEverybody, fields,
                                        {Row("Ene", "Dan"), Row("Pop", "Ana"), Row("Pop", "Ion")});
        connection->Script().AnswerRows(QueryOf(Nobody), fields, {});
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

    Person Current() {
        Person person;
        store.Read(person);
        return person;
    }

    std::shared_ptr<RecordingConnection> connection = std::make_shared<RecordingConnection>();
    shell::HostContext context;
    PersonStore store{context};
};

TEST_F(PersonStoreTest, WithoutARecordsetEveryUseIsARuntimeError) {
    EXPECT_FALSE(store.HasRows());
    EXPECT_EQ(ErrorOf([&] { store.MoveTo(1); }), number::ObjectNotSet);
    store.Load(Everybody);
    store.Release();
    EXPECT_EQ(ErrorOf([&] { store.ReadAll(); }), number::ObjectNotSet);
}

TEST_F(PersonStoreTest, WithoutAConnectionLoadingIsARuntimeErrorUntilThereIsOne) {
    context.connection = nullptr;
    EXPECT_EQ(ErrorOf([&] { store.Load(Everybody); }), number::ObjectNotSet);
    EXPECT_EQ(ErrorOf([&] { store.Refresh(Everybody); }), number::ObjectNotSet);
    context.connection = connection;
    store.Refresh(Everybody);
    EXPECT_TRUE(store.HasRows());
}

TEST_F(PersonStoreTest, LoadingAgainClosesWhatWasOpen) {
    store.Load(Everybody);
    store.Load(Nobody);
    EXPECT_THAT(connection->Log(), testing::ElementsAre("Open: " + AskEverybody, "Close: " + AskEverybody,
                                                        "Open: " + QueryOf(Nobody)));
    EXPECT_FALSE(store.HasRows());
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

class PersonStoreOnTwoConnectionsTest : public PersonStoreTest {
  protected:
    PersonStoreOnTwoConnectionsTest() {
        for (const auto& each : {first, second})
            each->Script().AnswerRows(AskEverybody, {Columns.begin(), Columns.end()}, {Row("Ene", "Dan")});
        context.connection = first;
        store.Load(Everybody);
    }

    std::shared_ptr<CountingConnection> first = std::make_shared<CountingConnection>();
    std::shared_ptr<CountingConnection> second = std::make_shared<CountingConnection>();
};

TEST_F(PersonStoreOnTwoConnectionsTest, OneRecordsetServesAllLoadsOfAConnection) {
    store.Load(Everybody);
    store.Load(Everybody);
    EXPECT_EQ(first->created, 1);
    EXPECT_EQ(first->adopted, 0);
    EXPECT_TRUE(store.IsCurrent());
}

TEST_F(PersonStoreOnTwoConnectionsTest, ALoadAfterTheHostChangedItsConnectionRunsOnTheNewOne) {
    context.connection = second;
    EXPECT_FALSE(store.IsCurrent());
    EXPECT_TRUE(store.HasRows()) << "what is in sight can still be walked";
    store.Load(Everybody);
    EXPECT_THAT(first->Log(), testing::ElementsAre("Open: " + AskEverybody, "Close: " + AskEverybody));
    EXPECT_THAT(second->Log(), testing::ElementsAre("Open: " + AskEverybody));
    EXPECT_EQ(second->adopted, 1) << "the window's one recordset moves with it";
    EXPECT_TRUE(store.IsCurrent());
}

TEST_F(PersonStoreOnTwoConnectionsTest, ARefreshLoadsWhereTheHostIsNow) {
    store.Refresh(Everybody);
    EXPECT_EQ(first->Log().back(), "Requery: " + AskEverybody);
    context.connection = second;
    store.Refresh(Everybody);
    EXPECT_THAT(second->Log(), testing::ElementsAre("Open: " + AskEverybody));
}

TEST_F(PersonStoreOnTwoConnectionsTest, ARefreshAfterOneThatWasLostLoadsAnew) {
    first->FailOperation(2, {number::ErrorsInCommand, "lost"});
    EXPECT_EQ(ErrorOf([&] { store.Load(Everybody); }), number::ErrorsInCommand);
    EXPECT_FALSE(store.IsCurrent());
    store.Refresh(Everybody);
    EXPECT_EQ(first->Log().back(), "Open: " + AskEverybody);
    EXPECT_TRUE(store.IsCurrent());
}

TEST_F(PersonStoreOnTwoConnectionsTest, NothingOfAConnectionIsKeptAlive) {
    const std::weak_ptr<data::Connection> let = first;
    context.connection = second;
    first.reset();
    EXPECT_TRUE(let.expired());
    EXPECT_FALSE(store.IsCurrent());
}

TEST_F(PersonStoreOnTwoConnectionsTest, AChangeIsRefusedOnAnotherConnection) {
    const Person person = {"Ene", "Dan"};
    first->Script().AnswerDone(UpdateStatement(person));
    store.Change(person);
    EXPECT_EQ(first->Log().back(), "Execute: " + UpdateStatement(person));
    context.connection = second;
    EXPECT_EQ(ErrorOf([&] { store.Change(person); }), number::InvalidConnection);
    EXPECT_THAT(second->Log(), testing::IsEmpty());
    context.connection = nullptr;
    EXPECT_EQ(ErrorOf([&] { store.Change(person); }), number::ObjectNotSet);
}

TEST_F(PersonStoreOnTwoConnectionsTest, OthersAreAddedAndRemovedWhereTheHostIsNow) {
    const Person person = {"Pop", "Ana"};
    context.connection = second;
    second->Script().AnswerDone(InsertStatement(person));
    second->Script().AnswerDone(DeleteStatement("Pop", "Ana"));
    store.Add(person);
    store.Remove("Pop", "Ana");
    EXPECT_THAT(second->Log(), testing::ElementsAre("Execute: " + InsertStatement(person),
                                                    "Execute: " + DeleteStatement("Pop", "Ana")));
}

TEST_F(PersonStoreTest, ASearchTakesTheWildcardsOfItsBoxes) {
    const std::string query = ListStatement("A%", "%an");
    connection->Script().AnswerRows(query, {Columns.begin(), Columns.end()}, {Row("Albu", "Dan")});
    store.Load({"A/", "/an"});
    EXPECT_EQ(connection->Log().back(), "Open: " + query);
    EXPECT_TRUE(store.HasRows());
}

// Rows.

TEST_F(PersonStoreTest, RowsAreCountedFromOneAndReadByColumnName) {
    store.Load(Everybody);
    store.MoveTo(3);
    Person person = Current();
    EXPECT_EQ(person[NumeColumn], "Pop");
    EXPECT_EQ(person[PrenumeColumn], "Ion");
    EXPECT_EQ(person[15], "Pop Functie");
    store.MoveTo(1);
    person = Current();
    EXPECT_EQ(person[PrenumeColumn], "Dan");
}

TEST_F(PersonStoreTest, ARowBeyondTheLastIsTheLast) {
    store.Load(Everybody);
    for (const int row : {4, 1000, std::numeric_limits<int>::max()}) {
        store.MoveTo(row);
        EXPECT_EQ(Current()[PrenumeColumn], "Ion") << row;
    }
    store.MoveTo(0);
    EXPECT_EQ(Current()[PrenumeColumn], "Dan");
}

TEST_F(PersonStoreTest, ARowBeyondTheOnlyOneIsThatOne) {
    const PersonSearch somebody{"somebody", ""};
    connection->Script().AnswerRows(QueryOf(somebody), {Columns.begin(), Columns.end()}, {Row("Ene", "Dan")});
    store.Load(somebody);
    for (const int row : {0, 1, 2, 1000}) {
        store.MoveTo(row);
        EXPECT_EQ(Current()[PrenumeColumn], "Dan") << row;
    }
}

class UncountedRows : public tests::PassThroughRecordset {
  public:
    using PassThroughRecordset::PassThroughRecordset;
    std::int64_t RecordCount() const override { return -1; }
};

TEST_F(PersonStoreTest, AProviderThatDoesNotCountIsWalkedAllTheSame) {
    const auto uncounted = std::make_shared<tests::PassThroughConnection>(
        *connection, [](auto rows) { return std::make_unique<UncountedRows>(std::move(rows)); });
    context.connection = uncounted;
    store.Load(Everybody);
    for (const auto& [row, prenume] : {std::pair{1, "Dan"}, {2, "Ana"}, {3, "Ion"}, {0, "Dan"}}) {
        store.MoveTo(row);
        EXPECT_EQ(Current()[PrenumeColumn], prenume) << row;
    }
}

TEST_F(PersonStoreTest, AnEmptyListHasNoRowToMoveTo) {
    store.Load(Nobody);
    EXPECT_EQ(ErrorOf([&] { store.MoveTo(1); }), number::NoCurrentRecord);
    EXPECT_EQ(ErrorOf([&] { Current(); }), number::NoCurrentRecord);
}

TEST_F(PersonStoreTest, AFailedLoadLeavesAListWithoutRows) {
    store.Load(Everybody);
    EXPECT_EQ(ErrorOf([&] { store.Load({"garbage", ""}); }), number::ErrorsInCommand);
    EXPECT_FALSE(store.HasRows());
    store.Load(Everybody);
    EXPECT_TRUE(store.HasRows());
}

TEST_F(PersonStoreTest, ANullEndsTheReadingBehindTheColumnsBeforeIt) {
    for (std::size_t column = 0; column < Columns.size(); ++column) {
        auto row = Row("Pop", "Ana");
        row[column] = data::Null{};
        const PersonSearch search{std::string(Columns[column]), ""};
        connection->Script().AnswerRows(QueryOf(search), {Columns.begin(), Columns.end()}, {row});
        store.Load(search);
        Person person;
        EXPECT_EQ(ErrorOf([&] { store.Read(person); }), number::InvalidUseOfNull) << Columns[column];
        for (std::size_t i = 0; i < Columns.size(); ++i)
            EXPECT_EQ(person[i].empty(), i >= column) << Columns[column] << ", column " << i;
        const bool isName = column < FirstDetailColumn;
        EXPECT_EQ(ErrorOf([&] { store.RequireNames(); }), isName ? number::InvalidUseOfNull : 0);
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
