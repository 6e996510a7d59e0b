#include "doctor/core/server_checks.h"

#include <string>

#include "doctor/core/questions.h"

namespace tavrin::doctor {
namespace {

void ExamineDate(Section& section, data::Connection& connection, const std::string& written) {
    const std::string question = "SELECT CONVERT(nvarchar,CONVERT(datetime,'" + written + "'),103)";
    const std::string read = data::ExecuteScalar(connection, question).ToText();
    if (read == "04/03/2003") {
        section.Good({"data '" + written + "' este citită 4 martie 2003",
                      "the date '" + written + "' is read as 4 March 2003"});
        return;
    }
    section.Fail(
        {"data '" + written + "' este citită " + read + ", nu 04/03/2003: zilele și lunile se încurcă",
         "the date '" + written + "' is read as " + read + ", not 04/03/2003: days and months are exchanged"},
        {"dați contului limba us_english: ALTER LOGIN ... WITH DEFAULT_LANGUAGE = us_english",
         "give the login the language us_english: ALTER LOGIN ... WITH DEFAULT_LANGUAGE = us_english"});
}

std::string Kept(data::Connection& connection, const std::string& letters) {
    return data::ExecuteScalar(connection, "SELECT '" + letters + "'").ToText();
}

void ExamineLetters(Section& section, data::Connection& connection) {
    const std::string ofThePage = "ăâîşţĂÂÎŞŢ";
    const std::string kept = Kept(connection, ofThePage);
    if (kept == ofThePage) {
        section.Good({"literele " + ofThePage + " se păstrează", "the letters " + ofThePage + " are kept"});
    } else {
        section.Fail({"din literele " + ofThePage + " rămân " + kept,
                      "of the letters " + ofThePage + " remain " + kept},
                     {"dați bazei de date un collation românesc: ALTER DATABASE ... COLLATE Romanian_CI_AS",
                      "give the database a Romanian collation: ALTER DATABASE ... COLLATE Romanian_CI_AS"});
    }
    const std::string withComma = "șțȘȚ";
    const std::string keptOfThese = Kept(connection, withComma);
    if (keptOfThese == withComma) {
        section.Good({"și cele cu virgulă, " + withComma, "and so are those with a comma, " + withComma});
        return;
    }
    section.Warn(
        {"din literele cu virgulă, " + withComma + ", rămân " + keptOfThese,
         "of the letters with a comma, " + withComma + ", remain " + keptOfThese},
        {"folosiți tastatura \"Romanian (Legacy)\", care scrie ş și ţ cu sedilă, sau, de la SQL Server 2019, "
         "collation Romanian_100_CI_AS_SC_UTF8",
         "use the keyboard \"Romanian (Legacy)\", which types ş and ţ with a cedilla, or from SQL Server "
         "2019 on "
         "the collation Romanian_100_CI_AS_SC_UTF8"});
}

template <class Examine>
void Guarded(Section& section, const Text& what, Examine&& examine) {
    try {
        examine();
    } catch (const data::Error& error) {
        section.Fail(Refused(what, error), AdviceOn(error));
    }
}

}  // namespace

Section ExamineServer(data::Connection& connection) {
    Section section{{"Server: date și litere", "Server: dates and letters"}, {}};
    for (const char* const written : {"03-04-2003", "2003-03-04"}) {
        const Text what{std::string("data '") + written + "' nu este citită",
                        std::string("the date '") + written + "' is not read"};
        Guarded(section, what, [&] { ExamineDate(section, connection, written); });
    }
    Guarded(section, {"literele nu se pot încerca", "letters cannot be tried"},
            [&] { ExamineLetters(section, connection); });
    return section;
}

}  // namespace tavrin::doctor
