#pragma once

#include <windows.h>

#include <oaidl.h>

#include "win32/base/translation.h"

namespace tavrin::com {

/// Sets the thread's error object, where early-bound callers look for the description.
void SetErrorInfo(const win32::Failure& failure, REFIID interfaceId) noexcept;

/// Fills in the EXCEPINFO of a late-bound caller, if it passed one.
void FillExceptionInfo(const win32::Failure& failure, EXCEPINFO* info) noexcept;

}  // namespace tavrin::com
