#include "win32/base/handles.h"

#include <gtest/gtest.h>

#include <array>
#include <utility>

#include "win32/base/library.h"

namespace tavrin::win32 {
namespace {

bool IsOpen(HANDLE handle) {
    DWORD flags = 0;
    return GetHandleInformation(handle, &flags) != FALSE;
}

bool IsOpen(HKEY key) {
    return RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                            nullptr, nullptr, nullptr) == ERROR_SUCCESS;
}

std::wstring FreshFile() {
    std::array<wchar_t, MAX_PATH> folder{};
    std::array<wchar_t, MAX_PATH> name{};
    GetTempPathW(static_cast<DWORD>(folder.size()), folder.data());
    GetTempFileNameW(folder.data(), L"own", 0, name.data());
    return name.data();
}

TEST(HandlesTest, AFileIsClosedWithItsOwner) {
    const std::wstring name = FreshFile();
    {
        const OwnedHandle file =
            OwnFile(CreateFileW(name.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr));
        ASSERT_TRUE(file);
        EXPECT_FALSE(DeleteFileW(name.c_str())) << "it is open and shared with nobody";
    }
    EXPECT_TRUE(DeleteFileW(name.c_str()));
}

TEST(HandlesTest, AFileThatDoesNotOpenHasNoHandle) {
    EXPECT_FALSE(OwnFile(CreateFileW(L"C:\\nobody has this", 0, 0, nullptr, OPEN_EXISTING, 0, nullptr)));
}

TEST(HandlesTest, WhatMovesToAnotherOwnerIsClosedWithIt) {
    HANDLE event = nullptr;
    {
        OwnedHandle first(CreateEventW(nullptr, TRUE, FALSE, nullptr));
        event = first.get();
        const OwnedHandle second = std::move(first);
        EXPECT_FALSE(first);
        EXPECT_TRUE(IsOpen(event));
    }
    EXPECT_FALSE(IsOpen(event));
}

TEST(HandlesTest, AKeyIsClosedWithItsOwner) {
    HKEY key = nullptr;
    {
        RegOpenKeyExW(HKEY_CURRENT_USER, L"Software", 0, KEY_READ, &key);
        const OwnedKey owned(key);
        EXPECT_TRUE(IsOpen(key));
    }
    EXPECT_FALSE(IsOpen(key));
}

TEST(HandlesTest, AWindowIsDestroyedWithItsOwner) {
    HWND window = nullptr;
    {
        const OwnedWindow owned(
            CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 1, 1, HWND_MESSAGE, nullptr, nullptr, nullptr));
        window = owned.get();
        ASSERT_TRUE(IsWindow(window));
    }
    EXPECT_FALSE(IsWindow(window));
}

TEST(HandlesTest, AnObjectOfThePainterIsDeletedWithItsOwner) {
    HGDIOBJ object = nullptr;
    {
        const OwnedRegion region(CreateRectRgn(0, 0, 1, 1));
        object = region.get();
        EXPECT_EQ(GetObjectType(object), static_cast<DWORD>(OBJ_REGION));
    }
    EXPECT_EQ(GetObjectType(object), 0U);
}

TEST(HandlesTest, WhatWasSelectedComesBackAtTheEndOfTheScope) {
    const WindowDc screen(nullptr);
    const HGDIOBJ before = GetCurrentObject(screen.Get(), OBJ_FONT);
    {
        const SelectScope scope(screen.Get(), GetStockObject(OEM_FIXED_FONT));
        EXPECT_EQ(GetCurrentObject(screen.Get(), OBJ_FONT), GetStockObject(OEM_FIXED_FONT));
    }
    EXPECT_EQ(GetCurrentObject(screen.Get(), OBJ_FONT), before);
}

TEST(HandlesTest, AFunctionThatTheSystemLacksIsNull) {
    EXPECT_EQ(SystemFunction<void()>(L"user32.dll", "NobodyHasThis"), nullptr);
    EXPECT_EQ(SystemFunction<void()>(L"nobody has this.dll", "GetTickCount"), nullptr);
    const SystemFunction<DWORD WINAPI()> process(L"kernel32.dll", "GetCurrentProcessId");
    ASSERT_NE(process, nullptr);
    EXPECT_EQ(process(), GetCurrentProcessId());
}

}  // namespace
}  // namespace tavrin::win32
