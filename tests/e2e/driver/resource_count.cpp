#include "e2e/driver/resource_count.h"

#include <psapi.h>
#include <winternl.h>

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "e2e/driver/platform.h"
#include "win32/base/handles.h"
#include "win32/base/text.h"

namespace tavrin::e2e {

namespace {

/// A line of the table of GDI objects; the same in 32-bit and 64-bit processes.
struct GdiEntry {
    std::uint64_t object;
    std::uint32_t owner;
    std::uint16_t unique;
    std::uint8_t type;
    std::uint8_t flags;
    std::uint64_t userPointer;
};
static_assert(sizeof(GdiEntry) == 24);
constexpr int GdiTableSize = 65536;

const GdiEntry* GdiTable() {
#ifdef _WIN64
    constexpr std::size_t tableInPeb = 0xF8;
#else
    constexpr std::size_t tableInPeb = 0x94;
#endif
    const auto* peb = reinterpret_cast<const std::byte*>(NtCurrentTeb()->ProcessEnvironmentBlock);
    return *reinterpret_cast<const GdiEntry* const*>(peb + tableInPeb);
}

std::string GdiKind(unsigned type) {
    switch (type & 0x1F) {
        case 0x01:
            return "device context";
        case 0x04:
            return "region";
        case 0x05:
            return "surface";
        case 0x08:
            return "palette";
        case 0x09:
            return "bitmap";
        case 0x0A:
            return "font";
        case 0x10:
            return "brush or pen";
        default:
            return "GDI object " + std::to_string(type);
    }
}

std::size_t BytesInUse(HANDLE heap) {
    std::size_t bytes = 0;
    PROCESS_HEAP_ENTRY entry{};
    HeapLock(heap);
    while (HeapWalk(heap, &entry)) {
        if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0) bytes += entry.cbData;
    }
    HeapUnlock(heap);
    return bytes;
}

/// Wine counts none; Windows counts them itself, and its tables are others than Wine's.
bool DoesSystemCount() {
    return !IsWine();
}

int CountedBySystem(DWORD kind) {
    return static_cast<int>(GetGuiResources(GetCurrentProcess(), kind));
}

std::map<std::string, int> CountGdiObjects() {
    GdiFlush();
    std::map<std::string, int> counts;
    if (DoesSystemCount()) {
        return {{"GDI objects", CountedBySystem(GR_GDIOBJECTS)},
                {"user objects", CountedBySystem(GR_USEROBJECTS)}};
    }
    const GdiEntry* table = GdiTable();
    for (int i = 0; i < GdiTableSize; ++i) {
        if (table[i].type != 0) ++counts[GdiKind(table[i].type)];
    }
    return counts;
}

struct WindowCounter {
    DWORD process = GetCurrentProcessId();
    int count = 0;

