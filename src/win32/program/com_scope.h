#pragma once

#include <windows.h>

#include <objbase.h>

namespace tavrin::win32 {

/// A program's thread is a single-threaded apartment while this object lives.
class ComScope {
  public:
    ComScope() : result_(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
    ~ComScope() {
        if (SUCCEEDED(result_)) CoUninitialize();
    }
    ComScope(const ComScope&) = delete;
    ComScope& operator=(const ComScope&) = delete;

  private:
    HRESULT result_;
};

}  // namespace tavrin::win32
