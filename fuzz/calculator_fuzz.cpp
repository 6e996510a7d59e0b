// Feeds random actions to the calculator's engine and to the slow model of its rules, and stops where the two
// show different things. The first byte chooses the locale, every other one an action.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <span>
#include <string>

#include "unit/calculator/calculator_pair.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const std::span<const std::uint8_t> actions(data + 1, size - 1);
    tavrin::tests::CalculatorPair pair(data[0] % 2 == 0 ? ',' : '.');
    std::string done;
    for (const std::uint8_t choice : actions) {
        const char action = tavrin::tests::CalculatorPair::ActionOf(choice);
        done += action;
        const std::string difference = pair.Do(action, choice);
        if (difference.empty()) continue;
        std::cerr << done << ": " << difference << '\n';
        std::abort();
    }
    return 0;
}
