#include "verify/kit_files.h"

#include <windows.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <vector>

#include "win32/base/module_path.h"
#include "win32/base/text.h"

namespace tavrin::verify {

std::wstring EnterKitFolder() {
    const std::wstring program = win32::ModulePath(nullptr);
    std::wstring folder = program.substr(0, program.find_last_of(L'\\') + 1);
    if (SetCurrentDirectoryW(folder.c_str()) == FALSE)
        throw std::runtime_error("the kit's folder cannot be entered");
    return folder;
}

std::string ReadKitFile(const wchar_t* name) {
    std::ifstream file(std::filesystem::path(name), std::ios::binary);
    if (!file) throw std::runtime_error(win32::ToUtf8(name) + " cannot be read");
    return {std::istreambuf_iterator<char>(file), {}};
}

bool WriteKitFile(const wchar_t* name, const std::string& content) {
    std::ofstream file(std::filesystem::path(name), std::ios::binary);
    file << content;
    return static_cast<bool>(file.flush());
}

std::string FileVersion(const wchar_t* name) {
    DWORD ignored = 0;
    std::vector<char> block(GetFileVersionInfoSizeW(name, &ignored));
    void* found = nullptr;
    UINT length = 0;
    if (block.empty() ||
        GetFileVersionInfoW(name, 0, static_cast<DWORD>(block.size()), block.data()) == FALSE ||
        VerQueryValueW(block.data(), L"\\", &found, &length) == FALSE) {
        return "no version";
    }
    const auto& version = *static_cast<const VS_FIXEDFILEINFO*>(found);
    std::string text;
    for (const DWORD half : {version.dwFileVersionMS, version.dwFileVersionLS})
        text += (text.empty() ? "" : ".") + std::to_string(HIWORD(half)) + "." + std::to_string(LOWORD(half));
    return text;
}

}  // namespace tavrin::verify
