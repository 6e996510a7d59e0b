// docs/statements.md, held against what the windows send in every flow of a user.

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <regex>
#include <string>
#include <vector>

#include "proofs/flows.h"

namespace tavrin::tests {
namespace {

/// What stands in the document for values, in terms of regular expressions.
const std::map<std::string, std::string, std::less<>> Placeholders = {
    {"company", R"(-?\d+)"}, {"ymd", R"(\d{4}-\d\d-\d\d)"},  {"mdy", R"(\d\d-\d\d-\d{4})"},
    {"year", R"(\d+)"},      {"month", R"([1-9]|1[0-2])"},   {"currency", R"([^\[\]]+?)"},
    {"name", ".+?"},         {"rate", R"(-?\d+(?:\.\d+)?)"}, {"text", "(?:[^ ]|[^ ].*?[^ ])?"},
    {"pattern", ".*?"},
};

/// "SELECT [<currency>]{, <rate>}" as the expression that matches what is sent.
std::string ExpressionOf(const std::string& text) {
    std::string expression;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '<') {
            const std::size_t end = text.find('>', i);
            expression += "(?:" + Placeholders.at(text.substr(i + 1, end - i - 1)) + ")";
            i = end;
        } else if (text[i] == '{') {
            expression += "(?:";
        } else if (text[i] == '}') {
            expression += ")*";
        } else {
            if (std::string_view(R"(\^$.|?*+()[])").find(text[i]) != std::string_view::npos)
                expression += '\\';
            expression += text[i];
        }
    }
    return expression;
}

struct Entry {
    std::string line;
    std::regex expression;  ///< of the way, a blank and the statement
    int sent = 0;
};

std::vector<Entry> ReadDocument() {
    std::ifstream file(TAVRIN_SOURCE_FOLDER "/docs/statements.md");
    const std::regex entry(R"re((Open|Execute) "(.*)")re");
    std::vector<Entry> entries;
    std::smatch parts;
    for (std::string line; std::getline(file, line);) {
        if (std::regex_match(line, parts, entry))
            entries.push_back({line, std::regex(ExpressionOf(parts[1].str() + " " + parts[2].str()))});
    }
    return entries;
}

/// "Open SELECT ..." for each statement of a flow, its preparation included.
std::vector<std::string> StatementsOf(UserSession& session, const Flow& flow) {
    session.Restart();
    session.Apel();
    flow.prepare(session);
    flow.act(session);
    std::vector<std::string> statements;
    auto text = session.plan->Statements().begin();
    for (const Touch touch : session.plan->Touches()) {
        if (touch == Touch::Execute) statements.push_back("Execute " + *text++);
        if (touch == Touch::Open || touch == Touch::Requery) statements.push_back("Open " + *text++);
    }
    return statements;
}

/// Counts the entries that a statement is one of.
int Match(std::vector<Entry>& entries, const std::string& statement) {
    int found = 0;
    for (Entry& entry : entries) {
        if (!std::regex_match(statement, entry.expression)) continue;
        ++entry.sent;
        ++found;
    }
    return found;
}

TEST(StatementsDocument, ListsWhatTheWindowsSendAndNothingElse) {
    std::vector<Entry> entries = ReadDocument();
    UserSession session;
    for (const Flow& flow : AllFlows()) {
        for (const std::string& statement : StatementsOf(session, flow))
            EXPECT_EQ(Match(entries, statement), 1) << flow.name << ": " << statement;
    }
    for (const Entry& entry : entries)
        EXPECT_GT(entry.sent, 0) << "nobody sends" << entry.line;
}

}  // namespace
}  // namespace tavrin::tests
