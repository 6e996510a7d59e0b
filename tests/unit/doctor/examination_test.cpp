// The examination of a host's database, with each thing that it needs broken in turn.
#include "doctor/core/database_examination.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "addressbook/addressbook_statements.h"
#include "doctor/core/report.h"
#include "doctor/core/table_checks.h"
#include "doctor/embedded/embedded_examination.h"
#include "support/pass_through_connection.h"

namespace tavrin::doctor {
namespace {

using host::EmbeddedDatabase;
using testing::AllOf;
using testing::HasSubstr;

const std::vector<std::string> RateColumns{"[Data] datetime NOT NULL PRIMARY KEY", "Validat int", "EUR float",
                                           "[$] float"};
const std::vector<std::string> ListColumns{"Valuta nvarchar(10)", "Curs float"};
const std::vector<std::string> CompanyColumns{"Id int NOT NULL PRIMARY KEY", "Curs smalldatetime"};

std::vector<std::string> PersonColumns() {
    std::vector<std::string> columns;
    for (const std::string_view column : addressbook::Columns)
        columns.push_back(std::string(column) + " nvarchar(50)");
    return columns;
}

std::string Joined(const std::vector<std::string>& columns) {
    std::string list;
    for (const std::string& column : columns)
        list += (list.empty() ? "" : ", ") + column;
    return list;
}

/// A database in which a test leaves something out before it is examined.
class Examination : public testing::Test {
  protected:
    struct Table {
        std::string name;
        std::vector<std::string> columns;
        std::string key;
        std::string row;
    };
    std::vector<Table> tables{{"[Curs Valutar]", RateColumns, "", "('20030331', 1, 36580, 33480)"},
                              {"LpVal", ListColumns, "", "('EUR', 36580)"},
                              {"An", {"An int"}, "", "(2003)"},
                              {"AdmQuadrel.dbo.Societati", CompanyColumns, "", "(1, '20030331')"},
                              {"Agenda", PersonColumns(), ", UNIQUE (Nume, Prenume)", ""}};

    Table& Named(const std::string& name) { return *std::ranges::find(tables, name, &Table::name); }
    void Drop(const std::string& name) {
        std::erase_if(tables, [&](const Table& one) { return one.name == name; });
    }

    /// The column that begins so has another declaration; none at all where that is empty.
    void Redeclare(const std::string& table, const std::string& column, const std::string& declaration) {
        std::vector<std::string>& columns = Named(table).columns;
        const auto found =
            std::ranges::find_if(columns, [&](const std::string& one) { return one.starts_with(column); });
        ASSERT_NE(found, columns.end()) << column;
        Named(table).row = "";
        if (declaration.empty()) {
            columns.erase(found);
        } else {
            *found = declaration;
        }
    }

    std::shared_ptr<EmbeddedDatabase> Make() {
        auto database = std::make_shared<EmbeddedDatabase>(":memory:", page);
        for (const Table& table : tables) {
            database->Run("CREATE TABLE " + table.name + " (" + Joined(table.columns) + table.key + ")");
            if (!table.row.empty()) database->Run("INSERT INTO " + table.name + " VALUES " + table.row);
        }
        return database;
    }

    /// All findings of that verdict, one a line.
    std::string Found(Verdict verdict) {
        EmbeddedExamination database(Make());
        return Listed(ExamineDatabase(database, company), verdict);
    }
    static std::string Listed(const Report& report, Verdict verdict) {
        std::string list;
        for (const Section& section : report) {
            for (const Finding& finding : section.findings) {
                if (finding.verdict == verdict) list += finding.what.english + "\n";
                EXPECT_EQ(finding.verdict == Verdict::Good, finding.advice.english.empty())
                    << finding.what.english;
                EXPECT_FALSE(finding.what.romanian.empty());
            }
        }
        return list;
    }
    std::string Errors() { return Found(Verdict::Error); }
    std::string Warnings() { return Found(Verdict::Warning); }

