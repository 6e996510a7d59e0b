#include "doctor/windows/registrations.h"

#include <windows.h>

#include <oleauto.h>

#include <algorithm>

#include "doctor/core/error_words.h"
#include "doctor/windows/file_facts.h"
#include "win32/base/com_ptr.h"
#include "win32/base/module_path.h"
#include "win32/base/text.h"

namespace tavrin::doctor {
namespace {

constexpr wchar_t ProgramId[] = L"Tavrin.Utile";
constexpr wchar_t Dll[] = L"Tavrin.dll";

/// The classes of one root in one view of the registry.
struct Classes {
    HKEY root;
    const wchar_t* path;
    REGSAM view;

    /// A key's text; empty where there is none.
    std::wstring Read(const std::wstring& key, const wchar_t* name = nullptr) const {
        HKEY opened = nullptr;
        if (RegOpenKeyExW(root, (path + key).c_str(), 0, KEY_QUERY_VALUE | view, &opened) != ERROR_SUCCESS)
            return {};
        DWORD size = 0;
        std::wstring text;
        if (RegGetValueW(opened, nullptr, name, RRF_RT_REG_SZ, nullptr, nullptr, &size) == ERROR_SUCCESS) {
            text.resize(size / sizeof(wchar_t));
            if (RegGetValueW(opened, nullptr, name, RRF_RT_REG_SZ, nullptr, text.data(), &size) !=
                ERROR_SUCCESS)
                text.clear();
            text.resize(std::min(text.size(), text.find(L'\0')));
        }
        RegCloseKey(opened);
        return text;
    }
};

bool Is64BitSystem() {
    SYSTEM_INFO system{};
    GetNativeSystemInfo(&system);
    return system.wProcessorArchitecture != PROCESSOR_ARCHITECTURE_INTEL;
}

bool TypeLibraryLoads(const std::wstring& file) {
    win32::ComPtr<ITypeLib> library;
    return SUCCEEDED(LoadTypeLibEx(file.c_str(), REGKIND_NONE, library.Receive()));
}

/// A type library may stand for the user or for the machine, whichever the class stands for.
std::wstring TypeLibraryOf(const Classes& classes, const std::wstring& classKey, int bits) {
    const std::wstring id = classes.Read(classKey + L"\\TypeLib");
    if (id.empty()) return {};
    const std::wstring key = L"TypeLib\\" + id + L"\\" + classes.Read(classKey + L"\\Version") + L"\\0\\" +
                             (bits == 64 ? L"win64" : L"win32");
    for (const HKEY root : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE}) {
        std::wstring file = Classes{root, classes.path, classes.view}.Read(key);
        if (!file.empty()) return file;
    }
    return {};
}

void AddRegistration(std::vector<Registration>& found, bool ofUser, int bits) {
    const Classes classes{ofUser ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE, L"Software\\Classes\\",
                          static_cast<REGSAM>(bits == 64 ? KEY_WOW64_64KEY : KEY_WOW64_32KEY)};
    const std::wstring id = classes.Read(std::wstring(ProgramId) + L"\\CLSID");
    const std::wstring key = L"CLSID\\" + id;
    const std::wstring server = key + L"\\InprocServer32";
    const std::wstring path = id.empty() ? L"" : classes.Read(server);
    if (path.empty()) return;
    const std::wstring typeLibrary = TypeLibraryOf(classes, key, bits);
    found.push_back({bits, ofUser, win32::ToUtf8(path), FileExists(path), FileBits(path), FileVersion(path),
                     win32::ToUtf8(classes.Read(server, L"ThreadingModel")), win32::ToUtf8(typeLibrary),
                     !typeLibrary.empty() && TypeLibraryLoads(typeLibrary)});
}

}  // namespace

std::vector<Registration> FindRegistrations() {
    std::vector<Registration> found;
    for (const int bits : {32, 64}) {
        if (bits == 64 && !Is64BitSystem()) continue;
        AddRegistration(found, true, bits);
        AddRegistration(found, false, bits);
    }
    return found;
}

std::wstring FileOfClass(const wchar_t* programId) {
    CLSID id;
    if (FAILED(CLSIDFromProgID(programId, &id))) return {};
    wchar_t text[40];
    StringFromGUID2(id, text, 40);
    return Classes{HKEY_CLASSES_ROOT, L"", 0}.Read(std::wstring(L"CLSID\\") + text + L"\\InprocServer32");
}

Creation TryToCreate() {
    CLSID id;
    win32::ComPtr<IDispatch> object;
    HRESULT result = CLSIDFromProgID(ProgramId, &id);
    if (SUCCEEDED(result)) {
        result =
            CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, __uuidof(IDispatch), object.ReceiveVoid());
    }
    if (FAILED(result)) return {false, WordsOf({result, win32::SystemMessage(result)}), {}};
    return {true, {}, win32::ToUtf8(win32::ModulePath(GetModuleHandleW(Dll)))};
}

}  // namespace tavrin::doctor
