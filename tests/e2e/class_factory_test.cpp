// The class factory: what it makes, what it refuses, and how it keeps the component loaded.

#include <windows.h>

#include <ocidl.h>

#include "e2e/com_test.h"

namespace tavrin::e2e {
namespace {

using win32::ComPtr;

// Nobody's class, and nobody's interface.
constexpr GUID Nobodys = {0x0b5d6a0e, 0x1111, 0x4222, {0x93, 0x33, 0x44, 0x44, 0x55, 0x55, 0x66, 0x66}};

class ClassFactoryTest : public ComTest {
  protected:
    HRESULT CanUnload() {
        return thread.Call([&] { return component.CanUnloadNow(); });
    }
};

TEST_F(ClassFactoryTest, RefusesAClassThatItDoesNotHave) {
    void* object = &object;
    EXPECT_EQ(component.GetClassObject(Nobodys, __uuidof(IClassFactory), &object), CLASS_E_CLASSNOTAVAILABLE);
    EXPECT_EQ(object, nullptr);
}

TEST_F(ClassFactoryTest, RefusesAnInterfaceThatItDoesNotHave) {
    void* object = &object;
    EXPECT_EQ(component.GetClassObject(__uuidof(::Utile), Nobodys, &object), E_NOINTERFACE);
    EXPECT_EQ(object, nullptr);
}

TEST_F(ClassFactoryTest, RefusesANullOutParameter) {
    EXPECT_EQ(component.GetClassObject(__uuidof(::Utile), __uuidof(IClassFactory), nullptr), E_POINTER);
    thread.Call(
        [&] { EXPECT_EQ(Factory()->CreateInstance(nullptr, __uuidof(IUnknown), nullptr), E_POINTER); });
}

TEST_F(ClassFactoryTest, RefusesAggregation) {
    thread.Call([&] {
        const ComPtr<IClassFactory> factory = Factory();
        void* object = &object;
        EXPECT_EQ(factory->CreateInstance(factory.Get(), __uuidof(IUnknown), &object), CLASS_E_NOAGGREGATION);
        EXPECT_EQ(object, nullptr);
    });
}

TEST_F(ClassFactoryTest, MakesADifferentObjectEachTime) {
    thread.Call([&] {
        const auto first = Create<IUnknown>();
        const auto second = Create<IUnknown>();
        ASSERT_TRUE(first);
        ASSERT_TRUE(second);
        EXPECT_NE(first.Get(), second.Get());
    });
}

TEST_F(ClassFactoryTest, ObjectsHaveTheInterfacesThatHostsAskFor) {
    thread.Call([&] {
        const auto object = Create<IUnknown>();
        EXPECT_TRUE(object.As<IDispatch>());
        EXPECT_TRUE(object.As<_Utile>());
        EXPECT_TRUE(object.As<IConnectionPointContainer>());
        EXPECT_TRUE(object.As<IProvideClassInfo>());
        EXPECT_TRUE(object.As<IProvideClassInfo2>());
        EXPECT_TRUE(object.As<ISupportErrorInfo>());
        EXPECT_FALSE(object.As<IPersist>());
        EXPECT_EQ(object.As<_Utile>().As<IUnknown>().Get(), object.Get()) << "an object has one identity";
    });
}

TEST_F(ClassFactoryTest, AnObjectKeepsTheComponentLoaded) {
    EXPECT_EQ(CanUnload(), S_OK);
    thread.Call([&] {
        const auto object = Create();
        EXPECT_EQ(component.CanUnloadNow(), S_FALSE);
    });
    EXPECT_EQ(CanUnload(), S_OK);
}

TEST_F(ClassFactoryTest, ALockKeepsTheComponentLoaded) {
    thread.Call([&] {
        Factory()->LockServer(TRUE);
        Factory()->LockServer(TRUE);
        EXPECT_EQ(component.CanUnloadNow(), S_FALSE);
        Factory()->LockServer(FALSE);
        EXPECT_EQ(component.CanUnloadNow(), S_FALSE);
        Factory()->LockServer(FALSE);
    });
    EXPECT_EQ(CanUnload(), S_OK);
}

TEST_F(ClassFactoryTest, AConnectionPointKeepsTheComponentLoaded) {
    thread.Call([&] {
        ComPtr<IConnectionPoint> point;
        Create<IConnectionPointContainer>()->FindConnectionPoint(__uuidof(__Utile), point.Receive());
        ASSERT_TRUE(point);
        EXPECT_EQ(component.CanUnloadNow(), S_FALSE);
    });
    EXPECT_EQ(CanUnload(), S_OK);
}

}  // namespace
}  // namespace tavrin::e2e
