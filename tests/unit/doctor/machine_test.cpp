// What the doctor makes of a machine.
#include "doctor/core/machine.h"

#include <gmock/gmock.h>

namespace tavrin::doctor {
namespace {

using testing::HasSubstr;

Registration Sound(int bits, bool ofUser = false) {
    const std::string path = bits == 64 ? R"(C:\Tavrin\x64\Tavrin.dll)" : R"(C:\Tavrin\x86\Tavrin.dll)";
    return {bits, ofUser, path, true, bits, "1.0.0.0", "Apartment", path, true};
}

class MachineExamination : public testing::Test {
  protected:
    Machine machine{"Windows 10.0.19045",
                    64,
                    64,
                    {Sound(32), Sound(64)},
                    {true, "", R"(C:\Tavrin\x64\Tavrin.dll)"},
                    {"ADODB.Connection", "msado15.dll", "10.0"},
                    {{"SQLOLEDB", "sqloledb.dll", "10.0"}, {"MSOLEDBSQL", "", ""}}};

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
    EXPECT_EQ(Found(Verdict::Good),
              "Windows 10.0.19045: 64-bit\n"
              "ADO: msado15.dll 10.0\n"
              "SQLOLEDB: sqloledb.dll 10.0\n"
              "32-bit, for the machine: C:\\Tavrin\\x86\\Tavrin.dll 1.0.0.0\n"
              "64-bit, for the machine: C:\\Tavrin\\x64\\Tavrin.dll 1.0.0.0\n"
              "CreateObject(\"Tavrin.Utile\") loads, in 64-bit, C:\\Tavrin\\x64\\Tavrin.dll\n");
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

TEST_F(MachineExamination, WarnsWhereTheUsersGoesBeforeTheMachines) {
    machine.registrations.push_back(Sound(64, true));
    EXPECT_EQ(Found(Verdict::Warning), "");
    machine.registrations.back().path = "D:\\Tavrin.dll";
    EXPECT_EQ(Found(Verdict::Warning), "the user's registration goes before the machine's: D:\\Tavrin.dll\n");
}

TEST_F(MachineExamination, WarnsOfDifferentVersions) {
    machine.registrations[1].fileVersion = "1.1.0.0";
    EXPECT_EQ(Found(Verdict::Warning), "different versions: 1.0.0.0 and 1.1.0.0\n");
}

TEST_F(MachineExamination, OneBitnessIsEnough) {
    machine.registrations = {Sound(64)};
    EXPECT_EQ(Found(Verdict::Error) + Found(Verdict::Warning), "");
    EXPECT_THAT(Found(Verdict::Good), HasSubstr("not registered for 32-bit programs"));
}

TEST_F(MachineExamination, WarnsWhereNothingIsRegistered) {
    machine.registrations.clear();
    machine.creation = {false, "Class not registered", ""};
    EXPECT_EQ(Found(Verdict::Error), "") << "a manifest may serve";
    EXPECT_EQ(Found(Verdict::Warning),
              "not registered for 32-bit programs\nnot registered for 64-bit programs\n");
    machine.systemBits = 32;
    EXPECT_EQ(Found(Verdict::Warning), "not registered for 32-bit programs\n");
}

TEST_F(MachineExamination, SeesThatAnObjectCannotBeCreated) {
    machine.creation = {false, "Module not found", ""};
    EXPECT_EQ(Found(Verdict::Error), "CreateObject(\"Tavrin.Utile\") fails: Module not found\n");
}

TEST_F(MachineExamination, MissesAdoAndItsProviders) {
    machine.ado.path = "";
    EXPECT_EQ(Found(Verdict::Error), "ADO (ADODB.Connection) is missing for 64-bit\n");
    machine.providers = {};
    EXPECT_EQ(Found(Verdict::Warning), "no known provider for SQL Server in 64-bit\n");
}

}  // namespace
}  // namespace tavrin::doctor
