// Scripts as a server's tools cut them.

#include "verify/sql_batches.h"

#include <gmock/gmock.h>

namespace tavrin::verify {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(SqlBatchesTest, EndAtALineWithGoAlone) {
    EXPECT_THAT(SplitBatches("a\nGO\nb\ngo  \r\n\tGo\nc"), ElementsAre("a\n", "b\n", "c"));
    EXPECT_THAT(SplitBatches("GOTO x\nGO TO\nGOx\n a GO\n"), ElementsAre("GOTO x\nGO TO\nGOx\n a GO\n"));
}

TEST(SqlBatchesTest, WithoutAStatementAreLeftOut) {
    EXPECT_THAT(SplitBatches(""), IsEmpty());
    EXPECT_THAT(SplitBatches("\n -- GO\nGO\n/* a */\nGO\n"), IsEmpty());
}

TEST(SqlBatchesTest, GoInsideATextOrACommentEndsNothing) {
    EXPECT_THAT(SplitBatches("SELECT 'it''s\nGO\n'\nGO\nb"), ElementsAre("SELECT 'it''s\nGO\n'\n", "b"));
    EXPECT_THAT(SplitBatches("a /* ' /* x */\nGO\n*/\nGO\nb"), ElementsAre("a /* ' /* x */\nGO\n*/\n", "b"));
    EXPECT_THAT(SplitBatches("a [x\nGO\n]\nGO\nb"), ElementsAre("a [x\nGO\n]\n", "b"));
}

TEST(SqlBatchesTest, AQuoteInACommentOpensNothing) {
    EXPECT_THAT(SplitBatches("-- it's\na\nGO\nb"), ElementsAre("-- it's\na\n", "b"));
}

TEST(SqlBatchesTest, MayBeRepeated) {
    EXPECT_THAT(SplitBatches("a\nGO 2\nb\nGO 0\n"), ElementsAre("a\n", "a\n"));
}

TEST(SqlBatchesTest, ANameStandsForAnotherAsAWholeWordAlone) {
    EXPECT_EQ(WithName("USE Firma; OrasFirma, Firma_2 ('Firma')", "Firma", "X"),
              "USE X; OrasFirma, Firma_2 ('X')");
}

}  // namespace
}  // namespace tavrin::verify
