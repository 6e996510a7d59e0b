#include "win32/whole_files.h"

#include <windows.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>

#include "win32/system_error.h"
#include "win32/text.h"

namespace tavrin::win32 {

namespace {

constexpr std::size_t LargestPiece = std::size_t{1} << 20;
constexpr int NamesTried = 100;

struct CloseFile {
    using pointer = HANDLE;
    void operator()(HANDLE file) const { CloseHandle(file); }
};
using OwnedFile = std::unique_ptr<HANDLE, CloseFile>;

OwnedFile Own(HANDLE file) {
    return OwnedFile(file != INVALID_HANDLE_VALUE ? file : nullptr);
}

bool IsReadOnly(const std::wstring& name) {
    const DWORD attributes = GetFileAttributesW(name.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
}

/// A new file beside another, which is gone with this object unless it has taken the other's place.
class FileBeside {
  public:
    explicit FileBeside(std::wstring target) : target_(std::move(target)) {
        for (int i = 0; i < NamesTried && !file_; ++i) {
            name_ = target_ +
                    ToWide("." + std::to_string(GetCurrentProcessId()) + "-" + std::to_string(i) + ".tmp");
            file_ = Own(CreateFileW(name_.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                    FILE_ATTRIBUTE_NORMAL, nullptr));
            if (!file_ && GetLastError() != ERROR_FILE_EXISTS) break;
        }
        if (!file_) ThrowLastError();
    }
    ~FileBeside() {
        if (name_.empty()) return;
        file_.reset();
        DeleteFileW(name_.c_str());
    }
    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;

    void Write(std::string_view content) {
        while (!content.empty()) {
            const auto piece = static_cast<DWORD>(std::min(content.size(), LargestPiece));
            DWORD written = 0;
            if (!WriteFile(file_.get(), content.data(), piece, &written, nullptr)) ThrowLastError();
            // A full disk may take less without calling it an error.
            if (written == 0) ThrowSystemError(HRESULT_FROM_WIN32(ERROR_DISK_FULL));
            content.remove_prefix(written);
        }
        if (!FlushFileBuffers(file_.get())) ThrowLastError();
    }

    void TakePlace() {
        file_.reset();
        const DWORD how = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
        if (!MoveFileExW(name_.c_str(), target_.c_str(), how)) ThrowLastError();
        name_.clear();
    }

  private:
    std::wstring target_;
    std::wstring name_;
    OwnedFile file_;
};

}  // namespace

std::string WholeFiles::Read(const std::string& name, std::size_t maximumSize) {
    const OwnedFile file = Own(CreateFileW(ToWide(name).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                           OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
    if (!file) ThrowLastError();
    LARGE_INTEGER size{};
    if (!GetFileSizeEx(file.get(), &size)) ThrowLastError();
    if (static_cast<ULONGLONG>(size.QuadPart) > maximumSize)
        ThrowSystemError(HRESULT_FROM_WIN32(ERROR_FILE_TOO_LARGE));
    std::string content(static_cast<std::size_t>(size.QuadPart), '\0');
    DWORD read = 0;
    if (!ReadFile(file.get(), content.data(), static_cast<DWORD>(content.size()), &read, nullptr))
        ThrowLastError();
    content.resize(read);
    return content;
}

void WholeFiles::Replace(const std::string& name, std::string_view content) {
    const std::wstring target = ToWide(name);
    if (IsReadOnly(target)) ThrowSystemError(HRESULT_FROM_WIN32(ERROR_ACCESS_DENIED));
    FileBeside file(target);
    file.Write(content);
    file.TakePlace();
}

}  // namespace tavrin::win32