    host::CodePage page = host::CodePage::Utf8;
    std::optional<std::int32_t> company;
};

TEST_F(Examination, FindsNothingWrongWhereAllIsThere) {
    EXPECT_EQ(Errors(), "");
    EXPECT_EQ(Warnings(), "");
    EXPECT_THAT(
        Found(Verdict::Good),
        AllOf(HasSubstr("Agenda: as it must be, columns: 16"),
              HasSubstr("AdmQuadrel.dbo.Societati: as it must be, columns: 2"),
              HasSubstr("a day cannot be entered twice"), HasSubstr("a person cannot be entered twice"),
              HasSubstr("EvolutieCurs: statements taken: 11"), HasSubstr("the database is as it was"),
              HasSubstr("company 1: rates validated up to 31/03/2003")));
}

TEST_F(Examination, SpeaksRomanianWithItsLetters) {
    Drop("An");
    EmbeddedExamination database(Make());
    const std::string text = PlainReport(ExamineDatabase(database, 9), {}, Language::Romanian);
    EXPECT_THAT(text, AllOf(HasSubstr("tabela lipse\u0219te"), HasSubstr("niciun r\u00e2nd"),
                            HasSubstr("rula\u021bi"), HasSubstr("instruc\u021biuni")));
    for (const char* const bare : {"lipseste", "rand ", "rulati", "instructiuni", " si ", "doua", "citita",
                                   "pastr", "gaseste", "persoana nu"})
        EXPECT_THAT(text, testing::Not(HasSubstr(bare)));
}

TEST_F(Examination, MissesEachTable) {
    for (const char* const name : {"[Curs Valutar]", "LpVal", "An", "AdmQuadrel.dbo.Societati", "Agenda"}) {
        const std::vector<Table> all = tables;
        Drop(name);
        EXPECT_THAT(Errors(), HasSubstr(std::string(name) + ": the table is missing"));
        tables = all;
    }
}

using ExaminationThorough = Examination;

TEST_F(ExaminationThorough, MissesEachColumn) {
    for (const ExpectedTable& table : ExpectedTables()) {
        for (const ExpectedColumn& column : table.columns) {
            const std::vector<Table> all = tables;
            const std::string written = column.name == "Data" ? "[Data]" : column.name + " ";
            Redeclare(table.FullName(), written, "Altceva int");
            Named(table.FullName()).key = "";
            EXPECT_THAT(Errors(),
                        HasSubstr(table.FullName() + ", " + column.name + ": the column is missing"));
            tables = all;
        }
    }
}

TEST_F(ExaminationThorough, SeesEachColumnOfAWrongType) {
    for (const ExpectedTable& table : ExpectedTables()) {
        for (const ExpectedColumn& column : table.columns) {
            const std::vector<Table> all = tables;
            const std::string written = column.name == "Data" ? "[Data]" : column.name + " ";
            const bool text = column.kind == ColumnKind::Text;
            Redeclare(table.FullName(), written,
                      "[" + column.name + (text ? "] datetime" : "] nvarchar(20)"));
            Named(table.FullName()).key = "";
            EXPECT_THAT(Errors(), HasSubstr(table.FullName() + ", " + column.name + " is " +
                                            (text ? "datetime, not text" : "nvarchar, not a ")));
            tables = all;
        }
    }
}

TEST_F(Examination, WantsTheCurrencyThatTheCalculatorAsksForFirst) {
    Redeclare("[Curs Valutar]", "[$]", "");
    EXPECT_EQ(Errors(), "[Curs Valutar] has no column $, which the calculator asks for first\n");
}

TEST_F(Examination, WantsCurrenciesThatAreNumbers) {
    Redeclare("[Curs Valutar]", "EUR", "EUR nvarchar(10)");
    EXPECT_THAT(Errors(), HasSubstr("[Curs Valutar], EUR is nvarchar, not float"));
}

TEST_F(Examination, WarnsOfCurrenciesThatAreNotFloat) {
    Redeclare("[Curs Valutar]", "EUR", "EUR money");
    EXPECT_EQ(Errors(), "");
    EXPECT_EQ(Warnings(), "[Curs Valutar], EUR is money, not float\n");
}

TEST_F(Examination, WantsDayAndFlagInFront) {
    Named("[Curs Valutar]").columns = {"EUR float", "[Data] datetime NOT NULL PRIMARY KEY", "[$] float"};
    Named("[Curs Valutar]").row = "";
    EXPECT_THAT(Errors(), AllOf(HasSubstr("the first column is EUR, not Data"),
                                HasSubstr("the second column is Data, not Validat")));
}

TEST_F(Examination, CountsNamesLetterForLetterWhereTheWindowsDo) {
    Redeclare("[Curs Valutar]", "[Data]", "DATA datetime NOT NULL PRIMARY KEY");
    EXPECT_THAT(Errors(), HasSubstr("the first column is DATA, not Data"));
}

TEST_F(Examination, WantsTheCompanysRow) {
    company = 9;
    EXPECT_EQ(Errors(), "AdmQuadrel.dbo.Societati has no row Id 9\n");
    company = std::nullopt;
    Named("AdmQuadrel.dbo.Societati").row = "";
    EXPECT_EQ(Errors(), "AdmQuadrel.dbo.Societati has no row\n");
}

TEST_F(Examination, WarnsWhereADayHasNoKey) {
    Redeclare("[Curs Valutar]", "[Data]", "[Data] datetime");
    EXPECT_EQ(Errors(), "");
    EXPECT_EQ(Warnings(), "[Curs Valutar] takes a day twice\n");
}

TEST_F(Examination, WarnsWhereAPersonHasNoKey) {
    Named("Agenda").key = "";
    EXPECT_EQ(Errors(), "");
    EXPECT_EQ(Warnings(), "Agenda takes a person twice; both would be changed and deleted together\n");
}

TEST_F(Examination, SeesAColumnThatTheWindowsDoNotFill) {
    Named("Agenda").columns.emplace_back("Cod int NOT NULL");
    EXPECT_THAT(Errors(), AllOf(HasSubstr("Agenda: INSERT INTO"), HasSubstr("column does not allow nulls")));
}

TEST_F(Examination, SeesATextThatIsTooShort) {
    Redeclare("Agenda", "Prenume", "Prenume nvarchar(3)");
    EXPECT_THAT(Errors(), HasSubstr("truncated"));
}

TEST_F(Examination, SeesLettersThatTheServerLoses) {
    page = host::CodePage::Western;
    EXPECT_THAT(Errors(), AllOf(HasSubstr("of the letters ăâîşţĂÂÎŞŢ remain aâîstAÂÎST")));
    page = host::CodePage::CentralEuropean;
    EXPECT_EQ(Errors(), "");
    EXPECT_EQ(Warnings(), "of the letters with a comma, șțȘȚ, remain ????\n");
}

TEST_F(Examination, LeavesTheDatabaseAsItIs) {
    const std::shared_ptr<EmbeddedDatabase> database = Make();
    EmbeddedExamination examined(database);
    ExamineDatabase(examined, company);
    host::EmbeddedConnection connection(database);
    const auto rates = connection.Execute("SELECT * FROM [Curs Valutar]");
    EXPECT_EQ(rates->FieldCount(), 4U);
    EXPECT_EQ(rates->RecordCount(), 1);
    EXPECT_EQ(connection.Execute("SELECT * FROM LpVal")->RecordCount(), 1);
    EXPECT_EQ(connection.Execute("SELECT * FROM Agenda")->RecordCount(), 0);
}

TEST_F(Examination, StaysClearOfWhatIsThere) {
    const std::shared_ptr<EmbeddedDatabase> database = Make();
    database->Run("INSERT INTO [Curs Valutar] VALUES ('20771231', 1, 1, 1)");
    database->Run("INSERT INTO Agenda (Nume, Prenume) VALUES ('Tavrin', 'Verificare')");
    database->Run("ALTER TABLE [Curs Valutar] ADD XTS float");
    EmbeddedExamination examined(database);
    EXPECT_EQ(Listed(ExamineDatabase(examined, company), Verdict::Error), "");
}

/// A server that does something of its own.
class OddServer : public ExaminedDatabase {
  public:
    explicit OddServer(std::shared_ptr<EmbeddedDatabase> database) : database_(std::move(database)) {}

