#include "doctor/windows/file_facts.h"

#include <windows.h>

#include <memory>
#include <vector>

namespace tavrin::doctor {
namespace {

struct Close {
    using pointer = HANDLE;
    void operator()(HANDLE file) const { CloseHandle(file); }
};
using File = std::unique_ptr<HANDLE, Close>;

/// Reads a whole structure at that place. False where the file ends before.
template <class Content>
bool ReadAt(HANDLE file, LONG place, Content& content) {
    if (SetFilePointer(file, place, nullptr, FILE_BEGIN) == INVALID_SET_FILE_POINTER) return false;
    DWORD read = 0;
    return ReadFile(file, &content, sizeof content, &read, nullptr) != FALSE && read == sizeof content;
}

}  // namespace

bool FileExists(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

int FileBits(const std::wstring& path) {
    const HANDLE opened = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, 0, nullptr);
    if (opened == INVALID_HANDLE_VALUE) return 0;
    const File file(opened);
    IMAGE_DOS_HEADER begin{};
    if (!ReadAt(file.get(), 0, begin) || begin.e_magic != IMAGE_DOS_SIGNATURE) return 0;
    struct {
        DWORD signature;
        IMAGE_FILE_HEADER header;
    } image{};
    if (!ReadAt(file.get(), begin.e_lfanew, image) || image.signature != IMAGE_NT_SIGNATURE) return 0;
    if (image.header.Machine == IMAGE_FILE_MACHINE_AMD64) return 64;
    return image.header.Machine == IMAGE_FILE_MACHINE_I386 ? 32 : 0;
}

std::string FileVersion(const std::wstring& path) {
    DWORD ignored = 0;
    const DWORD size = GetFileVersionInfoSizeW(path.c_str(), &ignored);
    if (size == 0) return {};
    std::vector<std::byte> block(size);
    if (GetFileVersionInfoW(path.c_str(), 0, size, block.data()) == FALSE) return {};
    void* found = nullptr;
    UINT length = 0;
    if (VerQueryValueW(block.data(), L"\\", &found, &length) == FALSE || length < sizeof(VS_FIXEDFILEINFO))
        return {};
    const auto* const version = static_cast<const VS_FIXEDFILEINFO*>(found);
    return std::to_string(HIWORD(version->dwFileVersionMS)) + "." +
           std::to_string(LOWORD(version->dwFileVersionMS)) + "." +
           std::to_string(HIWORD(version->dwFileVersionLS)) + "." +
           std::to_string(LOWORD(version->dwFileVersionLS));
}

}  // namespace tavrin::doctor
