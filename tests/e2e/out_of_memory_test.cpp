// The component's objects where memory is short: each of their methods answers E_OUTOFMEMORY or does without,
// and the process lives on. The objects are made in this program, which can run short of memory at will.

#include <windows.h>

#include <ocidl.h>
#include <oleacc.h>

#include <memory>

#include "com/class_factory.h"
#include "com/server.h"
#include "e2e/com_test.h"
#include "e2e/driver/accessible_reader.h"
#include "e2e/driver/event_sink.h"
#include "e2e/memory_shortage.h"
#include "e2e/peers_test.h"
#include "win32/base/variant.h"

namespace tavrin::e2e {
namespace {

using win32::Bstr;
using win32::ComPtr;

constexpr int MostNeeded = 100000;

/// Makes the call with no memory, then with ever more, until it has enough.
/// \param next how much is granted after so much has not been enough
template <class Method>
void CallInShortage(
    const char* name, Method&& call, int (*next)(int) = [](int granted) { return granted + 1; }) {
    int granted = 0;
    for (bool wasFelt = true; wasFelt && granted < MostNeeded; granted = next(granted)) {
        HRESULT result = E_UNEXPECTED;
        {
            const MemoryShortage shortage(granted);
            result = call();
            wasFelt = MemoryShortage::WasFelt();
        }
        EXPECT_TRUE(SUCCEEDED(result) || (wasFelt && result == E_OUTOFMEMORY))
            << name << " answers " << win32::HexText(static_cast<std::uint32_t>(result)) << " with "
            << granted;
    }
    EXPECT_LT(granted, MostNeeded) << name << " never has enough";
}

int TwiceAsMuch(int granted) {
    return granted * 2 + 1;
}

class OutOfMemoryTest : public testing::Test {
  protected:
    void TearDown() override {
        thread.Call([&] {
            object.Reset();
            EXPECT_TRUE(!server || server->Retire()) << "a reference was kept";
            server.reset();
        });
    }

    /// A server that has read and made nothing yet, and an object of it.
    void Begin() {
        server = std::make_unique<com::Server>(GetModuleHandleW(L"Tavrin.dll"));
        win32::MakeObject<com::ClassFactory>(*server)->CreateInstance(nullptr, __uuidof(_Utile),
                                                                      object.ReceiveVoid());
    }

    ComPtr<IConnectionPoint> Point() {
        ComPtr<IConnectionPoint> point;
        object.As<IConnectionPointContainer>()->FindConnectionPoint(__uuidof(__Utile), point.Receive());
        return point;
    }

    Component component;  // the file of the type library
    UiThread thread;
    std::unique_ptr<com::Server> server;
    ComPtr<_Utile> object;
};

TEST_F(OutOfMemoryTest, TheFactoryMakesAnObjectOrNone) {
    thread.Call([&] {
        Begin();
        const auto factory = win32::MakeObject<com::ClassFactory>(*server);
        ComPtr<_Utile> made;
        CallInShortage("CreateInstance", [&] {
            return factory->CreateInstance(nullptr, __uuidof(_Utile), made.ReceiveVoid());
        });
        EXPECT_TRUE(made);
    });
}

TEST_F(OutOfMemoryTest, AnObjectDescribesItselfOrNot) {
    thread.Call([&] {
        ComPtr<ITypeInfo> info;
        UINT count = 0;
        Begin();
        CallInShortage("GetTypeInfoCount", [&] { return object->GetTypeInfoCount(&count); });
        CallInShortage("GetTypeInfo",
                       [&] { return object->GetTypeInfo(0, LOCALE_USER_DEFAULT, info.Receive()); });
        EXPECT_TRUE(info);
    });
}

TEST_F(OutOfMemoryTest, AnObjectNumbersItsNamesOrNot) {
    thread.Call([&] {
        wchar_t name[] = L"Apel";
        OLECHAR* names = name;
        DISPID id = 77;
        Begin();
        CallInShortage("GetIDsOfNames",
                       [&] { return object->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id); });
        EXPECT_EQ(id, 1);
    });
}

TEST_F(OutOfMemoryTest, AnObjectTellsItsClassOrNot) {
    thread.Call([&] {
        ComPtr<ITypeInfo> info;
        GUID id{};
        Begin();
        const auto provider = object.As<IProvideClassInfo2>();
        CallInShortage("GetGUID", [&] { return provider->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &id); });
        CallInShortage("GetClassInfo", [&] { return provider->GetClassInfo(info.Receive()); });
        EXPECT_TRUE(info);
        const auto support = object.As<ISupportErrorInfo>();
        CallInShortage("InterfaceSupportsErrorInfo",
                       [&] { return support->InterfaceSupportsErrorInfo(__uuidof(_Utile)); });
    });
}

