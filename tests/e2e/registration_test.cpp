// What the component writes into the registry, and that it takes exactly that away again.

#include <initguid.h>

#include "e2e/com_test.h"
#include "e2e/driver/component.h"
#include "e2e/driver/registry_snapshot.h"

namespace tavrin::e2e {
namespace {

using testing::IsEmpty;
using testing::Not;

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

TEST_F(RegistrationTest, AnUnregisteredClassCannotBeCreated) {
    ASSERT_EQ(component.Unregister(), S_OK);
    UiThread thread;
    const HRESULT result = thread.Call([] {
        win32::ComPtr<IUnknown> object;
        return CoCreateInstance(__uuidof(::Utile), nullptr, CLSCTX_INPROC_SERVER, __uuidof(IUnknown),
                                object.ReceiveVoid());
    });
    EXPECT_EQ(result, REGDB_E_CLASSNOTREG);
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