    class Connection : public data::Connection {
      public:
        explicit Connection(OddServer& server) : server_(server) {}
        std::unique_ptr<data::Recordset> Execute(std::string_view statement) override {
            server_.Meet(statement);
            try {
                return server_.database_.Statements().Execute(server_.Rewritten(statement));
            } catch (const data::Error&) {
                server_.hasRefused = true;
                throw;
            }
        }
        std::unique_ptr<data::Recordset> CreateRecordset() override {
            return std::make_unique<Rows>(server_);
        }

      private:
        OddServer& server_;
    };

    class Rows : public tests::PassThroughRecordset {
      public:
        explicit Rows(OddServer& server)
            : PassThroughRecordset(server.database_.Statements().CreateRecordset()), server_(server) {}
        void Open(std::string_view source) override {
            server_.Meet(source);
            PassThroughRecordset::Open(server_.Rewritten(source));
        }

      private:
        OddServer& server_;
    };

    data::Connection& Statements() override { return connection_; }
    void Begin() override {
        if (!hasTransactions) throw data::Error(-2147168242, "no transactions");
        ++open;
        hasRefused = false;
        if (rollsBack) database_.Begin();
    }
    void RollBack() override {
        --open;
        if (rollsBack) database_.RollBack();
    }

    bool hasTransactions = true;
    bool rollsBack = true;
    int open = 0;
    int writesOutside = 0;
    bool hasRefused = false;  ///< a statement of this transaction, which a server may have ended then
    int writesAfterARefusal = 0;
    std::string denied;     ///< statements that begin so
    bool dayFirst = false;  ///< as under a language that reads 03-04 as 3 April

