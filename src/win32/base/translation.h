#pragma once

#include <windows.h>

#include <string>
#include <utility>

namespace tavrin::win32 {

/// A failure on its way out of the component.
struct Failure {
    HRESULT result = S_OK;
    std::string description;
};

/// What the exception being handled means to the outside: a provider's number is the result itself, a runtime
/// number n becomes 0x800A0000 + n. Call it in a catch block only.
Failure CurrentFailure() noexcept;

/// Runs what stands behind a method, an export or a callback that the outside calls. Nothing that it throws
/// comes out: scripts/check-edge sees to it that whoever is called from outside does his work in here.
template <class Work>
HRESULT Translated(Work&& work) noexcept {
    try {
        return std::forward<Work>(work)();
    } catch (...) {
        return CurrentFailure().result;
    }
}

}  // namespace tavrin::win32