TEST_F(OutOfMemoryTest, ConnectionPointsAreMadeOrNot) {
    thread.Call([&] {
        Begin();
        const auto container = object.As<IConnectionPointContainer>();
        ComPtr<IConnectionPoint> point;
        CallInShortage("FindConnectionPoint",
                       [&] { return container->FindConnectionPoint(__uuidof(__Utile), point.Receive()); });
        ComPtr<IEnumConnectionPoints> points;
        CallInShortage("EnumConnectionPoints",
                       [&] { return container->EnumConnectionPoints(points.Receive()); });
        ComPtr<IEnumConnectionPoints> copy;
        CallInShortage("Clone", [&] { return points->Clone(copy.Receive()); });
        CallInShortage("Skip", [&] { return points->Skip(1); });
        CallInShortage("Reset", [&] { return points->Reset(); });
        CallInShortage("Next", [&] { return points->Next(1, point.Receive(), nullptr); });
    });
}

TEST_F(OutOfMemoryTest, ListenersAreTakenOrNot) {
    thread.Call([&] {
        Begin();
        const ComPtr<IConnectionPoint> point = Point();
        const auto sink = win32::MakeObject<EventSink>();
        IID id{};
        CallInShortage("GetConnectionInterface", [&] { return point->GetConnectionInterface(&id); });
        ComPtr<IConnectionPointContainer> container;
        CallInShortage("GetConnectionPointContainer",
                       [&] { return point->GetConnectionPointContainer(container.Receive()); });
        DWORD cookie = 0;
        CallInShortage("Advise", [&] { return point->Advise(sink.Get(), &cookie); });
        EXPECT_NE(cookie, 0U);
        ComPtr<IEnumConnections> connections;
        CallInShortage("EnumConnections", [&] { return point->EnumConnections(connections.Receive()); });
        ComPtr<IEnumConnections> copy;
        CallInShortage("Clone", [&] { return connections->Clone(copy.Receive()); });
        CallInShortage("Unadvise", [&] { return point->Unadvise(cookie); });
    });
}

TEST_F(OutOfMemoryTest, ThePaletteOpensOrNot) {
    thread.Call([&] {
        Begin();
        IDispatch* none = nullptr;
        CallInShortage(
            "Apel", [&] { return object->Apel(&none, 37622, 2003, 1); }, TwiceAsMuch);
    });
    const Window palette = AwaitForm("Utilitati");
    thread.Call([&] { SendMessageW(palette.Handle(), WM_CLOSE, 0, 0); });
}

/// What tools for those who do not see call.
class AccessibleOutOfMemoryTest : public PeersTest {};

TEST_P(AccessibleOutOfMemoryTest, AControlTellsWhatItIsOrNot) {
    Call([&] {
        VARIANT self{};
        self.vt = VT_I4;
        for (const char* name : {"cmdStop", "field", "date"}) {
            const ComPtr<IAccessible> control = OpenAccessible(Control(name));
            VARIANT answer{};
            LONG count = 0;
            using Text = HRESULT (STDMETHODCALLTYPE IAccessible::*)(VARIANT, BSTR*);
            for (const Text ask : {&IAccessible::get_accName, &IAccessible::get_accValue,
                                   &IAccessible::get_accDescription, &IAccessible::get_accDefaultAction,
                                   &IAccessible::get_accKeyboardShortcut, &IAccessible::get_accHelp}) {
                CallInShortage(name, [&] {
                    BSTR text = nullptr;
                    const HRESULT result = ((*control.Get()).*ask)(self, &text);
                    SysFreeString(text);
                    return result;
                });
            }
            CallInShortage(name, [&] { return control->get_accRole(self, &answer); });
            CallInShortage(name, [&] { return control->get_accState(self, &answer); });
            CallInShortage(name, [&] { return control->get_accFocus(&answer); });
            CallInShortage(name, [&] { return control->get_accSelection(&answer); });
            CallInShortage(name, [&] { return control->get_accChildCount(&count); });
            LONG left = 0, top = 0, width = 0, height = 0;
            CallInShortage(name, [&] { return control->accLocation(&left, &top, &width, &height, self); });
            CallInShortage(name, [&] { return control->accHitTest(left + 1, top + 1, &answer); });
            CallInShortage(name, [&] { return control->accNavigate(NAVDIR_FIRSTCHILD, self, &answer); });
        }
    });
}
INSTANTIATE_TEST_SUITE_P(, AccessibleOutOfMemoryTest, testing::Values(LoopKind::Plain),
                         [](const auto&) { return std::string("Plain"); });

}  // namespace
}  // namespace tavrin::e2e
