// The type library, as development tools read it off the DLL's file, and what an object tells of its types.

#include <windows.h>

#include <ocidl.h>

#include <map>

#include "e2e/com_test.h"
#include "win32/base/variant.h"

namespace tavrin::e2e {
namespace {

using testing::ElementsAre;
using testing::Pair;
using testing::UnorderedElementsAre;
using win32::Bstr;
using win32::ComPtr;

class TypeLibraryTest : public ComTest {
  protected:
    static ComPtr<ITypeLib> LoadFromFile() {
        ComPtr<ITypeLib> library;
        LoadTypeLibEx(Component::Path().c_str(), REGKIND_NONE, library.Receive());
        return library;
    }

    static std::string NameOf(ITypeInfo& info, MEMBERID member = MEMBERID_NIL) {
        BSTR name = nullptr;
        info.GetDocumentation(member, &name, nullptr, nullptr, nullptr);
        return win32::ToUtf8(Bstr::Attach(name).View());
    }

    static std::vector<std::string> NamesOf(ITypeInfo& info, MEMBERID member) {
        std::array<BSTR, 8> names{};
        UINT count = 0;
        info.GetNames(member, names.data(), static_cast<UINT>(names.size()), &count);
        std::vector<std::string> texts;
        for (UINT i = 0; i < count; ++i)
            texts.push_back(win32::ToUtf8(Bstr::Attach(names[i]).View()));
        return texts;
    }
};

TEST_F(TypeLibraryTest, NamesTheClassAndItsInterfaces) {
    const ComPtr<ITypeLib> library = LoadFromFile();
    ASSERT_TRUE(library);
    BSTR libraryName = nullptr;
    library->GetDocumentation(MEMBERID_NIL, &libraryName, nullptr, nullptr, nullptr);
    EXPECT_EQ(win32::ToUtf8(Bstr::Attach(libraryName).View()), "Tavrin");

    std::map<std::string, TYPEKIND> kinds;
    for (UINT i = 0; i < library->GetTypeInfoCount(); ++i) {
        ComPtr<ITypeInfo> info;
        library->GetTypeInfo(i, info.Receive());
        TYPEKIND kind{};
        library->GetTypeInfoType(i, &kind);
        kinds.emplace(NameOf(*info), kind);
    }
    EXPECT_THAT(kinds, UnorderedElementsAre(Pair("Utile", TKIND_COCLASS), Pair("_Utile", TKIND_DISPATCH),
                                            Pair("__Utile", TKIND_DISPATCH)));
}

TEST_F(TypeLibraryTest, ApelHasItsFourParameters) {
    ComPtr<ITypeInfo> info;
    const ComPtr<ITypeLib> library = LoadFromFile();
    ASSERT_EQ(library->GetTypeInfoOfGuid(__uuidof(_Utile), info.Receive()), S_OK);
    wchar_t name[] = L"apel";
    OLECHAR* names = name;
    MEMBERID member = MEMBERID_NIL;
    ASSERT_EQ(info->GetIDsOfNames(&names, 1, &member), S_OK) << "names are found without regard to case";
    EXPECT_THAT(NamesOf(*info, member),
                ElementsAre("Apel", "cnn", "argDataProgram", "bExercitiuInCurs", "IdsoCN"));
}

TEST_F(TypeLibraryTest, IesireHasNone) {
    ComPtr<ITypeInfo> info;
    const ComPtr<ITypeLib> library = LoadFromFile();
    ASSERT_EQ(library->GetTypeInfoOfGuid(__uuidof(__Utile), info.Receive()), S_OK);
    EXPECT_THAT(NamesOf(*info, 1), ElementsAre("Iesire"));
}

TEST_F(TypeLibraryTest, AnObjectTellsItsClassAndItsEvents) {
    thread.Call([&] {
        const auto provider = Create<IProvideClassInfo2>();
        ComPtr<ITypeInfo> info;
        ASSERT_EQ(provider->GetClassInfo(info.Receive()), S_OK);
        EXPECT_EQ(NameOf(*info), "Utile");
        GUID events{};
        EXPECT_EQ(provider->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events), S_OK);
        EXPECT_EQ(TextOf(events), TextOf(__uuidof(__Utile)));
        EXPECT_EQ(provider->GetGUID(99, &events), E_INVALIDARG);
        EXPECT_EQ(provider->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, nullptr), E_POINTER);
    });
}

TEST_F(TypeLibraryTest, AnObjectTellsItsDispatchInterface) {
    thread.Call([&] {
        const auto object = Create();
        UINT count = 0;
        EXPECT_EQ(object->GetTypeInfoCount(&count), S_OK);
        EXPECT_EQ(count, 1U);
        ComPtr<ITypeInfo> info;
        EXPECT_EQ(object->GetTypeInfo(1, LOCALE_USER_DEFAULT, info.Receive()), DISP_E_BADINDEX);
        EXPECT_EQ(object->GetTypeInfo(0, LOCALE_USER_DEFAULT, info.Receive()), S_OK);
        EXPECT_EQ(NameOf(*info), "_Utile");
    });
}

TEST_F(TypeLibraryTest, ErrorsOfTheDefaultInterfaceAreDescribed) {
    thread.Call([&] {
        const auto support = Create<ISupportErrorInfo>();
        EXPECT_EQ(support->InterfaceSupportsErrorInfo(__uuidof(_Utile)), S_OK);
        EXPECT_EQ(support->InterfaceSupportsErrorInfo(__uuidof(IConnectionPointContainer)), S_FALSE);
    });
}

}  // namespace
}  // namespace tavrin::e2e
