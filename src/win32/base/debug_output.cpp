#include "win32/base/debug_output.h"

#include <windows.h>

#include <string>

#include "win32/base/handles.h"
#include "win32/base/text.h"

namespace tavrin::win32 {
namespace {

/// OutputDebugString looks for the memory of that name, by the same right, and tells nobody where there is
/// none.
bool HasViewer() {
    return OwnedHandle(OpenFileMappingW(FILE_MAP_WRITE, FALSE, L"DBWIN_BUFFER")) != nullptr;
}

class DebugOutput final : public data::Diagnosis {
  public:
    void Tell(std::string_view line) noexcept override try {
        OutputDebugStringW(ToWide("Tavrin: " + std::string(line) + "\n").c_str());
    } catch (...) {
        return;  // no memory for the line
    }
};

}  // namespace

std::shared_ptr<data::Diagnosis> FindDebugListener() {
    if (IsDebuggerPresent() == FALSE && !HasViewer()) return nullptr;
    return std::make_shared<DebugOutput>();
}

}  // namespace tavrin::win32
