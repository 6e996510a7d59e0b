// What the component writes into the registry, and that it takes exactly that away again.

#include <initguid.h>

#include "e2e/com_test.h"
#include "e2e/driver/component.h"
#include "e2e/driver/process.h"
#include "e2e/driver/registry_snapshot.h"

namespace tavrin::e2e {
namespace {

using testing::AllOf;
using testing::Each;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class RegistrationTest : public testing::Test {
  protected:
    // The other tests need the registration.
    void TearDown() override { EXPECT_EQ(component.Register(), S_OK); }

    static std::wstring DefaultValue(const std::wstring& key, const wchar_t* name = L"") {
        std::array<wchar_t, 512> value{};
        auto size = static_cast<DWORD>(sizeof value);
        const LSTATUS result =
            RegGetValueW(HKEY_CLASSES_ROOT, key.c_str(), name, RRF_RT_REG_SZ, nullptr, value.data(), &size);
        return result == ERROR_SUCCESS ? value.data() : L"(none)";
    }

    /// Runs the system's own tool. \return its exit code
    static unsigned long RegisterServer(const std::wstring& options) {
        return RunProcess(L"regsvr32.exe /s " + options + L" \"" + Component::Path() + L"\"").exitCode;
    }

    static HRESULT CreateOnAThread() {
        UiThread thread;
        return thread.Call([] {
            win32::ComPtr<IUnknown> object;
            return CoCreateInstance(__uuidof(::Utile), nullptr, CLSCTX_INPROC_SERVER, __uuidof(IUnknown),
                                    object.ReceiveVoid());
        });
    }

    /// Wine 8 looks among the machine's classes alone. A Wine that does better fails the test that asks.
    static bool FindsClassesOfOneUser() {
        return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") == nullptr;
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
    ASSERT_EQ(component.Unregister(), S_OK);
    const RegistrySnapshot before = TakeRegistrySnapshot();
    ASSERT_EQ(component.Register(), S_OK);
    const RegistrySnapshot with = TakeRegistrySnapshot();
    ASSERT_EQ(component.Unregister(), S_OK);
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
    EXPECT_EQ(component.Register(), S_OK);
    EXPECT_EQ(TakeRegistrySnapshot(), once);
}

TEST_F(RegistrationTest, RemovalMayBeRepeated) {
    EXPECT_EQ(component.Unregister(), S_OK);
    EXPECT_EQ(component.Unregister(), S_OK);
}

TEST_F(RegistrationTest, TheMachinesToolRegistersAndRemoves) {
    ASSERT_EQ(component.Unregister(), S_OK);
    const RegistrySnapshot before = TakeRegistrySnapshot();
    EXPECT_EQ(RegisterServer(L""), 0U);
    const RegistrySnapshot with = TakeRegistrySnapshot();
    EXPECT_EQ(CreateOnAThread(), S_OK);
    EXPECT_EQ(RegisterServer(L"/u"), 0U);

    EXPECT_THAT(PathsOf(Missing(with, before)), Each(StartsWith("HKLM")));
    EXPECT_EQ(TakeRegistrySnapshot(), before);
}

TEST_F(RegistrationTest, OneUserMayRegisterForHimselfAlone) {
    ASSERT_EQ(component.Unregister(), S_OK);
    const RegistrySnapshot before = TakeRegistrySnapshot();
    EXPECT_EQ(RegisterServer(L"/n /i:user"), 0U);
    const RegistrySnapshot with = TakeRegistrySnapshot();
    EXPECT_EQ(CreateOnAThread(), FindsClassesOfOneUser() ? S_OK : REGDB_E_CLASSNOTREG);
    EXPECT_EQ(RegisterServer(L"/u /n /i:user"), 0U);

    EXPECT_THAT(PathsOf(Missing(with, before)), AllOf(Not(IsEmpty()), Each(StartsWith("HKCU"))));
    EXPECT_EQ(TakeRegistrySnapshot(), before);
    EXPECT_EQ(CreateOnAThread(), REGDB_E_CLASSNOTREG);
}

TEST_F(RegistrationTest, TheTypeLibraryIsFound) {
    EXPECT_EQ(LoadRegisteredLibrary(), S_OK);
    ASSERT_EQ(component.Unregister(), S_OK);
    EXPECT_EQ(LoadRegisteredLibrary(), TYPE_E_LIBNOTREGISTERED);
}

TEST_F(RegistrationTest, TheOtherBitnessKeepsItsTypeLibrary) {
    const std::wstring other = sizeof(void*) == 8 ? L"win32" : L"win64";
    const std::wstring version = L"TypeLib\\" + TextOf(LIBID_Tavrin) + L"\\1.0";
    const std::wstring file = L"Software\\Classes\\" + version + L"\\0\\" + other;
    ASSERT_EQ(RegSetKeyValueW(HKEY_LOCAL_MACHINE, file.c_str(), L"", REG_SZ, L"x", 4), ERROR_SUCCESS);
    EXPECT_EQ(component.Unregister(), S_OK);
    EXPECT_EQ(DefaultValue(version + L"\\0\\" + other), L"x");
    EXPECT_EQ(DefaultValue(version), L"Tavrin - utilitare");
    EXPECT_EQ(RegDeleteKeyW(HKEY_LOCAL_MACHINE, file.c_str()), ERROR_SUCCESS);
    EXPECT_EQ(component.Unregister(), S_OK);
    EXPECT_EQ(DefaultValue(version), L"(none)");
}

TEST_F(RegistrationTest, InstallersNameOneUserOrNobody) {
    EXPECT_EQ(component.Install(TRUE, L"everybody"), E_INVALIDARG);
    EXPECT_EQ(component.Install(TRUE, nullptr), S_OK);
    EXPECT_EQ(component.Install(TRUE, L""), S_OK);
    EXPECT_EQ(component.Install(TRUE, L"User"), S_OK);
    EXPECT_EQ(component.Install(FALSE, L"user"), S_OK);
}

TEST_F(RegistrationTest, AnUnregisteredClassCannotBeCreated) {
    ASSERT_EQ(component.Unregister(), S_OK);
    EXPECT_EQ(CreateOnAThread(), REGDB_E_CLASSNOTREG);
}

TEST_F(RegistrationTest, TheFileNamesItsVersion) {
    DWORD ignored = 0;
    const DWORD size = GetFileVersionInfoSizeW(Component::Path().c_str(), &ignored);
    ASSERT_GT(size, 0U);
    std::vector<char> block(size);
    ASSERT_TRUE(GetFileVersionInfoW(Component::Path().c_str(), 0, size, block.data()));
    void* found = nullptr;
    UINT length = 0;
    ASSERT_TRUE(VerQueryValueW(block.data(), L"\\", &found, &length));
    const auto& version = *static_cast<const VS_FIXEDFILEINFO*>(found);
    EXPECT_EQ(HIWORD(version.dwFileVersionMS), 1);
    EXPECT_EQ(version.dwFileType, static_cast<DWORD>(VFT_DLL));
}

}  // namespace
}  // namespace tavrin::e2e
