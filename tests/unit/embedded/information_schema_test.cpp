// The one view of a server's own that the embedded database answers.
#include <gmock/gmock.h>

#include "unit/embedded/embedded_test.h"

namespace tavrin::host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using InformationSchema = EmbeddedTest;

TEST_F(InformationSchema, TellsTheColumnsOfATable) {
    EXPECT_THAT(Rows("SELECT COLUMN_NAME, ORDINAL_POSITION, DATA_TYPE, CHARACTER_MAXIMUM_LENGTH FROM "
                     "INFORMATION_SCHEMA.COLUMNS WHERE TABLE_NAME = 'LpVal' ORDER BY ORDINAL_POSITION"),
                ElementsAre("Valuta|1|nvarchar|10", "Curs|2|float|NULL"));
    EXPECT_THAT(Rows("SELECT IS_NULLABLE, TABLE_SCHEMA FROM INFORMATION_SCHEMA.COLUMNS WHERE TABLE_NAME = "
                     "'agenda' AND COLUMN_NAME IN ('Nume', 'Fax') ORDER BY ORDINAL_POSITION"),
                ElementsAre("NO|dbo", "YES|dbo"));
}

TEST_F(InformationSchema, FollowsTheTables) {
    const char* const columns =
        "SELECT COLUMN_NAME FROM INFORMATION_SCHEMA.COLUMNS WHERE TABLE_NAME = 'An' ORDER BY "
        "ORDINAL_POSITION";
    EXPECT_THAT(Rows(columns), ElementsAre("An"));
    Run("ALTER TABLE An ADD Inchis int");
    EXPECT_THAT(Rows(columns), ElementsAre("An", "Inchis"));
    Run("DROP TABLE An");
    EXPECT_THAT(Rows(columns), IsEmpty());
}

TEST_F(InformationSchema, KeepsDatabasesApart) {
    const std::string where = "INFORMATION_SCHEMA.COLUMNS WHERE TABLE_NAME = 'Societati'";
    EXPECT_THAT(Rows("SELECT COLUMN_NAME FROM " + where), IsEmpty());
    EXPECT_THAT(Rows("SELECT COLUMN_NAME FROM AdmQuadrel." + where), ElementsAre("Id", "Curs"));
    EXPECT_THAT(Rows("SELECT COLUMN_NAME FROM ADMQUADREL." + where), ElementsAre("Id", "Curs"));
    EXPECT_THAT(Rows("SELECT COLUMN_NAME FROM [Alta's]." + where), IsEmpty());
    EXPECT_THAT(Rows("SELECT TABLE_NAME FROM AdmQuadrel.INFORMATION_SCHEMA.COLUMNS WHERE TABLE_NAME = 'An'"),
                IsEmpty());
}

TEST_F(InformationSchema, IsThereAfterARollback) {
    const char* const columns = "SELECT COLUMN_NAME FROM INFORMATION_SCHEMA.COLUMNS WHERE TABLE_NAME = 'An'";
    {
        const EmbeddedDatabase::Transaction transaction(connection_.Database());
        EXPECT_THAT(Rows(columns), ElementsAre("An"));
    }
    EXPECT_THAT(Rows(columns), ElementsAre("An"));
}

TEST_F(InformationSchema, CannotBeWritten) {
    EXPECT_LT(ErrorOf("DELETE FROM INFORMATION_SCHEMA.COLUMNS").Number(), 0);
    EXPECT_LT(ErrorOf("SELECT * FROM INFORMATION_SCHEMA.TABLES").Number(), 0);
}

}  // namespace
}  // namespace tavrin::host
