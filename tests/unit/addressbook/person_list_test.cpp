#include "addressbook/person_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "data/error.h"
#include "support/pass_through_recordset.h"
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
        const std::vector<std::string> fields(Columns.begin(), Columns.end());
        connection.Script().AnswerRows(Everybody, fields,
                                       {Row("Ene", "Dan"), Row("Pop", "Ana"), Row("Pop", "Ion")});
        connection.Script().AnswerRows(Nobody, fields, {});
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

    RecordingConnection connection;
    PersonList list;
};

TEST_F(PersonListTest, WithoutARecordsetEveryUseIsARuntimeError) {
    EXPECT_FALSE(list.HasRows());
    EXPECT_EQ(ErrorOf([&] { list.Load(Everybody); }), number::ObjectNotSet);
    EXPECT_EQ(ErrorOf([&] { list.MoveTo(1); }), number::ObjectNotSet);
    list.Create(connection);
    list.Release();
    EXPECT_EQ(ErrorOf([&] { list.Requery(); }), number::ObjectNotSet);
}

TEST_F(PersonListTest, LoadingAgainClosesWhatWasOpen) {
    list.Create(connection);
    list.Load(Everybody);
    list.Load(Nobody);
    EXPECT_THAT(connection.Log(),
                testing::ElementsAre("Open: everybody", "Close: everybody", "Open: nobody"));
    EXPECT_FALSE(list.HasRows());
    EXPECT_TRUE(list.AtEnd());
}

TEST_F(PersonListTest, RowsAreCountedFromOneAndReadByColumnName) {
    list.Create(connection);
    list.Load(Everybody);
    list.MoveTo(3);
    Person person = list.Current();
    EXPECT_EQ(person[NumeColumn], "Pop");
    EXPECT_EQ(person[PrenumeColumn], "Ion");
    EXPECT_EQ(person[15], "Pop Functie");
    list.MoveTo(1);
    person = list.Current();
    EXPECT_EQ(person[PrenumeColumn], "Dan");
}

TEST_F(PersonListTest, ARowBeyondTheLastIsTheLast) {
    list.Create(connection);
    list.Load(Everybody);
    for (const int row : {4, 1000, std::numeric_limits<int>::max()}) {
        list.MoveTo(row);
        EXPECT_EQ(list.Current()[PrenumeColumn], "Ion") << row;
    }
    list.MoveTo(0);
    EXPECT_EQ(list.Current()[PrenumeColumn], "Dan");
}

TEST_F(PersonListTest, ARowBeyondTheOnlyOneIsThatOne) {
    constexpr const char* Somebody = "somebody";
    connection.Script().AnswerRows(Somebody, {Columns.begin(), Columns.end()}, {Row("Ene", "Dan")});
    list.Create(connection);
    list.Load(Somebody);
    for (const int row : {0, 1, 2, 1000}) {
        list.MoveTo(row);
        EXPECT_EQ(list.Current()[PrenumeColumn], "Dan") << row;
    }
}

class UncountedRows : public tests::PassThroughRecordset {
  public:
    using PassThroughRecordset::PassThroughRecordset;
    std::int64_t RecordCount() const override { return -1; }
};

TEST_F(PersonListTest, AProviderThatDoesNotCountIsWalkedAllTheSame) {
    tests::PassThroughConnection uncounted(
        connection, [](auto rows) { return std::make_unique<UncountedRows>(std::move(rows)); });
    list.Create(uncounted);
    list.Load(Everybody);
    for (const auto& [row, prenume] : {std::pair{1, "Dan"}, {2, "Ana"}, {3, "Ion"}, {0, "Dan"}}) {
        list.MoveTo(row);
        EXPECT_EQ(list.Current()[PrenumeColumn], prenume) << row;
    }
}

TEST_F(PersonListTest, AnEmptyListHasNoRowToMoveTo) {
    list.Create(connection);
    list.Load(Nobody);
    EXPECT_EQ(ErrorOf([&] { list.MoveTo(1); }), number::NoCurrentRecord);
    EXPECT_EQ(ErrorOf([&] { list.Current(); }), number::NoCurrentRecord);
}

TEST_F(PersonListTest, AFailedLoadLeavesAListWithoutRows) {
    list.Create(connection);
    list.Load(Everybody);
    EXPECT_EQ(ErrorOf([&] { list.Load("garbage"); }), number::ErrorsInCommand);
    EXPECT_FALSE(list.HasRows());
    list.Load(Everybody);
    EXPECT_TRUE(list.HasRows());
}

TEST_F(PersonListTest, ANullInAnyColumnIsARuntimeError) {
    list.Create(connection);
    for (std::size_t column = 0; column < Columns.size(); ++column) {
        auto row = Row("Pop", "Ana");
        row[column] = data::Null{};
        connection.Script().AnswerRows(std::string(Columns[column]), {Columns.begin(), Columns.end()}, {row});
        list.Load(Columns[column]);
        EXPECT_EQ(ErrorOf([&] { list.Current(); }), number::InvalidUseOfNull) << Columns[column];
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
