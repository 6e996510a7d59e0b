#pragma once

#include <windows.h>

#include <gmock/gmock.h>
#include <tavrin_interfaces.h>

#include <array>
#include <string>

#include "e2e/driver/component.h"
#include "e2e/driver/ui_thread.h"
#include "win32/base/com_ptr.h"
#include "win32/base/text.h"

namespace tavrin::e2e {

inline std::wstring TextOf(REFGUID id) {
    std::array<wchar_t, 40> text{};
    StringFromGUID2(id, text.data(), static_cast<int>(text.size()));
    return text.data();
}

/// A test of the component's edge without a host's window or database: the DLL and an apartment.
class ComTest : public testing::Test {
  protected:
    void TearDown() override {
        EXPECT_EQ(thread.Call([&] { return component.CanUnloadNow(); }), S_OK) << "a reference was kept";
    }

    win32::ComPtr<IClassFactory> Factory() const {
        win32::ComPtr<IClassFactory> factory;
        component.GetClassObject(__uuidof(::Utile), __uuidof(IClassFactory), factory.ReceiveVoid());
        return factory;
    }

    template <class Interface = _Utile>
    win32::ComPtr<Interface> Create() const {
        win32::ComPtr<Interface> object;
        Factory()->CreateInstance(nullptr, __uuidof(Interface), object.ReceiveVoid());
        return object;
    }

    Component component;
    UiThread thread;
};

}  // namespace tavrin::e2e
