#include "com/registry_entries.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace tavrin::com {
namespace {

struct Row {
    Part part;
    const wchar_t* key;
    const wchar_t* name;
    const wchar_t* value;

    bool NamesTheFile() const { return value == std::wstring_view(L"<file>"); }
};

constexpr Row Rows[] = {
#include "registration_table.inc"
};

}  // namespace

std::vector<RegistryEntry> EntriesOf(Part part, const std::wstring& file) {
    std::vector<RegistryEntry> entries;
    for (const Row& row : Rows) {
        if (row.part == part) entries.push_back({row.key, row.name, row.NamesTheFile() ? file : row.value});
    }
    return entries;
}

std::wstring FileKeyOf(Part part) {
    const Row* found =
        std::ranges::find_if(Rows, [&](const Row& row) { return row.part == part && row.NamesTheFile(); });
    return found == std::end(Rows) ? L"" : found->key;
}

}  // namespace tavrin::com
