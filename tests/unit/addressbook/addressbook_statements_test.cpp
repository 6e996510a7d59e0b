#include "addressbook/addressbook_statements.h"

#include <gtest/gtest.h>

#include "addressbook/messages.h"

namespace tavrin::addressbook {
namespace {

/// "v0" to "v15", each with blanks around it.
Person Numbered() {
    Person person;
    for (std::size_t i = 0; i < person.size(); ++i)
        person[i] = "  v" + std::to_string(i) + " ";
    return person;
}

TEST(AddressBookStatements, ListSelectsTheSixteenColumnsInTheOrderOfTheirNames) {
    EXPECT_EQ(
        ListStatement("Pop%", "%"),
        "SELECT AGENDA.Nume, AGENDA.Prenume, AGENDA.AdresaHome, AGENDA.OrasHome, AGENDA.JudetHome, "
        "AGENDA.TelefonAcasa, AGENDA.TelefonMobil, AGENDA.Email, AGENDA.DescriereFirma, "
        "AGENDA.AdresaFirma, AGENDA.OrasFirma, AGENDA.JudetFirma, AGENDA.Telefon, AGENDA.Fax, "
        "AGENDA.Departament, AGENDA.Functie FROM AGENDA  WHERE NUME LIKE 'Pop%' AND        PRENUME LIKE "
        "'%' ORDER BY AGENDA.Nume, AGENDA.Prenume");
}

TEST(AddressBookStatements, ListPutsPatternsInAsTheyAre) {
    const std::string statement = ListStatement(" a'b", "c ");
    EXPECT_NE(statement.find("NUME LIKE ' a'b' AND        PRENUME LIKE 'c ' ORDER BY"), std::string::npos);
}

TEST(AddressBookStatements, InsertGivesTheTrimmedValuesInColumnOrder) {
    EXPECT_EQ(InsertStatement(Numbered()),
              "INSERT INTO [Agenda](Nume , Prenume, AdresaHome, OrasHome, JudetHome, TelefonAcasa, "
              "TelefonMobil, Email, DescriereFirma, AdresaFirma, OrasFirma, JudetFirma, Telefon, Fax, "
              "Departament, Functie) VALUES ( "
              "'v0','v1','v2','v3','v4','v5','v6','v7','v8','v9','v10','v11','v12','v13','v14','v15')");
}

TEST(AddressBookStatements, InsertOfNamesAloneGivesFourteenEmptyTexts) {
    EXPECT_EQ(InsertStatement({"Pop", "Ana"}),
              "INSERT INTO [Agenda](Nume , Prenume, AdresaHome, OrasHome, JudetHome, TelefonAcasa, "
              "TelefonMobil, Email, DescriereFirma, AdresaFirma, OrasFirma, JudetFirma, Telefon, Fax, "
              "Departament, Functie) VALUES ( 'Pop','Ana','','','','','','','','','','','','','','')");
}

TEST(AddressBookStatements, UpdateChangesTheDetailsOfThePersonOfThatName) {
    EXPECT_EQ(UpdateStatement(Numbered()),
              "UPDATE [AGENDA]    SET AdresaHome ='v2',       OrasHome ='v3',       JudetHome ='v4',"
              "       TelefonAcasa ='v5',       TelefonMobil ='v6',       Email ='v7',"
              "       DescriereFirma ='v8',       AdresaFirma ='v9',       OrasFirma ='v10',"
              "       JudetFirma ='v11',       Telefon ='v12',       Fax ='v13',       Departament ='v14',"
              "       Functie ='v15' WHERE Nume ='v0' AND Prenume ='v1'");
}

TEST(AddressBookStatements, DeleteNamesThePersonWithBlanksAroundTheEqualsSign) {
    EXPECT_EQ(DeleteStatement(" Pop ", " Ana Maria "),
              "DELETE FROM [AGENDA] WHERE Nume = 'Pop' AND Prenume = 'Ana Maria'");
}

TEST(AddressBookStatements, SlashesInValuesAreData) {
    const std::string statement = InsertStatement({"A/B", "C/D"});
    EXPECT_NE(statement.find("'A/B','C/D'"), std::string::npos);
}

TEST(AddressBookStatements, NothingIsEscaped) {
    EXPECT_EQ(DeleteStatement("D'Angelo", "Io\"n"),
              "DELETE FROM [AGENDA] WHERE Nume = 'D'Angelo' AND Prenume = 'Io\"n'");
}

TEST(AddressBookMessages, TheTextOfARefusedDeleteIsKept) {
    EXPECT_STREQ(text::PersonInUse,
                 "Nu poate fi stearsa aceasta inregistrare deoarece exista inregistrari conexe care o "
                 "utilizeaza ! ");
}

}  // namespace
}  // namespace tavrin::addressbook
