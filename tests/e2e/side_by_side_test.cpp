// The component found by its manifest alone, with nothing in the registry.

#include <initguid.h>

#include "e2e/com_test.h"
#include "e2e/driver/component.h"
#include "e2e/driver/registry_snapshot.h"

namespace tavrin::e2e {
namespace {

using win32::ComPtr;

/// What the system makes of a program's manifest that depends on the component's, active on the thread.
class ManifestScope {
  public:
    ManifestScope() {
        const std::wstring path = Component::Path().substr(0, Component::Path().find_last_of(L"\\/") + 1) +
                                  L"Tavrin.Utile.manifest";
        ACTCTXW settings{};
        settings.cbSize = sizeof settings;
        settings.lpSource = path.c_str();
        context_ = CreateActCtxW(&settings);
        isActive_ = context_ != INVALID_HANDLE_VALUE && ActivateActCtx(context_, &cookie_) != FALSE;
    }
    ~ManifestScope() {
        if (isActive_) DeactivateActCtx(0, cookie_);
        if (context_ != INVALID_HANDLE_VALUE) ReleaseActCtx(context_);
    }
    ManifestScope(const ManifestScope&) = delete;
    ManifestScope& operator=(const ManifestScope&) = delete;

    bool IsActive() const { return isActive_; }

  private:
    HANDLE context_;
    ULONG_PTR cookie_ = 0;
    bool isActive_;
};

/// Runs a body in an apartment of its own in which nothing but the manifest knows the component.
class SideBySideTest : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_EQ(Component().UnregisterAsAllowed(), S_OK);
        registry_ = TakeRegistrySnapshot();
    }
    void TearDown() override {
        const RegistrySnapshot written = Missing(TakeRegistrySnapshot(), registry_);
        EXPECT_TRUE(systemMayWrite || written.empty()) << "something was written";
        EXPECT_EQ(Component().RegisterAsAllowed(), S_OK);
    }

    template <class Body>
    static auto WithManifest(Body&& body) {
        UiThread thread;
        const auto result = thread.Call([&] {
            const ManifestScope scope;
            EXPECT_TRUE(scope.IsActive());
            return body();
        });
        thread.Call([] { CoFreeUnusedLibrariesEx(0, 0); });
        EXPECT_FALSE(Component::IsLoaded());
        return result;
    }

    static HRESULT Create(REFIID id, void** object) {
        CLSID classId{};
        const HRESULT named = CLSIDFromProgID(ProgramId, &classId);
        return FAILED(named) ? named : CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, id, object);
    }

    /// Wine's marshaller registers the type library that the manifest leads it to.
    bool systemMayWrite = false;

  private:
    RegistrySnapshot registry_;
};

TEST_F(SideBySideTest, TheManifestAloneCreatesTheClass) {
    EXPECT_EQ(WithManifest([] {
                  ComPtr<_Utile> object;
                  return Create(__uuidof(_Utile), object.ReceiveVoid());
              }),
              S_OK);
    UiThread thread;
    EXPECT_EQ(thread.Call([] {
        ComPtr<_Utile> object;
        return Create(__uuidof(_Utile), object.ReceiveVoid());
    }),
              CO_E_CLASSSTRING)
        << "without the manifest nobody knows the class";
}

TEST_F(SideBySideTest, TheManifestLeadsToTheTypeLibrary) {
    EXPECT_EQ(WithManifest([] {
                  ComPtr<ITypeLib> library;
                  return LoadRegTypeLib(LIBID_Tavrin, 1, 0, 0, library.Receive());
              }),
              S_OK);
}

TEST_F(SideBySideTest, AnotherApartmentReachesTheObject) {
    systemMayWrite = true;
    {
        UiThread owner;
        UiThread other;
        ComPtr<_Utile> object;
        ComPtr<IStream> stream;
        EXPECT_EQ(owner.Call([&] {
            const ManifestScope scope;
            const HRESULT created = Create(__uuidof(_Utile), object.ReceiveVoid());
            return FAILED(created) ? created
                                   : CoMarshalInterThreadInterfaceInStream(__uuidof(_Utile), object.Get(),
                                                                           stream.Receive());
        }),
                  S_OK);
        EXPECT_EQ(other.Call([&] {
            const ManifestScope scope;
            ComPtr<_Utile> proxy;
            return CoGetInterfaceAndReleaseStream(stream.Detach(), __uuidof(_Utile), proxy.ReceiveVoid());
        }),
                  S_OK);
        owner.Call([&] {
            object.Reset();
            CoFreeUnusedLibrariesEx(0, 0);
        });
    }
    EXPECT_FALSE(Component::IsLoaded());
}

}  // namespace
}  // namespace tavrin::e2e
