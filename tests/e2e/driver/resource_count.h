#pragma once

#include <windows.h>

#include <map>
#include <ostream>
#include <set>
#include <string>

#include "e2e/driver/ui_thread.h"

namespace tavrin::e2e {

/// How much of the system's shared goods this process holds, by kind. Two counts can be compared; the order
/// of counting does not matter, since counting itself leaves nothing behind.
struct ResourceCount {
    std::map<std::string, int> gdiObjects;  ///< by kind, from the table that the process shares with the
                                            ///< system; on Windows its own sums
    int windows = 0;                        ///< hidden and message-only ones too
    std::multiset<std::string> menus;       ///< by the texts of their entries; under Wine
    std::multiset<std::string> icons;       ///< cursors too, by where they come from; under Wine
    std::multiset<std::string> globalAtoms;

    static ResourceCount Take();

    bool operator==(const ResourceCount&) const = default;
};

std::ostream& operator<<(std::ostream& stream, const ResourceCount& count);

/// Kills all timers of the thread that belong to no window and counts them: the system tells of them in no
/// other way. Those of windows go with their windows.
int KillThreadTimers(UiThread& thread);

/// The modules in this process by their file names.
std::set<std::string> LoadedModules();

/// Memory in bytes: what the process has to itself, and what is in use in its heaps. The latter sees small
/// leaks that the former hides.
std::size_t PrivateBytes();
std::size_t HeapBytes();

}  // namespace tavrin::e2e
