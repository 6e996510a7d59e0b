#include "e2e/driver/script.h"

#include <windows.h>

#include <filesystem>
#include <fstream>

#include "e2e/driver/wait.h"
#include "win32/base/text.h"

namespace tavrin::e2e {

namespace {

void WriteFile(const std::wstring& path, const std::string& text) {
    std::ofstream file(std::filesystem::path(path), std::ios::binary);
    file << text;
    if (!file.flush()) throw DriverError("cannot write " + win32::ToUtf8(path));
}

}  // namespace

ProcessResult RunScript(const std::string& text) {
    const std::wstring script = TemporaryPath(L"tavrin_e2e.vbs");
    WriteFile(script, text);
    ProcessResult result = RunProcess(L"cscript.exe //nologo \"" + script + L"\"");
    DeleteFileW(script.c_str());
    return result;
}

}  // namespace tavrin::e2e
