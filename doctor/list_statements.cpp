// Every statement of every window, one on each line.

#include <cstdio>

#include "doctor/core/window_statements.h"

int main() {
    using namespace tavrin::doctor;
    for (const StatementGroup& group : WindowStatements(UnlikelySample())) {
        for (const std::string& statement : group.statements)
            std::printf("%s\n", statement.c_str());
    }
    return 0;
}
