// Libraries and files of the system: where they are taken from, and how long their names may be.

#include <windows.h>

#include <gmock/gmock.h>

#include <string>

#include "data/error.h"
#include "e2e/driver/component.h"
#include "win32/base/library.h"
#include "win32/base/module_path.h"

namespace tavrin::e2e {
namespace {

using win32::Library;
using win32::OwnedModule;

/// A folder that is there while this object lives, and a file in it.
class FolderWithFile {
  public:
    FolderWithFile(std::wstring folder, const wchar_t* file, const std::wstring& content)
        : folder_(std::move(folder)), file_(folder_ + L"\\" + file) {
        CreateDirectoryW(folder_.c_str(), nullptr);
        CopyFileW(content.c_str(), file_.c_str(), FALSE);
    }
    ~FolderWithFile() {
        DeleteFileW(file_.c_str());
        RemoveDirectoryW(folder_.c_str());
    }
    FolderWithFile(const FolderWithFile&) = delete;
    FolderWithFile& operator=(const FolderWithFile&) = delete;

    const std::wstring& File() const { return file_; }

  private:
    std::wstring folder_;
    std::wstring file_;
};

class LibraryTest : public testing::Test {
  protected:
    static std::wstring ThisFolder() {
        const std::wstring program = win32::ModulePath(nullptr);
        return program.substr(0, program.find_last_of(L'\\'));
    }
};

TEST_F(LibraryTest, AFileBesideTheHostIsNotTheSystems) {
    const wchar_t* name = L"planted.dll";
    const std::wstring planted = ThisFolder() + L"\\" + name;
    ASSERT_TRUE(CopyFileW(Component::Path().c_str(), planted.c_str(), FALSE));
    EXPECT_EQ(Library(name).FindOptional<void()>("DllCanUnloadNow"), nullptr);
    EXPECT_EQ(GetModuleHandleW(name), nullptr);
    EXPECT_TRUE(OwnedModule(LoadLibraryW(name))) << "the platform alone would have taken it";
    DeleteFileW(planted.c_str());
}

TEST_F(LibraryTest, WhatTheSystemLacksIsAnErrorOrNothing) {
    const Library spooler(L"winspool.drv");
    EXPECT_NE(spooler.Find<void()>("GetDefaultPrinterW"), nullptr);
    EXPECT_EQ(spooler.FindOptional<void()>("NobodyHasThis"), nullptr);
    EXPECT_THROW(spooler.Find<void()>("NobodyHasThis"), data::Error);
    const Library none(L"nobody has this.dll");
    EXPECT_EQ(none.FindOptional<void()>("GetDefaultPrinterW"), nullptr);
    EXPECT_THROW(none.Find<void()>("GetDefaultPrinterW"), data::Error);
    EXPECT_THROW(none.Keep(), data::Error);
}

TEST_F(LibraryTest, OnesOwnPathMayBeLong) {
    const std::wstring first = L"\\\\?\\" + ThisFolder() + L"\\" + std::wstring(150, L'a');
    const FolderWithFile outer(first, L"Tavrin.dll", Component::Path());
    const FolderWithFile inner(first + L"\\" + std::wstring(150, L'b'), L"Far.dll", Component::Path());
    const OwnedModule module(LoadLibraryW(inner.File().c_str()));
    ASSERT_TRUE(module) << GetLastError();
    const std::wstring path = win32::ModulePath(module.get());
    EXPECT_GT(path.size(), std::size_t{MAX_PATH});
    EXPECT_TRUE(path.ends_with(L"\\Far.dll"));
}

}  // namespace
}  // namespace tavrin::e2e
