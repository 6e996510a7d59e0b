#include "e2e/proofs/footprint.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <sstream>
#include <vector>

#include "win32/base/text.h"

namespace tavrin::e2e {

namespace {

int GdiObjects(const ResourceCount& count) {
    int sum = 0;
    for (const auto& [kind, number] : count.gdiObjects)
        sum += number;
    return sum;
}

using Names = std::multiset<std::string>;

// What the system makes when it is first needed, and keeps: nobody is to give it back.

/// Cursors and icons of its libraries.
bool IsKeptIcon(const std::string& icon) {
    std::array<wchar_t, MAX_PATH> folder{};
    GetSystemDirectoryW(folder.data(), static_cast<UINT>(folder.size()));
    return icon.find(win32::ToUtf8(folder.data())) != std::string::npos;
}

/// Classes of controls, whose names begin with the version of their library (6.0.2600.2982!Edit), the
/// messages of the common dialogs and the shell's clipboard format.
bool IsKeptAtom(const std::string& atom) {
    const std::size_t version = atom.find_first_not_of("0123456789.");
    const bool isClass = version != 0 && version != std::string::npos && atom[version] == '!';
    return isClass || atom.starts_with("commdlg_") || atom == "Shell IDList Array";
}

/// All but what has come and is kept: one of each name, as more of it would be a loss.
Names WithoutKept(const Names& before, const Names& after, bool (*isKept)(const std::string& name)) {
    Names names = after;
    std::erase_if(names, [&](const std::string& name) {
        return !before.contains(name) && after.count(name) == 1 && isKept(name);
    });
    return names;
}

void AddNew(std::ostream& text, const std::string& kind, const Names& before, const Names& after) {
    std::vector<std::string> added;
    std::ranges::set_difference(after, before, std::back_inserter(added));
    for (const std::string& name : added)
        text << kind << " \"" << name << "\" has stayed; ";
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
    resources.icons = WithoutKept(before.resources.icons, after.resources.icons, IsKeptIcon);
    resources.globalAtoms =
        WithoutKept(before.resources.globalAtoms, after.resources.globalAtoms, IsKeptAtom);
    if (!(resources == before.resources))
        text << "resources were " << before.resources << " and are " << resources << "; ";
    AddNew(text, "menu", before.resources.menus, resources.menus);
    AddNew(text, "icon", before.resources.icons, resources.icons);
    AddNew(text, "atom", before.resources.globalAtoms, resources.globalAtoms);
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
         << ", icons " << then.icons.size() << " to " << now.icons.size() << ", atoms "
         << then.globalAtoms.size() << " to " << now.globalAtoms.size() << ", modules "
         << before.modules.size() << " to " << after.modules.size() << ", heap bytes " << before.heapBytes
         << " to " << after.heapBytes << ", private bytes " << before.privateBytes << " to "
         << after.privateBytes;
    return text.str();
}

}  // namespace tavrin::e2e
