// What a server keeps of the letters that a statement gives without N.
#include "host/embedded/code_page.h"

#include <gmock/gmock.h>

#include "unit/embedded/embedded_test.h"

namespace tavrin::host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(ThroughCodePage, TheCentralEuropeanPageHasTheLettersWithACedilla) {
    EXPECT_EQ(ThroughCodePage("ăâîşţ ĂÂÎŞŢ", CodePage::CentralEuropean), "ăâîşţ ĂÂÎŞŢ");
    EXPECT_EQ(ThroughCodePage("Łukasz Ťřinec €", CodePage::CentralEuropean), "Łukasz Ťřinec €");
}

TEST(ThroughCodePage, TheLettersWithACommaAreLostOnEveryPage) {
    EXPECT_EQ(ThroughCodePage("ȘșȚț", CodePage::CentralEuropean), "????");
    EXPECT_EQ(ThroughCodePage("ȘșȚț", CodePage::Western), "????");
}

TEST(ThroughCodePage, TheWesternPageLeavesLettersWithoutTheirMarks) {
    EXPECT_EQ(ThroughCodePage("ăâîşţ ĂÂÎŞŢ", CodePage::Western), "aâîst AÂÎST");
}

TEST(ThroughCodePage, WhatThePageLacksIsFittedOrLost) {
    EXPECT_EQ(ThroughCodePage("ñàè", CodePage::CentralEuropean), "nae");
    EXPECT_EQ(ThroughCodePage("Ελ 名 😀", CodePage::CentralEuropean), "?? ? ??");
    EXPECT_EQ(ThroughCodePage("\xEF\xBF\xBD", CodePage::CentralEuropean), "?") << "no byte stands for it";
}

TEST(ThroughCodePage, UnicodeKeepsEverything) {
    EXPECT_EQ(ThroughCodePage("ȘșȚț 名 😀", CodePage::Utf8), "ȘșȚț 名 😀");
}

class CodePageOfDatabase : public EmbeddedTest {
  protected:
    void Insert(const std::string& family) {
        Run("INSERT INTO [Agenda](Nume, Prenume) VALUES ('" + family + "','Ana')");
    }
    std::vector<std::string> Families(const std::string& condition = "Prenume = 'Ana'") {
        return Rows("SELECT Nume FROM Agenda WHERE " + condition);
    }
};

TEST_F(CodePageOfDatabase, LettersOfThePageAreKept) {
    Insert("Şerbănescu-Ţîrlea");
    EXPECT_THAT(Families(), ElementsAre("Şerbănescu-Ţîrlea"));
    EXPECT_THAT(Families("Nume = 'şerbănescu-ţîrlea'"), ElementsAre("Şerbănescu-Ţîrlea"));
}

TEST_F(CodePageOfDatabase, OtherLettersAreLostOnTheWayIn) {
    Insert("Șerban");
    EXPECT_THAT(Families(), ElementsAre("?erban"));
}

TEST_F(CodePageOfDatabase, TheyAreLostInComparisonsToo) {
    Run("INSERT INTO [Agenda](Nume, Prenume) VALUES (N'Șerban', N'Ana')");
    EXPECT_THAT(Families(), ElementsAre("Șerban"));
    EXPECT_THAT(Families("Nume = 'Șerban'"), IsEmpty());
    EXPECT_THAT(Families("Nume LIKE 'Ș%'"), IsEmpty());
    EXPECT_THAT(Families("Nume IN ('Șerban')"), IsEmpty());
    EXPECT_THAT(Families("Nume = N'Șerban'"), ElementsAre("Șerban"));
    EXPECT_THAT(Families("Nume LIKE N'ș%'"), ElementsAre("Șerban"));
}

TEST_F(CodePageOfDatabase, TwoNamesMayBecomeOne) {
    Insert("Șerban");
    EXPECT_EQ(ErrorOf("INSERT INTO [Agenda](Nume, Prenume) VALUES ('Țerban','Ana')").Number(),
              data::error_number::IntegrityViolation);
}

TEST_F(CodePageOfDatabase, NamesOfColumnsAreUnicode) {
    Run("ALTER TABLE LpVal ADD [Țară] nvarchar(20)");
    EXPECT_THAT(FieldNames("SELECT [Țară], 'x' AS 'Ș' FROM LpVal"), ElementsAre("Țară", "Ș"));
}

TEST(CodePageOfOtherDatabases, IsChosenWhenTheyAreOpened) {
    const auto kept = [](CodePage page) {
        EmbeddedConnection connection(std::make_shared<EmbeddedDatabase>(":memory:", page));
        return data::ExecuteScalar(connection, "SELECT 'Ștefan Ţurcă'").ToText();
    };
    EXPECT_EQ(kept(CodePage::CentralEuropean), "?tefan Ţurcă");
    EXPECT_EQ(kept(CodePage::Western), "?tefan Turca");
    EXPECT_EQ(kept(CodePage::Utf8), "Ștefan Ţurcă");
}

TEST(CodePageOfOtherDatabases, UnicodeKeepsAnyScript) {
    EmbeddedConnection connection(std::make_shared<EmbeddedDatabase>(":memory:", CodePage::Utf8));
    connection.Execute("CREATE TABLE Agenda (Nume nvarchar(50))");
    connection.Execute("INSERT INTO Agenda VALUES ('Ελένη 名前 😀 Ťřinec')");
    EXPECT_EQ(data::ExecuteScalar(connection, "SELECT Nume FROM Agenda WHERE Nume LIKE '%😀%'").ToText(),
              "Ελένη 名前 😀 Ťřinec");
}

}  // namespace
}  // namespace tavrin::host
