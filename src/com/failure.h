#pragma once

#include <windows.h>

#include <oaidl.h>

#include <string>

namespace tavrin::com {

/// A failure on its way out of the component.
struct Failure {
    HRESULT result = S_OK;
    std::string description;
};

/// What the exception being handled means to the outside: a provider's number is the result itself, a runtime
/// number n becomes 0x800A0000 + n. Call it in a catch block only.
Failure CurrentFailure() noexcept;

/// Leaves the description where early-bound callers look for it.
void SetErrorInfo(const Failure& failure, REFIID interfaceId) noexcept;

/// Fills in what late-bound callers are told; null is none of them.
void FillExceptionInfo(const Failure& failure, EXCEPINFO* info) noexcept;

}  // namespace tavrin::com
