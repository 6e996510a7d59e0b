#include "win32/system/whole_files.h"

#include <windows.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>

#include "forms/model/overwriting.h"
#include "win32/base/handles.h"
#include "win32/base/system_error.h"
#include "win32/base/text.h"

namespace tavrin::win32 {

namespace {

constexpr std::size_t LargestPiece = std::size_t{1} << 20;
constexpr int NamesTried = 100;
constexpr DWORD Sharing = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

bool Exists(const std::wstring& name) {
    return GetFileAttributesW(name.c_str()) != INVALID_FILE_ATTRIBUTES;
}

bool IsReadOnly(const std::wstring& name) {
    return Exists(name) && (GetFileAttributesW(name.c_str()) & FILE_ATTRIBUTE_READONLY) != 0;
}

/// Whether somebody has the file open who lets nobody take its name away.
bool IsNameHeld(const std::wstring& name) {
    const OwnedHandle file = OwnFile(
        CreateFileW(name.c_str(), DELETE, Sharing, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    return !file && GetLastError() == ERROR_SHARING_VIOLATION;
}

std::size_t SizeOf(HANDLE file) {
    LARGE_INTEGER size{};
    if (!GetFileSizeEx(file, &size)) ThrowLastError();
    return static_cast<std::size_t>(size.QuadPart);
}

std::string ReadAll(HANDLE file) {
    std::string content(SizeOf(file), '\0');
    std::size_t length = 0;
    while (length < content.size()) {
        const auto piece = static_cast<DWORD>(std::min(content.size() - length, LargestPiece));
        DWORD read = 0;
        if (!ReadFile(file, content.data() + length, piece, &read, nullptr)) ThrowLastError();
        if (read == 0) break;  // somebody has made it shorter
        length += read;
    }
    content.resize(length);
    return content;
}

void WriteAll(HANDLE file, std::string_view content) {
    while (!content.empty()) {
        const auto piece = static_cast<DWORD>(std::min(content.size(), LargestPiece));
        DWORD written = 0;
        if (!WriteFile(file, content.data(), piece, &written, nullptr)) ThrowLastError();
        // A full disk may take less without calling it an error.
        if (written == 0) ThrowSystemError(HRESULT_FROM_WIN32(ERROR_DISK_FULL));
        content.remove_prefix(written);
    }
}

void Flush(HANDLE file) {
    if (!FlushFileBuffers(file)) ThrowLastError();
}

void MoveTo(HANDLE file, std::size_t place) {
    LARGE_INTEGER distance{};
    distance.QuadPart = static_cast<LONGLONG>(place);
    if (!SetFilePointerEx(file, distance, nullptr, FILE_BEGIN)) ThrowLastError();
}

/// A new file beside another, which is gone with this object unless it has taken the other's place.
class FileBeside {
  public:
    explicit FileBeside(std::wstring target) : target_(std::move(target)) {
        for (int i = 0; i < NamesTried && !file_; ++i) {
            name_ = target_ +
                    ToWide("." + std::to_string(GetCurrentProcessId()) + "-" + std::to_string(i) + ".tmp");
            file_ = OwnFile(CreateFileW(name_.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                        FILE_ATTRIBUTE_NORMAL, nullptr));
            error_ = file_ ? ERROR_SUCCESS : GetLastError();
            if (!file_ && error_ != ERROR_FILE_EXISTS) break;
        }
        if (!file_) name_.clear();
    }
    /// Why there is no such file, if there is none.
    DWORD Error() const { return error_; }
    ~FileBeside() {
        if (name_.empty()) return;
        file_.reset();
        DeleteFileW(name_.c_str());
    }
    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;

    void Write(std::string_view content) {
        WriteAll(file_.get(), content);
        Flush(file_.get());
    }

    /// False where the other file is still there.
    bool TakePlace() {
        file_.reset();
        const DWORD attributes = GetFileAttributesW(target_.c_str());
        if (!Replace() && !Move()) return false;
        name_.clear();
        if (attributes != INVALID_FILE_ATTRIBUTES) SetFileAttributesW(target_.c_str(), attributes);
        return true;
    }

  private:
    /// Keeps what the old file was besides its content, its rights above all. It needs an old one, and not
    /// every drive knows it.
    bool Replace() const {
        return ReplaceFileW(target_.c_str(), name_.c_str(), nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr,
                            nullptr) != FALSE;
    }
    bool Move() const {
        const DWORD how = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
        return MoveFileExW(name_.c_str(), target_.c_str(), how) != FALSE;
    }

    std::wstring target_;
    std::wstring name_;
    OwnedHandle file_;
    DWORD error_ = ERROR_SUCCESS;
};

class FileInPlace final : public forms::OpenFile {
  public:
    explicit FileInPlace(const std::wstring& name)
        : file_(OwnFile(CreateFileW(name.c_str(), GENERIC_READ | GENERIC_WRITE, Sharing, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr))) {
        if (!file_) ThrowLastError();
    }

    std::string ReadAll() override {
        MoveTo(file_.get(), 0);
        return win32::ReadAll(file_.get());
    }
    void SetSize(std::size_t size) override {
        MoveTo(file_.get(), size);
        if (!SetEndOfFile(file_.get())) ThrowLastError();
    }
    void Write(std::string_view content) override {
        MoveTo(file_.get(), 0);
        WriteAll(file_.get(), content);
    }
    void Flush() override { win32::Flush(file_.get()); }

  private:
    OwnedHandle file_;
};

void WriteInPlace(const std::wstring& target, std::string_view content) {
    FileInPlace file(target);
    forms::Overwrite(file, content);
}

}  // namespace

std::string WholeFiles::Read(const std::string& name, std::size_t maximumSize) {
    const OwnedHandle file = OwnFile(CreateFileW(ToWide(name).c_str(), GENERIC_READ, Sharing, nullptr,
                                                 OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
    if (!file) ThrowLastError();
    if (SizeOf(file.get()) > maximumSize) ThrowSystemError(HRESULT_FROM_WIN32(ERROR_FILE_TOO_LARGE));
    return ReadAll(file.get());
}

void WholeFiles::Replace(const std::string& name, std::string_view content) {
    const std::wstring target = ToWide(name);
    if (IsReadOnly(target)) ThrowSystemError(HRESULT_FROM_WIN32(ERROR_ACCESS_DENIED));
    if (IsNameHeld(target)) return WriteInPlace(target, content);
    FileBeside file(target);
    if (file.Error() != ERROR_SUCCESS) {
        if (!Exists(target)) ThrowSystemError(HRESULT_FROM_WIN32(file.Error()));
        return WriteInPlace(target, content);
    }
    file.Write(content);
    if (!file.TakePlace()) WriteInPlace(target, content);
}

}  // namespace tavrin::win32
