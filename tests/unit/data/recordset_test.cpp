// The cursor of a recordset in memory, and scalars.
#include <gtest/gtest.h>

#include <limits>

#include "data/snapshot_recordset.h"
#include "support/scripted_connection.h"

namespace tavrin::data {
namespace {

class RecordsetTest : public testing::Test {
  protected:
    RecordsetTest() {
        const std::vector<MemoryTable::Row> three{{std::int64_t{1}}, {std::int64_t{2}}, {std::int64_t{3}}};
        connection_.AnswerRows("three", {"Nr"}, three);
        connection_.AnswerRows("none", {"Nr"}, {});
        connection_.AnswerDone("write");
        connection_.AnswerRows("breaks", {"Nr"}, three);
        connection_.AnswerError("breaks", Error(-1, "gone"));
    }

    template <class Action>
    static std::int32_t ErrorNumber(Action action) {
        try {
            action();
        } catch (const Error& error) {
            return error.Number();
        }
        return 0;
    }

    tests::ScriptedConnection connection_;
};

TEST_F(RecordsetTest, WalksFromTheFirstRowToTheEnd) {
    const auto rows = connection_.Execute("three");
    EXPECT_TRUE(rows->HasRows());
    EXPECT_EQ(rows->RecordCount(), 3);
    for (std::int64_t expected = 1; expected <= 3; ++expected, rows->MoveNext()) {
        EXPECT_FALSE(rows->AtEnd());
        EXPECT_EQ(rows->Field("nr"), Value(expected));
    }
    EXPECT_TRUE(rows->AtEnd());
    EXPECT_FALSE(rows->AtBeginning());
    EXPECT_EQ(ErrorNumber([&] { rows->MoveNext(); }), error_number::NoCurrentRecord);
    EXPECT_EQ(ErrorNumber([&] { rows->Field(0); }), error_number::NoCurrentRecord);
    rows->MoveFirst();
    EXPECT_EQ(rows->Field(0), Value(std::int64_t{1}));
}

TEST_F(RecordsetTest, MovesStopAtBothEnds) {
    const auto rows = connection_.Execute("three");
    rows->Move(2);
    EXPECT_EQ(rows->Field(0), Value(std::int64_t{3}));
    rows->Move(std::numeric_limits<std::int64_t>::max());
    EXPECT_TRUE(rows->AtEnd());
    rows->Move(std::numeric_limits<std::int64_t>::min());
    EXPECT_TRUE(rows->AtBeginning());
    EXPECT_EQ(ErrorNumber([&] { rows->Move(-1); }), error_number::NoCurrentRecord);
    rows->MoveNext();
    EXPECT_EQ(rows->Field(0), Value(std::int64_t{1}));
}

TEST_F(RecordsetTest, AnEmptyOneIsAtBothEnds) {
    const auto rows = connection_.Execute("none");
    EXPECT_FALSE(rows->HasRows());
    EXPECT_TRUE(rows->AtBeginning());
    EXPECT_TRUE(rows->AtEnd());
    EXPECT_EQ(rows->FieldName(0), "Nr");
    EXPECT_EQ(ErrorNumber([&] { rows->MoveFirst(); }), error_number::NoCurrentRecord);
    EXPECT_EQ(ErrorNumber([&] { rows->Move(0); }), error_number::NoCurrentRecord);
}

TEST_F(RecordsetTest, TellsThePositionInAdosTerms) {
    const auto opened = connection_.Execute("three");
    auto& rows = dynamic_cast<SnapshotRecordset&>(*opened);
    EXPECT_EQ(rows.AbsolutePosition(), 1);
    rows.Move(2);
    EXPECT_EQ(rows.AbsolutePosition(), 3);
    rows.MoveNext();
    EXPECT_EQ(rows.AbsolutePosition(), -3);
    rows.Move(-4);
    EXPECT_EQ(rows.AbsolutePosition(), -2);
    const auto none = connection_.Execute("none");
    EXPECT_EQ(dynamic_cast<SnapshotRecordset&>(*none).AbsolutePosition(), -1);
}

TEST_F(RecordsetTest, AClosedOneRefusesEverything) {
    const auto rows = connection_.Execute("write");
    EXPECT_FALSE(rows->IsOpen());
    EXPECT_EQ(rows->FieldCount(), 0U);
    EXPECT_EQ(ErrorNumber([&] { rows->AtEnd(); }), error_number::ObjectClosed);
    EXPECT_EQ(ErrorNumber([&] { rows->MoveFirst(); }), error_number::ObjectClosed);
    EXPECT_EQ(ErrorNumber([&] { rows->Requery(); }), error_number::ObjectClosed);
    EXPECT_EQ(ErrorNumber([&] { rows->ReadAll(); }), error_number::ObjectClosed);
    EXPECT_EQ(ErrorNumber([&] { rows->Close(); }), error_number::ObjectClosed);
    EXPECT_EQ(ErrorNumber([&] { rows->Field(0); }), error_number::ItemNotFound);
}

TEST_F(RecordsetTest, OpensOnce) {
    const auto rows = connection_.CreateRecordset();
    rows->Open("three");
    EXPECT_EQ(ErrorNumber([&] { rows->Open("none"); }), error_number::ObjectOpen);
    rows->Close();
    rows->Open("none");
    EXPECT_FALSE(rows->HasRows());
}

TEST_F(RecordsetTest, AnUnknownFieldIsNotFound) {
    const auto rows = connection_.Execute("three");
    EXPECT_EQ(ErrorNumber([&] { rows->Field(1); }), error_number::ItemNotFound);
    EXPECT_EQ(ErrorNumber([&] { rows->FieldName(1); }), error_number::ItemNotFound);
    EXPECT_EQ(ErrorNumber([&] { rows->Field("Nume"); }), error_number::ItemNotFound);
}

TEST_F(RecordsetTest, WhatWasReadAtOnceStays) {
    const auto rows = connection_.Execute("breaks");
    rows->Move(1);
    const TablePtr table = rows->ReadAll();
    EXPECT_EQ(rows->Field(0), Value(std::int64_t{2}));
    EXPECT_EQ(ErrorNumber([&] { rows->Requery(); }), -1);
    EXPECT_FALSE(rows->IsOpen());
    ASSERT_EQ(table->RowCount(), 3U);
    EXPECT_EQ(table->At(2, 0), Value(std::int64_t{3}));
}

TEST_F(RecordsetTest, AScalarIsTheFirstFieldOfTheFirstRow) {
    EXPECT_EQ(ExecuteScalar(connection_, "three"), Value(std::int64_t{1}));
    EXPECT_EQ(ErrorNumber([&] { ExecuteScalar(connection_, "none"); }), error_number::NoCurrentRecord);
    EXPECT_EQ(ErrorNumber([&] { ExecuteScalar(connection_, "write"); }), error_number::NoCurrentRecord);
}

}  // namespace
}  // namespace tavrin::data
