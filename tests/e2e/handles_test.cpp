#include "win32/base/handles.h"

#include <gtest/gtest.h>

#include <array>
#include <utility>

#include "win32/base/library.h"

namespace tavrin::win32 {
namespace {

/// How many handles of the kernel the process holds.
DWORD HandleCount() {
    DWORD count = 0;
    GetProcessHandleCount(GetCurrentProcess(), &count);
    return count;
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

TEST(HandlesTest, WhatMovesToAnotherOwnerIsClosedOnce) {
    const DWORD before = HandleCount();
    {
        OwnedHandle first(CreateEventW(nullptr, TRUE, FALSE, nullptr));
        ASSERT_TRUE(first);
        const OwnedHandle second = std::move(first);
        EXPECT_FALSE(first);
        EXPECT_EQ(HandleCount(), before + 1);
    }
    EXPECT_EQ(HandleCount(), before);
}

TEST(HandlesTest, AKeyIsClosedWithItsOwner) {
    const DWORD before = HandleCount();
    {
        HKEY key = nullptr;
        RegOpenKeyExW(HKEY_CURRENT_USER, L"Software", 0, KEY_READ, &key);
        const OwnedKey owned(key);
        ASSERT_TRUE(owned);
        EXPECT_GT(HandleCount(), before);
    }
    EXPECT_EQ(HandleCount(), before);
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
