// What the doctor makes of a machine.
#include "doctor/core/machine.h"

#include <gmock/gmock.h>

#include "doctor/core/product.h"
#include "doctor/core/report.h"

namespace tavrin::doctor {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

Registration Sound(int bits, bool ofUser = false) {
    const std::string path = bits == 64 ? R"(C:\Tavrin\x64\Tavrin.dll)" : R"(C:\Tavrin\x86\Tavrin.dll)";
    return {bits, ofUser, path, true, bits, "1.0.0.0", "Apartment", path, true};
}

class MachineExamination : public testing::Test {
  protected:
    Machine machine{"Windows 10.0.19045",
                    64,
                    64,
                    false,
                    {Sound(32), Sound(64)},
                    {true, {}, R"(C:\Tavrin\x64\Tavrin.dll)"},
                    {"ADODB.Connection", "msado15.dll", "10.0"},
                    {{"SQLOLEDB", "sqloledb.dll", "10.0"}, {"MSOLEDBSQL", "", ""}}};

    /// All that is to be done, in one text.
    std::string Advice() const {
        std::string list;
        for (const Section& section : ExamineMachine(machine)) {
            for (const Finding& finding : section.findings)
                list += finding.advice.english + "\n";
        }
        return list;
    }

    std::string Found(Verdict verdict) const {
        std::string list;
        for (const Section& section : ExamineMachine(machine)) {
            for (const Finding& finding : section.findings) {
                if (finding.verdict == verdict) list += finding.what.english + "\n";
                EXPECT_EQ(finding.verdict == Verdict::Good, finding.advice.romanian.empty());
            }
        }
        return list;
    }
};

TEST_F(MachineExamination, SaysWhatIsThere) {
    EXPECT_EQ(Found(Verdict::Error) + Found(Verdict::Warning), "");
    EXPECT_EQ(
        Found(Verdict::Good),
        "Windows 10.0.19045: 64-bit\n"
        "ADO: msado15.dll 10.0\n"
        "SQLOLEDB: sqloledb.dll 10.0\n"
        "32-bit, for the machine: C:\\Tavrin\\x86\\Tavrin.dll 1.0.0.0\n"
        "64-bit, for the machine: C:\\Tavrin\\x64\\Tavrin.dll 1.0.0.0\n"
        "CreateObject(\"Tavrin.Utile\") loads, in 64-bit, C:\\Tavrin\\x64\\Tavrin.dll, the machine's\n");
}

TEST_F(MachineExamination, MissesTheFile) {
    machine.registrations[0].fileExists = false;
    EXPECT_EQ(Found(Verdict::Error),
              "32-bit, for the machine: the file is missing: C:\\Tavrin\\x86\\Tavrin.dll\n");
}

TEST_F(MachineExamination, SeesADllOfTheOtherBitness) {
    machine.registrations[0].fileBits = 64;
    EXPECT_EQ(Found(Verdict::Error), "32-bit, for the machine: C:\\Tavrin\\x86\\Tavrin.dll is 64-bit\n");
}

TEST_F(MachineExamination, SeesAWrongThreadingModel) {
    machine.registrations[1].threadingModel = "Both";
    EXPECT_EQ(Found(Verdict::Error), "64-bit, for the machine: ThreadingModel is 'Both', not Apartment\n");
}

TEST_F(MachineExamination, WarnsOfTheTypeLibrary) {
    machine.registrations[0].typeLibraryLoads = false;
    EXPECT_THAT(Found(Verdict::Warning),
                HasSubstr("32-bit, for the machine: the type library does not load from C:"));
    machine.registrations[0].typeLibrary = "";
    EXPECT_EQ(Found(Verdict::Warning), "32-bit, for the machine: the type library is not registered\n");
}

TEST_F(MachineExamination, SeesAFileThatIsNoProgram) {
    machine.registrations[0].fileBits = 0;
    EXPECT_EQ(Found(Verdict::Error),
              "32-bit, for the machine: C:\\Tavrin\\x86\\Tavrin.dll is no program, or cannot be read\n");
}

TEST_F(MachineExamination, NamesThePackageThatRepairs) {
    const std::string x86 = std::string("msiexec /famus Tavrin-") + ProductVersion + "-x86";
    machine.registrations[0].fileExists = false;
    EXPECT_THAT(Advice(), AllOf(HasSubstr(x86 + ".msi; "), HasSubstr("regsvr32 Tavrin.dll")));
    machine.registrations[0].ofUser = true;
    EXPECT_THAT(Advice(), AllOf(HasSubstr(x86 + "-user.msi; "), HasSubstr("regsvr32 /n /i:user Tavrin.dll")));
}

TEST_F(MachineExamination, SaysOnceWhichOfTwoIsTaken) {
    machine.registrations.push_back(Sound(32, true));
    machine.registrations.push_back(Sound(64, true));
    const std::string both =
        "registered both for the user and for the machine (32-bit, 64-bit): programs take the user's, those "
        "that run as administrator the machine's\n";
    EXPECT_EQ(Found(Verdict::Error) + Found(Verdict::Warning), "") << "one file twice";
    EXPECT_THAT(Found(Verdict::Good), HasSubstr(both));
    machine.registrations.back().path = "D:\\Tavrin.dll";
    EXPECT_EQ(Found(Verdict::Error), "");
    EXPECT_EQ(Found(Verdict::Warning), both);
    EXPECT_THAT(Advice(), HasSubstr(std::string("msiexec /x Tavrin-") + ProductVersion + "-x64-user.msi"));
}

TEST_F(MachineExamination, SaysWhoseFileIsLoaded) {
    machine.registrations.push_back(Sound(64, true));
    machine.registrations.back().path = "D:\\Tavrin.dll";
    EXPECT_THAT(Found(Verdict::Good), HasSubstr("x64\\Tavrin.dll, the machine's\n"));
    machine.doctorIsElevated = true;
    EXPECT_THAT(Found(Verdict::Good), HasSubstr("the machine's: this program runs as administrator\n"));
    machine.creation.path = "d:\\TAVRIN.DLL";
    EXPECT_THAT(Found(Verdict::Good), HasSubstr("d:\\TAVRIN.DLL, the user's\n"));
}

TEST_F(MachineExamination, WarnsOnlyOfWhatAdministratorsAloneCanMeet) {
    machine.registrations.push_back(Sound(64, true));
    machine.registrations[1].fileExists = false;
    EXPECT_EQ(Found(Verdict::Error), "");
    EXPECT_THAT(Found(Verdict::Warning), HasSubstr("64-bit, for the machine: the file is missing"));
    std::swap(machine.registrations[1].fileExists, machine.registrations[2].fileExists);
    EXPECT_THAT(Found(Verdict::Error), HasSubstr("64-bit, for the user: the file is missing"));
}

TEST_F(MachineExamination, TakesOneBitnessSeenFromBothForOne) {
    Registration seen = Sound(64, true);
    machine.registrations = {seen, seen};
    machine.registrations[0].bits = 32;
    EXPECT_EQ(Found(Verdict::Error) + Found(Verdict::Warning), "");
    EXPECT_THAT(Found(Verdict::Good), AllOf(HasSubstr("not registered for programs of 32 bits\n"),
                                            HasSubstr("64-bit, for the user: C:")));
    machine.registrations[1].path = "D:\\Tavrin.dll";
    EXPECT_EQ(Found(Verdict::Error), "32-bit, for the user: C:\\Tavrin\\x64\\Tavrin.dll is 64-bit\n")
        << "somebody meant it for them";
}

TEST_F(MachineExamination, WarnsOfDifferentVersions) {
    machine.registrations[1].fileVersion = "1.1.0.0";
    EXPECT_EQ(Found(Verdict::Warning), "different versions: 1.0.0.0 (32), 1.1.0.0 (64)\n");
    machine.registrations.push_back(Sound(64, true));
    EXPECT_EQ(Found(Verdict::Warning), "") << "what nobody takes does not count";
}

TEST_F(MachineExamination, OneBitnessIsEnough) {
    machine.registrations = {Sound(64)};
    EXPECT_EQ(Found(Verdict::Error) + Found(Verdict::Warning), "");
    EXPECT_THAT(Found(Verdict::Good), HasSubstr("not registered for programs of 32 bits"));
}

TEST_F(MachineExamination, WarnsWhereItsOwnBitnessIsMissing) {
    machine.registrations = {Sound(32)};
    machine.creation = {false, Same("Class not registered"), ""};
    EXPECT_EQ(Found(Verdict::Error), "");
    EXPECT_EQ(Found(Verdict::Warning), "not registered for programs of 64 bits\n");
    EXPECT_THAT(Advice(), HasSubstr(std::string("install Tavrin-") + ProductVersion + "-x64.msi"));
}

TEST_F(MachineExamination, FailsWhereNothingIsRegistered) {
    machine.registrations.clear();
    machine.creation = {false, Same("Class not registered"), ""};
    EXPECT_EQ(Found(Verdict::Error), "registered neither for the user nor for the machine\n");
    EXPECT_EQ(Found(Verdict::Warning), "");
    const std::string name = std::string("Tavrin-") + ProductVersion + "-x64";
    EXPECT_THAT(Advice(), AllOf(HasSubstr("install " + name + ".msi"), HasSubstr(name + "-user.msi"),
                                HasSubstr("a program with a manifest needs no registration")));
}

TEST_F(MachineExamination, SeesThatAnObjectCannotBeCreated) {
    machine.creation = {false, {"eroarea 0x1", "error 0x1"}, ""};
    EXPECT_EQ(Found(Verdict::Error), "CreateObject(\"Tavrin.Utile\") fails: error 0x1\n");
    EXPECT_THAT(Advice(), AllOf(Not(HasSubstr("administrator")), HasSubstr("-x64.msi")));
    machine.registrations = {Sound(64, true)};
    EXPECT_EQ(Found(Verdict::Error), "CreateObject(\"Tavrin.Utile\") fails: error 0x1\n");
    machine.doctorIsElevated = true;
    EXPECT_EQ(Found(Verdict::Error), "") << "the user's programs are none of an administrator's";
    EXPECT_EQ(Found(Verdict::Warning), "CreateObject(\"Tavrin.Utile\") fails: error 0x1\n");
    EXPECT_THAT(Advice(), HasSubstr("does not see what is registered for the user: run it as the user, or "
                                    "install Tavrin-"));
}

TEST_F(MachineExamination, AsAdministratorMeetsTheMachinesAlone) {
    machine.creation = {false, Same("Module not found"), ""};
    machine.registrations.push_back(Sound(64, true));
    machine.doctorIsElevated = true;
    EXPECT_EQ(Found(Verdict::Error), "");
    EXPECT_EQ(Found(Verdict::Warning), "CreateObject(\"Tavrin.Utile\") fails: Module not found\n");
    EXPECT_THAT(Advice(), AllOf(HasSubstr("-x64.msi; without"), Not(HasSubstr("-x64-user.msi"))));
    machine.doctorIsElevated = false;
    EXPECT_EQ(Found(Verdict::Error), "CreateObject(\"Tavrin.Utile\") fails: Module not found\n");
    EXPECT_THAT(Advice(), HasSubstr("-x64-user.msi; without"));
}

TEST_F(MachineExamination, SaysThatAFileHasNoVersion) {
    machine.ado.version = "";
    machine.registrations[0].fileVersion = "";
    EXPECT_THAT(Found(Verdict::Good), AllOf(HasSubstr("ADO: msado15.dll, without a version\n"),
                                            HasSubstr("Tavrin.dll, without a version\n")));
}

TEST_F(MachineExamination, SpeaksRomanianWithItsLetters) {
    machine.registrations[0].fileExists = false;
    machine.registrations[1].threadingModel = "";
    machine.creation.succeeded = false;
    machine.ado.path = "";
    machine.providers.clear();
    const std::string text = PlainReport(ExamineMachine(machine), {}, Language::Romanian);
    EXPECT_THAT(text, AllOf(HasSubstr("32 de bi\u021bi"), HasSubstr("fi\u0219ierul lipse\u0219te"),
                            HasSubstr("\u00eenregistra\u021bi"), HasSubstr("repara\u021bi Windows")));
    for (const char* const bare :
         {"biti", "fisier", "lipseste", "nregistrati", "reparati", "daca", "\u015f", "\u0163"})
        EXPECT_THAT(text, Not(HasSubstr(bare)));
}

TEST_F(MachineExamination, MissesAdoAndItsProviders) {
    machine.ado.path = "";
    EXPECT_EQ(Found(Verdict::Error), "ADO (ADODB.Connection) is missing for 64-bit\n");
    machine.providers = {};
    EXPECT_EQ(Found(Verdict::Warning), "no known provider for SQL Server in 64-bit\n");
}

}  // namespace
}  // namespace tavrin::doctor
