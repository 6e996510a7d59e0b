// What the component writes into the registry, and that it takes exactly that away again.

#include <initguid.h>

#include "e2e/com_test.h"
#include "e2e/driver/component.h"
#include "e2e/driver/platform.h"
#include "e2e/driver/process.h"
#include "e2e/driver/registry_snapshot.h"

namespace tavrin::e2e {
namespace {

using testing::AllOf;
using testing::Each;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class RegistrationTest : public testing::Test {
  protected:
    // The other tests need the registration.
    void TearDown() override { EXPECT_EQ(component.RegisterAsAllowed(), S_OK); }

    static std::wstring DefaultValue(const std::wstring& key, const wchar_t* name = L"") {
        std::array<wchar_t, 512> value{};
        auto size = static_cast<DWORD>(sizeof value);
        const LSTATUS result =
            RegGetValueW(HKEY_CLASSES_ROOT, key.c_str(), name, RRF_RT_REG_SZ, nullptr, value.data(), &size);
        return result == ERROR_SUCCESS ? value.data() : L"(none)";
    }

    /// Runs the system's own tool. \return its exit code
    static unsigned long RegisterServer(const std::wstring& options,
                                        const std::wstring& file = Component::Path()) {
        return RunProcess(L"regsvr32.exe /s " + options + L" \"" + file + L"\"").exitCode;
    }

    /// A second copy of the component, as an older version in another folder is one.
    static std::wstring MakeCopy() {
        std::wstring path = TemporaryPath(L"copy of Tavrin.dll");
        EXPECT_TRUE(CopyFileW(Component::Path().c_str(), path.c_str(), FALSE));
        return path;
    }

    /// The file that a key of the machine's names, or of the user's.
    static std::wstring RegisteredFile(HKEY root, const std::wstring& key) {
        std::array<wchar_t, 512> value{};
        auto size = static_cast<DWORD>(sizeof value);
        const LSTATUS result = RegGetValueW(root, (L"Software\\Classes\\" + key).c_str(), nullptr,
                                            RRF_RT_REG_SZ, nullptr, value.data(), &size);
        return result == ERROR_SUCCESS ? value.data() : L"(none)";
    }

    /// Where RegisterAsAllowed writes.
    static HKEY Root() { return MayRegisterForMachine() ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER; }

    static std::wstring ClassFileKey() {
        return L"CLSID\\" + TextOf(__uuidof(::Utile)) + L"\\InprocServer32";
    }
    static std::wstring LibraryFileKey(const wchar_t* platform = sizeof(void*) == 8 ? L"win64" : L"win32") {
        return L"TypeLib\\" + TextOf(LIBID_Tavrin) + LR"(\1.0\0\)" + platform;
    }

    /// One copy is registered, and removing another changes nothing; then the other way round.
    static void TwoCopies(HKEY root, const std::wstring& install, const std::wstring& remove) {
        const std::wstring copy = MakeCopy();
        ASSERT_EQ(RegisterServer(install), 0U);
        const RegistrySnapshot with = TakeRegistrySnapshot();
        EXPECT_EQ(RegisterServer(remove, copy), 0U);
        EXPECT_EQ(TakeRegistrySnapshot(), with);

        EXPECT_EQ(RegisterServer(install, copy), 0U);
        EXPECT_EQ(RegisterServer(remove), 0U);
        EXPECT_EQ(_wcsicmp(RegisteredFile(root, ClassFileKey()).c_str(), copy.c_str()), 0);
        EXPECT_EQ(_wcsicmp(RegisteredFile(root, LibraryFileKey()).c_str(), copy.c_str()), 0);
        EXPECT_EQ(RegisterServer(remove, copy), 0U);
        EXPECT_TRUE(DeleteFileW(copy.c_str()));
    }

    static HRESULT CreateOnAThread() {
        UiThread thread;
        return thread.Call([] {
            win32::ComPtr<IUnknown> object;
            return CoCreateInstance(__uuidof(::Utile), nullptr, CLSCTX_INPROC_SERVER, __uuidof(IUnknown),
                                    object.ReceiveVoid());
        });
    }

    static HRESULT LoadRegisteredLibrary() {
        win32::ComPtr<ITypeLib> library;
        return LoadRegTypeLib(LIBID_Tavrin, 1, 0, 0, library.Receive());
    }

    static std::vector<std::string> PathsOf(const RegistrySnapshot& entries) {
        std::vector<std::string> paths;
        for (const auto& [path, data] : entries)
            paths.push_back(path);
        return paths;
    }

    Component component;
};

TEST_F(RegistrationTest, RemovesExactlyWhatItHasWritten) {
    ASSERT_EQ(component.UnregisterAsAllowed(), S_OK);
    const RegistrySnapshot before = TakeRegistrySnapshot();
    ASSERT_EQ(component.RegisterAsAllowed(), S_OK);
    const RegistrySnapshot with = TakeRegistrySnapshot();
    ASSERT_EQ(component.UnregisterAsAllowed(), S_OK);
    const RegistrySnapshot after = TakeRegistrySnapshot();

    EXPECT_THAT(Missing(with, before), Not(IsEmpty())) << "nothing was written";
    EXPECT_THAT(Missing(before, with), IsEmpty()) << "something was overwritten";
    EXPECT_THAT(Missing(after, before), IsEmpty()) << "something was left behind";
    EXPECT_THAT(Missing(before, after), IsEmpty()) << "something else was taken away";
}

TEST_F(RegistrationTest, WritesTheClassItsFileAndItsThreading) {
    const std::wstring classId = DefaultValue(std::wstring(ProgramId) + L"\\CLSID");
    EXPECT_EQ(classId, TextOf(__uuidof(::Utile)));
    const std::wstring key = L"CLSID\\" + classId;
    EXPECT_EQ(DefaultValue(key + L"\\ProgID"), ProgramId);
    EXPECT_EQ(DefaultValue(key + L"\\TypeLib"), TextOf(LIBID_Tavrin));
    EXPECT_EQ(DefaultValue(key + L"\\InprocServer32", L"ThreadingModel"), L"Apartment");
    EXPECT_EQ(_wcsicmp(DefaultValue(key + L"\\InprocServer32").c_str(), Component::Path().c_str()), 0)
        << win32::ToUtf8(DefaultValue(key + L"\\InprocServer32"));
}

TEST_F(RegistrationTest, MayBeRepeated) {
    const RegistrySnapshot once = TakeRegistrySnapshot();
    EXPECT_EQ(component.RegisterAsAllowed(), S_OK);
    EXPECT_EQ(TakeRegistrySnapshot(), once);
}

TEST_F(RegistrationTest, RemovalMayBeRepeated) {
    EXPECT_EQ(component.UnregisterAsAllowed(), S_OK);
    EXPECT_EQ(component.UnregisterAsAllowed(), S_OK);
}

TEST_F(RegistrationTest, TheMachinesToolRegistersAndRemoves) {
    if (!MayRegisterForMachine()) GTEST_SKIP() << "only an administrator may register for the machine";
    ASSERT_EQ(component.UnregisterAsAllowed(), S_OK);
    const RegistrySnapshot before = TakeRegistrySnapshot();
    EXPECT_EQ(RegisterServer(L""), 0U);
    const RegistrySnapshot with = TakeRegistrySnapshot();
    EXPECT_EQ(CreateOnAThread(), S_OK);
    EXPECT_EQ(RegisterServer(L"/u"), 0U);

    EXPECT_THAT(PathsOf(Missing(with, before)), Each(StartsWith("HKLM")));
    EXPECT_EQ(TakeRegistrySnapshot(), before);
}

TEST_F(RegistrationTest, OneUserMayRegisterForHimselfAlone) {
    ASSERT_EQ(component.UnregisterAsAllowed(), S_OK);
    const RegistrySnapshot before = TakeRegistrySnapshot();
    EXPECT_EQ(RegisterServer(L"/n /i:user"), 0U);
    const RegistrySnapshot with = TakeRegistrySnapshot();
    EXPECT_EQ(CreateOnAThread(), FindsClassesOfOneUser() ? S_OK : REGDB_E_CLASSNOTREG);
    EXPECT_EQ(RegisterServer(L"/u /n /i:user"), 0U);

    EXPECT_THAT(PathsOf(Missing(with, before)), AllOf(Not(IsEmpty()), Each(StartsWith("HKCU"))));
    EXPECT_EQ(TakeRegistrySnapshot(), before);
    EXPECT_EQ(CreateOnAThread(), REGDB_E_CLASSNOTREG);
}

TEST_F(RegistrationTest, ACopyDoesNotRemoveWhatNamesAnother) {
    ASSERT_EQ(component.UnregisterAsAllowed(), S_OK);
    const RegistrySnapshot before = TakeRegistrySnapshot();
    if (MayRegisterForMachine()) TwoCopies(HKEY_LOCAL_MACHINE, L"", L"/u");
    TwoCopies(HKEY_CURRENT_USER, L"/n /i:user", L"/u /n /i:user");
    EXPECT_EQ(TakeRegistrySnapshot(), before);
}

TEST_F(RegistrationTest, ATypeLibraryOfAnotherFileStaysAlone) {
    const std::wstring key = L"Software\\Classes\\" + LibraryFileKey();
    ASSERT_EQ(RegSetKeyValueW(Root(), key.c_str(), L"", REG_SZ, L"x", 4), ERROR_SUCCESS);
    EXPECT_EQ(component.UnregisterAsAllowed(), S_OK);
    EXPECT_EQ(RegisteredFile(Root(), LibraryFileKey()), L"x");
    EXPECT_EQ(RegisteredFile(Root(), ClassFileKey()), L"(none)");
}

TEST_F(RegistrationTest, AShortNameIsTheSameFile) {
    std::array<wchar_t, MAX_PATH> path{};
    ASSERT_GT(GetShortPathNameW(Component::Path().c_str(), path.data(), MAX_PATH), 0U);
    ASSERT_STRNE(path.data(), Component::Path().c_str());
    const std::wstring key = L"Software\\Classes\\" + ClassFileKey();
    const auto size = static_cast<DWORD>((wcslen(path.data()) + 1) * sizeof(wchar_t));
    ASSERT_EQ(RegSetKeyValueW(Root(), key.c_str(), L"", REG_SZ, path.data(), size), ERROR_SUCCESS);
    EXPECT_EQ(component.UnregisterAsAllowed(), S_OK);
    EXPECT_EQ(RegisteredFile(Root(), ClassFileKey()), L"(none)");
}

// A 32-bit system has no other bitness.
#ifdef _WIN64
TEST_F(RegistrationTest, TheOtherBitnessKeepsItsProgramId) {
    const std::wstring key = L"Software\\Classes\\" + ClassFileKey();
    HKEY other = nullptr;
    ASSERT_EQ(RegCreateKeyExW(Root(), key.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS | KEY_WOW64_32KEY, nullptr,
                              &other, nullptr),
              ERROR_SUCCESS);
    EXPECT_EQ(component.UnregisterAsAllowed(), S_OK);
    EXPECT_EQ(RegisteredFile(Root(), ClassFileKey()), L"(none)");
    EXPECT_EQ(DefaultValue(ProgramId), ProgramId);

    EXPECT_EQ(RegDeleteKeyExW(other, L"", KEY_WOW64_32KEY, 0), ERROR_SUCCESS);
    EXPECT_EQ(RegCloseKey(other), ERROR_SUCCESS);
    const std::wstring parent = key.substr(0, key.find_last_of(L'\\'));
    EXPECT_EQ(RegDeleteKeyExW(Root(), parent.c_str(), KEY_WOW64_32KEY, 0), ERROR_SUCCESS);
    EXPECT_EQ(component.UnregisterAsAllowed(), S_OK);
    EXPECT_EQ(DefaultValue(ProgramId), L"(none)");
}
#endif

TEST_F(RegistrationTest, TheTypeLibraryIsFound) {
    EXPECT_EQ(LoadRegisteredLibrary(), S_OK);
    ASSERT_EQ(component.UnregisterAsAllowed(), S_OK);
    EXPECT_EQ(LoadRegisteredLibrary(), TYPE_E_LIBNOTREGISTERED);
}

TEST_F(RegistrationTest, TheOtherBitnessKeepsItsTypeLibrary) {
    const std::wstring other = sizeof(void*) == 8 ? L"win32" : L"win64";
    const std::wstring version = L"TypeLib\\" + TextOf(LIBID_Tavrin) + L"\\1.0";
    const std::wstring file = L"Software\\Classes\\" + version + L"\\0\\" + other;
    ASSERT_EQ(RegSetKeyValueW(Root(), file.c_str(), L"", REG_SZ, L"x", 4), ERROR_SUCCESS);
    EXPECT_EQ(component.UnregisterAsAllowed(), S_OK);
    EXPECT_EQ(DefaultValue(version + L"\\0\\" + other), L"x");
    EXPECT_EQ(DefaultValue(version), L"Tavrin - utilitare");
    EXPECT_EQ(RegDeleteKeyW(Root(), file.c_str()), ERROR_SUCCESS);
    EXPECT_EQ(component.UnregisterAsAllowed(), S_OK);
    EXPECT_EQ(DefaultValue(version), L"(none)");
}

TEST_F(RegistrationTest, InstallersNameOneUserOrNobody) {
    EXPECT_EQ(component.Install(TRUE, L"everybody"), E_INVALIDARG);
    const HRESULT forAll = MayRegisterForMachine() ? S_OK : E_ACCESSDENIED;
    EXPECT_EQ(component.Install(TRUE, nullptr), forAll);
    EXPECT_EQ(component.Install(TRUE, L""), forAll);
    EXPECT_EQ(component.Install(TRUE, L"User"), S_OK);
    EXPECT_EQ(component.Install(FALSE, L"user"), S_OK);
}

TEST_F(RegistrationTest, AnUnregisteredClassCannotBeCreated) {
    ASSERT_EQ(component.UnregisterAsAllowed(), S_OK);
    EXPECT_EQ(CreateOnAThread(), REGDB_E_CLASSNOTREG);
}

/// What the version resource of the component says.
class VersionResourceTest : public testing::Test {
  protected:
    void SetUp() override {
        DWORD ignored = 0;
        const DWORD size = GetFileVersionInfoSizeW(Component::Path().c_str(), &ignored);
        ASSERT_GT(size, 0U);
        block_.resize(size);
        ASSERT_TRUE(GetFileVersionInfoW(Component::Path().c_str(), 0, size, block_.data()));
    }

