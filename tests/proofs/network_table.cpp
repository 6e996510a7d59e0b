// Prints the table of docs/proofs.md that says what each action costs on two lines to a database server.

#include <cstdio>

#include "proofs/network.h"

int main() {
    for (const std::string& line : tavrin::tests::NetworkTable(tavrin::tests::MeasureNetworkCosts()))
        std::puts(line.c_str());
    return 0;
}
