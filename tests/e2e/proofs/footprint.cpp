#include "e2e/proofs/footprint.h"

#include <algorithm>
#include <iterator>
#include <sstream>
#include <vector>

namespace tavrin::e2e {

namespace {

int GdiObjects(const ResourceCount& count) {
    int sum = 0;
    for (const auto& [kind, number] : count.gdiObjects)
        sum += number;
    return sum;
}

}  // namespace

Footprint Footprint::Take() {
    Footprint footprint;
    footprint.modules = LoadedModules();
    footprint.heapBytes = HeapBytes();
    footprint.privateBytes = PrivateBytes();
    footprint.resources = ResourceCount::Take();
    return footprint;
}

std::string Differences(const Footprint& before, const Footprint& after, const Allowance& allowed) {
    std::ostringstream text;
    ResourceCount resources = after.resources;
    const int grown = GdiObjects(resources) - GdiObjects(before.resources);
    if (grown > 0 && grown <= allowed.gdiObjects) resources.gdiObjects = before.resources.gdiObjects;
    if (!(resources == before.resources))
        text << "resources were " << before.resources << " and are " << after.resources << "; ";
    std::vector<std::string> menus;
    std::ranges::set_difference(after.resources.menus, before.resources.menus, std::back_inserter(menus));
    for (const std::string& menu : menus)
        text << "a menu of \"" << menu << "\" has stayed; ";
    for (const std::string& module : after.modules) {
        if (!before.modules.contains(module)) text << module << " has stayed; ";
    }
    if (after.privateBytes > before.privateBytes + allowed.privateBytes)
        text << "private bytes have grown by " << after.privateBytes - before.privateBytes << "; ";
    return text.str();
}

std::string Describe(const Footprint& before, const Footprint& after) {
    const ResourceCount& then = before.resources;
    const ResourceCount& now = after.resources;
    std::ostringstream text;
    text << "GDI objects " << GdiObjects(then) << " to " << GdiObjects(now) << ", windows " << then.windows
         << " to " << now.windows << ", menus " << then.menus.size() << " to " << now.menus.size()
         << ", icons " << then.icons << " to " << now.icons << ", atoms " << then.globalAtoms << " to "
         << now.globalAtoms << ", modules " << before.modules.size() << " to " << after.modules.size()
         << ", heap bytes " << before.heapBytes << " to " << after.heapBytes << ", private bytes "
         << before.privateBytes << " to " << after.privateBytes;
    return text.str();
}

}  // namespace tavrin::e2e