    template <class Value>
    const Value* Find(const std::wstring& path) {
        void* found = nullptr;
        UINT length = 0;
        return VerQueryValueW(block_.data(), path.c_str(), &found, &length) ? static_cast<Value*>(found)
                                                                            : nullptr;
    }

    std::wstring TextIn(const wchar_t* language, const std::wstring& name) {
        const auto* text = Find<wchar_t>(L"\\StringFileInfo\\" + std::wstring(language) + L"\\" + name);
        return text == nullptr ? L"(none)" : text;
    }

  private:
    std::vector<char> block_;
};

TEST_F(VersionResourceTest, NumbersAndTextsAgree) {
    const auto* version = Find<VS_FIXEDFILEINFO>(L"\\");
    ASSERT_NE(version, nullptr);
    EXPECT_EQ(version->dwFileType, static_cast<DWORD>(VFT_DLL));
    EXPECT_EQ(HIWORD(version->dwFileVersionMS), 1);
    const std::wstring number = std::to_wstring(HIWORD(version->dwFileVersionMS)) + L"." +
                                std::to_wstring(LOWORD(version->dwFileVersionMS)) + L"." +
                                std::to_wstring(HIWORD(version->dwFileVersionLS));
    for (const wchar_t* language : {L"041804B0", L"040904B0"}) {
        EXPECT_EQ(TextIn(language, L"ProductVersion"), number);
        EXPECT_EQ(TextIn(language, L"FileVersion"),
                  number + L"." + std::to_wstring(LOWORD(version->dwFileVersionLS)));
        EXPECT_EQ(TextIn(language, L"CompanyName"), L"Tavrin");
        EXPECT_THAT(TextIn(language, L"LegalCopyright"), StartsWith(L"Copyright \u00a9"));
    }
}

TEST_F(VersionResourceTest, SpeaksTwoLanguages) {
    EXPECT_THAT(TextIn(L"041804B0", L"FileDescription"), HasSubstr(L"utilitare"));
    EXPECT_THAT(TextIn(L"040904B0", L"FileDescription"), HasSubstr(L"utilities"));
    const auto* translations = Find<DWORD>(L"\\VarFileInfo\\Translation");
    ASSERT_NE(translations, nullptr);
    EXPECT_EQ(translations[0], 0x04B00418U);
    EXPECT_EQ(translations[1], 0x04B00409U);
}

}  // namespace
}  // namespace tavrin::e2e