    void Add(HWND window) {
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        if (owner == process) ++count;
    }
};

BOOL CALLBACK AddWindow(HWND window, LPARAM counter) {
    reinterpret_cast<WindowCounter*>(counter)->Add(window);
    return TRUE;
}

BOOL CALLBACK AddTopLevelWindow(HWND window, LPARAM counter) {
    AddWindow(window, counter);
    EnumChildWindows(window, AddWindow, counter);
    return TRUE;
}

int CountWindows() {
    WindowCounter counter;
    EnumWindows(AddTopLevelWindow, reinterpret_cast<LPARAM>(&counter));
    for (HWND window = FindWindowExW(HWND_MESSAGE, nullptr, nullptr, nullptr); window != nullptr;
         window = FindWindowExW(HWND_MESSAGE, window, nullptr, nullptr)) {
        counter.Add(window);
    }
    return counter.count;
}

// Handles of the window manager are even numbers of a small range; without their upper half they stand for
// whatever lives in their slot now.
template <class Description>
std::multiset<std::string> DescribeUserHandles(Description&& description) {
    std::multiset<std::string> descriptions;
    for (std::uintptr_t slot = 0x20; slot < 0x10000; slot += 2) {
        if (const std::optional<std::string> text = description(slot)) descriptions.insert(*text);
    }
    return descriptions;
}

std::string OriginOf(const ICONINFOEXW& info) {
    if (info.szModName[0] == 0) return "made by the program";
    const std::string resource =
        info.wResID != 0 ? std::to_string(info.wResID) : win32::ToUtf8(info.szResName);
    return resource + " of " + win32::ToUtf8(info.szModName);
}

std::optional<std::string> DescriptionOfIcon(std::uintptr_t slot) {
    ICONINFOEXW info{};
    info.cbSize = sizeof info;
    if (!GetIconInfoExW(reinterpret_cast<HICON>(slot), &info)) return std::nullopt;
    // The bitmaps are copies made for the caller.
    const win32::OwnedBitmap mask(info.hbmMask);
    const win32::OwnedBitmap color(info.hbmColor);
    return (info.fIcon ? "icon " : "cursor ") + OriginOf(info);
}

std::optional<std::string> DescriptionOfMenu(std::uintptr_t slot) {
    const auto menu = reinterpret_cast<HMENU>(slot);
    if (!IsMenu(menu)) return std::nullopt;
    std::wstring texts;
    for (int i = 0; i < GetMenuItemCount(menu); ++i) {
        std::array<wchar_t, 64> text{};
        GetMenuStringW(menu, static_cast<UINT>(i), text.data(), static_cast<int>(text.size()), MF_BYPOSITION);
        texts += (i == 0 ? L"" : L", ") + std::wstring(text.data());
    }
    return win32::ToUtf8(texts);
}

std::multiset<std::string> NamesOfGlobalAtoms() {
    std::multiset<std::string> names;
    std::array<wchar_t, 256> name{};
    for (unsigned atom = 0xC000; atom <= 0xFFFF; ++atom) {
        if (GlobalGetAtomNameW(static_cast<ATOM>(atom), name.data(), static_cast<int>(name.size())) != 0)
            names.insert(win32::ToUtf8(name.data()));
    }
    return names;
}

}  // namespace

ResourceCount ResourceCount::Take() {
    ResourceCount count;
    count.windows = CountWindows();
    if (!DoesSystemCount()) {
        count.menus = DescribeUserHandles(DescriptionOfMenu);
        count.icons = DescribeUserHandles(DescriptionOfIcon);
    }
    count.globalAtoms = NamesOfGlobalAtoms();
    count.gdiObjects = CountGdiObjects();
    return count;
}

std::ostream& operator<<(std::ostream& stream, const ResourceCount& count) {
    for (const auto& [kind, number] : count.gdiObjects)
        stream << kind << ": " << number << ", ";
    return stream << "windows: " << count.windows << ", menus: " << count.menus.size()
                  << ", icons: " << count.icons.size() << ", atoms: " << count.globalAtoms.size();
}

int KillThreadTimers(UiThread& thread) {
    constexpr UINT_PTR LastId = 0x7FFF;
    return thread.Call([] {
        int killed = 0;
        for (UINT_PTR id = 1; id <= LastId; ++id) {
            if (KillTimer(nullptr, id)) ++killed;
        }
        return killed;
    });
}

std::set<std::string> LoadedModules() {
    std::array<HMODULE, 1024> modules{};
    DWORD size = 0;
    K32EnumProcessModules(GetCurrentProcess(), modules.data(), sizeof modules, &size);
    std::set<std::string> names;
    for (std::size_t i = 0; i < size / sizeof(HMODULE) && i < modules.size(); ++i) {
        std::array<wchar_t, 1024> path{};
        GetModuleFileNameW(modules[i], path.data(), static_cast<DWORD>(path.size()));
        names.insert(win32::ToUtf8(path.data()));
    }
    return names;
}

std::size_t PrivateBytes() {
    std::size_t bytes = 0;
    MEMORY_BASIC_INFORMATION region{};
    for (const char* place = nullptr; VirtualQuery(place, &region, sizeof region) != 0;
         place = static_cast<const char*>(region.BaseAddress) + region.RegionSize) {
        if (region.State == MEM_COMMIT && region.Type == MEM_PRIVATE) bytes += region.RegionSize;
    }
    return bytes;
}

std::size_t HeapBytes() {
    std::array<HANDLE, 64> heaps{};
    const DWORD count = GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data());
    std::size_t bytes = 0;
    for (DWORD i = 0; i < count && i < heaps.size(); ++i)
        bytes += BytesInUse(heaps[i]);
    return bytes;
}

}  // namespace tavrin::e2e