  private:
    void Meet(std::string_view statement) {
        const bool write = !statement.starts_with("SELECT") && !statement.starts_with("Select");
        if (write && open == 0) ++writesOutside;
        if (write && hasRefused) ++writesAfterARefusal;
        if (denied.empty() || !statement.starts_with(denied)) return;
        hasRefused = true;
        throw data::Error(-2147217911, "permission was denied");
    }
    std::string Rewritten(std::string_view statement) const {
        std::string text(statement);
        const std::string monthFirst = "'03-04-2003'";
        const std::size_t at = text.find(monthFirst);
        if (dayFirst && at != std::string::npos) text.replace(at, monthFirst.size(), "'04-03-2003'");
        return text;
    }

    EmbeddedExamination database_;
    Connection connection_{*this};
};

TEST_F(Examination, SeesALanguageThatPutsTheDayFirst) {
    OddServer server(Make());
    server.dayFirst = true;
    EXPECT_EQ(Listed(ExamineDatabase(server, company), Verdict::Error),
              "the date '03-04-2003' is read as 03/04/2003, not 04/03/2003: days and months are exchanged\n");
}

TEST_F(Examination, NamesEachStatementThatALoginMayNotRun) {
    for (const char* const statement :
         {"INSERT INTO [Agenda]", "UPDATE [AGENDA]", "DELETE FROM [AGENDA]", "INSERT INTO [Curs Valutar]",
          "UPDATE [Curs Valutar]", "DELETE FROM [Curs Valutar]", "ALTER TABLE [Curs Valutar]",
          "INSERT INTO LpVal", "SELECT An FROM An", "SELECT AGENDA.Nume", "SELECT * FROM [Curs Valutar]"}) {
        OddServer server(Make());
        server.denied = statement;
        const Report report = ExamineDatabase(server, company);
        EXPECT_THAT(Listed(report, Verdict::Error), AllOf(HasSubstr(std::string(": ") + statement),
                                                          HasSubstr("80040E09 permission was denied")));
        EXPECT_THAT(PlainReport(report, {}, Language::English),
                    HasSubstr("give the login the right (GRANT)"));
        EXPECT_EQ(server.writesOutside, 0);
        EXPECT_EQ(server.writesAfterARefusal, 0);
    }
}

TEST_F(Examination, WritesOnlyInTransactions) {
    OddServer server(Make());
    EXPECT_EQ(Listed(ExamineDatabase(server, company), Verdict::Error), "");
    EXPECT_EQ(server.writesOutside, 0);
    EXPECT_EQ(server.open, 0);
}

TEST_F(Examination, WritesNothingWithoutTransactions) {
    OddServer server(Make());
    server.hasTransactions = false;
    EXPECT_THAT(Listed(ExamineDatabase(server, company), Verdict::Error),
                HasSubstr("no transaction can be begun"));
    EXPECT_EQ(server.writesOutside, 0);
}

TEST_F(Examination, SeesThatSomethingWasNotRolledBack) {
    OddServer server(Make());
    server.rollsBack = false;
    EXPECT_THAT(Listed(ExamineDatabase(server, company), Verdict::Error),
                HasSubstr("the database is not as it was"));
}

}  // namespace
}  // namespace tavrin::doctor
