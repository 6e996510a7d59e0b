// Apel from VBScript, through the system's script host.

#include <gmock/gmock.h>

#include "e2e/driver/script.h"

namespace tavrin::e2e {
namespace {

// A class of the script's own stands for the connection: Apel asks nothing of it.
constexpr const char* Prologue =
    "Class Conexiune\n"
    "End Class\n"
    "Sub Report(what)\n"
    "    WScript.Echo what & \": \" & Err.Number\n"
    "    Err.Clear\n"
    "End Sub\n"
    "Set utile = CreateObject(\"Tavrin.Utile\")\n"
    "Set cnn = New Conexiune\n";

ProcessResult CallFromScript(const std::string& statements) {
    return RunScript(Prologue + statements);
}

TEST(ScriptTest, CallsWithLiteralsAndVariables) {
    const ProcessResult result = CallFromScript(
        "utile.Apel cnn, #6/16/2003#, 2003, 2\n"
        "workDay = DateSerial(2003, 5, 20)\n"
        "workYear = 2003\n"
        "company = 1\n"
        "utile.Apel cnn, workDay, workYear, company\n"
        "Call utile.Apel(cnn, workDay, workYear, company)\n"
        "WScript.Echo \"called\"\n");
    EXPECT_EQ(result.output, "called\n");
    EXPECT_EQ(result.exitCode, 0U);
}

TEST(ScriptTest, CallsWithNothingForTheConnection) {
    const ProcessResult result = CallFromScript(
        "utile.Apel Nothing, #6/16/2003#, 2003, 2\n"
        "Set cnn = Nothing\n"
        "utile.Apel cnn, #6/16/2003#, 2003, 2\n"
        "WScript.Echo \"called\"\n");
    EXPECT_EQ(result.output, "called\n");
}

TEST(ScriptTest, ConvertsTextsAndNumbers) {
    const ProcessResult result = CallFromScript(
        "utile.Apel cnn, \"2003-06-16\", \"2003\", 2.0\n"
        "utile.Apel cnn, CDbl(37788), CLng(2003), CInt(2)\n"
        "WScript.Echo \"called\"\n");
    EXPECT_EQ(result.output, "called\n");
}

TEST(ScriptTest, ErrorsAreTheStandardOnes) {
    const ProcessResult result = CallFromScript(
        "On Error Resume Next\n"
        "utile.Apel cnn, #6/16/2003#, 2003\n"
        "Report \"count\"\n"
        "utile.Apel cnn, \"no date\", 2003, 2\n"
        "Report \"type\"\n"
        "utile.Apel cnn, #6/16/2003#, 70000, 2\n"
        "Report \"range\"\n"
        "utile.Apela\n"
        "Report \"name\"\n");
    // The script host's numbers: wrong number of arguments, type mismatch, overflow, no such method.
    EXPECT_EQ(result.output, "count: 450\ntype: 13\nrange: 6\nname: 438\n");
}

}  // namespace
}  // namespace tavrin::e2e
