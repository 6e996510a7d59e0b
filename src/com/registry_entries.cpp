#include "com/registry_entries.h"

#include <objbase.h>
#include <tavrin_interfaces.h>

#include <array>
#include <string>

#include "win32/module_path.h"
#include "win32/text.h"

namespace tavrin::com {
namespace {

constexpr wchar_t ProgramId[] = L"Tavrin.Utile";
constexpr wchar_t LibraryName[] = L"Tavrin - utilitare";
constexpr const wchar_t* Platform = sizeof(void*) == 8 ? L"win64" : L"win32";

// The system's own marshallers for what a type library describes.
constexpr wchar_t DispatchMarshaller[] = L"{00020420-0000-0000-C000-000000000046}";
constexpr wchar_t AutomationMarshaller[] = L"{00020424-0000-0000-C000-000000000046}";

std::wstring TextOf(REFGUID id) {
    std::array<wchar_t, 40> text{};
    StringFromGUID2(id, text.data(), static_cast<int>(text.size()));
    return text.data();
}

std::wstring VersionOf(const TLIBATTR& types) {
    return win32::ToWide(std::to_string(types.wMajorVerNum) + "." + std::to_string(types.wMinorVerNum));
}

std::wstring LibraryKey(const TLIBATTR& types) {
    return L"TypeLib\\" + TextOf(types.guid);
}

std::wstring FolderOf(const std::wstring& path) {
    return path.substr(0, path.find_last_of(L'\\'));
}

void AddInterface(std::vector<RegistryEntry>& entries, const TLIBATTR& types, REFIID id, const wchar_t* name,
                  const wchar_t* marshaller) {
    const std::wstring key = L"Interface\\" + TextOf(id);
    entries.push_back({key, L"", name});
    entries.push_back({key + L"\\ProxyStubClsid32", L"", marshaller});
    entries.push_back({key + L"\\TypeLib", L"", TextOf(types.guid)});
    entries.push_back({key + L"\\TypeLib", L"Version", VersionOf(types)});
}

}  // namespace

std::vector<RegistryEntry> ClassEntries(Server& server) {
    const TLIBATTR types = server.Types().Attributes();
    const std::wstring classId = TextOf(__uuidof(::Utile));
    const std::wstring classKey = L"CLSID\\" + classId;
    return {
        {ProgramId, L"", ProgramId},
        {std::wstring(ProgramId) + L"\\CLSID", L"", classId},
        {classKey, L"", ProgramId},
        {classKey + L"\\InprocServer32", L"", win32::ModulePath(server.Instance())},
        {classKey + L"\\InprocServer32", L"ThreadingModel", L"Apartment"},
        {classKey + L"\\ProgID", L"", ProgramId},
        {classKey + L"\\VersionIndependentProgID", L"", ProgramId},
        {classKey + L"\\TypeLib", L"", TextOf(types.guid)},
        {classKey + L"\\Version", L"", VersionOf(types)},
    };
}

std::vector<RegistryEntry> InterfaceEntries(Server& server) {
    const TLIBATTR types = server.Types().Attributes();
    std::vector<RegistryEntry> entries;
    AddInterface(entries, types, __uuidof(_Utile), L"_Utile", AutomationMarshaller);
    AddInterface(entries, types, __uuidof(__Utile), L"__Utile", DispatchMarshaller);
    return entries;
}

std::vector<RegistryEntry> TypeLibraryEntries(Server& server) {
    const TLIBATTR types = server.Types().Attributes();
    const std::wstring version = LibraryKey(types) + L"\\" + VersionOf(types);
    const std::wstring path = win32::ModulePath(server.Instance());
    return {
        {LibraryKey(types), L"", L""},     {version, L"", LibraryName},
        {version + L"\\0", L"", L""},      {TypeLibraryFileKey(server), L"", path},
        {version + L"\\FLAGS", L"", L"0"}, {version + L"\\HELPDIR", L"", FolderOf(path)},
    };
}

std::wstring TypeLibraryFileKey(Server& server) {
    const TLIBATTR types = server.Types().Attributes();
    return LibraryKey(types) + L"\\" + VersionOf(types) + L"\\0\\" + Platform;
}

}  // namespace tavrin::com
