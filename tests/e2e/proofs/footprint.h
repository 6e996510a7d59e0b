#pragma once

#include <cstddef>
#include <set>
#include <string>

#include "e2e/driver/resource_count.h"

namespace tavrin::e2e {

/// What a process holds at one time. Two can be compared when nothing is under way.
struct Footprint {
    ResourceCount resources;
    std::set<std::string> modules;
    std::size_t privateBytes = 0;
    std::size_t heapBytes = 0;

    static Footprint Take();
};

/// By how much a process may grow all the same.
struct Allowance {
    std::size_t privateBytes = 0;
    int gdiObjects = 0;
};

/// What has grown or changed from one time to the other, in words; empty when nothing has.
std::string Differences(const Footprint& before, const Footprint& after, const Allowance& allowed);

/// Both in one line.
std::string Describe(const Footprint& before, const Footprint& after);

}  // namespace tavrin::e2e
