// The statements of the address book, blank for blank as they are sent.
#include <gmock/gmock.h>

#include "unit/embedded/embedded_test.h"

namespace tavrin::host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

std::string InsertStatement(const std::string& family, const std::string& given,
                            const std::string& town = "") {
    return "INSERT INTO [Agenda](Nume , Prenume, AdresaHome, OrasHome, JudetHome, TelefonAcasa, "
           "TelefonMobil, "
           "Email, DescriereFirma, AdresaFirma, OrasFirma, JudetFirma, Telefon, Fax, Departament, Functie) "
           "VALUES ( '" +
           family + "','" + given + "','','" + town + "','','','','','','','','','','','','')";
}

std::string ListStatement(const std::string& family, const std::string& given) {
    return "SELECT AGENDA.Nume, AGENDA.Prenume, AGENDA.AdresaHome, AGENDA.OrasHome, AGENDA.JudetHome, "
           "AGENDA.TelefonAcasa, AGENDA.TelefonMobil, AGENDA.Email, AGENDA.DescriereFirma, "
           "AGENDA.AdresaFirma, "
           "AGENDA.OrasFirma, AGENDA.JudetFirma, AGENDA.Telefon, AGENDA.Fax, AGENDA.Departament, "
           "AGENDA.Functie FROM AGENDA  WHERE NUME LIKE '" +
           family + "' AND        PRENUME LIKE '" + given + "' ORDER BY AGENDA.Nume, AGENDA.Prenume";
}

class AddressStatements : public EmbeddedTest {
  protected:
    AddressStatements() {
        Run(InsertStatement("Popescu", "Ion"));
        Run(InsertStatement("Pop", "Maria"));
        Run(InsertStatement("ionescu", "Ana"));
        Run(InsertStatement("Şerban", "Ioana"));
        Run(InsertStatement("Suciu", "Dan"));
        Run(InsertStatement("Tudor", "Vlad"));
    }

    std::vector<std::string> Names(const std::string& family, const std::string& given) {
        const data::TablePtr table = Run(ListStatement(family, given))->ReadAll();
        std::vector<std::string> names;
        for (std::size_t row = 0; row < table->RowCount(); ++row) {
            names.push_back(table->At(row, 0).ToText() + " " + table->At(row, 1).ToText());
        }
        return names;
    }
};

TEST_F(AddressStatements, ListGivesEverybodyInOrder) {
    EXPECT_THAT(Names("%", "%"), ElementsAre("ionescu Ana", "Pop Maria", "Popescu Ion", "Şerban Ioana",
                                             "Suciu Dan", "Tudor Vlad"));
}

TEST_F(AddressStatements, ListHasSixteenFieldsOfText) {
    const auto rows = Run(ListStatement("%", "%"));
    ASSERT_THAT(rows->Fields(), SizeIs(16));
    EXPECT_EQ(rows->FieldName(0), "Nume");
    EXPECT_EQ(rows->FieldName(15), "Functie");
    EXPECT_EQ(rows->Fields()[0].definedSize, 50);
    EXPECT_EQ(rows->Field("FUNCTIE"), data::Value(std::string()));
}

TEST_F(AddressStatements, PatternsDoNotSeeCase) {
    EXPECT_THAT(Names("POP", "%"), ElementsAre("Pop Maria"));
    EXPECT_THAT(Names("pop%", "%"), ElementsAre("Pop Maria", "Popescu Ion"));
    EXPECT_THAT(Names("%escu", "%"), ElementsAre("ionescu Ana", "Popescu Ion"));
    EXPECT_THAT(Names("şERBAN", "io%"), ElementsAre("Şerban Ioana"));
    EXPECT_THAT(Names("serban", "%"), IsEmpty());
    EXPECT_THAT(Names("_op", "%"), ElementsAre("Pop Maria"));
    EXPECT_THAT(Names(" Pop", "%"), IsEmpty());
}

TEST_F(AddressStatements, UpdateFindsThePersonByName) {
    Run("UPDATE [AGENDA]    SET AdresaHome ='Str. Lungă 5',       OrasHome ='Iaşi',       JudetHome ='Iaşi', "
        " "
        "     TelefonAcasa ='0232/000000',       TelefonMobil ='',       Email ='ion@example.ro',       "
        "DescriereFirma ='',       AdresaFirma ='',       OrasFirma ='',       JudetFirma ='',       Telefon "
        "='',       Fax ='',       Departament ='',       Functie ='contabil' WHERE Nume ='popescu' AND "
        "Prenume "
        "='Ion'");
    EXPECT_THAT(Rows("SELECT OrasHome, TelefonAcasa, Functie FROM Agenda WHERE OrasHome <> ''"),
                ElementsAre("Iaşi|0232/000000|contabil"));
}

TEST_F(AddressStatements, DeleteFindsThePersonByName) {
    EXPECT_EQ(Run("DELETE FROM [AGENDA] WHERE Nume = 'Pop' AND Prenume = 'Maria'")->AffectedRows(), 1);
    EXPECT_EQ(Run("DELETE FROM [AGENDA] WHERE Nume = 'Pop' AND Prenume = 'Maria'")->AffectedRows(), 0);
    EXPECT_THAT(Names("pop%", "%"), ElementsAre("Popescu Ion"));
}

TEST_F(AddressStatements, APersonIsRefusedASecondTime) {
    const data::Error error = ErrorOf(InsertStatement("POP", "maria"));
    EXPECT_EQ(error.Number(), data::error_number::IntegrityViolation);
    EXPECT_THAT(Names("%", "%"), SizeIs(6));
}

TEST_F(AddressStatements, AnApostropheBreaksTheStatement) {
    const data::Error error = ErrorOf(InsertStatement("O'Neill", "Sean"));
    EXPECT_EQ(error.Number(), data::error_number::ErrorsInCommand);
    EXPECT_THAT(error.Description(), testing::StartsWith("Unclosed quotation mark"));
    Run(InsertStatement("O''Neill", "Sean"));
    EXPECT_THAT(Names("o''neill", "%"), ElementsAre("O'Neill Sean"));
}

TEST_F(AddressStatements, TextThatIsTooLongIsRefusedWhole) {
    const std::string fifty(50, 'a');
    Run(InsertStatement(fifty, "x"));
    const data::Error error = ErrorOf(InsertStatement(fifty + "b", "x"));
    EXPECT_EQ(error.Number(), -2147217833);
    EXPECT_EQ(error.Description(), "String or binary data would be truncated.");
    Run(InsertStatement(fifty, "y" + std::string(60, ' ')));
    EXPECT_THAT(Names("aaa%", "%"), SizeIs(2));
}

}  // namespace
}  // namespace tavrin::host
